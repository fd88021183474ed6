// A document before it is printed: how it arrives, and which pages are chosen.
#include <sched.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include "hosts/dialog/pdf_saving.h"
#include "hosts/session/page_range.h"
#include "tests/support/dialog_document.h"

namespace kesto::test {
namespace {

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

TEST_F(DialogDocument, ACopyFillsTheRuntimeFolderLast) {
  const QString own = m_folder.path(u""_s) + u'/';
  EXPECT_EQ(PrivateCopy::usualFolders(), (QStringList{own, u"/var/tmp/"_s, u"/tmp/"_s}));
  qunsetenv("TMPDIR");
  qputenv("XDG_RUNTIME_DIR", own.toUtf8());
  EXPECT_EQ(PrivateCopy::usualFolders(), (QStringList{u"/var/tmp/"_s, u"/tmp/"_s, own + u"kesto/"_s}));
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

}  // namespace
}  // namespace kesto::test
