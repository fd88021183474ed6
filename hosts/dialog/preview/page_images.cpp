#include "hosts/dialog/preview/page_images.h"

#include <algorithm>

namespace kesto {
namespace {

// In a form that is painted fast.
QImage read(const QByteArray& bytes) {
  const QImage image = QImage::fromData(bytes);
  return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                       : QImage::Format_RGB32);
}

// The arguments of pdftoppm for a part of a page: its crop box, or another box around which it is cut out.
QStringList partOf(const ExaminedFile& file, const WantedPage& page) {
  const QString crop = QStringLiteral("-cropbox");
  const QString scale = QStringLiteral("-scale-to");
  const PageCut cut = file.cuts.value(page.number.second);
  if (cut.part.isEmpty()) return {crop, scale, QString::number(page.pixels)};
  const double perPoint = page.pixels / std::max(cut.part.width(), cut.part.height());
  const auto pixels = [&](double points) { return QString::number(qRound(points * perPoint)); };
  return {scale,
          pixels(std::max(cut.whole.width(), cut.whole.height())),
          QStringLiteral("-x"),
          pixels(cut.part.x()),
          QStringLiteral("-y"),
          pixels(cut.part.y()),
          QStringLiteral("-W"),
          pixels(cut.part.width()),
          QStringLiteral("-H"),
          pixels(cut.part.height())};
}

}  // namespace

PageImages::PageImages() {
  m_reader.setMaxThreadCount(1);
  connect(&m_program, &PageProgram::ended, this, &PageImages::take);
}

PageImages::~PageImages() {
  m_reader.waitForDone();
}

void PageImages::clear() {
  ++m_generation;
  m_program.stop();
  m_asked.clear();
  m_wanted.clear();
  m_reading.clear();
  m_drawings.clear();
  m_files.clear();
  m_faults.clear();
}

void PageImages::setFiles(const QList<ExaminedFile>& files) {
  const auto isSame = [&](qsizetype file) {
    return file < m_files.size() && m_files[file].path == files[file].path &&
           m_files[file].cuts == files[file].cuts && m_files[file].converted == files[file].converted;
  };
  bool areSame = true;
  for (qsizetype file = 0; file < files.size(); ++file)
    areSame = areSame && isSame(file);
  if (!areSame) clear();
  m_files = files;
}

const PageImages::Drawing* PageImages::find(const PageNumber& number) const {
  const auto found =
      std::ranges::find(m_drawings, number, [](const Drawing& each) { return each.page.number; });
  return found == m_drawings.end() ? nullptr : &*found;
}

QImage PageImages::image(const PageNumber& number, bool isGray) const {
  const Drawing* drawing = find(number);
  if (drawing == nullptr) return {};
  if (!isGray) return drawing->image;
  if (drawing->gray.isNull()) drawing->gray = drawing->image.convertToFormat(QImage::Format_Grayscale8);
  return drawing->gray;
}

// What is found out about the file later says more.
QString PageImages::fault(const PageNumber& number) const {
  const QString fault = m_faults.value(number);
  const QString note = m_files.value(number.first).note;
  return fault.isNull() || note.isNull() ? fault : note;
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
  missing.removeIf([this](const WantedPage& page) { return isThere(page) || m_reading.contains(page); });
  const bool isDrawing = !m_wanted.isEmpty() && !missing.isEmpty() && m_wanted.front() == missing.front();
  m_wanted = missing;
  if (isDrawing) return;
  m_program.stop();
  drawNext();
}

PageProgram::Work PageImages::workOf(const WantedPage& page) const {
  const ExaminedFile& file = m_files.at(page.number.first);
  if (file.kind != ExaminedFile::Kind::Pdf)
    return {.program = imageProgram(), .arguments = {QString::number(page.pixels)}, .input = file.path};
  const QString number = QString::number(page.number.second + 1);
  return {.program = QStringLiteral("pdftoppm"),
          .arguments = QStringList{QStringLiteral("-singlefile"), QStringLiteral("-f"), number,
                                   QStringLiteral("-l"), number} +
                       partOf(file, page) + QStringList{QStringLiteral("/dev/stdin")},
          .input = file.path};
}

void PageImages::drawNext() {
  if (!m_wanted.isEmpty()) m_program.start(workOf(m_wanted.front()));
}

void PageImages::take(PageProgram::End end) {
  const WantedPage page = m_wanted.takeFirst();
  m_reading.append(page);
  m_reader.start([this, page, end, bytes = m_program.output(), generation = m_generation] {
    const QImage image = read(bytes);
    QMetaObject::invokeMethod(
        this,
        [this, page, end, image, generation] {
          if (generation == m_generation) keep(page, image, end);
        },
        Qt::QueuedConnection);
  });
  drawNext();
}

void PageImages::keep(const WantedPage& page, const QImage& image, PageProgram::End end) {
  m_reading.removeOne(page);
  if (image.isNull()) {
    m_faults.insert(page.number, faultOf(end, m_files.at(page.number.first)));
  } else {
    m_drawings.removeIf([&](const Drawing& each) { return each.page.number == page.number; });
    m_drawings.append({.page = page, .image = image, .gray = {}});
    dropOld();
  }
  Q_EMIT drawn();
}

void PageImages::dropOld() {
  const auto sizeOf = [](const Drawing& each) { return each.image.sizeInBytes() + each.gray.sizeInBytes(); };
  qsizetype size = 0;
  for (const Drawing& each : m_drawings)
    if (!m_asked.contains(each.page)) size += sizeOf(each);
  const auto isOld = [&](const Drawing& each) {
    if (size <= mostKept || m_asked.contains(each.page)) return false;
    size -= sizeOf(each);
    return true;
  };
  m_drawings.removeIf(isOld);
}

QString PageImages::faultOf(PageProgram::End end, const ExaminedFile& file) const {
  if (end == PageProgram::End::Late)
    return tr("No preview is available because drawing the page takes too long.");
  if (file.kind != ExaminedFile::Kind::Pdf) return tr("No preview is available for this type of document.");
  if (end == PageProgram::End::Missing)
    return tr("No preview is available. Install poppler-utils to see one.");
  return tr("No preview is available because this PDF document cannot be read.");
}

}  // namespace kesto
