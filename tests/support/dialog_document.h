// A document of the dialog, in a folder of the test's own.
#pragma once

#include <fcntl.h>

#include "tests/support/dialog_printer.h"

namespace kesto::test {

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

}  // namespace kesto::test
