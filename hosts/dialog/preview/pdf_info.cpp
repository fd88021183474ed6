#include "hosts/dialog/preview/pdf_info.h"

#include <array>
#include <limits>

namespace kesto {
namespace {

// What follows a name in "Page    2 rot:   90": the numbers, at most four.
std::array<double, 4> numbersIn(QByteArrayView text) {
  std::array<double, 4> numbers{};
  const QList<QByteArray> words = text.toByteArray().simplified().split(' ');
  std::size_t count = 0;
  for (const QByteArray& word : words) {
    bool isNumber = false;
    const double number = word.toDouble(&isNumber);
    if (isNumber && count < numbers.size()) numbers.at(count++) = number;
  }
  return numbers;
}

// "  0.00     0.00   595.00   842.00": left, bottom, right and top.
QRectF boxIn(QByteArrayView text) {
  const auto [left, bottom, right, top] = numbersIn(text);
  return QRectF(QPointF(left, bottom), QPointF(right, top)).normalized();
}

// Where a box of a page is in the media box of the page as one looks at it, turned clockwise.
PageCut cutOf(const QRectF& media, const QRectF& box, int degrees) {
  PageCut cut{.whole = media.size(),
              .part = {{box.left() - media.left(), media.bottom() - box.bottom()}, box.size()}};
  for (int turns = ((degrees / 90) % 4 + 4) % 4; turns > 0; --turns) {
    cut.part = {cut.whole.height() - cut.part.bottom(), cut.part.left(), cut.part.height(), cut.part.width()};
    cut.whole.transpose();
  }
  return cut;
}

// Takes the lines of the pages: the sizes and turns of all, then the boxes of all.
class InfoReader {
 public:
  explicit InfoReader(ExaminedFile* file) : m_file(*file) {}

  void takeLine(QByteArrayView line);

 private:
  struct Page {
    int rotation = 0;
    QByteArrayView media;
    QByteArrayView crop;
  };

  void takeTrim(qsizetype number, QByteArrayView trim);

  ExaminedFile& m_file;
  QList<Page> m_pages;
};

// "Page    2 size:  595.28 x 841.89 pts (A4)". Lines about the first page alone, "Page size:", have no
// number.
void InfoReader::takeLine(QByteArrayView line) {
  const qsizetype colon = line.indexOf(':');
  if (!line.startsWith("Page ") || colon < 0) return;
  const qsizetype space = line.first(colon).lastIndexOf(' ');
  const QByteArrayView name = line.sliced(space + 1, colon - space - 1);
  const QByteArrayView rest = line.sliced(colon + 1);
  const qsizetype page = line.first(space).sliced(4).trimmed().toInt() - 1;
  if (name == "size" && page == m_pages.size()) {
    const auto numbers = numbersIn(rest);
    m_file.pages.append(QSizeF(numbers[0], numbers[1]).expandedTo({1, 1}));
    m_pages.append(Page{});
  }
  if (page < 0 || page >= m_pages.size()) return;
  if (name == "rot") {
    m_pages[page].rotation = static_cast<int>(numbersIn(rest)[0]);
    if (m_pages[page].rotation % 180 != 0) m_file.pages[page].transpose();
  }
  if (name == "MediaBox") m_pages[page].media = rest;
  if (name == "CropBox") m_pages[page].crop = rest;
  if (name == "TrimBox") takeTrim(page, rest);
}

// The print system prints the trim box, which is the crop box unless a page says otherwise.
void InfoReader::takeTrim(qsizetype number, QByteArrayView trim) {
  const Page& page = m_pages[number];
  if (trim == page.crop) return;
  const QRectF media = boxIn(page.media);
  const QRectF box = boxIn(trim) & media;
  if (box.isEmpty()) return;
  m_file.cuts.resize(m_file.pages.size());
  m_file.cuts[number] = cutOf(media, box, page.rotation);
  m_file.pages[number] = m_file.cuts[number].part.size().expandedTo({1, 1});
}

}  // namespace

QStringList pdfInfoArguments() {
  return {QStringLiteral("-box"),
          QStringLiteral("-f"),
          QStringLiteral("1"),
          QStringLiteral("-l"),
          QString::number(std::numeric_limits<int>::max()),
          QStringLiteral("/dev/stdin")};
}

void takePdfInfo(const QByteArray& info, ExaminedFile* file) {
  InfoReader reader(file);
  for (qsizetype at = 0; at < info.size();) {
    const qsizetype end = info.indexOf('\n', at);
    reader.takeLine(QByteArrayView(info).sliced(at, (end < 0 ? info.size() : end) - at));
    at = end < 0 ? info.size() : end + 1;
  }
}

}  // namespace kesto
