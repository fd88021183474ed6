#include "hosts/dialog/widgets/section_column.h"

#include <QtCore/QEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QVBoxLayout>

#include "hosts/dialog/widgets/section.h"

namespace kesto {
namespace {

// The widgets in the first column of a grid or form.
QWidgetList firstColumnOf(const QLayout& layout) {
  QWidgetList found;
  if (const auto* form = qobject_cast<const QFormLayout*>(&layout)) {
    for (int row = 0; row < form->rowCount(); ++row) {
      const QLayoutItem* item = form->itemAt(row, QFormLayout::LabelRole);
      if (item != nullptr && item->widget() != nullptr) found.append(item->widget());
    }
  }
  if (const auto* grid = qobject_cast<const QGridLayout*>(&layout)) {
    for (int row = 0; row < grid->rowCount(); ++row) {
      const QLayoutItem* item = grid->itemAtPosition(row, 0);
      const bool isWide = item != nullptr && item == grid->itemAtPosition(row, 1);
      if (item != nullptr && !isWide && item->widget() != nullptr) found.append(item->widget());
    }
  }
  return found;
}

}  // namespace

SectionColumn::SectionColumn(QWidget* parent) : QScrollArea(parent), m_layout(new QVBoxLayout) {
  auto* page = new QWidget(this);
  m_layout->setContentsMargins({});
  m_layout->setSpacing(0);
  m_layout->addStretch(1);
  page->setLayout(m_layout);
  setWidget(page);
  setWidgetResizable(true);
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  page->setAutoFillBackground(false);
  viewport()->setAutoFillBackground(false);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*before*/, QWidget* now) {
    if (now != nullptr && widget()->isAncestorOf(now)) ensureWidgetVisible(now);
  });
}

void SectionColumn::add(Section* section) {
  m_layout->insertWidget(m_layout->count() - 1, section);
  m_sections.append(section);
  connect(section, &Section::toggled, this, [this, section](bool isOpen) {
    if (isOpen && section->header().hasFocus()) scrollTo(section);
  });
}

// The layout has to settle before anything can be scrolled to.
void SectionColumn::scrollTo(const Section* section) {
  m_layout->activate();
  widget()->resize(widget()->sizeHint().expandedTo(viewport()->size()));
  const QRect place = section->geometry();
  ensureVisible(0, place.bottom(), 0, 0);
  ensureVisible(0, place.top(), 0, 0);
}

void SectionColumn::reveal(QWidget* shown) {
  for (Section* section : m_sections) {
    if (section == shown || section->isAncestorOf(shown)) {
      section->setOpen(true);
      scrollTo(section);
    }
  }
  ensureWidgetVisible(shown);
}

void SectionColumn::takeContents() {
  alignLabels();
  setMinimumWidth(minimumSizeHint().width());
  for (auto* field : widget()->findChildren<QWidget*>()) {
    if (!field->inherits("QComboBox") && !field->inherits("QAbstractSpinBox")) continue;
    field->setFocusPolicy(Qt::StrongFocus);
    field->installEventFilter(this);
  }
}

void SectionColumn::alignWith(QFormLayout* form) {
  m_beside = form;
  if (m_sections.isEmpty()) return;
  const int margin = m_sections.front()->margin();
  form->setContentsMargins(margin, 0, margin, 0);
}

void SectionColumn::alignLabels() {
  const int spacing = fontMetrics().height() / 2;
  QWidgetList labels;
  QList<QGridLayout*> grids;
  QList<QLayout*> layouts = widget()->findChildren<QLayout*>();
  if (m_beside != nullptr) layouts.append(m_beside);
  for (auto* layout : layouts) {
    labels += firstColumnOf(*layout);
    if (auto* form = qobject_cast<QFormLayout*>(layout)) form->setHorizontalSpacing(spacing);
    if (auto* grid = qobject_cast<QGridLayout*>(layout)) grids.append(grid);
  }
  int widest = 0;
  for (QWidget* label : labels) {
    widest = qMax(widest, label->sizeHint().width());
    if (auto* text = qobject_cast<QLabel*>(label))
      text->setAlignment((text->alignment() & Qt::AlignVertical_Mask) | Qt::AlignTrailing);
  }
  for (QWidget* label : labels)
    label->setMinimumWidth(widest);
  for (QGridLayout* grid : grids) {
    grid->setHorizontalSpacing(spacing);
    const bool isEmpty = firstColumnOf(*grid).isEmpty();  // such a column gets no spacing
    grid->setColumnMinimumWidth(0, widest + (isEmpty ? spacing : 0));
  }
}

QSize SectionColumn::sizeHint() const {
  return {minimumSizeHint().width(), widget()->sizeHint().height()};
}

// Folded sections count, so that opening one changes nothing.
QSize SectionColumn::minimumSizeHint() const {
  int widest = widget()->minimumSizeHint().width();
  for (const Section* section : m_sections) {
    const QWidget* content = section->content();
    if (content != nullptr) widest = qMax(widest, content->minimumSizeHint().width() + 2 * section->margin());
  }
  return {widest + verticalScrollBar()->sizeHint().width(), fontMetrics().height() * 8};
}

bool SectionColumn::eventFilter(QObject* watched, QEvent* event) {
  const auto* field = qobject_cast<QWidget*>(watched);
  if (event->type() != QEvent::Wheel || field == widget() || field == viewport() || field->hasFocus())
    return QScrollArea::eventFilter(watched, event);
  event->ignore();  // it goes on to what scrolls
  return true;
}

}  // namespace kesto
