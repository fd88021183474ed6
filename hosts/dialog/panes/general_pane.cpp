#include "hosts/dialog/panes/general_pane.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>

#include "hosts/dialog/widgets/plain_text.h"
#include "hosts/dialog/widgets/tab_order.h"
#include "hosts/session/page_range.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

const QString pagesKey = QStringLiteral("page-ranges");

QString keyOf(const OptionRow& row) {
  return QLatin1String(row.key);
}

}  // namespace

GeneralPane::GeneralPane(JobOptions& options, QWidget* parent)
    : QWidget(parent), m_options(options), m_note(new QLabel(this)), m_form(new QFormLayout) {
  auto* column = new QVBoxLayout(this);
  column->addLayout(m_form);
  column->addWidget(m_note);
  column->addStretch();
  m_form->setLabelAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
  m_note->setWordWrap(true);
  m_note->setObjectName(QStringLiteral("generalNote"));
  for (const OptionRow& row : optionTable()) {
    if (row.group == OptionGroup::General && row.kind != OptionKind::Choice) addRow(row);
  }
  connect(&m_options, &JobOptions::changed, this, &GeneralPane::update);
  update();
}

void GeneralPane::showQueue(const QStringList& handledByPanel) {
  std::erase_if(m_controls, [this](const Control& control) {
    if (control.row->kind != OptionKind::Choice) return false;
    m_form->removeRow(control.widget);
    return true;
  });
  for (const OptionRow& row : optionTable()) {
    const bool isOfQueue = row.group == OptionGroup::General && row.kind == OptionKind::Choice;
    if (isOfQueue && !handledByPanel.contains(keyOf(row)) && m_options.choices(keyOf(row)).size() > 1)
      addRow(row);
  }
  update();
}

void GeneralPane::addRow(const OptionRow& row) {
  if (row.kind == OptionKind::Number) addNumber(row);
  if (row.kind == OptionKind::Switch) addSwitch(row);
  if (row.kind == OptionKind::Pages) addPages(row);
  if (row.kind == OptionKind::Choice) addChoice(row);
}

QLabel* GeneralPane::makeLabel(const OptionRow& row, QWidget& control) {
  auto* label = new QLabel(this);
  label->setBuddy(&control);
  setPlainText(*label, withColon(m_options.text(keyOf(row))));
  control.setAccessibleName(withoutColon(plainText(*label)));
  control.setObjectName(keyOf(row));
  m_controls.push_back({&row, &control});
  return label;
}

void GeneralPane::addNumber(const OptionRow& row) {
  auto* number = new QSpinBox(this);
  number->setRange(leastNumber, mostNumber);
  m_line = new QHBoxLayout;
  m_line->addWidget(number);
  m_line->addStretch();
  m_form->addRow(makeLabel(row, *number), m_line);
  connect(number, &QSpinBox::valueChanged, this,
          [this, &row](int value) { take(row, QString::number(value)); });
}

// It stands beside the number that it needs.
void GeneralPane::addSwitch(const OptionRow& row) {
  auto* box = new QCheckBox(this);
  setPlainText(*box, m_options.text(keyOf(row)));
  box->setObjectName(keyOf(row));
  m_line->insertWidget(1, box);
  m_controls.push_back({&row, box});
  connect(box, &QCheckBox::toggled, this,
          [this, &row](bool on) { take(row, QLatin1String(on ? "true" : "false")); });
}

void GeneralPane::addChoice(const OptionRow& row) {
  auto* combo = new QComboBox(this);
  for (const OptionChoice& choice : m_options.choices(keyOf(row)))
    combo->addItem(shownText(choice.text), choice.keyword);
  m_form->addRow(makeLabel(row, *combo), combo);
  show(m_controls.back());
  connect(combo, &QComboBox::currentIndexChanged, this,
          [this, &row, combo] { take(row, combo->currentData().toString()); });
}

void GeneralPane::addPages(const OptionRow& row) {
  auto* line = new QWidget(this);
  m_allPages = new QRadioButton(line);
  m_applicationsPages = new QRadioButton(line);
  m_somePages = new QRadioButton(line);
  m_pages = new QLineEdit(line);
  setPlainText(*m_allPages, tr("All"));
  setPlainText(*m_somePages, tr("These:"));
  m_allPages->setObjectName(QStringLiteral("allPages"));
  m_applicationsPages->setObjectName(QStringLiteral("ownPages"));
  m_applicationsPages->hide();
  m_somePages->setObjectName(QStringLiteral("somePages"));
  m_pages->setObjectName(QStringLiteral("pages"));
  m_pages->setPlaceholderText(tr("1-3, 5"));
  m_pages->setAccessibleName(tr("Pages to print, for example 1-3, 5"));
  auto* layout = new QHBoxLayout(line);
  layout->setContentsMargins({});
  for (QRadioButton* radio : {m_allPages, m_applicationsPages, m_somePages}) {
    layout->addWidget(radio);
    enterAtChosen(*radio);
    connect(radio, &QRadioButton::toggled, this, [this, &row](bool on) {
      if (on) takePages(row);
    });
  }
  layout->addWidget(m_pages);
  connect(m_somePages, &QRadioButton::clicked, m_pages, [this] { m_pages->setFocus(Qt::OtherFocusReason); });
  connect(m_pages, &QLineEdit::textChanged, this, [this, &row](const QString& pages) {
    if (!pages.isEmpty()) m_somePages->setChecked(true);
    takePages(row);
  });
  m_form->addRow(new QLabel(withColon(m_options.text(keyOf(row))), this), line);
  m_controls.push_back({&row, line});
}

void GeneralPane::offerApplicationsPages(const QString& name) {
  setPlainText(*m_applicationsPages, name);
  m_applicationsPages->show();
}

// What the control shows of the options is no choice.
void GeneralPane::take(const OptionRow& row, const QString& value) {
  const QString before = m_options.value(keyOf(row));
  if (value != before || value.isNull() != before.isNull()) m_options.choose(keyOf(row), value);
}

void GeneralPane::takePages(const OptionRow& row) {
  if (m_allPages->isChecked()) return take(row, QString());
  if (m_applicationsPages->isChecked()) return take(row, JobOptions::applicationsPages);
  if (m_somePages->isChecked()) take(row, m_pages->text() + QLatin1String(""));
}

void GeneralPane::show(const Control& control) {
  const QString value = m_options.value(keyOf(*control.row));
  if (auto* number = qobject_cast<QSpinBox*>(control.widget)) number->setValue(value.toInt());
  if (auto* box = qobject_cast<QCheckBox*>(control.widget)) {
    box->setChecked(value == u"true");
    box->setEnabled(!m_options.isDefault(QLatin1String(control.row->needs)));
  }
  if (auto* combo = qobject_cast<QComboBox*>(control.widget)) {
    if (combo->findData(value) < 0 && !value.isNull())
      combo->addItem(shownText(m_options.textOf(keyOf(*control.row), value)), value);
    combo->setCurrentIndex(combo->findData(value));
  }
  if (control.row->kind == OptionKind::Pages) showPages(value);
}

void GeneralPane::showPages(const QString& value) {
  const bool areApplications = !m_applicationsPages->isHidden() && value == JobOptions::applicationsPages;
  if (!value.isNull() && !areApplications && m_pages->text() != value) m_pages->setText(value);
  QRadioButton* some = areApplications ? m_applicationsPages : m_somePages;
  (value.isNull() ? m_allPages : some)->setChecked(true);
}

QString GeneralPane::fault() const {
  const QString asked = m_options.value(pagesKey);
  if (asked.isNull() || m_applicationsPages->isChecked()) return {};
  if (!pageRangesOf(asked)) return tr("Enter page numbers or ranges, for example 1-3, 5.");
  if (m_options.pages().isNull())
    return tr("The document ends at page %1. Enter page numbers up to %1.").arg(m_options.pageCount());
  return {};
}

void GeneralPane::showFault() {
  m_pages->setFocus(Qt::OtherFocusReason);
  m_pages->selectAll();
}

// What cannot be printed as it is chosen, and what is printed of pages that are not all there.
QString GeneralPane::note() const {
  if (!fault().isNull() && !m_pages->text().isEmpty()) return fault();
  QStringList lines;
  if (!m_options.conflicts().isEmpty())
    lines.append(
        shownText(tr("The printer cannot do these together: %1.").arg(m_options.conflicts().join(u", "))));
  const QString pages = m_options.pages();
  if (!pages.isNull() && pages != pageRangesOf(m_options.value(pagesKey)).value_or(QString()))
    lines.append(tr("The document ends at page %1. Pages that will be printed: %2.")
                     .arg(m_options.pageCount())
                     .arg(pages));
  return lines.join(u'\n');
}

void GeneralPane::update() {
  for (const Control& control : m_controls)
    show(control);
  m_note->setText(note());
}

}  // namespace kesto
