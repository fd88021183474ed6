#include "hosts/dialog/preview/page_images.h"

#include <algorithm>

#include "hosts/dialog/preview/document_examiner.h"

namespace kesto {
namespace {

constexpr qsizetype mostKept = 48 << 20;  // bytes, beside what is asked for

}  // namespace

PageImages::PageImages() {
  connect(&m_program, &PageProgram::ended, this, &PageImages::take);
}

void PageImages::setFiles(const QStringList& files) {
  m_program.stop();
  m_asked.clear();
  m_wanted.clear();
  m_drawings.clear();
  m_files.clear();
  for (const QString& path : files)
    m_files.append({path, isPdfFile(path)});
  m_faults.clear();
}

const PageImages::Drawing* PageImages::find(const PageNumber& number) const {
  const auto found =
      std::ranges::find(m_drawings, number, [](const Drawing& each) { return each.page.number; });
  return found == m_drawings.end() ? nullptr : &*found;
}

QImage PageImages::image(const PageNumber& number) const {
  const Drawing* drawing = find(number);
  return drawing == nullptr ? QImage() : drawing->image;
}

bool PageImages::isThere(const WantedPage& page) const {
  const Drawing* drawing = find(page.number);
  return !fault(page.number).isNull() || (drawing != nullptr && drawing->page == page);
}

bool PageImages::areThere(const QList<WantedPage>& pages) const {
  return std::ranges::all_of(pages, [this](const WantedPage& page) { return isThere(page); });
}

void PageImages::draw(const QList<WantedPage>& pages) {
  m_asked = pages;
  QList<WantedPage> missing = pages;
  missing.removeIf([this](const WantedPage& page) { return isThere(page); });
  const bool isDrawing = !m_wanted.isEmpty() && !missing.isEmpty() && m_wanted.front() == missing.front();
  m_wanted = missing;
  if (isDrawing) return;
  m_program.stop();
  drawNext();
}

void PageImages::drawNext() {
  if (m_wanted.isEmpty()) return;
  const WantedPage& wanted = m_wanted.front();
  const File& file = m_files.at(wanted.number.first);
  const QString pixels = QString::number(wanted.pixels);
  if (!file.isPdf) return m_program.start(imageProgram(), {pixels}, file.path);
  const QString page = QString::number(wanted.number.second + 1);
  m_program.start(QStringLiteral("pdftoppm"),
                  {QStringLiteral("-png"), QStringLiteral("-cropbox"), QStringLiteral("-singlefile"),
                   QStringLiteral("-f"), page, QStringLiteral("-l"), page, QStringLiteral("-scale-to"),
                   pixels, QStringLiteral("/dev/stdin")},
                  file.path);
}

void PageImages::take(PageProgram::End end) {
  const WantedPage wanted = m_wanted.takeFirst();
  const QImage image = QImage::fromData(m_program.output(), "PNG");
  if (image.isNull()) {
    m_faults.insert(wanted.number, faultOf(end, m_files.at(wanted.number.first).isPdf));
  } else {
    m_drawings.removeIf([&](const Drawing& each) { return each.page.number == wanted.number; });
    m_drawings.append({wanted, image});
    dropOld();
  }
  drawNext();
  Q_EMIT drawn();
}

void PageImages::dropOld() {
  qsizetype size = 0;
  for (const Drawing& each : m_drawings)
    if (!m_asked.contains(each.page)) size += each.image.sizeInBytes();
  const auto isOld = [&](const Drawing& each) {
    if (size <= mostKept || m_asked.contains(each.page)) return false;
    size -= each.image.sizeInBytes();
    return true;
  };
  m_drawings.removeIf(isOld);
}

QString PageImages::faultOf(PageProgram::End end, bool isPdf) const {
  if (end == PageProgram::End::Late)
    return tr("No preview is available because drawing the page takes too long.");
  if (!isPdf) return tr("No preview is available for this type of document.");
  if (end == PageProgram::End::Missing)
    return tr("No preview is available. Install poppler-utils to see one.");
  return tr("No preview is available because this PDF document cannot be read.");
}

}  // namespace kesto
