#include "hosts/dialog/panes/pages_control.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QVBoxLayout>

#include "hosts/dialog/widgets/accessible.h"
#include "hosts/dialog/widgets/plain_text.h"
#include "hosts/dialog/widgets/tab_order.h"
#include "hosts/session/page_range.h"

namespace kesto {

PagesControl::PagesControl(const OfferedOption& option, JobOptions& options, QWidget* parent)
    : OptionControl(option, options, parent),
      m_all(addRadio(tr("All pages"), QStringLiteral("allPages"))),
      m_applications{
          {JobOptions::currentPage, addRadio(textOf(JobOptions::currentPage), QStringLiteral("currentPage"))},
          {JobOptions::selection, addRadio(textOf(JobOptions::selection), QStringLiteral("selection"))},
      },
      m_some(addRadio(tr("Selected pages"), QStringLiteral("somePages"))),
      m_pages(new QLineEdit(this)) {
  m_pages->setPlaceholderText(tr("1-3, 5"));
  name(*m_pages, label(), QStringLiteral("pages"));
  nameGroup(*this, label());
  auto* some = new QHBoxLayout;
  some->addWidget(m_some);
  some->addWidget(m_pages);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addWidget(m_all);
  for (QRadioButton* radio : m_applications) {
    radio->hide();
    column->addWidget(radio);
  }
  column->addLayout(some);
  for (QRadioButton* radio : QList{m_all, m_some} + m_applications.values()) {
    enterAtChosen(*radio);
    connect(radio, &QRadioButton::toggled, this, [this](bool isOn) {
      if (isOn) takePages();
    });
  }
  connect(m_some, &QRadioButton::clicked, m_pages, [this] { m_pages->setFocus(Qt::OtherFocusReason); });
  connect(m_pages, &QLineEdit::textChanged, this, [this](const QString& pages) {
    if (!pages.isEmpty()) m_some->setChecked(true);
    takePages();
  });
}

QString PagesControl::textOf(const QString& pages) const {
  return options().textOf(option().key, pages);
}

QRadioButton* PagesControl::addRadio(const QString& text, const QString& objectName) {
  auto* radio = new QRadioButton(this);
  setPlainText(*radio, text);
  radio->setObjectName(objectName);
  return radio;
}

void PagesControl::offer(const QStringList& pages) {
  for (const QString& each : pages)
    m_applications[each]->show();
  showValue();
}

// The one whose value counts.
QRadioButton* PagesControl::chosenRadio() const {
  const QString pages = value();
  if (pages.isNull()) return m_all;
  QRadioButton* radio = m_applications.value(pages, m_some);
  return radio->isHidden() ? m_some : radio;
}

QWidget* PagesControl::field() {
  return m_pages;
}

QWidget* PagesControl::faultyField() {
  m_pages->selectAll();
  return m_pages;
}

bool PagesControl::isTouched() const {
  return !m_pages->text().isEmpty();
}

void PagesControl::takePages() {
  if (m_all->isChecked()) return take(QString());
  for (auto it = m_applications.begin(); it != m_applications.end(); ++it) {
    if (it.value()->isChecked()) return take(it.key());
  }
  if (m_some->isChecked()) take(m_pages->text() + QLatin1String(""));
}

void PagesControl::showValue() {
  QRadioButton* radio = chosenRadio();
  if (radio == m_some && m_pages->text() != value()) m_pages->setText(value());
  radio->setChecked(true);
  mark(*m_pages, isTouched() ? fault() : QString());
}

QString PagesControl::note() const {
  const QString pages = options().pages();
  if (pages.isNull() || pages == pageRangesOf(value()).value_or(QString())) return {};
  return tr("The document ends at page %1. Pages that will be printed: %2.")
      .arg(options().pageCount())
      .arg(pages);
}

}  // namespace kesto
