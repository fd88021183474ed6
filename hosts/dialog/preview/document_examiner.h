// What is known of a document before it is printed.
#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QSizeF>
#include <vector>

#include "hosts/cups/print_job.h"
#include "hosts/dialog/preview/page_program.h"

namespace kesto {

/// A file of a document.
struct ExaminedFile {
  enum class Kind { Other, Image, Pdf };

  Kind kind = Kind::Other;
  QList<QSizeF> pages;  ///< Their sizes in points; of an image, its own. None where they are not known.
};

/// Looks at the files of a document, one after the other: counts and measures the pages of PDF files and
/// images, and finds what cannot be printed.
class DocumentExaminer : public QObject {
  Q_OBJECT

 public:
  DocumentExaminer();

  /// Begins anew. `examined` follows, from the event loop.
  void examine(std::vector<JobFile> files);
  bool isDone() const { return m_next >= m_files.size(); }

  /// Those that have been looked at.
  const QList<ExaminedFile>& files() const { return m_examined; }
  /// Of the first file, when it is a PDF; 0 while it is not known, and where there is none to know.
  int pageCount() const;
  /// A sentence on the first file that cannot be printed; null while none is found.
  const QString& fault() const { return m_fault; }

 Q_SIGNALS:
  void examined();

 private:
  void examineNext();
  void takeInfo(PageProgram::End end);
  void takePdf(PageProgram::End end);
  void addFault(const QString& fault);

  std::vector<JobFile> m_files;
  std::size_t m_next = 0;
  QList<ExaminedFile> m_examined;
  QString m_fault;
  PageProgram m_info;
};

/// Whether a file begins as a PDF file does.
bool isPdfFile(const QString& path);

/// The program that draws images.
QString imageProgram();

}  // namespace kesto
