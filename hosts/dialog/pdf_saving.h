// "Save as PDF" in place of a printer.
#pragma once

#include <memory>

#include "hosts/dialog/preview/page_images.h"

class QSaveFile;

namespace kesto {

/// Writes pages of PDF files into a new one with the program qpdf. The file appears whole or not at all;
/// until then one of the same name stays as it is.
class PdfSaving : public QObject {
  Q_OBJECT

 public:
  PdfSaving();
  ~PdfSaving() override;

  /// `saved` or `failed` follows, from the event loop.
  void save(const PageSequence& pages, const QString& target);
  /// Gives up, unless the file is written already; then `failed` follows.
  void stop();

 Q_SIGNALS:
  void saved();
  void failed(const QString& reason);

 private:
  void takeEnd(PageProgram::End end);
  void commit();
  void fail(const QString& reason);

  std::unique_ptr<QSaveFile> m_target;
  PageProgram m_program{std::chrono::minutes(5)};
  QThreadPool m_writer;
};

}  // namespace kesto
