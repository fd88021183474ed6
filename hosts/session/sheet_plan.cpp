#include "hosts/session/sheet_plan.h"

#include <QtCore/QtMath>
#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "hosts/session/sheet_settings.h"

namespace kesto {
namespace {

// Turns are quarters clockwise; the axes go right and down.
int quarters(int turns) {
  return ((turns % 4) + 4) % 4;
}

QSizeF turned(const QSizeF& size, int turns) {
  return turns % 2 == 0 ? size : size.transposed();
}

QRectF turned(QRectF area, QSizeF space, int turns) {
  for (; turns > 0; --turns) {
    area = QRectF(space.height() - area.bottom(), area.left(), area.height(), area.width());
    space.transpose();
  }
  return area;
}

QRectF centred(const QSizeF& size, const QPointF& centre) {
  return {centre - QPointF(size.width(), size.height()) / 2, size};
}

bool isLandscape(const QSizeF& size) {
  return size.width() > size.height();
}

constexpr double borderDistance = 2.25;  // points from the edge
constexpr double lineDistance = 2;

constexpr int blank = -1;

// The pages of a booklet: sheets of two pages on each side, folded together in the middle.
QList<int> bookletOrder(int pages) {
  QList<int> order;
  int first = 0;
  for (int last = (pages + 3) / 4 * 4 - 1; first < last;) {
    for (const int page : {last, first, first + 1, last - 1})
      order.push_back(page < pages ? page : blank);
    first += 2;
    last -= 2;
  }
  return order;
}

// Where the filter counts in whole points.
QSizeF whole(const QSizeF& size) {
  return {std::trunc(size.width()), std::trunc(size.height())};
}

// Whether the paper is too small for a page, whichever way it lies, with two per cent to spare.
bool isTooLarge(const QSizeF& page, const QSizeF& paper) {
  const QSizeF size = whole(page * 100 / 102);
  const auto isBeyond = [&](const QSizeF& other) {
    return size.width() > other.width() || size.height() > other.height();
  };
  return isBeyond(paper) && isBeyond(paper.transposed());
}

SheetScaling chosen(SheetScaling scaling, bool isLarge, const SheetPaper& paper) {
  if (scaling != SheetScaling::Auto && scaling != SheetScaling::AutoFit) return scaling;
  if (!isLarge) return SheetScaling::None;
  const bool isBorderless = whole(paper.size.shrunkBy(paper.margins)) == paper.size;
  return scaling == SheetScaling::Auto && isBorderless ? SheetScaling::Fill : SheetScaling::Fit;
}

// An image, or a part of it, on a page as large as the paper.
struct ImagePlace {
  QRectF area;
  QRectF visible;
  int turn = 0;
};

// An image that is enlarged beyond the paper takes several pages, column by column.
QList<ImagePlace> placesOf(const QSizeF& image, const SheetPaper& paper, const SheetSettings& settings) {
  const QRectF whole({}, paper.size);
  const QRectF printable = whole.marginsRemoved(paper.margins);
  const auto fitted = [&](int turn) {
    return image.scaled(turned(printable.size(), turn), Qt::KeepAspectRatio);
  };
  const int across = fitted(1).width() > fitted(0).width() ? (paper.isLandscapeMinus90 ? 1 : 3) : 0;
  const int turn = settings.hasTurn ? settings.turn : across;
  const QSizeF most = turned(printable.size(), turn);
  const bool isLarge = image.width() > most.width() || image.height() > most.height();
  const SheetScaling scaling = chosen(settings.imageScaling, isLarge, paper);
  QSizeF size = image;
  if (scaling == SheetScaling::Fit) size = fitted(turn) * settings.imageZoom;
  if (scaling == SheetScaling::Fill) size = image.scaled(most, Qt::KeepAspectRatioByExpanding);
  const bool isInParts = scaling == SheetScaling::Fit && settings.imageZoom > 1;
  const int columns = isInParts ? qCeil(size.width() / most.width()) : 1;
  const int rows = isInParts ? qCeil(size.height() / most.height()) : 1;
  const QSizeF part(size.width() / columns, size.height() / rows);
  const QRectF room = scaling == SheetScaling::None ? whole : printable;
  const QRectF visible = isInParts ? centred(turned(part, turn), room.center()) : room;
  const QSizeF space = turned(paper.size, turn);
  QList<ImagePlace> places;
  for (int i = 0; i < columns * rows; ++i) {
    const int column = i / rows;
    const QPointF offset(part.width() * column, part.height() * (i - column * rows));
    const QRectF lying = turned(room, paper.size, quarters(-turn));
    const QRectF area(centred(part, lying.center()).topLeft() - offset, size);
    places.append(
        {.area = turned(area, space, turn), .visible = turned(area, space, turn) & visible, .turn = turn});
  }
  return places;
}

// The sides of one file. Its pages are laid out on a space that is the side, or the side turned so that more
// pages lie beside than above each other; all pages lie the same way there, those that do not are turned.
class DocumentLayout {
 public:
  DocumentLayout(const SheetDocument& document, int number, const SheetPaper& paper,
                 const SheetSettings& settings);

  QList<SheetSide> sides() const;

 private:
  int turnOf(int page) const;
  QSizeF shown(const QSizeF& page) const;
  SheetCell cell(int page, int place) const;
  SheetSide side(const QList<int>& order, int first) const;

  QList<QSizeF> m_pages;
  QList<ImagePlace> m_images;  // on the pages of a file that is an image
  const int m_document;
  const SheetSettings& m_settings;
  SheetScaling m_scaling;
  const int m_pageTurn;
  const bool m_isPagesLandscape;
  SheetGrid m_grid;
  QSizeF m_space;
  QRectF m_area;  // in the space, where pages are laid out
  int m_turn;     // from the space to how the printer takes the paper
};

DocumentLayout::DocumentLayout(const SheetDocument& document, int number, const SheetPaper& paper,
                               const SheetSettings& settings)
    : m_pages(document.pages),
      m_document(number),
      m_settings(settings),
      m_pageTurn(paper.isLandscapeMinus90 ? 1 : 3),
      m_isPagesLandscape(isLandscape(paper.size) == (settings.turn % 2 == 0)),
      m_grid(settings.grid),
      m_space(paper.size),
      m_turn(settings.turn) {
  if (document.isImage) {
    m_images = placesOf(m_pages.value(0), paper, settings);
    m_pages.fill(paper.size, m_images.size());
  }
  const bool isLarge =
      std::ranges::any_of(m_pages, [&](const QSizeF& page) { return isTooLarge(page, paper.size); });
  m_scaling = chosen(settings.scaling, isLarge, paper);
  bool isTurned = m_grid.columns > m_grid.rows || settings.isBooklet;
  if (isLandscape(paper.size)) std::swap(m_grid.columns, m_grid.rows);
  if (settings.isBooklet) m_grid = {2, 1};
  if (settings.turn % 2 != 0) {
    std::swap(m_grid.columns, m_grid.rows);
    isTurned = !isTurned;
    m_turn -= m_pageTurn;
  }
  const QMarginsF margins = m_scaling == SheetScaling::None ? QMarginsF() : paper.margins;
  const QRectF printable = QRectF({}, paper.size).marginsRemoved(margins);
  m_area = printable;
  if (!isTurned) return;
  m_turn += m_pageTurn;
  m_space.transpose();
  // The filter takes these two margins, whichever way it turns.
  m_area = QRectF({margins.top(), margins.right()}, printable.size().transposed());
}

int DocumentLayout::turnOf(int page) const {
  return isLandscape(m_pages.at(page)) == m_isPagesLandscape ? 0 : m_pageTurn;
}

// What there is of a page around its middle: all of it, as much as the paper is large, or what has the
// paper's form.
QSizeF DocumentLayout::shown(const QSizeF& page) const {
  if (m_scaling == SheetScaling::Fit) return page;
  const QSizeF form =
      isLandscape(page) == isLandscape(m_area.size()) ? m_area.size() : m_area.size().transposed();
  return m_scaling == SheetScaling::None ? form : form.scaled(page, Qt::KeepAspectRatio);
}

SheetCell DocumentLayout::cell(int page, int place) const {
  const auto [column, row] = m_settings.columnAndRow(m_grid, place);
  const QSizeF cell(m_area.width() / m_grid.columns, m_area.height() / m_grid.rows);
  const QPointF middle =
      m_area.topLeft() + QPointF(cell.width() * (column + 0.5), cell.height() * (row + 0.5));
  const int turn = turnOf(page);
  const QSizeF size = m_pages.at(page);
  const QSizeF part = turned(shown(size), turn);
  const double scale = std::min(cell.width() / part.width(), cell.height() / part.height());
  SheetCell result{.document = m_document,
                   .page = page,
                   .area = centred(turned(size, turn) * scale, middle),
                   .visible = centred(part * scale, middle),
                   .rotation = turn,
                   .border = {}};
  for (int line = 0; line < m_settings.border.lines; ++line) {
    const double distance = borderDistance + line * lineDistance;
    result.border.push_back(result.visible.adjusted(distance, distance, -distance, -distance));
  }
  if (m_images.isEmpty()) return result;
  const ImagePlace& image = m_images.at(page);
  const auto onPage = [&](const QRectF& area) {
    const QRectF lying = turned(area, size, turn);
    return QRectF(result.area.topLeft() + lying.topLeft() * scale, lying.size() * scale);
  };
  result.page = 0;
  result.visible &= onPage(image.visible);
  result.rotation = quarters(turn + image.turn);
  result.area = onPage(image.area);
  return result;
}

// `first`: of the pages in `order`; a side begins there. A side without pages lies as the file's first page.
SheetSide DocumentLayout::side(const QList<int>& order, int first) const {
  QList<SheetCell> cells;
  const int count = std::min(m_grid.columns * m_grid.rows, static_cast<int>(order.size()) - first);
  for (int place = 0; place < count; ++place) {
    const int page = order.at(first + place);
    if (page != blank) cells.push_back(cell(page, place));
  }
  const int turn = quarters(-(cells.isEmpty() ? turnOf(0) : cells.front().rotation));
  for (SheetCell& each : cells) {
    each.area = turned(each.area, m_space, turn);
    each.visible = turned(each.visible, m_space, turn);
    for (QRectF& line : each.border)
      line = turned(line, m_space, turn);
    each.rotation = 90 * quarters(each.rotation + turn);
  }
  return {.size = turned(m_space, turn), .turn = 90 * quarters(turn - m_turn), .cells = std::move(cells)};
}

QList<SheetSide> DocumentLayout::sides() const {
  const int pages = static_cast<int>(m_pages.size());
  QList<int> order(m_pages.size());
  std::iota(order.begin(), order.end(), 0);
  if (m_settings.isBooklet) order = bookletOrder(pages);
  QList<SheetSide> sides;
  const int step = m_grid.columns * m_grid.rows;
  for (int first = 0; first < std::ssize(order); first += step)
    if (m_settings.isSelected(first / step + 1)) sides.push_back(side(order, first));
  // The filter adds a blank side for the printer, which comes first when the order is reversed.
  const bool isEven = sides.size() % 2 == 0;
  if (!isEven && (!m_settings.hasOdd || (m_settings.isTwoSided && m_settings.isReversed)))
    sides.push_back(side({}, 0));
  if (m_settings.isReversed) std::ranges::reverse(sides);
  return sides;
}

QList<Sheet> pagesOf(const SheetDocument& document, int number, const SheetSettings& settings) {
  QList<Sheet> pages;
  for (int page = 0; page < document.pages.size(); ++page) {
    if (!settings.isSelected(page + 1)) continue;
    const QRectF area({}, document.pages[page]);
    const SheetCell cell{
        .document = number, .page = page, .area = area, .visible = area, .rotation = 0, .border = {}};
    pages.push_back({.cover = {}, .sides = {SheetSide{.size = area.size(), .cells = {cell}}}});
  }
  if (settings.isReversed) std::ranges::reverse(pages);
  return pages;
}

// The back as it lies when the sheet is turned over around its upright middle.
int rotationOfBack(const SheetSide& front, const SheetSide& back, bool isShortEdge) {
  return 90 * quarters(((isShortEdge ? 180 : 0) - front.turn - back.turn) / 90);
}

QList<Sheet> sheetsOf(QList<SheetSide> sides, const SheetSettings& settings) {
  QList<Sheet> sheets;
  for (SheetSide& side : sides) {
    if (settings.isTwoSided && !sheets.isEmpty() && sheets.back().sides.size() == 1) {
      side.rotation = rotationOfBack(sheets.back().sides.front(), side, settings.isShortEdge);
      sheets.back().sides.push_back(std::move(side));
    } else {
      sheets.push_back({.cover = {}, .sides = {std::move(side)}});
    }
  }
  return sheets;
}

QList<Sheet> coverOf(const QString& name, const SheetPaper& paper) {
  if (name.isEmpty() || name == u"none") return {};
  return {Sheet{.cover = name, .sides = {SheetSide{.size = paper.size, .cells = {}}}}};
}

}  // namespace

SheetPaper sheetPaperOf(const std::optional<PpdPaper>& paper) {
  if (!paper) return {};
  // PPDs have points; these are as exact as they were.
  const auto points = [](double millimetres) { return std::round(millimetres * 72 / 25.4 * 1000) / 1000; };
  return {.size = {points(paper->width), points(paper->height)},
          .margins = {points(paper->left), points(paper->top), points(paper->right), points(paper->bottom)},
          .isLandscapeMinus90 = paper->isLandscapeMinus90,
          .isReversed = paper->isReversed};
}

SheetPlan::SheetPlan(const QList<SheetDocument>& documents, const SheetPaper& paper,
                     const QMap<QString, QString>& options) {
  const OptionArray array(options);
  SheetSettings settings(array);
  if (!array.has("outputorder")) settings.isReversed = paper.isReversed;
  if (paper.isFile) {
    for (int document = 0; document < documents.size(); ++document)
      m_sheets += pagesOf(documents[document], document, settings);
    return;
  }
  const QString covers = QString::fromUtf8(array.value("job-sheets"));
  m_borderWidth = settings.border.width;
  m_isGray = settings.isGray;
  m_pagesOnSide = settings.isBooklet ? 2 : settings.grid.columns * settings.grid.rows;
  m_sheets = coverOf(covers.section(u',', 0, 0), paper);
  for (int document = 0; document < documents.size(); ++document)
    m_sheets += sheetsOf(DocumentLayout(documents[document], document, paper, settings).sides(), settings);
  m_sheets += coverOf(covers.section(u',', 1, 1), paper);
  const int copies = std::max(QByteArray(array.value("copies")).toInt(), 1);
  for (const Sheet& sheet : m_sheets)
    m_paperCount += sheet.cover.isNull() ? copies : 1;
}

int SheetPlan::sideCount() const {
  return std::accumulate(m_sheets.begin(), m_sheets.end(), 0, [](int count, const Sheet& sheet) {
    return count + static_cast<int>(sheet.sides.size());
  });
}

std::optional<SheetPlace> SheetPlan::placeOf(int document, int page) const {
  for (int sheet = 0; sheet < m_sheets.size(); ++sheet)
    for (int side = 0; side < m_sheets[sheet].sides.size(); ++side)
      for (const SheetCell& cell : m_sheets[sheet].sides[side].cells)
        if (cell.document == document && cell.page == page) return SheetPlace{sheet, side};
  return {};
}

}  // namespace kesto
