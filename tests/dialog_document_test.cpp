// A document before it is printed: how it comes, what of it is shown, and which pages are asked for.
#include <fcntl.h>
#include <sys/socket.h>

#include <QtGui/QImage>
#include <QtWidgets/QToolButton>

#include "dialog_printer.h"
#include "hosts/dialog/preview/preview.h"
#include "hosts/session/page_range.h"

namespace kesto::test {
namespace {

class DialogDocument : public testing::Test {
 protected:
  DialogDocument() {
    qputenv("TMPDIR", m_folder.path(u""_s).toUtf8());
    m_folder.write(u"report.pdf"_s, pdfDocument());
    m_folder.write(u"empty"_s, {});
  }
  void read(int descriptor) {
    m_document.readDescriptor(descriptor, u"(stdin)"_s);
    EXPECT_TRUE(DialogUser::waitUntil([this] { return m_document.state() != Document::State::Reading; },
                                      u"the document"_s));
  }

  ScratchFolder m_folder;
  Document m_document;
};

TEST_F(DialogDocument, StandardInputIsKeptForItsUserAlone) {
  std::array<int, 2> ends{};
  ASSERT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
  QFile pipe;
  ASSERT_TRUE(pipe.open(ends[1], QIODevice::WriteOnly, QFile::AutoCloseHandle));
  pipe.write(pdfDocument().first(50'000));
  pipe.close();
  read(ends[0]);
  ASSERT_EQ(m_document.state(), Document::State::Ready);
  const QString file = m_document.files().first();
  EXPECT_EQ(bytesOf(file), pdfDocument().first(50'000));
  EXPECT_EQ(QFile::permissions(file) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
}

TEST_F(DialogDocument, WhatCannotBeReadSaysWhy) {
  const std::array<const char*, 3> cases[] = {{"empty", "", "The document is empty."},
                                              {"", "", "The document cannot be read: Is a directory"},
                                              {"empty", "missing", "The document cannot be kept: "}};
  for (const auto& [name, folder, fault] : cases) {
    qputenv("TMPDIR", m_folder.path(QLatin1String(folder)).toUtf8());
    const int descriptor = ::open(m_folder.path(QLatin1String(name)).toUtf8().constData(), O_RDONLY);
    read(descriptor);
    EXPECT_EQ(m_document.state(), Document::State::Failed);
    EXPECT_TRUE(m_document.fault().startsWith(QLatin1String(fault))) << m_document.fault();
    EXPECT_EQ(::fcntl(descriptor, F_GETFD), -1) << "it is still open";
  }
}

TEST_F(DialogDocument, AFileTakesThePlaceOfADocumentThatIsStillRead) {
  const QStringList files{m_folder.path(u"report.pdf"_s)};
  for (const bool isWhole : {false, true}) {  // or it is read whole, and nobody has been told
    std::array<int, 2> ends{};
    ASSERT_EQ(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()), 0);
    m_document.readDescriptor(ends[0], u"(stdin)"_s);
    if (isWhole) ::shutdown(ends[1], SHUT_WR);
    char byte = 0;
    if (!isWhole) m_document.openFiles(files);
    EXPECT_EQ(::read(ends[1], &byte, 1), 0) << "waits for the end of the reading";
    if (isWhole) m_document.openFiles(files);
    ::close(ends[1]);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_document.state(), Document::State::Ready);
    EXPECT_EQ(m_document.files(), files);
  }
}

TEST(DialogPages, AreRangesInRisingOrderThatDoNotOverlap) {
  for (const auto& [given, taken] :
       Cases{{"8-, 1–3,5", "1-3,5,8-"}, {"1-3,3", nullptr}, {"7,2-", nullptr}, {"-", nullptr}})
    EXPECT_EQ(pageRangesOf(given).value_or(QString()), taken) << given;
}

class DialogPreview : public DialogDocument {
 protected:
  DialogPreview() { m_preview.QWidget::show(); }
  // The sheet once what is wanted is on it.
  QImage sheet(const QString& what = u"Preview of the page"_s) {
    EXPECT_TRUE(DialogUser::waitUntil([this] { return m_preview.isSettled(); }, u"the page"_s));
    return widgetNamed(m_preview, what)->grab().toImage();
  }

  Preview m_preview{nullptr};
};

TEST_F(DialogPreview, ThePagesOfAPdfAreTurned) {
  const QString report = QLatin1String(KESTO_TEST_DATA "/../../demo/quarterly-report.pdf");
  auto* back = widgetNamed<QToolButton>(m_preview, u"Previous page"_s);
  auto* forward = widgetNamed<QToolButton>(m_preview, u"Next page"_s);
  const auto* position = m_preview.findChild<QLabel*>();
  m_preview.show(report);
  m_preview.resize(2 * m_preview.size());  // while the page is drawn for the size before
  const QImage first = sheet();
  EXPECT_TRUE(DialogUser::waitUntil([&] { return position->text() == u"Page 1 of 3"_s; }, u"the number"_s));
  EXPECT_FALSE(back->isEnabled());
  forward->click();
  EXPECT_NE(sheet(), first);
  EXPECT_EQ(position->text(), u"Page 2 of 3"_s);
  forward->click();
  EXPECT_FALSE(forward->isEnabled());
  back->click();
  qputenv("LC_ALL", "ja_JP.UTF-8");  // where other fonts are preferred
  back->click();
  EXPECT_EQ(sheet(), first);
  qunsetenv("LC_ALL");
  const QByteArray path = qgetenv("PATH");
  qputenv("PATH", "/nowhere");
  m_preview.show(report);
  sheet(u"There is no preview: the program pdftoppm of poppler-utils is missing."_s);
  qputenv("PATH", path);
}

TEST_F(DialogPreview, AnImageIsAPageOfItsShape) {
  for (const auto& [width, format] : {std::pair(40, QImage::Format_Indexed8),
                                      {5000, QImage::Format_Indexed8},
                                      {5000, QImage::Format_Mono}}) {
    QImage image(width, width / 2, format);
    image.setColorTable({qRgb(0, 0, 255), qRgb(255, 0, 0)});
    image.fill(0);
    ASSERT_TRUE(image.save(m_folder.path(u"image.png"_s)));
    m_preview.show(m_folder.path(u"image.png"_s));
    const QImage shown = sheet();
    EXPECT_EQ(m_preview.findChild<QLabel*>()->text(), u"Page 1 of 1"_s);
    const QPoint middle = shown.rect().center();
    EXPECT_EQ(shown.pixelColor(middle), QColor(Qt::blue));
    EXPECT_NE(shown.pixelColor(middle - QPoint(0, shown.width() * 3 / 8)), QColor(Qt::blue));
  }
}

}  // namespace
}  // namespace kesto::test
