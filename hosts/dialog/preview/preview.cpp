#include "hosts/dialog/preview/preview.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>
#include <algorithm>

#include "hosts/dialog/preview/page_navigator.h"
#include "hosts/dialog/preview/sheet_view.h"
#include "hosts/dialog/widgets/plain_text.h"
#include "hosts/session/job_option_values.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

constexpr int redrawDelay = 150;  // ms of rest after a change of size

// Print servers may have covers of their own.
QString coverText(const QString& name) {
  const char* ours = textOfValue(QStringLiteral("job-sheets"), name);
  return ours == nullptr ? shownText(name) : QCoreApplication::translate("JobOptions", ours);
}

}  // namespace

Preview::Preview(QWidget* parent)
    : QWidget(parent),
      m_view(new SheetView(m_images, this)),
      m_navigator(new PageNavigator(this)),
      m_file(new QLabel(this)),
      m_total(new QLabel(this)) {
  m_file->setAlignment(Qt::AlignCenter);
  m_file->setTextFormat(Qt::PlainText);
  m_file->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  m_file->setObjectName(QStringLiteral("previewedFile"));
  m_total->setAlignment(Qt::AlignCenter);
  m_total->setObjectName(QStringLiteral("paperTotal"));
  m_view->setMinimumSize(fontMetrics().horizontalAdvance(u'0') * 24, fontMetrics().height() * 12);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addWidget(m_view, 1);
  for (QWidget* part :
       {static_cast<QWidget*>(m_navigator), static_cast<QWidget*>(m_file), static_cast<QWidget*>(m_total)})
    column->addWidget(part);
  m_redraw.setSingleShot(true);
  connectParts();
  showPlace();
}

void Preview::connectParts() {
  connect(&m_redraw, &QTimer::timeout, this, [this] {
    showPlace();
    drawSide();
  });
  connect(&m_images, &PageImages::drawn, this, &Preview::showSide);
  connect(&m_examiner, &DocumentExaminer::examined, this, [this] {
    m_isPlanned = !m_hasFiles;
    Q_EMIT examined();
    if (!m_isPlanned) plan();  // nobody has done so by an option that depends on it
  });
  connect(m_view, &SheetView::turned, this, [this](int by) {
    turn(by);
    m_view->scrollToEnd(by < 0);
  });
  connect(m_view, &SheetView::zoomed, this, [this] {
    m_isSettled = false;
    m_redraw.start(redrawDelay);
  });
  connect(m_navigator, &PageNavigator::previousAsked, this, [this] { turn(-1); });
  connect(m_navigator, &PageNavigator::nextAsked, this, [this] { turn(1); });
  connect(m_navigator, &PageNavigator::numberAsked, this, &Preview::goToNumber);
}

QSize Preview::sizeHint() const {
  return {fontMetrics().horizontalAdvance(u'0') * 40, fontMetrics().height() * 26};
}

std::optional<int> Preview::lockedFile() const {
  const QList<ExaminedFile>& files = m_examiner.files();
  const auto found = std::ranges::find_if(files, &ExaminedFile::isLocked);
  if (!isExamined() || found == files.end()) return {};
  return static_cast<int>(found - files.begin());
}

PageSequence Preview::pages() {
  if (!m_isPlanned) plan();  // who waits for the examination asks at once
  PageSequence sequence;
  for (const ExaminedFile& file : m_examiner.files())
    sequence.files.append(file.path);
  for (const Place& place : m_places)
    for (const SheetCell& cell : place.side->cells)
      sequence.pages.append({cell.document, cell.page});
  return sequence;
}

QString Preview::saveFault() const {
  const auto isPdf = [](const ExaminedFile& file) { return file.kind == ExaminedFile::Kind::Pdf; };
  if (!isExamined() || std::ranges::all_of(m_examiner.files(), isPdf)) return {};
  return tr("Only PDF documents can be saved as PDF.");
}

void Preview::show(const std::vector<JobFile>& files, const QString& text) {
  m_images.clear();
  m_examiner.examine(files);
  m_hasFiles = !files.empty();
  m_text = text;
  m_places.clear();
  m_plan.reset();
  m_position = 0;
  m_isSettled = false;
  showPlace();
  showSide();
  if (!m_hasFiles) return;
  // The first page is most likely what is wanted, and as large as the paper.
  const QString path = QFile::decodeName(files.front().path);
  m_images.setFiles(
      {{.kind = isPdfFile(path) ? ExaminedFile::Kind::Pdf : ExaminedFile::Kind::Image, .path = path}});
  SheetCell page;
  page.area = {{}, m_paper.size};
  SheetSide side;
  side.size = m_paper.size;
  side.cells = {page};
  m_images.draw(m_view->wanted(side));
}

void Preview::setJob(const SheetPaper& paper, const QMap<QString, QString>& options) {
  if (paper == m_paper && options == m_options) return;
  m_paper = paper;
  m_options = options;
  m_examiner.setLayout({paper, options});
  m_isSettled = m_isSettled && isExamined();
  if (m_hasFiles && isExamined()) plan();
}

// A file whose pages are not known has one as large as the paper, which says why.
void Preview::plan() {
  m_isPlanned = true;
  m_images.setFiles(m_examiner.files());
  QList<SheetDocument> documents;
  m_pages = {0};
  for (const ExaminedFile& file : m_examiner.files()) {
    documents.append({.pages = file.pages, .isImage = file.kind == ExaminedFile::Kind::Image});
    if (file.pages.isEmpty()) documents.back().pages.append(m_paper.size);
    m_pages.append(m_pages.back() + static_cast<int>(documents.back().pages.size()));
  }
  m_plan.emplace(documents, m_paper, m_options);
  m_isTwoSided = std::ranges::any_of(m_plan->sheets(), [](auto& each) { return each.sides.size() > 1; });
  const bool isPaged = !m_isTwoSided && m_plan->pagesOnSide() == 1;
  m_places.clear();
  for (int number = 1; const Sheet& sheet : m_plan->sheets()) {
    for (const SheetSide& side : sheet.sides) {
      const bool isPage = isPaged && side.cells.size() == 1;
      m_places.append({&sheet, &side, isPage ? numberOfPage(side.cells.front()) : number, isPage});
    }
    ++number;
  }
  goTo(m_position);
}

int Preview::numberOfPage(const SheetCell& cell) const {
  return m_pages[cell.document] + cell.page + 1;
}

void Preview::goTo(qsizetype position) {
  m_position = qBound(qsizetype{0}, position, qMax(m_places.size() - 1, qsizetype{0}));
  m_isSettled = false;
  showPlace();
  drawSide();
}

// Goes to the nearest place of the kind that is shown.
void Preview::goToNumber(int number) {
  if (m_places.isEmpty()) return;
  const bool isPage = m_places[m_position].isPage;
  const auto distance = [&](const Place& place) {
    return place.isPage == isPage ? std::abs(place.number - number) : std::numeric_limits<int>::max();
  };
  goTo(std::ranges::min_element(m_places, {}, distance) - m_places.begin());
}

void Preview::turn(int by) {
  if (m_position + by >= 0 && m_position + by < m_places.size()) goTo(m_position + by);
}

// The pages around the shown side are drawn ahead, as far as they may be kept.
void Preview::drawSide() {
  if (m_places.isEmpty()) return showSide();
  QList<WantedPage> pages = m_view->wanted(*m_places[m_position].side);
  constexpr qsizetype bytesPerPixel = 4;
  qsizetype room = PageImages::mostKept;
  for (const int by : {1, -1, 2}) {
    if (m_position + by < 0 || m_position + by >= m_places.size()) continue;
    const QList<WantedPage> ahead = m_view->wanted(*m_places[m_position + by].side);
    for (const WantedPage& page : ahead)
      room -= bytesPerPixel * page.pixels * page.pixels;
    if (room >= 0) pages += ahead;
  }
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
    m_view->setAccessibleDescription(text);
  } else {
    const Place& place = m_places[m_position];
    m_view->show(*place.side, {.borderWidth = m_plan->borderWidth(), .isGray = m_plan->isGray()},
                 coverText(place.sheet->cover));
    m_view->setAccessibleDescription(positionText(place).arg(place.number));
  }
  const bool isDrawn = m_places.isEmpty() || m_images.areThere(m_view->wanted(*m_places[m_position].side));
  m_isSettled = !m_redraw.isActive() && isExamined() && isDrawn;
  if (m_isSettled) Q_EMIT shown();
}

void Preview::showPlace() {
  const bool hasPlace = !m_places.isEmpty() && fault().isNull();
  PageNavigator::Place shown;
  if (hasPlace) {
    const Place& place = m_places[m_position];
    shown = {.text = positionText(place),
             .number = place.number,
             .last = place.isPage ? m_pages.back() : static_cast<int>(m_plan->sheets().size()),
             .hasPrevious = m_position > 0,
             .hasNext = m_position + 1 < m_places.size()};
  }
  m_navigator->show(shown);
  const QString file = hasPlace ? fileText() : QString();
  m_file->setText(fontMetrics().elidedText(file, Qt::ElideMiddle, width()));
  m_file->setToolTip(tipOf(file));
  m_file->setAccessibleName(file);
  m_total->setText(totalText());
}

// With "%1" for the number.
QString Preview::positionText(const Place& place) const {
  const QString text = place.isPage                                ? tr("Page %1 of %2")
                       : !m_isTwoSided                             ? tr("Sheet %1 of %2")
                       : place.side == &place.sheet->sides.front() ? tr("Sheet %1 of %2, front")
                                                                   : tr("Sheet %1 of %2, back");
  const qsizetype last = place.isPage ? m_pages.back() : m_plan->sheets().size();
  return text.arg(QStringLiteral("%1"), QString::number(last));
}

// "report.pdf, 3 pages", of the file whose pages are shown.
QString Preview::fileText() const {
  const QList<SheetCell>& cells = m_places[m_position].side->cells;
  if (cells.isEmpty()) return {};
  const int number = cells.front().document;
  const ExaminedFile file = m_examiner.files().value(number);
  QString text = shownText(m_examiner.nameOf(number));
  if (file.kind == ExaminedFile::Kind::Pdf && !file.pages.isEmpty()) {
    const int count = static_cast<int>(file.pages.size());
    text = (count == 1 ? tr("%1, 1 page") : tr("%1, %n pages", nullptr, count)).arg(text);
  }
  return file.note.isNull() || file.pages.isEmpty() ? text : tr("%1: %2").arg(text, file.note);
}

QString Preview::totalText() const {
  const auto isUnknown = [](const ExaminedFile& file) { return file.pages.isEmpty(); };
  if (!m_plan || m_paper.isFile || !fault().isNull() || std::ranges::any_of(m_examiner.files(), isUnknown))
    return {};
  const int count = m_plan->paperCount();
  return count == 1 ? tr("Total: 1 sheet of paper") : tr("Total: %n sheets of paper", nullptr, count);
}

void Preview::resizeEvent(QResizeEvent* /*event*/) {
  if (!m_hasFiles) return;
  m_isSettled = false;
  m_redraw.start(redrawDelay);
}

void Preview::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Home:
      return goTo(0);
    case Qt::Key_End:
      return goTo(m_places.size() - 1);
    case Qt::Key_PageUp:
      return turn(-1);
    case Qt::Key_PageDown:
      return turn(1);
    default:
      QWidget::keyPressEvent(event);
  }
}

}  // namespace kesto
