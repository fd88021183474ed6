#include "hosts/dialog/preview/document_examiner.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtGui/QImage>
#include <algorithm>

#include "hosts/dialog/preview/pdf_info.h"
#include "hosts/session/private_copy.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

// A file with these bytes that no folder lists.
Descriptor privateFile(const QByteArray& bytes) {
  PrivateCopy copy;
  if (!copy.append(bytes.constData(), bytes.size())) return {};
  return copy.take();
}

QString nameOfFile(const Descriptor& file) {
  return QFile::decodeName(pathOf(file.get()));
}

}  // namespace

bool isPdfFile(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) && file.read(1024).contains("%PDF-");
}

bool isWholePdfFile(const QString& path) {
  constexpr qint64 length = 8;  // of the mark with line ends
  QFile file(path);
  return isPdfFile(path) && file.open(QIODevice::ReadOnly) && file.seek(file.size() - length) &&
         file.readAll().contains("%%EOF");
}

// It lies beside ours, in a build as in an installation.
QString imageProgram() {
  return QCoreApplication::applicationDirPath() + QStringLiteral("/" KESTO_LIBEXEC_DIR "/kesto-draw-image");
}

DocumentExaminer::DocumentExaminer() {
  connect(&m_program, &PageProgram::ended, this, &DocumentExaminer::takeEnd);
}

void DocumentExaminer::examine(std::vector<JobFile> files) {
  m_program.stop();
  m_files = std::move(files);
  m_next = 0;
  m_examined.clear();
  m_converted.reset();
  m_fault.clear();
  QMetaObject::invokeMethod(this, &DocumentExaminer::examineNext, Qt::QueuedConnection);
}

void DocumentExaminer::setLayout(const ConversionLayout& layout) {
  if (m_layout == layout) return;
  m_layout = layout;
  m_ppd.reset();
  const bool isConverted =
      m_converted != nullptr ||
      std::ranges::any_of(m_examined, [](const ExaminedFile& file) { return file.converted != nullptr; });
  if (isConverted) examine(std::move(m_files));
}

int DocumentExaminer::pageCount() const {
  const bool isPdf = !m_examined.isEmpty() && m_examined.front().kind == ExaminedFile::Kind::Pdf;
  return isPdf ? static_cast<int>(m_examined.front().pages.size()) : 0;
}

void DocumentExaminer::examineNext() {
  if (isDone()) {
    Q_EMIT examined();
    return;
  }
  // It may have begun already.
  m_examined.resize(static_cast<qsizetype>(m_next) + 1);
  ExaminedFile& file = m_examined.back();
  file = {.path = QFile::decodeName(m_files[m_next].path)};
  if (isPdfFile(file.path)) return readInfo();
  if (QFile content(file.path); content.open(QIODevice::ReadOnly) && content.size() == 0) {
    addFault(tr("The document has no pages. There is nothing to print."));
    return goOn();
  }
  constexpr int smallest = 16;  // pixels
  m_program.start({.program = imageProgram(), .arguments = {QString::number(smallest)}, .input = file.path});
}

void DocumentExaminer::goOn() {
  ++m_next;
  examineNext();
}

// Of the program that was started for what is known of the file so far.
void DocumentExaminer::takeEnd(PageProgram::End end) {
  if (m_examined.back().kind == ExaminedFile::Kind::Pdf) return takePdf(end);
  m_converted == nullptr ? takeImage() : takeConverted(end);
}

void DocumentExaminer::takeImage() {
  const QImage image = QImage::fromData(m_program.output(), "PNG");
  if (image.isNull()) return convert();
  const QStringList size = image.text(QStringLiteral("points")).split(u' ');
  m_examined.back().kind = ExaminedFile::Kind::Image;
  m_examined.back().pages = {QSizeF(size.value(0).toDouble(), size.value(1).toDouble())};
  goOn();
}

void DocumentExaminer::convert() {
  ExaminedFile& file = m_examined.back();
  if (!m_ppd) m_ppd = privateFile(m_layout.ppd);
  m_converted = std::make_shared<const Descriptor>(privateFile({}));
  PageProgram::Work work = conversionOf(file.path, nameOfFile(m_ppd), m_layout);
  work.output = nameOfFile(*m_converted);
  if (!work.program.isNull()) return m_program.start(work);
  file.note = tr("No preview is available. Install cups to see one.");
  m_converted.reset();
  goOn();
}

void DocumentExaminer::takeConverted(PageProgram::End end) {
  ExaminedFile& file = m_examined.back();
  std::shared_ptr<const Descriptor> converted = std::exchange(m_converted, nullptr);
  const QString path = nameOfFile(*converted);
  if (end == PageProgram::End::Done && isPdfFile(path)) {
    file.path = path;
    file.converted = std::move(converted);
    return readInfo();
  }
  file.note = end == PageProgram::End::Late
                  ? tr("No preview is available because converting the document takes too long.")
                  : tr("No preview is available for this type of document.");
  goOn();
}

void DocumentExaminer::readInfo() {
  m_examined.back().kind = ExaminedFile::Kind::Pdf;
  m_program.start({.program = QStringLiteral("pdfinfo"),
                   .arguments = pdfInfoArguments(),
                   .input = m_examined.back().path});
}

// What the program cannot read, damaged as it may be, the printer perhaps can.
void DocumentExaminer::takePdf(PageProgram::End end) {
  ExaminedFile& file = m_examined.back();
  const QByteArray& errors = m_program.errors();
  takePdfInfo(m_program.output(), &file);
  // A file of no pages is an error to the program, which asks for the first one.
  const bool isEmpty = errors.contains("the last page (0)");
  file.isLocked = end == PageProgram::End::Failed && errors.contains("Incorrect password");
  if (file.isLocked) addFault(tr("The document is protected by a password. Enter the password to print it."));
  if (isEmpty) addFault(tr("The document has no pages. There is nothing to print."));
  if (end == PageProgram::End::Failed && !file.isLocked && !isEmpty)
    file.note = tr("The document is damaged and cannot be shown. The printer may not be able to print it.");
  if (end == PageProgram::End::Done && errors.contains("Syntax Error"))
    file.note = tr("The document is damaged. Some of it may be missing.");
  goOn();
}

void DocumentExaminer::addFault(const QString& fault) {
  if (!m_fault.isNull()) return;
  const QString& name = m_files[m_next].name;
  m_fault = m_files.size() < 2 ? fault : tr("%1: %2").arg(shownText(name), fault);
}

}  // namespace kesto
