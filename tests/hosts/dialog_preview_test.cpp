// The preview: what it shows of a document, and the programs that draw it.
#include <QtGui/QAccessible>
#include <QtGui/QImage>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSpinBox>

#include "hosts/cups/option_array.h"
#include "hosts/dialog/preview/preview.h"
#include "tests/support/dialog_document.h"

namespace kesto::test {
namespace {

class DialogPreview : public DialogDocument {
 protected:
  DialogPreview() { m_preview.QWidget::show(); }
  void awaitSide() {
    EXPECT_TRUE(DialogUser::waitUntil([this] { return m_preview.isSettled(); }, u"the side"_s));
  }
  // The sheet when it is drawn.
  QImage sheet() {
    awaitSide();
    return view()->grab().toImage();
  }
  QWidget* view() const { return widgetNamed(m_preview, u"Preview"_s); }
  // What assistive technology says of it.
  QString shown() {
    awaitSide();
    const QAccessibleInterface* picture = QAccessible::queryAccessibleInterface(view());
    EXPECT_EQ(picture->role(), QAccessible::Graphic);
    return picture->text(QAccessible::Description);
  }
  QString textOf(const QString& name) const { return m_preview.findChild<QLabel*>(name)->text(); }

  Preview m_preview{nullptr};
};

TEST_F(DialogPreview, ThePagesOfAPdfAreTurned) {
  const std::vector<JobFile> report{{KESTO_TEST_DATA "/../../demo/quarterly-report.pdf"}};
  auto* back = widgetNamed<QToolButton>(m_preview, u"Previous page"_s);
  auto* forward = widgetNamed<QToolButton>(m_preview, u"Next page"_s);
  m_preview.show(report);
  m_preview.resize(2 * m_preview.size());  // while the page is drawn for the size before
  const QImage first = sheet();
  EXPECT_EQ(shown(), u"Page 1 of 3"_s);
  EXPECT_EQ(m_preview.pageCount(), 3);
  EXPECT_FALSE(back->isEnabled());
  forward->click();
  EXPECT_NE(sheet(), first);
  EXPECT_EQ(shown(), u"Page 2 of 3"_s);
  forward->click();
  EXPECT_FALSE(forward->isEnabled());
  back->click();
  qputenv("LC_ALL", "ja_JP.UTF-8");  // a locale with other preferred fonts
  back->click();
  EXPECT_EQ(sheet(), first);
  qunsetenv("LC_ALL");
  const QByteArray path = qgetenv("PATH");
  qputenv("PATH", "/nowhere");
  m_preview.show(report);
  EXPECT_EQ(shown(), u"No preview is available. Install poppler-utils to see one."_s);
  qputenv("PATH", path);
}

TEST_F(DialogPreview, SheetsAreShownAsTheyComeOut) {
  const JobFile report{KESTO_TEST_DATA "/../../demo/quarterly-report.pdf"};  // of three pages
  struct Case {
    std::vector<JobFile> files;
    const char* options;
    const char* first;
    const char* last;
    const char* total;
  };
  const char* damaged =
      "The document is damaged and cannot be shown. The printer may not be able to print it.";
  const Case cases[] = {
      {{report}, "", "Page 1 of 3", "Page 3 of 3", "Total: 3 sheets of paper"},
      {{report, report}, "page-ranges=1-2", "Page 1 of 6", "Page 5 of 6", "Total: 4 sheets of paper"},
      {{report},
       "outputorder=reverse page-set=odd",
       "Page 3 of 3",
       "Page 1 of 3",
       "Total: 2 sheets of paper"},
      {{report}, "page-ranges=2 copies=1", "Page 2 of 3", "Page 2 of 3", "Total: 1 sheet of paper"},
      {{report}, "number-up=2 ColorModel=Gray", "Sheet 1 of 2", "Sheet 2 of 2", "Total: 2 sheets of paper"},
      {{report},
       "sides=two-sided-long-edge copies=2",
       "Sheet 1 of 2, front",
       "Sheet 2 of 2, front",
       "Total: 4 sheets of paper"},
      {{report},
       "number-up=2 sides=two-sided-long-edge job-sheets=standard",
       "Sheet 1 of 2, front",
       "Sheet 2 of 2, back",
       "Total: 2 sheets of paper"},
      {{report},
       "page-ranges=7",
       "No pages are selected.",
       "No pages are selected.",
       "Total: 0 sheets of paper"},
      {{{path(u"report.pdf"_s)}}, "", damaged, damaged, ""}};
  auto* forward = widgetNamed<QToolButton>(m_preview, u"Next page"_s);
  for (const auto& [files, options, first, last, total] : cases) {
    SCOPED_TRACE(options);
    m_preview.show(files);
    m_preview.setJob({}, parseJobOptions(QLatin1String(options)));
    EXPECT_EQ(shown(), QLatin1String(first));
    EXPECT_EQ(textOf(u"paperTotal"_s), QLatin1String(total));
    while (forward->isEnabled())
      forward->click();
    EXPECT_EQ(shown(), QLatin1String(last));
  }
}

TEST_F(DialogPreview, AnyPageIsReachedByKeysWheelAndNumber) {
  const QByteArray report(KESTO_TEST_DATA "/../../demo/quarterly-report.pdf");
  m_preview.show({{report, u"one.pdf"_s}, {report, u"two.pdf"_s}});
  EXPECT_EQ(shown(), u"Page 1 of 6"_s);
  auto* sheets = qobject_cast<QAbstractScrollArea*>(view());
  const auto wheel = [&](int by, Qt::KeyboardModifiers modifiers) {
    const QPointF middle(sheets->viewport()->rect().center());
    QWheelEvent event(middle, sheets->mapToGlobal(middle), {}, {0, by}, Qt::NoButton, modifiers, {}, false);
    QCoreApplication::sendEvent(sheets->viewport(), &event);
  };
  auto* number = m_preview.findChild<QSpinBox*>(u"pageNumber"_s);
  const std::pair<std::function<void()>, const char*> steps[] = {
      {[&] { QTest::keyClick(sheets, Qt::Key_End); }, "Page 6 of 6"},
      {[&] { QTest::keyClick(sheets, Qt::Key_PageUp); }, "Page 5 of 6"},
      {[&] { QTest::keyClick(sheets, Qt::Key_Home); }, "Page 1 of 6"},
      {[&] { QTest::keyClick(number, Qt::Key_PageDown); }, "Page 2 of 6"},
      {[&] { wheel(-120, {}); }, "Page 3 of 6"},
      {[&] { wheel(60, {}), wheel(60, {}); }, "Page 2 of 6"},
      {[&] { number->selectAll(), QTest::keyClicks(number, u"4"_s), pressEnter(*number); }, "Page 4 of 6"}};
  for (const auto& [step, expected] : steps) {
    step();
    EXPECT_EQ(shown(), QLatin1String(expected));
  }
  EXPECT_EQ(textOf(u"previewedFile"_s), u"two.pdf, 3 pages"_s);
  const auto isWhole = [&] { return sheets->verticalScrollBar()->maximum() == 0; };
  for (const bool isZoomed : {true, false}) {
    QTest::mouseClick(sheets->viewport(), Qt::LeftButton);
    EXPECT_EQ(isWhole(), !isZoomed);
  }
  wheel(120, Qt::ControlModifier);
  EXPECT_FALSE(isWhole());
  wheel(-120, {});  // scrolls
  EXPECT_EQ(shown(), u"Page 4 of 6"_s);
}

TEST_F(DialogPreview, OnlyWhatTheTrimBoxLeavesIsShown) {
  m_folder.write(u"trimmed.pdf"_s, R"(%PDF-1.4
1 0 obj <</Type/Catalog/Pages 2 0 R>> endobj
2 0 obj <</Type/Pages/Count 1/Kids[3 0 R]>> endobj
3 0 obj <</Type/Page/Parent 2 0 R/MediaBox[0 0 600 850]/CropBox[10 10 590 840]/TrimBox[100 200 400 600]
/Rotate 90/Contents 4 0 R>> endobj
4 0 obj <</Length 57>> stream
1 0 0 rg 100 200 300 400 re f 0 0 1 rg 100 200 100 100 re f
endstream endobj
trailer <</Root 1 0 R>>
)");
  m_preview.setJob({.size = {300, 400}}, {});
  m_preview.show({{path(u"trimmed.pdf"_s)}});
  const QImage shown = sheet();
  const int quarter = shown.width() / 4;
  const QPoint middle = shown.rect().center();
  EXPECT_EQ(shown.pixelColor(middle + QPoint(quarter, quarter)), QColor(Qt::red));
  EXPECT_EQ(shown.pixelColor(middle - QPoint(quarter, quarter)), QColor(Qt::blue));
}

TEST_F(DialogPreview, OtherDocumentsAreConvertedByThePrintSystem) {
  const QByteArray report(KESTO_TEST_DATA "/../../demo/quarterly-report.pdf");
  const QByteArray before = qgetenv("PATH");
  qputenv("PATH", path(u""_s) + ':' + before);
  m_folder.write(u"notes.txt"_s, "Notes");
  const JobFile notes{path(u"notes.txt"_s), u"notes.txt"_s};
  m_folder.writeProgram(
      u"cupsfilter"_s,
      R"(test "$4" = application/pdf && grep -q '300.00 400.00' "$2" && cat )" + report + "\n");
  m_preview.setJob({.size = {300, 400}}, {});
  m_preview.show({notes});
  EXPECT_EQ(shown(), u"Page 1 of 3"_s);
  m_preview.setJob({}, {});  // for another paper, which it refuses here
  EXPECT_EQ(shown(), u"No preview is available for this type of document."_s);
  EXPECT_EQ(m_preview.fault(), QString());
  qputenv("PATH", before);
}

TEST_F(DialogPreview, AnImageLiesOnItsPaper) {
  for (const auto& [width, format] : {std::pair(40, QImage::Format_Indexed8),
                                      {5000, QImage::Format_Indexed8},
                                      {5000, QImage::Format_Mono}}) {
    QImage image(width, width / 2, format);
    image.setColorTable({qRgb(0, 0, 255), qRgb(255, 0, 0)});
    image.fill(0);
    ASSERT_TRUE(image.save(m_folder.path(u"image.png"_s)));
    m_preview.show({{QFile::encodeName(m_folder.path(u"image.png"_s))}});
    const QImage shown = sheet();
    EXPECT_EQ(this->shown(), u"Page 1 of 1"_s);
    const QPoint middle = shown.rect().center();
    EXPECT_EQ(shown.pixelColor(middle), QColor(Qt::blue));
    // A landscape sheet has 30 of its 42 parts in height, and the image 21 of them.
    EXPECT_EQ(shown.pixelColor(middle - QPoint(0, shown.width() * 12 / 42)), QColor(Qt::white));
    EXPECT_EQ(shown.pixelColor(middle - QPoint(0, shown.width() * 9 / 42)), QColor(Qt::blue));
    m_preview.setJob({}, {{u"ColorModel"_s, u"Gray"_s}, {u"print-scaling"_s, u"fill"_s}});
    EXPECT_EQ(sheet().pixelColor(middle).saturation(), 0);
    m_preview.setJob({}, {});
  }
}

TEST_F(DialogPreview, WhatCannotBePrintedIsReportedInThePreview) {
  const QByteArray folder(KESTO_TEST_DATA "/");
  const JobFile plain{QFile::encodeName(m_folder.path(u"report.pdf"_s)), u"report.pdf"_s};
  const JobFile locked{folder + "protected.pdf", u"locked.pdf"_s};
  const std::pair<std::vector<JobFile>, const char*> cases[] = {
      {{locked}, "The document is protected by a password"},
      {{plain, locked}, "locked.pdf: The document is protected by a password"},
      {{{folder + "no-pages.pdf"}}, "The document has no pages."},
      {{{QFile::encodeName(m_folder.path(u"empty"_s))}}, "The document has no pages."},
      {{plain}, ""},  // damaged, but the printer may be able to read it
  };
  for (const auto& [files, fault] : cases) {
    SCOPED_TRACE(files.back().path.toStdString());
    m_preview.show(files);
    EXPECT_FALSE(m_preview.isExamined());
    waitFor([this] { return m_preview.isSettled(); });
    waitFor([this] { return m_preview.isExamined(); });
    EXPECT_TRUE((m_preview.fault() + u'.').startsWith(QLatin1String(fault))) << m_preview.fault();
    EXPECT_EQ(m_preview.fault().isNull(), *fault == 0);
    const QString text = shown();
    EXPECT_EQ(text, m_preview.fault().isNull() ? text : m_preview.fault());
  }
}

TEST_F(DialogPreview, AProgramIsBoundedInTimeAndMemory) {
  PageProgram hasty(std::chrono::milliseconds(1));
  PageProgram patient;
  const auto run = [&](PageProgram& program, const QString& name, const QStringList& arguments) {
    std::optional<PageProgram::End> end;
    QObject::connect(&program, &PageProgram::ended, &program, [&](PageProgram::End how) { end = how; });
    program.start({name, arguments, m_folder.path(u"report.pdf"_s), {}});
    waitFor([&] { return end.has_value(); });
    program.disconnect();
    return end;
  };
  EXPECT_EQ(run(hasty, u"sleep"_s, {u"600"_s}), PageProgram::End::Late);
  EXPECT_EQ(run(patient, u"no-such-program"_s, {}), PageProgram::End::Missing);
  const QStringList script{u"-c"_s, u"ulimit -c; ulimit -v; head -c 4; exit 3"_s};
  EXPECT_EQ(run(patient, u"sh"_s, script), PageProgram::End::Failed);
#ifdef __SANITIZE_ADDRESS__
  EXPECT_EQ(patient.output(), "0\nunlimited\n%PDF");  // the sanitizer reserves far more for itself
#else
  EXPECT_EQ(patient.output(), "0\n1048576\n%PDF");
#endif
}

// The number of the process that a program has written to a file.
bool isAlive(const QByteArray& process) {
  QFile file(u"/proc/%1/stat"_s.arg(QLatin1String(process.trimmed())));
  return file.open(QIODevice::ReadOnly) && !file.readAll().contains(") Z ");
}

TEST_F(DialogPreview, AProgramEndsWithTheDialogHoweverTheDialogEnds) {
  m_folder.writeProgram(u"pdftoppm"_s,
                        "echo $$ >" + QFile::encodeName(m_folder.path(u"process"_s)) + "\nexec sleep 600\n");
  const QByteArray path = qgetenv("PATH");
  qputenv("PATH", QFile::encodeName(m_folder.path(u""_s)) + ':' + path);
  DemoProcess dialog(m_folder, u"kesto-print"_s, {u"-h"_s, u"127.0.0.1:9"_s, m_folder.path(u"report.pdf"_s)});
  qputenv("PATH", path);
  const QString file = m_folder.path(u"process"_s);
  waitFor([&] { return QFileInfo(file).size() > 0; });
  EXPECT_TRUE(isAlive(bytesOf(file)));
  dialog.kill();
  waitFor([&] { return !isAlive(bytesOf(file)); });
}

}  // namespace
}  // namespace kesto::test
