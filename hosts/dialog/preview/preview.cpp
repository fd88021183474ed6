#include "hosts/dialog/preview/preview.h"

#include <QtCore/QFile>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>
#include <algorithm>

#include "hosts/dialog/preview/sheet_view.h"

namespace kesto {
namespace {

constexpr int redrawDelay = 150;  // ms of rest after a change of size

}  // namespace

Preview::Preview(QWidget* parent)
    : QWidget(parent),
      m_view(new SheetView(m_images, this)),
      m_back(new QToolButton(this)),
      m_forward(new QToolButton(this)),
      m_positionLabel(new QLabel(this)),
      m_total(new QLabel(this)) {
  m_back->setArrowType(Qt::LeftArrow);
  m_back->setAccessibleName(tr("Previous page"));
  m_back->setToolTip(m_back->accessibleName());
  m_forward->setArrowType(Qt::RightArrow);
  m_forward->setAccessibleName(tr("Next page"));
  m_forward->setToolTip(m_forward->accessibleName());
  m_positionLabel->setAlignment(Qt::AlignCenter);
  m_total->setAlignment(Qt::AlignCenter);
  m_positionLabel->setObjectName(QStringLiteral("position"));
  m_total->setObjectName(QStringLiteral("paperTotal"));
  auto* row = new QHBoxLayout;
  row->addWidget(m_back);
  row->addWidget(m_positionLabel, 1);
  row->addWidget(m_forward);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  m_view->setMinimumSize(fontMetrics().horizontalAdvance(u'0') * 24, fontMetrics().height() * 12);
  column->addWidget(m_view, 1);
  column->addLayout(row);
  column->addWidget(m_total);
  m_redraw.setSingleShot(true);
  connect(&m_redraw, &QTimer::timeout, this, &Preview::drawSide);
  connect(&m_images, &PageImages::drawn, this, &Preview::showSide);
  connect(&m_examiner, &DocumentExaminer::examined, this, [this] {
    if (m_hasFiles) plan();
    Q_EMIT examined();
  });
  connect(m_back, &QToolButton::clicked, this, [this] { goTo(m_position - 1); });
  connect(m_forward, &QToolButton::clicked, this, [this] { goTo(m_position + 1); });
  updateButtons();
}

QSize Preview::sizeHint() const {
  return {fontMetrics().horizontalAdvance(u'0') * 40, fontMetrics().height() * 26};
}

void Preview::show(const std::vector<JobFile>& files, const QString& text) {
  QStringList paths;
  for (const JobFile& file : files)
    paths.append(QFile::decodeName(file.path));
  m_images.setFiles(paths);
  m_examiner.examine(files);
  m_hasFiles = !files.empty();
  m_text = text;
  m_places.clear();
  m_plan.reset();
  m_position = 0;
  m_isSettled = false;
  updateButtons();
  showSide();
  // The first page is most likely what is wanted, and as large as the paper.
  SheetCell page;
  page.area = {{}, m_paper.size};
  SheetSide side;
  side.size = m_paper.size;
  side.cells = {page};
  if (m_hasFiles) m_images.draw(m_view->wanted(side));
}

void Preview::setJob(const SheetPaper& paper, const QMap<QString, QString>& options) {
  m_paper = paper;
  m_options = options;
  if (m_hasFiles && isExamined()) plan();
}

// A file whose pages are not known has one as large as the paper, which says why.
void Preview::plan() {
  QList<SheetDocument> documents;
  for (const ExaminedFile& file : m_examiner.files()) {
    documents.append({.pages = file.pages, .isImage = file.kind == ExaminedFile::Kind::Image});
    if (file.pages.isEmpty()) documents.back().pages.append(m_paper.size);
  }
  m_plan.emplace(documents, m_paper, m_options);
  m_places.clear();
  for (const Sheet& sheet : m_plan->sheets())
    for (const SheetSide& side : sheet.sides)
      m_places.append({&sheet, &side});
  goTo(qBound(0, m_position, static_cast<int>(qMax(m_places.size() - 1, 0))));
}

void Preview::goTo(int position) {
  m_position = position;
  m_isSettled = false;
  updateButtons();
  drawSide();
}

// The page after the shown one is drawn ahead.
void Preview::drawSide() {
  QList<WantedPage> pages;
  for (int i = m_position; i < qMin(m_position + 2, m_places.size()); ++i)
    pages += m_view->wanted(*m_places[i].side);
  m_images.draw(pages);
  showSide();
}

QString Preview::textInPlace() const {
  if (!m_hasFiles) return m_text;
  if (!fault().isNull() || !m_plan) return fault();
  if (m_places.isEmpty()) return tr("No pages are selected.");
  const QList<SheetCell>& cells = m_places[m_position].side->cells;
  return cells.size() == 1 ? m_images.fault({cells.front().document, cells.front().page}) : QString();
}

void Preview::showSide() {
  const QString text = textInPlace();
  if (!text.isNull() || m_places.isEmpty()) {
    m_view->show(text);
  } else {
    const auto& [sheet, side] = m_places[m_position];
    m_view->show(*side, {.borderWidth = m_plan->borderWidth(), .isGray = m_plan->isGray()}, sheet->cover);
  }
  const bool isDrawn = m_places.isEmpty() || m_images.areThere(m_view->wanted(*m_places[m_position].side));
  m_isSettled = !m_redraw.isActive() && isExamined() && isDrawn;
  if (m_isSettled) Q_EMIT shown();
}

// The number of a page that has a side to itself, else that of the sheet.
QString Preview::positionText() const {
  if (m_places.isEmpty()) return {};
  const auto& [sheet, side] = m_places[m_position];
  const bool isTwoSided =
      std::ranges::any_of(m_plan->sheets(), [](auto& each) { return each.sides.size() > 1; });
  if (!isTwoSided && m_plan->pagesOnSide() == 1 && side->cells.size() == 1) {
    int page = side->cells.front().page + 1;
    int pages = 0;
    for (int file = 0; file < m_examiner.files().size(); ++file) {
      if (file == side->cells.front().document) page += pages;
      pages += qMax(1, static_cast<int>(m_examiner.files()[file].pages.size()));
    }
    return tr("Page %1 of %2").arg(page).arg(pages);
  }
  const auto number = sheet - m_plan->sheets().data() + 1;
  const QString text = !isTwoSided                     ? tr("Sheet %1 of %2")
                       : side == &sheet->sides.front() ? tr("Sheet %1 of %2, front")
                                                       : tr("Sheet %1 of %2, back");
  return text.arg(number).arg(m_plan->sheets().size());
}

QString Preview::totalText() const {
  const auto isUnknown = [](const ExaminedFile& file) { return file.pages.isEmpty(); };
  if (!m_plan || !fault().isNull() || std::ranges::any_of(m_examiner.files(), isUnknown)) return {};
  const int count = m_plan->paperCount();
  return count == 1 ? tr("Total: 1 sheet of paper") : tr("Total: %1 sheets of paper").arg(count);
}

void Preview::updateButtons() {
  m_back->setEnabled(m_position > 0);
  m_forward->setEnabled(m_position + 1 < m_places.size());
  m_positionLabel->setText(positionText());
  m_total->setText(totalText());
}

void Preview::resizeEvent(QResizeEvent* /*event*/) {
  if (!m_hasFiles) return;
  m_isSettled = false;
  m_redraw.start(redrawDelay);
}

}  // namespace kesto
