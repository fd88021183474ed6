// What is known of a document before it is printed.
#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <memory>
#include <vector>

#include "hosts/cups/print_job.h"
#include "hosts/dialog/preview/document_conversion.h"
#include "platform/descriptor.h"

namespace kesto {

/// The part of a page that is printed, where that is not the page's crop box; lengths in points.
struct PageCut {
  QSizeF whole;  ///< The page's media box, as one looks at it.
  QRectF part;   ///< In it, from its upper left corner; empty where nothing is cut.

  bool operator==(const PageCut&) const = default;
};

/// A file of a document.
struct ExaminedFile {
  enum class Kind { Other, Image, Pdf };

  Kind kind = Kind::Other;
  QString path = {};         ///< What the pages are drawn from.
  QList<QSizeF> pages = {};  ///< Their sizes in points; of an image, its own. None where they are not known.
  QList<PageCut> cuts = {};  ///< One for each page, or none when no page is cut.
  QString note = {};         ///< What there is to say of it though it may be printed; null for nothing.
  bool isLocked = false;     ///< A password is needed.
  std::shared_ptr<const Descriptor> converted = {};  ///< The file at `path`, where it is not the document's.
};

/// Looks at the files of a document, one after the other: counts and measures the pages of PDF files and
/// images, has others converted by the print system, and finds what cannot be printed.
class DocumentExaminer : public QObject {
  Q_OBJECT

 public:
  DocumentExaminer();

  /// Begins anew. `examined` follows, from the event loop.
  void examine(std::vector<JobFile> files);
  /// How documents are laid out that have to be converted. Begins anew where that has been done otherwise.
  void setLayout(const ConversionLayout& layout);
  bool isDone() const { return m_next >= m_files.size(); }

  /// Those that have been looked at.
  const QList<ExaminedFile>& files() const { return m_examined; }
  const QString& nameOf(int file) const { return m_files.at(static_cast<std::size_t>(file)).name; }
  /// Of the first file, when it is a PDF; 0 while it is not known, and where there is none to know.
  int pageCount() const;
  /// A sentence on the first file that cannot be printed; null while none is found.
  const QString& fault() const { return m_fault; }

 Q_SIGNALS:
  void examined();

 private:
  void examineNext();
  void goOn();
  void takeEnd(PageProgram::End end);
  void takeImage();
  void takePdf(PageProgram::End end);
  void convert();
  void takeConverted(PageProgram::End end);
  void readInfo();
  void addFault(const QString& fault);

  ConversionLayout m_layout{{}, {}};
  std::vector<JobFile> m_files;
  std::size_t m_next = 0;
  QList<ExaminedFile> m_examined;
  QString m_fault;
  Descriptor m_ppd;
  std::shared_ptr<const Descriptor> m_converted;  // being written
  PageProgram m_program;
};

/// Whether a file begins as a PDF file does.
bool isPdfFile(const QString& path);

/// Whether it also ends as one, which qpdf does not check of the files that it writes.
bool isWholePdfFile(const QString& path);

/// The program that draws images.
QString imageProgram();

}  // namespace kesto
