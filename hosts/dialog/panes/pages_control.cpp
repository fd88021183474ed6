#include "hosts/dialog/panes/pages_control.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QVBoxLayout>

#include "hosts/dialog/widgets/plain_text.h"
#include "hosts/dialog/widgets/tab_order.h"
#include "hosts/session/page_range.h"

namespace kesto {

PagesControl::PagesControl(const OfferedOption& option, JobOptions& options, QWidget* parent)
    : OptionControl(option, options, parent),
      m_all(addRadio(tr("All pages"), QStringLiteral("allPages"))),
      m_applications(addRadio({}, QStringLiteral("ownPages"))),
      m_some(addRadio(tr("Selected pages"), QStringLiteral("somePages"))),
      m_pages(new QLineEdit(this)) {
  m_applications->hide();
  m_pages->setPlaceholderText(tr("1-3, 5"));
  name(*m_pages, label(), QStringLiteral("pages"));
  auto* some = new QHBoxLayout;
  some->addWidget(m_some);
  some->addWidget(m_pages);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addWidget(m_all);
  column->addWidget(m_applications);
  column->addLayout(some);
  for (QRadioButton* radio : {m_all, m_applications, m_some}) {
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

QRadioButton* PagesControl::addRadio(const QString& text, const QString& objectName) {
  auto* radio = new QRadioButton(this);
  setPlainText(*radio, text);
  radio->setObjectName(objectName);
  return radio;
}

void PagesControl::offerApplicationsPages(const QString& name) {
  setPlainText(*m_applications, name);
  m_applications->show();
  showValue();
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
  if (m_applications->isChecked()) return take(JobOptions::applicationsPages);
  if (m_some->isChecked()) take(m_pages->text() + QLatin1String(""));
}

void PagesControl::showValue() {
  const QString pages = value();
  const bool areApplications = !m_applications->isHidden() && pages == JobOptions::applicationsPages;
  if (!pages.isNull() && !areApplications && m_pages->text() != pages) m_pages->setText(pages);
  QRadioButton* some = areApplications ? m_applications : m_some;
  (pages.isNull() ? m_all : some)->setChecked(true);
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
