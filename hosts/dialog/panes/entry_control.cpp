#include "hosts/dialog/panes/entry_control.h"

#include <QtCore/QLocale>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>
#include <cmath>

#include "hosts/dialog/widgets/plain_text.h"
#include "hosts/session/hold_time.h"

namespace kesto {
namespace {

// No keyword of an option.
const QString entryData = QStringLiteral("\n");

// The British measure paper in millimetres, too.
bool isMetric() {
  return QLocale().measurementSystem() != QLocale::ImperialUSSystem;
}

double millimetresPerUnit() {
  constexpr double perInch = 25.4;
  return isMetric() ? 1 : perInch;
}

// A number as the user's language or a program writes it; NaN for any other text.
double numberOf(const QString& text) {
  bool isNumber = false;
  double number = QLocale().toDouble(text.trimmed(), &isNumber);
  if (!isNumber) number = text.trimmed().toDouble(&isNumber);
  return isNumber ? number : std::nan("");
}

QString textOfNumber(double number) {
  QLocale locale;
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  return locale.toString(number, 'g', 5);
}

}  // namespace

EntryControl::EntryControl(const OfferedOption& option, JobOptions& options, const QList<Field>& fields,
                           QWidget* parent)
    : ChoiceControl(option, options, parent),
      m_line(new QWidget(this)),
      m_lineLayout(new QHBoxLayout(m_line)) {
  m_lineLayout->setContentsMargins({});
  for (const Field& each : fields) {
    auto* label = new QLabel(m_line);
    auto* field = new QLineEdit(m_line);
    setPlainText(*label, withColon(each.label));
    label->setBuddy(field);
    name(*field, each.label, each.name);
    m_lineLayout->addWidget(label);
    m_lineLayout->addWidget(field);
    m_fields.append(field);
    connect(field, &QLineEdit::textChanged, this, &EntryControl::takeTexts);
  }
  column().addWidget(m_line);
  m_line->hide();
}

void EntryControl::addUnit(const QString& unit) {
  m_lineLayout->addWidget(new QLabel(unit, m_line));
}

void EntryControl::showQueue() {
  m_valueOfEntry = QString();
  ChoiceControl::showQueue();
  m_line->hide();
}

void EntryControl::fill() {
  ChoiceControl::fill();
  const auto [place, text] = entryItem();
  if (!text.isNull()) list().insertItem(place, text, entryData);
}

bool EntryControl::isEntry() const {
  return list().currentData() == entryData;
}

QStringList EntryControl::texts() const {
  QStringList texts;
  for (const QLineEdit* each : m_fields)
    texts.append(each->text());
  return texts;
}

void EntryControl::showTexts(const QStringList& texts) {
  for (qsizetype i = 0; i < m_fields.size(); ++i) {
    const QSignalBlocker blocker(m_fields[i]);
    m_fields[i]->setText(texts.value(i));
  }
}

// What the user is typing stays as it is typed.
void EntryControl::showValue() {
  if (isEntry() && value() == m_valueOfEntry) return;
  const QStringList texts = textsOf(value());
  if (texts.isEmpty() || entryItem().second.isNull()) {
    ChoiceControl::showValue();
  } else {
    const QSignalBlocker blocker(&list());
    list().setCurrentIndex(list().findData(entryData));
    showTexts(texts);
    m_valueOfEntry = value();
  }
  m_line->setVisible(isEntry());
  markFields();
}

void EntryControl::takeItem() {
  m_line->setVisible(isEntry());
  if (!isEntry()) {
    ChoiceControl::takeItem();
    return markFields();
  }
  showTexts(initialTexts());
  takeTexts();
}

void EntryControl::takeTexts() {
  if (!isEntry()) return;
  m_valueOfEntry = value();
  if (fault().isNull()) {
    // The options say so at once, and this shows them.
    const QString chosen = valueOf(texts());
    m_valueOfEntry = options().choiceFor(option().key, chosen);
    if (m_valueOfEntry.isNull()) m_valueOfEntry = chosen;
    take(chosen);
  }
  markFields();
}

QString EntryControl::fault() const {
  for (qsizetype i = 0; isEntry() && i < m_fields.size(); ++i) {
    if (QString fault = faultOf(i, m_fields[i]->text()); !fault.isNull()) return fault;
  }
  return {};
}

QWidget* EntryControl::faultyField() {
  for (qsizetype i = 0; i < m_fields.size(); ++i) {
    if (!faultOf(i, m_fields[i]->text()).isNull()) return m_fields[i];
  }
  return field();
}

void EntryControl::markFields() {
  for (qsizetype i = 0; i < m_fields.size(); ++i)
    mark(*m_fields[i], isEntry() ? faultOf(i, m_fields[i]->text()) : QString());
  Q_EMIT faultChanged();
}

PaperControl::PaperControl(const OfferedOption& option, JobOptions& options, QWidget* parent)
    : EntryControl(
          option, options,
          {{tr("Width"), QStringLiteral("paperWidth")}, {tr("Height"), QStringLiteral("paperHeight")}},
          parent) {
  addUnit(isMetric() ? tr("mm") : tr("in"));
}

std::pair<int, QString> PaperControl::entryItem() const {
  return {list().count(), options().ofQueue().customLimits() ? tr("Custom size") : QString()};
}

QStringList PaperControl::textsOfSize(double width, double height) const {
  return {textOfNumber(width / millimetresPerUnit()), textOfNumber(height / millimetresPerUnit())};
}

QStringList PaperControl::textsOf(const QString& value) const {
  const std::optional<CustomSize> size = customSizeOf(value);
  if (!size) return {};
  const auto [width, height] = millimetresOf(*size);
  return textsOfSize(width, height);
}

QStringList PaperControl::initialTexts() const {
  const std::optional<PpdPaper> paper = options().paper();
  return paper ? textsOfSize(paper->width, paper->height) : QStringList();
}

QString PaperControl::faultOf(qsizetype field, const QString& text) const {
  const CustomLimits limits = options().ofQueue().customLimits().value_or(CustomLimits());
  const bool isWidth = field == 0;
  // To tenths that are within; a sliver is lost between the units.
  constexpr double tenths = 10;
  constexpr double sliver = 0.001;
  const double least =
      std::ceil((isWidth ? limits.leastWidth : limits.leastHeight) / millimetresPerUnit() * tenths - sliver) /
      tenths;
  const double most =
      std::floor((isWidth ? limits.mostWidth : limits.mostHeight) / millimetresPerUnit() * tenths + sliver) /
      tenths;
  const double number = numberOf(text);
  if (number >= least && number <= most) return {};
  const QString said =
      isWidth ? tr("Enter a width between %1 and %2 %3.") : tr("Enter a height between %1 and %2 %3.");
  return said.arg(textOfNumber(least), textOfNumber(most), isMetric() ? tr("mm") : tr("in"));
}

QString PaperControl::valueOf(const QStringList& texts) const {
  return customChoice(numberOf(texts[0]) * millimetresPerUnit(), numberOf(texts[1]) * millimetresPerUnit());
}

PercentControl::PercentControl(const OfferedOption& option, JobOptions& options, QWidget* parent)
    : EntryControl(option, options, {{tr("Percent"), QStringLiteral("percent")}}, parent) {}

std::pair<int, QString> PercentControl::entryItem() const {
  return {list().count(), tr("Custom")};
}

QStringList PercentControl::textsOf(const QString& value) const {
  return value.toInt() > 0 ? QStringList(value) : QStringList();
}

QStringList PercentControl::initialTexts() const {
  return {QStringLiteral("100")};
}

QString PercentControl::faultOf(qsizetype /*field*/, const QString& text) const {
  const int percent = valueOf({text}).toInt();
  if (percent >= leastPercent && percent <= mostPercent) return {};
  return tr("Enter a percentage between %1 and %2.").arg(leastPercent).arg(mostPercent);
}

QString PercentControl::valueOf(const QStringList& texts) const {
  const QString text = texts[0].trimmed();
  return QString::number((text.endsWith(u'%') ? text.chopped(1).trimmed() : text).toInt());
}

HoldControl::HoldControl(const OfferedOption& option, JobOptions& options, QWidget* parent)
    : EntryControl(option, options, {{tr("Time"), QStringLiteral("holdTime")}}, parent) {}

std::pair<int, QString> HoldControl::entryItem() const {
  return {1, tr("At")};
}

QStringList HoldControl::textsOf(const QString& value) const {
  const QTime time = holdTimeFrom(value);
  return time.isValid() ? QStringList(time.toString(QStringLiteral("HH:mm"))) : QStringList();
}

QStringList HoldControl::initialTexts() const {
  constexpr int hour = 3600;
  return {QTime(QTime::currentTime().addSecs(hour).hour(), 0).toString(QStringLiteral("HH:mm"))};
}

QString HoldControl::faultOf(qsizetype /*field*/, const QString& text) const {
  return holdValueOf(text).isNull() ? tr("Enter a time of day, for example 14:30.") : QString();
}

QString HoldControl::valueOf(const QStringList& texts) const {
  return holdValueOf(texts[0]);
}

}  // namespace kesto
