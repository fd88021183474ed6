// The sheets of paper that a job becomes.
#pragma once

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QMarginsF>
#include <QtCore/QRectF>
#include <QtCore/QString>
#include <optional>

#include "hosts/cups/ppd_choices.h"

namespace kesto {

/// A file of a job.
struct SheetDocument {
  /// The sizes of its pages as one looks at them, in points and above 0.
  QList<QSizeF> pages;
  /// The only page is an image, which the print system lays on pages as large as the paper.
  bool isImage = false;
};

/// Paper as the printer takes it and its PPD describes it; lengths in points.
struct SheetPaper {
  QSizeF size{595, 842};
  QMarginsF margins = {};  ///< Where the printer does not print.
  /// The PPD's LandscapeOrientation is Minus90: what lies across is turned the other way.
  bool isLandscapeMinus90 = false;
  /// The last page comes first unless a job says otherwise.
  bool isReversed = false;
  /// No paper but a file is made, where each page has its own size and nothing but the choice and the order
  /// of pages counts.
  bool isFile = false;

  bool operator==(const SheetPaper&) const = default;
};

/// The paper of a PPD; without one, that of `SheetPaper`.
SheetPaper sheetPaperOf(const std::optional<PpdPaper>& paper);

/// A page on a side. Areas are in points from the side's upper left corner.
struct SheetCell {
  int document = 0;      ///< Counts from 0.
  int page = 0;          ///< Counts from 0 in its document.
  QRectF area;           ///< The whole page, which may reach beyond what is printed of it.
  QRectF visible;        ///< What is printed; white where the page does not reach.
  int rotation = 0;      ///< How far the page is turned in its area, in degrees clockwise.
  QList<QRectF> border;  ///< The lines around it: none, one or two.
};

/// A side of a sheet, turned so that its first page is upright.
struct SheetSide {
  QSizeF size;       ///< In points.
  int turn = 0;      ///< From how the printer takes the paper, in degrees clockwise.
  int rotation = 0;  ///< How far a back is turned when one turns the sheet over like the page of a book.
  QList<SheetCell> cells;  ///< None on a side that stays blank.
};

struct Sheet {
  QString cover;           ///< The name of the cover sheet that this is; null for any other sheet.
  QList<SheetSide> sides;  ///< The front; with two-sided printing the back, where there is one.
};

/// Where a page is found. All count from 0.
struct SheetPlace {
  int sheet = 0;
  int side = 0;
};

/// What is printed on which side of which sheet, by the rules of the print system's filter `pdftopdf`. Two of
/// them surprise: "page-ranges" and "page-set" choose among the sides, which are pages only where each has a
/// side to itself; and "scaling" does nothing to a PDF file. Each file of a job begins on a sheet of its own.
class SheetPlan {
 public:
  /// The options under the print system's own names, with the queue's defaults among them; "Duplex" of a PPD
  /// counts as "sides". What has no meaning counts as not given.
  SheetPlan(const QList<SheetDocument>& documents, const SheetPaper& paper,
            const QMap<QString, QString>& options);

  /// One copy, in the order of printing, with the cover sheets.
  const QList<Sheet>& sheets() const { return m_sheets; }
  /// The width of the borders' lines, in points.
  double borderWidth() const { return m_borderWidth; }
  /// Whether the options turn colour off.
  bool isGray() const { return m_isGray; }
  /// How many pages have room on a side.
  int pagesOnSide() const { return m_pagesOnSide; }
  /// Sheets of paper in all: every copy, and the cover sheets, which come once.
  int paperCount() const { return m_paperCount; }
  /// The sides of one copy, blank backs and cover sheets included.
  int sideCount() const;
  /// Where a page is printed first, if it is.
  std::optional<SheetPlace> placeOf(int document, int page) const;

 private:
  QList<Sheet> m_sheets;
  double m_borderWidth = 0;
  bool m_isGray = false;
  int m_pagesOnSide = 1;
  int m_paperCount = 0;
};

}  // namespace kesto
