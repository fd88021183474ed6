// What is known of a document before it is printed.
#pragma once

#include <QtCore/QObject>
#include <vector>

#include "hosts/cups/print_job.h"
#include "hosts/dialog/preview/page_program.h"

namespace kesto {

/// Looks at the files of a document, one after the other: counts the pages of those that are PDF files, and
/// finds what cannot be printed.
class DocumentExaminer : public QObject {
  Q_OBJECT

 public:
  DocumentExaminer();

  /// Begins anew. `examined` follows, from the event loop.
  void examine(std::vector<JobFile> files);
  bool isDone() const { return m_next >= m_files.size(); }

  /// Of the first file; 0 while it is not known, and where there is none to know.
  int pageCount() const { return m_pageCount; }
  /// A sentence on the first file that cannot be printed; null while none is found.
  const QString& fault() const { return m_fault; }

 Q_SIGNALS:
  /// The number of pages of the first file is known.
  void counted();
  void examined();

 private:
  void examineNext();
  void takeInfo(PageProgram::End end);
  void addFault(const QString& fault);

  std::vector<JobFile> m_files;
  std::size_t m_next = 0;
  int m_pageCount = 0;
  QString m_fault;
  PageProgram m_info;
};

/// Whether a file begins as a PDF file does.
bool isPdfFile(const QString& path);

}  // namespace kesto
