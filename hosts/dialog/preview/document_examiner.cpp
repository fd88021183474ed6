#include "hosts/dialog/preview/document_examiner.h"

#include <QtCore/QFile>

#include "platform/shown_text.h"

namespace kesto {
namespace {

int pageCountOf(const QByteArray& info) {
  for (const QByteArray& line : info.split('\n')) {
    if (line.startsWith("Pages:")) return line.mid(6).trimmed().toInt();
  }
  return 0;
}

}  // namespace

bool isPdfFile(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) && file.read(1024).contains("%PDF-");
}

DocumentExaminer::DocumentExaminer() {
  connect(&m_info, &PageProgram::ended, this, &DocumentExaminer::takeInfo);
}

void DocumentExaminer::examine(std::vector<JobFile> files) {
  m_info.stop();
  m_files = std::move(files);
  m_next = 0;
  m_pageCount = 0;
  m_fault.clear();
  QMetaObject::invokeMethod(this, &DocumentExaminer::examineNext, Qt::QueuedConnection);
}

void DocumentExaminer::examineNext() {
  for (; !isDone(); ++m_next) {
    const QString path = QFile::decodeName(m_files[m_next].path);
    if (isPdfFile(path)) return m_info.start(QStringLiteral("pdfinfo"), {QStringLiteral("/dev/stdin")}, path);
    QFile file(path);
    if (file.open(QIODevice::ReadOnly) && file.size() == 0)
      addFault(tr("The document has no pages. There is nothing to print."));
  }
  Q_EMIT examined();
}

// What the program cannot read, damaged as it may be, the printer perhaps can.
void DocumentExaminer::takeInfo(PageProgram::End end) {
  if (end == PageProgram::End::Failed && m_info.errors().contains("Incorrect password")) {
    addFault(
        tr("The document is protected by a password and cannot be printed. Save a copy without the password "
           "and print that."));
  }
  // A file of no pages is an error to the program, which asks for the first one.
  if (m_info.errors().contains("the last page (0)"))
    addFault(tr("The document has no pages. There is nothing to print."));
  if (m_next == 0) {
    m_pageCount = pageCountOf(m_info.output());
    Q_EMIT counted();
  }
  ++m_next;
  examineNext();
}

void DocumentExaminer::addFault(const QString& fault) {
  if (!m_fault.isNull()) return;
  const QString& name = m_files[m_next].name;
  m_fault = m_files.size() < 2 ? fault : tr("%1: %2").arg(shownText(name), fault);
}

}  // namespace kesto
