#include "hosts/dialog/panes/general_pane.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>
#include <algorithm>
#include <array>

#include "hosts/dialog/widgets/plain_text.h"
#include "hosts/dialog/widgets/tab_order.h"
#include "hosts/session/page_range.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

// What a PPD says in English only, and every dialog has a word of its own for.
struct Term {
  const char* keyword;  ///< Of an option, or of an option and a choice.
  const char* text;
};

constexpr std::array terms{
    Term{"PageSize", QT_TRANSLATE_NOOP("GeneralPane", "Paper size:")},
    Term{"InputSlot", QT_TRANSLATE_NOOP("GeneralPane", "Paper source:")},
    Term{"MediaType", QT_TRANSLATE_NOOP("GeneralPane", "Paper type:")},
    Term{"Duplex", QT_TRANSLATE_NOOP("GeneralPane", "Two-sided:")},
    Term{"ColorModel", QT_TRANSLATE_NOOP("GeneralPane", "Color:")},
    Term{"cupsPrintQuality", QT_TRANSLATE_NOOP("GeneralPane", "Print quality:")},
    Term{"Resolution", QT_TRANSLATE_NOOP("GeneralPane", "Resolution:")},
    Term{"OutputBin", QT_TRANSLATE_NOOP("GeneralPane", "Output tray:")},
    Term{"StapleLocation", QT_TRANSLATE_NOOP("GeneralPane", "Staple:")},
    Term{"Duplex None", QT_TRANSLATE_NOOP("GeneralPane", "Off")},
    Term{"Duplex DuplexNoTumble", QT_TRANSLATE_NOOP("GeneralPane", "Long edge")},
    Term{"Duplex DuplexTumble", QT_TRANSLATE_NOOP("GeneralPane", "Short edge")},
};

QString termFor(const QString& keyword, const QString& text) {
  const auto found =
      std::ranges::find_if(terms, [&](const Term& term) { return keyword == QLatin1String(term.keyword); });
  return found == terms.end() ? text : QCoreApplication::translate("GeneralPane", found->text);
}

// A value of the user's own, as in "Custom.10x15cm".
QString customText(const QString& choice) {
  if (const std::optional<CustomSize> size = customSizeOf(choice))
    return GeneralPane::tr("Custom %1 x %2 %3").arg(size->width, size->length, size->unit);
  return GeneralPane::tr("Custom %1").arg(choice.section(u'.', 1));
}

}  // namespace

GeneralPane::GeneralPane(QWidget* parent)
    : QWidget(parent),
      m_copies(new QSpinBox(this)),
      m_collate(new QCheckBox(this)),
      m_note(new QLabel(this)),
      m_form(new QFormLayout) {
  auto* column = new QVBoxLayout(this);
  column->addLayout(m_form);
  column->addWidget(m_note);
  column->addStretch();
  m_copies->setRange(1, 9999);
  m_copies->setObjectName(QStringLiteral("copies"));
  setPlainText(*m_collate, tr("Collate"));
  m_collate->setChecked(true);
  auto* copies = new QHBoxLayout;
  copies->addWidget(m_copies);
  copies->addWidget(m_collate);
  copies->addStretch();
  auto* label = new QLabel(this);
  label->setBuddy(m_copies);
  setPlainText(*label, tr("Copies:"));
  m_copies->setAccessibleName(tr("Copies"));
  m_form->addRow(label, copies);
  auto* pagesLabel = new QLabel(tr("Pages:"), this);
  m_form->addRow(pagesLabel, makePages());
  m_form->setLabelAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
  m_note->setWordWrap(true);
  m_note->setObjectName(QStringLiteral("generalNote"));
  connect(m_copies, &QSpinBox::valueChanged, this, &GeneralPane::update);
  connect(m_collate, &QCheckBox::toggled, this, &GeneralPane::update);
  update();
}

QWidget* GeneralPane::makePages() {
  auto* row = new QWidget(this);
  m_allPages = new QRadioButton(row);
  m_ownPages = new QRadioButton(row);
  m_somePages = new QRadioButton(row);
  m_pages = new QLineEdit(row);
  setPlainText(*m_allPages, tr("All"));
  setPlainText(*m_somePages, tr("These:"));
  m_allPages->setChecked(true);
  m_allPages->setObjectName(QStringLiteral("allPages"));
  m_ownPages->setObjectName(QStringLiteral("ownPages"));
  m_ownPages->hide();
  m_somePages->setObjectName(QStringLiteral("somePages"));
  m_pages->setObjectName(QStringLiteral("pages"));
  m_pages->setPlaceholderText(tr("1-3, 5"));
  m_pages->setAccessibleName(tr("Pages to print, such as 1-3, 5"));
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins({});
  layout->addWidget(m_allPages);
  layout->addWidget(m_ownPages);
  layout->addWidget(m_somePages);
  layout->addWidget(m_pages);
  enterAtChosen(*m_allPages);
  enterAtChosen(*m_ownPages);
  enterAtChosen(*m_somePages);
  connect(m_somePages, &QRadioButton::clicked, m_pages, [this] { m_pages->setFocus(Qt::OtherFocusReason); });
  connect(m_pages, &QLineEdit::textChanged, m_somePages, [this](const QString& pages) {
    if (!pages.isEmpty()) m_somePages->setChecked(true);
  });
  connect(m_pages, &QLineEdit::textChanged, this, &GeneralPane::update);
  connect(m_somePages, &QRadioButton::toggled, this, &GeneralPane::update);
  return row;
}

void GeneralPane::setPages(const QString& pages) {
  m_pages->setText(pages);
  (pages.isEmpty() ? m_allPages : m_somePages)->setChecked(true);
}

void GeneralPane::offerOwnPages(const QString& name) {
  setPlainText(*m_ownPages, name);
  m_ownPages->show();
  m_ownPages->setChecked(true);
}

bool GeneralPane::hasOwnPages() const {
  return m_ownPages->isChecked();
}

void GeneralPane::setPageCount(int count) {
  m_pageCount = count;
  update();
}

void GeneralPane::setPpd(ppd_file_t* ppd, const QStringList& handledByPanel,
                         const QMap<QString, QString>& kept) {
  constexpr int ownRows = 2;
  while (m_form->rowCount() > ownRows)
    m_form->removeRow(ownRows);
  m_rows.clear();
  m_conflict.clear();
  m_ppd = ppd;
  if (ppd != nullptr) {
    for (const PpdOption& option : usualOptions(*ppd, handledByPanel))
      addOption(option);
  }
  for (Row& row : m_rows) {
    if (kept.contains(row.keyword) && choose(row.keyword, kept.value(row.keyword))) row.initial = -1;
  }
  update();
}

void GeneralPane::addOption(const PpdOption& option) {
  auto* combo = new QComboBox(this);
  for (const PpdChoice& choice : option.choices)
    combo->addItem(shownText(termFor(option.keyword + u' ' + choice.keyword, choice.text)), choice.keyword);
  combo->setCurrentIndex(option.marked);
  combo->setObjectName(option.keyword);
  auto* label = new QLabel(this);
  label->setBuddy(combo);
  setPlainText(*label, termFor(option.keyword, withColon(option.text)));
  combo->setAccessibleName(withoutColon(plainText(*label)));
  m_form->addRow(label, combo);
  const Row row{option.keyword, combo, option.marked};
  m_rows.push_back(row);
  connect(combo, &QComboBox::currentIndexChanged, this, [this, row] { takeChoice(row); });
}

void GeneralPane::takeChoice(const Row& row) {
  const QString choice = row.combo->currentData().toString();
  const QStringList conflicts = markChoice(*m_ppd, row.keyword, choice);
  m_conflict = conflicts.isEmpty()
                   ? QString()
                   : tr("The printer cannot do these together: %1.").arg(conflicts.join(u", "));
  update();
  Q_EMIT optionChosen(row.keyword, choice);
}

bool GeneralPane::choose(const QString& option, const QString& choice) {
  if (option == u"copies") {
    const int copies = choice.toInt();
    if (copies < m_copies->minimum() || copies > m_copies->maximum()) return false;
    m_copies->setValue(copies);
  } else if (option == u"collate") {
    static const QStringList words{QStringLiteral("true"),  QStringLiteral("on"),  QStringLiteral("yes"),
                                   QStringLiteral("false"), QStringLiteral("off"), QStringLiteral("no")};
    const qsizetype word = words.indexOf(choice.toLower());
    if (word < 0) return false;
    m_collate->setChecked(word < 3);
  } else if (option == u"page-ranges") {
    // What the application asks for goes before what is kept for the queue.
    if (!hasOwnPages()) setPages(choice);
  } else {
    const auto row = std::ranges::find(m_rows, option, &Row::keyword);
    if (row == m_rows.end()) return false;
    if (row->combo->findData(choice) < 0 && choice.startsWith(u"Custom."))
      row->combo->addItem(shownText(customText(choice)), choice);
    const int index = row->combo->findData(choice);
    if (index < 0) return false;
    row->combo->setCurrentIndex(index);
  }
  return true;
}

QString GeneralPane::chosen(const QString& option) const {
  const auto row = std::ranges::find(m_rows, option, &Row::keyword);
  return row == m_rows.end() ? QString() : row->combo->currentData().toString();
}

QString GeneralPane::pages() const {
  const QString pages =
      m_somePages->isChecked() ? pageRangesOf(m_pages->text(), m_pageCount).value_or(QString()) : QString();
  return pages.isEmpty() ? QString() : pages;
}

QMap<QString, QString> GeneralPane::jobOptions() const {
  QMap<QString, QString> options;
  if (m_copies->value() > 1) {
    options.insert(QStringLiteral("copies"), QString::number(m_copies->value()));
    options.insert(QStringLiteral("collate"), QLatin1String(m_collate->isChecked() ? "true" : "false"));
  }
  if (!pages().isNull()) options.insert(QStringLiteral("page-ranges"), pages());
  for (const Row& row : m_rows) {
    if (row.combo->currentIndex() != row.initial)
      options.insert(row.keyword, row.combo->currentData().toString());
  }
  return options;
}

QString GeneralPane::fault() const {
  if (!m_somePages->isChecked()) return {};
  if (!pageRangesOf(m_pages->text())) return tr("Enter page numbers or ranges, for example 1-3, 5.");
  if (pages().isNull()) return tr("The document ends with page %1. Enter pages up to it.").arg(m_pageCount);
  return {};
}

// What is printed when some of the pages asked for are not there.
QString GeneralPane::cutText() const {
  if (pages().isNull() || pages() == pageRangesOf(m_pages->text()).value_or(QString())) return {};
  const QString text = tr("The document ends with page %1. Only %2 will be printed.");
  return (m_conflict.isEmpty() ? QString() : QStringLiteral("\n")) + text.arg(m_pageCount).arg(pages());
}

void GeneralPane::showFault() {
  m_pages->setFocus(Qt::OtherFocusReason);
  m_pages->selectAll();
}

void GeneralPane::update() {
  m_collate->setEnabled(m_copies->value() > 1);
  const bool isFaulty = !fault().isNull() && !m_pages->text().isEmpty();
  m_note->setText(isFaulty ? fault() : shownText(m_conflict) + cutText());
  Q_EMIT changed();
}

}  // namespace kesto
