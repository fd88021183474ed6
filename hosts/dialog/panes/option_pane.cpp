#include "hosts/dialog/panes/option_pane.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSet>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <algorithm>
#include <array>
#include <utility>

#include "hosts/dialog/panes/pages_control.h"
#include "hosts/dialog/widgets/mnemonics.h"
#include "hosts/dialog/widgets/plain_text.h"

namespace kesto {
namespace {

const QString filterName = QStringLiteral("filter");

// Whether an option comes and goes with the queue.
bool isOfQueue(const OfferedOption& option) {
  return option.kind == OptionKind::Choice || option.kind == OptionKind::Covers;
}

// The labels that a group can have, whatever the queue offers.
QStringList labelsOf(OptionGroup group) {
  QStringList labels;
  for (const OptionRow& row : optionTable()) {
    if (row.group == group && row.text != nullptr)
      labels.append(QCoreApplication::translate("JobOptions", row.text));
  }
  return labels;
}

}  // namespace

OptionPane::OptionPane(OptionGroup group, JobOptions& options, QWidget* parent)
    : QWidget(parent), m_group(group), m_options(options), m_form(new QFormLayout), m_note(new QLabel(this)) {
  setObjectName(nameOf(group));
  setMnemonicTexts(*this, labelsOf(group));
  auto* column = new QVBoxLayout(this);
  column->addLayout(m_form);
  column->addWidget(m_note);
  m_form->setLabelAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
  m_note->setWordWrap(true);
  m_note->setObjectName(nameOf(group) + QStringLiteral("Note"));
  m_note->hide();
  m_idle.setSingleShot(true);
  connect(&m_idle, &QTimer::timeout, this, &OptionPane::addSome);
  connect(&m_options, &JobOptions::changed, this, &OptionPane::showOptions);
}

QString OptionPane::nameOf(OptionGroup group) {
  static constexpr std::array names{"general", "layout", "job", "more"};
  return QLatin1String(names.at(static_cast<std::size_t>(group)));
}

QString OptionPane::titleOf(OptionGroup group) {
  switch (group) {
    case OptionGroup::General:
      return tr("General");
    case OptionGroup::Layout:
      return tr("Layout");
    case OptionGroup::Job:
      return tr("Job");
    case OptionGroup::More:
      break;
  }
  return tr("More options");
}

// Before it is seen, so that it appears whole.
void OptionPane::setVisible(bool isVisible) {
  if (isVisible) make();
  QWidget::setVisible(isVisible);
}

void OptionPane::make() {
  if (std::exchange(m_isMade, true)) return;
  showQueue();
  if (!m_missing.empty()) Q_EMIT made();  // the first are seen at once
}

// The job's own options stay as they are, with what is being typed there.
void OptionPane::showQueue() {
  if (!m_isMade) return;
  m_section = QString();
  removeQueuesLines();
  m_missing = offeredOptions(m_options, m_group);
  if (m_group == OptionGroup::More && !m_missing.empty()) addFilter();
  std::erase_if(m_missing, [this](const OfferedOption& each) {
    return std::ranges::any_of(m_lines,
                               [&](const Line& line) { return line.control->option().key == each.key; });
  });
  showOptions();
  addSome();
}

// Keys and clicks come in between.
void OptionPane::addSome() {
  constexpr std::ptrdiff_t most = 16;
  const auto end = m_missing.begin() + std::min(std::ssize(m_missing), most);
  std::for_each(m_missing.begin(), end, [this](const OfferedOption& each) { addOption(each); });
  m_missing.erase(m_missing.begin(), end);
  updateNote();
  if (!m_missing.empty()) return m_idle.start(0);
  if (const auto* field = findChild<QLineEdit*>(filterName)) filter(field->text());
  Q_EMIT made();
}

void OptionPane::removeQueuesLines() {
  std::erase_if(m_lines, [](const Line& line) { return isOfQueue(line.control->option()); });
  QSet<const QLayoutItem*> kept;
  for (const Line& line : m_lines) {
    if (line.label != nullptr) kept.insert(m_form->itemAt(rowOf(*line.label), QFormLayout::FieldRole));
    line.control->showQueue();
  }
  for (int row = m_form->rowCount() - 1; row >= 0; --row) {
    if (!kept.contains(m_form->itemAt(row, QFormLayout::FieldRole))) m_form->removeRow(row);
  }
}

int OptionPane::rowOf(QLabel& label) const {
  int row = -1;
  m_form->getWidgetPosition(&label, &row, nullptr);
  return row;
}

void OptionPane::addOption(const OfferedOption& option) {
  if (option.section != std::exchange(m_section, option.section)) addSection(option.section);
  for (OptionControl* control : makeControls(option, m_options, this)) {
    addControl(*control);
    showLine(m_lines.back());
  }
}

// What has its text in itself stands beside the control before it.
void OptionPane::addControl(OptionControl& control) {
  control.showQueue();
  connect(&control, &OptionControl::faultChanged, this, [this] {
    updateNote();
    Q_EMIT faultChanged();
  });
  if (auto* pages = qobject_cast<PagesControl*>(&control)) pages->offer(m_applicationsPages);
  const QString text = control.label();
  if (text.isNull() && m_line != nullptr) {
    m_line->insertWidget(m_line->count() - 1, &control);
    return m_lines.push_back({&control, nullptr});
  }
  auto* label = new QLabel(this);
  label->setBuddy(control.field());
  setPlainText(*label, text.isNull() ? QString() : withColon(text));
  auto* line = new QHBoxLayout;
  line->addWidget(&control);
  // Other switches follow the number.
  if (control.option().kind == OptionKind::Number) {
    m_line = line;
    line->setSpacing(fontMetrics().height() / 2);
    line->addStretch();
  }
  m_form->addRow(label, line);
  m_lines.push_back({&control, label});
}

void OptionPane::addSection(const QString& text) {
  auto* heading = new QLabel(this);
  setPlainText(*heading, text);
  heading->setFont(boldOf(heading->font()));
  m_form->addRow(heading);
}

void OptionPane::addFilter() {
  auto* filter = new QLineEdit(this);
  filter->setObjectName(filterName);
  filter->setClearButtonEnabled(true);
  filter->setAccessibleName(tr("Filter"));
  auto* label = new QLabel(this);
  label->setBuddy(filter);
  setPlainText(*label, withColon(tr("Filter")));
  m_form->addRow(label, filter);
  connect(filter, &QLineEdit::textChanged, this, &OptionPane::filter);
}

// A heading is shown with any of its options.
void OptionPane::filter(const QString& text) {
  int heading = -1;
  for (int row = 1; row < m_form->rowCount(); ++row) {
    const QLayoutItem* label = m_form->itemAt(row, QFormLayout::LabelRole);
    if (label == nullptr) {
      heading = row;
      m_form->setRowVisible(row, false);
      continue;
    }
    const bool isFound = plainText(*label->widget()).contains(text.trimmed(), Qt::CaseInsensitive);
    m_form->setRowVisible(row, isFound);
    if (isFound && heading >= 0) m_form->setRowVisible(heading, true);
  }
}

void OptionPane::offerPages(const QString& pages) {
  m_applicationsPages.append(pages);
  for (const Line& line : m_lines) {
    if (auto* control = qobject_cast<PagesControl*>(line.control)) control->offer(m_applicationsPages);
  }
}

QString OptionPane::fault() const {
  if (!m_isMade && m_group == OptionGroup::General) return faultOfPages(m_options);
  for (const Line& line : m_lines) {
    if (QString fault = line.control->fault(); !fault.isNull()) return fault;
  }
  return {};
}

void OptionPane::showFault() {
  make();
  for (const Line& line : m_lines) {
    if (!line.control->fault().isNull()) return line.control->faultyField()->setFocus(Qt::OtherFocusReason);
  }
}

// What cannot be printed as it is chosen, and what is printed instead of what was asked for.
QString OptionPane::note() const {
  QStringList lines;
  for (const Line& line : m_lines) {
    const QString fault = line.control->isTouched() ? line.control->fault() : QString();
    const QString note = fault.isNull() ? line.control->note() : fault;
    if (!note.isNull()) lines.append(note);
  }
  if (m_options.isForFile())
    lines.append(tr("A PDF file keeps its pages as they are. Only pages and their order can be chosen."));
  return lines.join(u'\n');
}

void OptionPane::showLine(const Line& line) {
  line.control->showValue();
  const bool isIdle = m_options.isIdle(line.control->option().key);
  line.control->setEnabled(!isIdle);
  if (line.label != nullptr) line.label->setEnabled(!isIdle);
}

void OptionPane::showOptions() {
  for (const Line& line : m_lines)
    showLine(line);
  updateNote();
}

void OptionPane::updateNote() {
  m_note->setText(note());
  m_note->setVisible(!m_note->text().isEmpty());
}

}  // namespace kesto
