#include "hosts/dialog/panel/panel_groups.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QVBoxLayout>

#include "hosts/dialog/widgets/accessible.h"
#include "hosts/dialog/widgets/plain_text.h"

namespace kesto {
namespace {

QLabel* makeHeading(QWidget* parent) {
  auto* heading = new QLabel(parent);
  heading->setTextFormat(Qt::PlainText);
  heading->setFont(boldOf(heading->font()));
  return heading;
}

}  // namespace

void PanelPages::layOut() {
  m_pages = findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  for (QWidget* page : m_pages) {
    m_headings.append(makeHeading(this));
    m_headings.last()->setVisible(m_pages.size() > 1);
    column->addWidget(m_headings.last());
    column->addWidget(page);
    if (page->layout() != nullptr) page->layout()->setContentsMargins({});
  }
  connect(qApp, &QApplication::focusChanged, this, [this] {
    for (int page = 0; page < m_pages.size(); ++page) {
      if (holdsFocus(page)) Q_EMIT entered(m_current = page);
    }
  });
}

bool PanelPages::holdsFocus(int page) const {
  return m_pages[page]->isAncestorOf(QApplication::focusWidget());
}

void PanelPages::setTitles(const QStringList& titles) {
  for (int page = 0; page < qMin(titles.size(), m_pages.size()); ++page) {
    setPlainText(*m_headings[page], titles[page]);
    nameGroup(*m_pages[page], titles[page]);
  }
}

void PanelPages::turnTo(int page) {
  if (page == m_current || page < 0 || page >= m_pages.size()) return;
  m_current = page;
  if (holdsFocus(page)) return;
  for (QWidget* each = parentWidget(); each != nullptr; each = each->parentWidget()) {
    if (auto* area = qobject_cast<QScrollArea*>(each)) area->ensureWidgetVisible(m_headings[page]);
  }
}

void PanelGroup::setTitle(const QString& title) {
  if (m_title == nullptr) placeTitle();
  if (m_title != nullptr) setPlainText(*m_title, m_title->font().bold() ? title : withColon(title));
  nameGroup(*this, title);
}

void PanelGroup::placeTitle() {
  auto* grid = qobject_cast<QGridLayout*>(layout());
  if (grid == nullptr || grid->itemAtPosition(0, 0) != nullptr) return;
  if (grid->itemAtPosition(0, 1) == nullptr) {
    m_title = makeHeading(this);
    grid->addWidget(m_title, 0, 0, 1, 2);
  } else {
    m_title = new QLabel(this);
    m_title->setAlignment(Qt::AlignTrailing | Qt::AlignTop);
    const auto* first = findChild<QRadioButton*>();
    const int line = first == nullptr ? 0 : first->sizeHint().height() - m_title->fontMetrics().height();
    m_title->setContentsMargins(0, line / 2, 0, 0);
    grid->addWidget(m_title, 0, 0);
  }
}

}  // namespace kesto
