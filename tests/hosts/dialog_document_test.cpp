// A document before it is printed: how it arrives, what the preview shows, and which pages are chosen.
#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <QtGui/QAccessible>
#include <QtGui/QImage>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSpinBox>

#include "hosts/cups/option_array.h"
#include "hosts/dialog/pdf_saving.h"
#include "hosts/dialog/preview/preview.h"
#include "hosts/session/page_range.h"
#include "tests/support/dialog_printer.h"

namespace kesto::test {
namespace {

class DialogDocument : public testing::Test {
 protected:
  using State = Document::State;
  DialogDocument() {
    qputenv("TMPDIR", m_folder.path(u""_s).toUtf8());
    m_folder.write(u"report.pdf"_s, pdfDocument());
    m_folder.write(u"empty"_s, {});
  }
  QByteArray path(const QString& name) const { return QFile::encodeName(m_folder.path(name)); }
  void awaitState(State state) {
    waitFor([&] { return m_document.state() == state; });
  }
  QByteArray bytes(std::size_t file = 0) const {
    return bytesOf(QString::fromLatin1(m_document.files().at(file).path));
  }
  // The reading end of a pipe that was written and closed.
  static Descriptor pipeOf(const QByteArray& bytes) {
    std::array<int, 2> ends{};
    EXPECT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
    QFile pipe;
    EXPECT_TRUE(pipe.open(ends[1], QIODevice::WriteOnly, QFile::AutoCloseHandle));
    pipe.write(bytes);
    return Descriptor(ends[0]);
  }

  ScratchFolder m_folder;
  Document m_document{{.beforePrint = 100'000, .whole = 300'000}};
};

TEST_F(DialogDocument, WhatCanBeReadIsOfferedAndTheRestNamed) {
  const Descriptor pipe = pipeOf("piped");
  const QByteArray piped = "/dev/fd/" + QByteArray::number(pipe.get());
  ASSERT_EQ(::mkfifo(path(u"fifo"_s).constData(), 0600), 0);
  const QByteArray odd = path(u""_s) + "/gr\xf6n\n";
  ASSERT_EQ(::link(path(u"report.pdf"_s).constData(), odd.constData()), 0);
  m_document.openFiles(
      {path(u"missing"_s), odd, path(u"empty"_s), piped, path(u""_s), "/proc/self/comm", path(u"fifo"_s)});
  EXPECT_EQ(m_document.state(), State::Reading);
  const int writer = ::open(path(u"fifo"_s).constData(), O_WRONLY | O_CLOEXEC);  // and now it has a writer
  EXPECT_EQ(::write(writer, "late", 4), 4);
  ::close(writer);
  awaitState(State::Ready);
  EXPECT_EQ(m_document.faults(),
            (QStringList{m_folder.path(u"missing"_s) + u" cannot be read: No such file or directory"_s,
                         m_folder.path(u""_s) + u" is a folder. Choose a file."_s,
                         u"empty is empty. There is nothing to print."_s}));
  EXPECT_EQ(m_document.name(), u"gr\\xf6n\\n and 3 more"_s);
  EXPECT_EQ(::unlink(odd.constData()), 0);  // it is printed as it was chosen
  const QByteArray contents[] = {pdfDocument(), "piped", "dialog_test\n", "late"};
  for (std::size_t i = 0; i < std::size(contents); ++i)
    EXPECT_EQ(bytes(i), contents[i]);
  EXPECT_EQ(QDir(m_folder.path(u""_s)).entryList(QDir::Files | QDir::System),
            (QStringList{u"empty"_s, u"fifo"_s, u"report.pdf"_s}))
      << "a copy can be found";
  m_document.openFiles({path(u"missing"_s), path(u"empty"_s)});
  awaitState(State::Failed);
  EXPECT_EQ(m_document.name(), QString());
}

TEST_F(DialogDocument, AnEndlessDocumentIsReadWithinLimits) {
  m_document.openFiles({"/dev/zero"});
  awaitState(State::Paused);
  m_document.readOn();
  awaitState(State::Failed);
  EXPECT_EQ(m_document.faults(),
            QStringList{u"zero is larger than 293 KiB, the most that can be printed."_s});
}

TEST_F(DialogDocument, ACopyGoesWhereThereIsRoom) {
  qputenv("TMPDIR", path(u"missing"_s));
  const Descriptor pipe = pipeOf("elsewhere");
  m_document.openFiles({"/dev/fd/" + QByteArray::number(pipe.get())});
  awaitState(State::Ready);
  EXPECT_EQ(bytes(), "elsewhere");
  PrivateCopy nowhere({m_folder.path(u"missing/"_s), u"/proc/"_s});
  EXPECT_FALSE(nowhere.append("x", 1).reason().isEmpty());
  if (::unshare(CLONE_NEWNS) != 0) GTEST_SKIP() << "only root can fill a folder";
  QDir(m_folder.path(u""_s)).mkdir(u"small"_s);
  ASSERT_EQ(::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr), 0);
  ASSERT_EQ(::mount("none", path(u"small"_s).constData(), "tmpfs", 0, "size=64k"), 0);
  PrivateCopy copy({m_folder.path(u"small/"_s), m_folder.path(u""_s)});
  for (const char* part = "a"; copy.size() < 100'000;)
    ASSERT_TRUE(copy.append(QByteArray(999, *part).constData(), 999));
  ::umount(path(u"small"_s).constData());
  QFile file;
  ASSERT_TRUE(file.open(copy.take().release(), QIODevice::ReadOnly, QFile::AutoCloseHandle));
  EXPECT_TRUE(file.seek(0) && file.readAll() == QByteArray(copy.size(), 'a'));
}

TEST_F(DialogDocument, WhatAnEarlierVersionLeftIsRemoved) {
  m_folder.write(u"kesto-document.left12"_s, "secret");
  m_folder.write(u"kesto-document.inUse1"_s, "secret");
  QFile inUse(m_folder.path(u"kesto-document.inUse1"_s));
  ASSERT_TRUE(inUse.open(QIODevice::ReadOnly));
  removeLeftCopies();
  EXPECT_FALSE(QFile::exists(m_folder.path(u"kesto-document.left12"_s)));
  EXPECT_TRUE(inUse.exists());
}

TEST_F(DialogDocument, AFileTakesThePlaceOfADocumentThatIsStillRead) {
  for (const bool isWhole : {false, true}) {  // or it is read whole, and nobody has been told
    std::array<int, 2> ends{};
    ASSERT_EQ(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()), 0);
    m_document.readFromClient(Descriptor(ends[0]), u"Report"_s);
    if (isWhole) ::shutdown(ends[1], SHUT_WR);
    char byte = 0;
    if (!isWhole) m_document.openFiles({path(u"report.pdf"_s)});
    EXPECT_EQ(::read(ends[1], &byte, 1), 0) << "waits for the end of the reading";
    if (isWhole) m_document.openFiles({path(u"report.pdf"_s)});
    ::close(ends[1]);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_document.state(), State::Ready);
    EXPECT_EQ(bytes(), pdfDocument());
  }
}

TEST_F(DialogDocument, APdfFileIsSavedCompletelyOrNotAtAll) {
  PdfSaving saving;
  std::optional<QString> end;
  QObject::connect(&saving, &PdfSaving::saved, [&] { end = u"saved"_s; });
  QObject::connect(&saving, &PdfSaving::failed, [&](const QString& reason) { end = reason; });
  const auto save = [&](const QString& target) {
    end.reset();
    saving.save({.files = {QStringLiteral(KESTO_TEST_DATA "/../../demo/quarterly-report.pdf")},
                 .pages = {{0, 2}, {0, 1}, {0, 0}, {0, 2}}},
                target);
    waitFor([&] { return end.has_value(); });
    return *end;
  };
  EXPECT_EQ(save(m_folder.path(u"saved.pdf"_s)), u"saved"_s);
  EXPECT_TRUE(bytesOf(m_folder.path(u"saved.pdf"_s)).contains("%%EOF"));
  EXPECT_EQ(save(u"/proc/saved.pdf"_s), u"/proc/saved.pdf cannot be saved. No such file or directory."_s);
  if (::unshare(CLONE_NEWNS) != 0) GTEST_SKIP() << "only root can fill a folder";
  ASSERT_EQ(::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr), 0);
  ASSERT_EQ(::mount("none", path(u""_s).constData(), "tmpfs", 0, "size=4k"), 0);
  m_folder.write(u"saved.pdf"_s, "before");
  EXPECT_TRUE(save(m_folder.path(u"saved.pdf"_s))
                  .endsWith(u"saved.pdf cannot be saved. There is not enough space."_s));
  EXPECT_EQ(bytesOf(m_folder.path(u"saved.pdf"_s)), "before");
  ::umount(path(u""_s).constData());
}

TEST(DialogPages, AreRangesInRisingOrderThatDoNotOverlap) {
  for (const auto& [given, taken] :
       Cases{{"8-, 1–3,5", "1-3,5,8-"}, {"1-3,3", nullptr}, {"7,2-", nullptr}, {"-", nullptr}})
    EXPECT_EQ(pageRangesOf(given).value_or(QString()), taken) << given;
  for (const auto& [given, taken] :
       Cases{{"8-12", "8-10"}, {"5,99", "5"}, {"9-", "9-"}, {"99", ""}, {"11-", ""}, {"1-10", "1-10"}})
    EXPECT_EQ(pageRangesOf(given, 10), taken) << given;
}

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
