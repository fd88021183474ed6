#include "hosts/dialog/preview/document_examiner.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtGui/QImage>
#include <limits>

#include "platform/shown_text.h"

namespace kesto {
namespace {

// "Page    2 size:  595.28 x 841.89 pts (A4)" and "Page    2 rot:   90", page by page.
QList<QSizeF> pagesOf(const QByteArray& info) {
  static const QRegularExpression form(
      QStringLiteral(R"(^Page +\d+ (?:size: +([\d.]+) x ([\d.]+) pts|rot: +(\d+)))"),
      QRegularExpression::MultilineOption);
  QList<QSizeF> pages;
  for (auto matches = form.globalMatch(QString::fromLatin1(info)); matches.hasNext();) {
    const QStringList texts = matches.next().capturedTexts();
    if (texts.size() == 3) pages.emplaceBack(texts[1].toDouble(), texts[2].toDouble());
    if (texts.size() == 4 && !pages.isEmpty() && texts[3].toInt() % 180 != 0) pages.back().transpose();
  }
  for (QSizeF& page : pages)
    page = page.expandedTo({1, 1});
  return pages;
}

}  // namespace

bool isPdfFile(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) && file.read(1024).contains("%PDF-");
}

// It lies beside ours, in a build as in an installation.
QString imageProgram() {
  return QCoreApplication::applicationDirPath() + QStringLiteral("/../libexec/kesto/kesto-draw-image");
}

DocumentExaminer::DocumentExaminer() {
  connect(&m_info, &PageProgram::ended, this, &DocumentExaminer::takeInfo);
}

void DocumentExaminer::examine(std::vector<JobFile> files) {
  m_info.stop();
  m_files = std::move(files);
  m_next = 0;
  m_examined.clear();
  m_fault.clear();
  QMetaObject::invokeMethod(this, &DocumentExaminer::examineNext, Qt::QueuedConnection);
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
  const QString path = QFile::decodeName(m_files[m_next].path);
  if (isPdfFile(path)) {
    m_examined.back().kind = ExaminedFile::Kind::Pdf;
    static const QStringList allPages{QStringLiteral("-f"), QStringLiteral("1"), QStringLiteral("-l"),
                                      QString::number(std::numeric_limits<int>::max()),
                                      QStringLiteral("/dev/stdin")};
    return m_info.start(QStringLiteral("pdfinfo"), allPages, path);
  }
  QFile file(path);
  if (file.open(QIODevice::ReadOnly) && file.size() == 0)
    addFault(tr("The document has no pages. There is nothing to print."));
  constexpr int smallest = 16;  // pixels
  m_info.start(imageProgram(), {QString::number(smallest)}, path);
}

void DocumentExaminer::takeInfo(PageProgram::End end) {
  if (m_examined.back().kind == ExaminedFile::Kind::Pdf) {
    takePdf(end);
  } else if (const QImage image = QImage::fromData(m_info.output(), "PNG"); !image.isNull()) {
    const QStringList size = image.text(QStringLiteral("points")).split(u' ');
    m_examined.back() = {.kind = ExaminedFile::Kind::Image,
                         .pages = {QSizeF(size.value(0).toDouble(), size.value(1).toDouble())}};
  }
  ++m_next;
  examineNext();
}

// What the program cannot read, damaged as it may be, the printer perhaps can.
void DocumentExaminer::takePdf(PageProgram::End end) {
  if (end == PageProgram::End::Failed && m_info.errors().contains("Incorrect password")) {
    addFault(
        tr("The document is protected by a password and cannot be printed. Save a copy without the password "
           "and print that."));
  }
  // A file of no pages is an error to the program, which asks for the first one.
  if (m_info.errors().contains("the last page (0)"))
    addFault(tr("The document has no pages. There is nothing to print."));
  m_examined.back().pages = pagesOf(m_info.output());
}

void DocumentExaminer::addFault(const QString& fault) {
  if (!m_fault.isNull()) return;
  const QString& name = m_files[m_next].name;
  m_fault = m_files.size() < 2 ? fault : tr("%1: %2").arg(shownText(name), fault);
}

}  // namespace kesto
