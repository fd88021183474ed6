// What is printed on which side, as a table and against the print system's own filter.
#include "hosts/session/sheet_plan.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <algorithm>

#include "hosts/cups/option_array.h"
#include "tests/support/printing.h"

namespace kesto::test {
namespace {

// Pages; options; what comes out as one looks at it: sheets "/", sides "|", rows of pages ",", and the
// degrees of a turned back "()" and page "@". L is landscape, Q square, N nearly A4 and B too large for it.
constexpr char table[] = R"(
5xA4; ; 1/2/3/4/5
5xA4; page-ranges=2-3,5 outputorder=reverse; 5/3/2
5xA4; page-ranges=-2,4-; 1/2/4/5
5xA4; page-set=odd sides=two-sided-long-edge outputorder=reverse; |5/3|1
6xA4; page-set=even; 2/4/6/
10xA4; number-up=2 page-ranges=2-4,5 page-set=even OutputOrder=Reverse; 7 8/3 4
5xA4; sides=two-sided-long-edge outputorder=reverse; |5/4|3/2|1
5xA4; Duplex=DuplexTumble; 1|(180)2/3|(180)4/5
7xA4; number-up=6 number-up-layout=lrtb; 1 2 3,4 5 6/7
7xA4; number-up=6 number-up-layout=lrbt; 4 5 6,1 2 3/7
7xA4; number-up=6 number-up-layout=rltb; 3 2 1,6 5 4/7
7xA4; number-up=6 number-up-layout=rlbt; 6 5 4,3 2 1/7
7xA4; number-up=6 number-up-layout=tblr; 1 3 5,2 4 6/7
7xA4; number-up=6 number-up-layout=tbrl; 5 3 1,6 4 2/7
7xA4; number-up=6 number-up-layout=btlr; 2 4 6,1 3 5/7
7xA4; number-up=6 number-up-layout=btrl; 6 4 2,5 3 1/7
3xA4; number-up=2; 1 2/3
3xA4L; number-up=2; 1,2/3
10xA4; number-up=9; 1 2 3,4 5 6,7 8 9/10
17xA4; number-up=16; 1 2 3 4,5 6 7 8,9 10 11 12,13 14 15 16/17
9xA4; number-up=2 sides=two-sided-short-edge outputorder=reverse; |9/7 8|5 6/3 4|1 2
3xA4; number-up=2 orientation-requested=4; 2 1/3
3xA4L; number-up=2 orientation-requested=5; 1,2/3
5xA4L; number-up=6 orientation-requested=6; 4 1,5 2,3
5xA4L; number-up=4; 3 1,4 2/5
5xA4; booklet=true sides=two-sided-short-edge; 1|2/3|4 5
8xA4; booklet=yes sides=two-sided-short-edge; 8 1|2 7/6 3|4 5
9xA4; booklet=true sides=two-sided-short-edge; 1|2/3|4 9/8 5|6 7
5xA4L; booklet=true outputorder=reverse sides=two-sided-short-edge; 4,5|(180)3/2|(180)1
9xA4; booklet=true number-up=4 page-ranges=1-4 orientation-requested=4; 1/2/3/9 4
2xA4 1xA4L 1xA5 1xA5L 1xQ; sides=two-sided-long-edge; 1|2/3|(270)4/5|(270)6
1xA5 1xA4L 1xQ 1xA3; print-scaling=fit; 1/2/3/4
1xA5 1xA4L 1xQ 1xA3; print-scaling=fill; 1/2/3/4
1xA5 1xA4L 1xQ 1xA3; print-scaling=none; 1/2/3/4
1xA5 1xA4L 1xA3; print-scaling=fill number-up=4; 1 2@270,3
1xA5 1xA4L 1xQ 1xA3; print-scaling=auto number-up=2; 1 2@270/3 4
1xN 1xA4; ; 1/2
1xB 1xA4; ; 1/2
1xA5 1xA4L; fit-to-page; 1/2
2xA5 1xA4L 1xA3; print-scaling=fit orientation-requested=5; 1/2/3/4
2xA5; scaling=50; 1/2
3xA4L; Duplex=DuplexTumble number-up=4 page-border=double; 3 1,2
)";

struct Row {
  explicit Row(const QString& line)
      : options(line.section(u"; "_s, 1, 1)), expected(line.section(u"; "_s, 2)) {
    static const QHash<QString, QSizeF> sizes{
        {u"A3"_s, {842, 1191}}, {u"A4"_s, {595, 842}}, {u"A4L"_s, {842, 595}}, {u"A5"_s, {420, 595}},
        {u"A5L"_s, {595, 420}}, {u"Q"_s, {500, 500}},  {u"N"_s, {603, 850}},   {u"B"_s, {608, 850}}};
    for (const QString& part : line.section(u"; "_s, 0, 0).split(u' '))
      pages += QList<QSizeF>(part.section(u'x', 0, 0).toInt(), sizes.value(part.section(u'x', 1)));
  }

  SheetPlan planOn(const SheetPaper& paper) const { return {{{pages}}, paper, parseJobOptions(options)}; }

  QList<QSizeF> pages;
  QString options;
  QString expected;
};

template <class Visit>
void forEachRow(const Visit& visit) {
  for (const QString& line : QString::fromLatin1(table).split(u'\n', Qt::SkipEmptyParts))
    visit(Row(line));
}

// All four margins differ, so that a mix-up fails the test.
const SheetPaper portrait{.size = {595, 842}, .margins = {10, 20, 30, 40}};

QString shown(SheetSide side) {
  const auto row = [](const SheetCell& cell) { return qRound(cell.area.center().y()); };
  std::ranges::sort(side.cells, {}, [&](auto& cell) { return std::pair(row(cell), cell.area.center().x()); });
  QString text = side.rotation == 0 ? u""_s : u"(%1)"_s.arg(side.rotation);
  for (int i = 0; i < side.cells.size(); ++i) {
    if (i > 0) text += row(side.cells[i]) == row(side.cells[i - 1]) ? u' ' : u',';
    text += QString::number(side.cells[i].page + 1);
    if (side.cells[i].rotation != 0) text += u"@%1"_s.arg(side.cells[i].rotation);
  }
  return text;
}

QString shown(const SheetPlan& plan) {
  QStringList sheets;
  for (const Sheet& sheet : plan.sheets()) {
    sheets.append(sheet.cover + shown(sheet.sides.front()));
    if (sheet.sides.size() > 1) sheets.back() += u'|' + shown(sheet.sides.back());
  }
  return sheets.join(u'/');
}

// A document whose pages have "aN" at a quarter and "bN" at three quarters of the way from the upper left to
// the lower right corner of what its trim box leaves of it. The filter finds its objects without their table.
QByteArray pdfOf(const QList<QSizeF>& pages) {
  QByteArray pdf = "%PDF-1.4\n1 0 obj <</Type/Catalog/Pages 2 0 R>> endobj\n";
  QByteArray kids;
  for (int i = 0; i < pages.size(); ++i) {
    const auto [x, y] = std::pair(pages[i].width() / 4, pages[i].height() / 4);
    kids += QString::asprintf("1%d 0 R ", i).toLatin1();
    pdf += QString::asprintf(
               "1%d 0 obj <</Type/Page/Parent 2 0 R/MediaBox[-9 -9 900 1300]/TrimBox[0 0 %f %f]/Contents 2%d "
               "0 R>> endobj\n"
               "2%d 0 obj <<>> stream\nBT /F .1 Tf 1 0 0 1 %f %f Tm (a%d) Tj 1 0 0 1 %f %f Tm (b%d) Tj ET\n"
               "endstream endobj\n",
               i, 4 * x, 4 * y, i, i, x, 3 * y, i, 3 * x, y, i)
               .toLatin1();
  }
  return pdf + "2 0 obj <</Type/Pages/Count " + QByteArray::number(pages.size()) + "/Kids[" + kids +
         "]/Resources<</Font<</F<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>>>>>>> endobj\n"
         "trailer <</Root 1 0 R>>\n";
}

QByteArray ppdOf(const SheetPaper& paper) {
  const QSizeF& size = paper.size;
  const QMarginsF& margins = paper.margins;
  return QString::asprintf(
             "*PPD-Adobe: \"4.3\"\n*OpenUI *PageSize: PickOne\n*DefaultPageSize: P\n"
             "*PageSize P: \"\"\n*CloseUI: *PageSize\n*OpenUI *Duplex: PickOne\n*DefaultDuplex: None\n"
             "*Duplex None: \"\"\n*Duplex DuplexTumble: \"\"\n*Duplex DuplexNoTumble: \"\"\n*CloseUI: "
             "*Duplex\n"
             "*ImageableArea P: \"%f %f %f %f\"\n"
             "*PaperDimension P: \"%f %f\"\n*LandscapeOrientation: %s90\n*DefaultOutputOrder: %s\n",
             margins.left(), margins.bottom(), size.width() - margins.right(), size.height() - margins.top(),
             size.width(), size.height(), paper.isLandscapeMinus90 ? "Minus" : "Plus",
             paper.isReversed ? "Reverse" : "Normal")
      .toLatin1();
}

QByteArray run(const QString& program, const QStringList& arguments, const QByteArray& input) {
  QProcess process;
  process.start(program, arguments);
  process.write(input);
  process.closeWriteChannel();
  EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0) << process.readAllStandardError();
  return process.readAllStandardOutput();
}

struct Mark : QPointF {
  bool operator==(const Mark& other) const { return (*this - other).manhattanLength() < 1; }
};

void PrintTo(const Mark& mark, std::ostream* out) {
  *out << mark.x() << ',' << mark.y();
}

constexpr char filter[] = "/usr/lib/cups/filter/pdftopdf";

// What the filter puts where on each side of the paper, as the printer takes it.
QList<QMap<QString, Mark>> filtered(const Row& row) {
  const QByteArray pdf =
      run(QLatin1String(filter), {u"1"_s, u"user"_s, u"title"_s, u"1"_s, row.options}, pdfOf(row.pages));
  const QByteArray text = run(u"pdftotext"_s, {u"-bbox"_s, u"-"_s, u"-"_s}, pdf.mid(pdf.indexOf("%PDF")));
  static const QRegularExpression form(uR"re(<page|<word xMin="(.*?)" yMin="(.*?)" .*>(\w+)<)re"_s);
  QList<QMap<QString, Mark>> sides;
  for (auto matches = form.globalMatch(QString::fromUtf8(text)); matches.hasNext();) {
    const QStringList found = matches.next().capturedTexts();
    if (found.size() == 1) sides.emplaceBack();
    if (found.size() > 1) sides.back().insert(found[3], {{found[1].toDouble(), found[2].toDouble()}});
  }
  return sides;
}

// A point of an area of size 1 by 1 that is turned and lies in another.
QPointF placed(QPointF point, int degrees, const QRectF& area) {
  for (; degrees > 0; degrees -= 90)
    point = {1 - point.y(), point.x()};
  return area.topLeft() + QPointF(point.x() * area.width(), point.y() * area.height());
}

QList<QMap<QString, Mark>> planned(const SheetPlan& plan, const SheetPaper& paper) {
  QList<QMap<QString, Mark>> sides;
  for (const Sheet& sheet : plan.sheets()) {
    for (const SheetSide& side : sheet.sides) {
      sides.emplaceBack();
      for (const SheetCell& cell : side.cells) {
        for (const auto& [name, at] : {std::pair(u"a%1"_s, 0.25), std::pair(u"b%1"_s, 0.75)}) {
          const QPointF seen = placed({at, at}, cell.rotation, cell.area);
          const QPointF part(seen.x() / side.size.width(), seen.y() / side.size.height());
          sides.back().insert(name.arg(cell.page), {placed(part, 360 - side.turn, {{}, paper.size})});
        }
      }
    }
  }
  return sides;
}

TEST(SheetPlan, PutsPagesInOrder) {
  forEachRow([](const Row& row) { EXPECT_EQ(shown(row.planOn(portrait)), row.expected) << row.options; });
}

TEST(SheetPlan, CountsCopiesFilesAndCovers) {
  const QSizeF page = portrait.size;
  const SheetPlan plan(
      {{{page, page, page, page}}, {}, {{page}}}, portrait,
      parseJobOptions(u"copies=3 sides=two-sided-long-edge job-sheets=standard,secret page-ranges=1-3"_s));
  EXPECT_EQ(shown(plan), u"standard/1|2/3/1/secret"_s);
  EXPECT_EQ(std::pair(plan.paperCount(), plan.sideCount()), std::pair(2 + 3 * 3, 6));
  ASSERT_TRUE(plan.placeOf(0, 1) && plan.placeOf(2, 0));
  EXPECT_EQ(std::pair(plan.placeOf(0, 1)->sheet, plan.placeOf(0, 1)->side), std::pair(1, 1));
  EXPECT_EQ(plan.placeOf(2, 0)->sheet, 3);
  EXPECT_FALSE(plan.placeOf(0, 3));
  const SheetPlan file({{{page, page / 2, page}}, {{page}}}, {.isFile = true},
                       parseJobOptions(u"page-ranges=1-2 outputorder=reverse number-up=4 job-sheets=a,b"_s));
  EXPECT_EQ(shown(file), u"2/1/1"_s);
  EXPECT_EQ(file.sheets().front().sides.front().size, page / 2);
}

// As the filters imagetopdf and pdftopdf do it, on paper whose margins are 12 points wide.
TEST(SheetPlan, LaysImagesOnThePaper) {
  const std::tuple<QSizeF, const char*, const char*> cases[] = {
      {{108, 72}, "", "12,25 818x545"},
      {{108, 72}, "scaling=50", "217,161 409x273"},
      {{108, 72}, "scaling=150", "114,93 614x409 114,93 614x409 114,93 614x409 114,93 614x409"},
      {{108, 72}, "print-scaling=none", "367,262 108x72"},
      {{72, 108}, "print-scaling=fit", "36,28 523x785"},
      {{72, 108}, "orientation-requested=4", "231,12 381x571"},
      {{720, 540}, "print-scaling=fill", "24,20 795x555"},
      {{720, 540}, "number-up=2", "29,9 538x403"}};
  for (const auto& [size, options, expected] : cases) {
    const SheetPlan plan({{{size}, true}}, {.size = portrait.size, .margins = {12, 12, 12, 12}},
                         parseJobOptions(QLatin1String(options)));
    QStringList shown;
    for (const Sheet& sheet : plan.sheets()) {
      const QRectF& area = sheet.sides.front().cells.front().visible;
      shown.append(u"%1,%2 %3x%4"_s.arg(qRound(area.x()))
                       .arg(qRound(area.y()))
                       .arg(qRound(area.width()))
                       .arg(qRound(area.height())));
    }
    EXPECT_EQ(shown.join(u' '), QLatin1String(expected)) << options;
  }
}

TEST(SheetPlan, DrawsBordersInsideWhatIsPrinted) {
  const SheetPlan plan =
      Row(u"2xA3; number-up=2 page-border=double-thick print-scaling=none; "_s).planOn(portrait);
  const SheetCell& cell = plan.sheets().front().sides.front().cells.back();
  EXPECT_EQ(plan.borderWidth(), 0.5);
  EXPECT_EQ(cell.visible.toRect(), QRect(421, 0, 421, 595));
  EXPECT_EQ(cell.area.size().toSize(), QSize(595, 842));
  const QList<QRectF> border{cell.visible.adjusted(2.25, 2.25, -2.25, -2.25),
                             cell.visible.adjusted(4.25, 4.25, -4.25, -4.25)};
  EXPECT_EQ(cell.border, border);
}

TEST(SheetPlan, AgreesWithTheFilter) {
  QFile program{QLatin1String(filter)};
  if (!program.open(QIODevice::ReadOnly)) GTEST_SKIP() << "pdftopdf of cups-filters is not installed";
  if (program.readAll().contains("libcupsfilters.so.2")) GTEST_SKIP() << "pdftopdf is not of cups-filters 1";
  const SheetPaper borderless{.size = portrait.size.transposed(), .margins = {}};
  const SheetPaper turning{
      .size = portrait.size, .margins = portrait.margins, .isLandscapeMinus90 = true, .isReversed = true};
  const QTemporaryDir folder;
  QFile ppd(folder.filePath(u"ppd"_s));
  qputenv("PPD", QFile::encodeName(ppd.fileName()));
  for (const SheetPaper& paper : {portrait, borderless, turning}) {
    ASSERT_TRUE(ppd.open(QIODevice::WriteOnly) && ppd.write(ppdOf(paper)) > 0);
    ppd.close();
    PpdFile opened;
    ASSERT_TRUE(openPpdFile(ppd.fileName(), &opened));
    ASSERT_EQ(sheetPaperOf(PpdChoices(opened.get()).markedPaper()), paper);
    forEachRow(
        [&](const Row& row) { EXPECT_EQ(planned(row.planOn(paper), paper), filtered(row)) << row.options; });
  }
}

}  // namespace
}  // namespace kesto::test
