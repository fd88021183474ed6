#include "hosts/dialog/panes/choice_control.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QVBoxLayout>

#include "platform/shown_text.h"

namespace kesto {
namespace {

const QString bookletItem = QStringLiteral("booklet");

}  // namespace

ChoiceControl::ChoiceControl(const OfferedOption& option, JobOptions& options, QWidget* parent)
    : OptionControl(option, options, parent), m_list(new QComboBox(this)), m_column(new QVBoxLayout(this)) {
  m_column->setContentsMargins({});
  m_column->addWidget(m_list);
  name(*m_list, ChoiceControl::label(), option.key);
  // Long lists are not measured, and the window keeps its width.
  constexpr int letters = 16;
  m_list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  m_list->setMinimumContentsLength(letters);
  connect(m_list, &QComboBox::currentIndexChanged, this, [this] { takeItem(); });
}

QWidget* ChoiceControl::field() {
  return m_list;
}

void ChoiceControl::showQueue() {
  const QSignalBlocker blocker(m_list);
  m_list->clear();
  fill();
}

void ChoiceControl::fill() {
  for (const OptionChoice& choice : options().choices(option().key))
    m_list->addItem(shownText(choice.text), choice.keyword);
}

void ChoiceControl::showValue() {
  const QSignalBlocker blocker(m_list);
  const QString shown = shownValue();
  if (m_list->findData(shown) < 0 && !shown.isNull())
    m_list->addItem(shownText(options().textOf(option().key, shown)), shown);
  m_list->setCurrentIndex(m_list->findData(shown));
}

void ChoiceControl::takeItem() {
  take(m_list->currentData().toString());
}

CoverControl::CoverControl(const OfferedOption& option, JobOptions& options, Part part, QWidget* parent)
    : ChoiceControl(option, options, parent), m_part(part) {
  name(*field(), CoverControl::label(), option.key + QString::number(part));
}

QString CoverControl::label() const {
  return m_part == Before ? tr("Cover sheet before") : tr("Cover sheet after");
}

QString CoverControl::shownValue() const {
  return value().section(u',', m_part, m_part);
}

void CoverControl::takeItem() {
  QStringList covers = value().split(u',');
  covers.resize(2);
  covers[m_part] = list().currentData().toString();
  take(covers.join(u','));
}

void NumberUpControl::fill() {
  ChoiceControl::fill();
  if (!bookletChoice(options(), true).isNull()) list().addItem(options().text(bookletKey), bookletItem);
}

QString NumberUpControl::shownValue() const {
  return isBooklet(options()) ? bookletItem : value();
}

// The printer folds a booklet whose sheets turn over their short edge.
void NumberUpControl::takeItem() {
  const QString item = list().currentData().toString();
  if (item == shownValue()) return;
  const QString sides = QStringLiteral("sides");
  QMap<QString, QString> chosen{{option().key, item}};
  if (item == bookletItem) {
    chosen = {{option().key, QStringLiteral("1")}, {bookletKey, bookletChoice(options(), true)}};
    const QString shortEdge = options().choiceFor(sides, QStringLiteral("two-sided-short-edge"));
    if (!shortEdge.isNull()) chosen.insert(sides, shortEdge);
  } else if (isBooklet(options())) {
    chosen.insert(bookletKey, bookletChoice(options(), false));
  }
  options().set(JobOptions::Source::Chosen, chosen);
}

}  // namespace kesto
