#include "hosts/dialog/preview/preview.h"

#include <QtCore/QFile>
#include <QtGui/QImageReader>
#include <QtGui/QPainter>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace kesto {
namespace {

constexpr int redrawDelay = 150;  // ms of rest after a change of size
constexpr int largestImage = 4000;

bool isPdfFile(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) && file.read(1024).contains("%PDF-");
}

QImage readImage(const QString& path) {
  QImageReader reader(path);
  reader.setAutoTransform(true);
  const QSize size = reader.size();
  const bool isLarge = size.width() > largestImage || size.height() > largestImage;
  // Images of two colours lose these when they are read smaller.
  if (isLarge && reader.imageFormat() != QImage::Format_Mono)
    reader.setScaledSize(size.scaled(largestImage, largestImage, Qt::KeepAspectRatio));
  return reader.read();
}

// Ends a program of which nothing is wanted any more, with all that it still had to say.
void drop(std::unique_ptr<QProcess>* process) {
  if (!*process) return;
  (*process)->disconnect();
  (*process)->kill();
  (*process)->waitForFinished();
  process->reset();
}

}  // namespace

// The page on its background, or a text in its place.
class Preview::Sheet : public QWidget {
 public:
  using QWidget::QWidget;

  void show(const QImage& image, const QString& text) {
    m_image = image;
    m_text = text;
    setAccessibleName(image.isNull() ? text : Preview::tr("Preview of the page"));
    update();
  }

  /// The area of a page of that shape.
  QRect area(const QSize& page) const {
    constexpr int margin = 8;
    const QSize room = size() - QSize(2 * margin, 2 * margin);
    QRect area({}, page.scaled(room, Qt::KeepAspectRatio));
    area.moveCenter(rect().center());
    return area;
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Mid));
    if (m_image.isNull()) {
      painter.setPen(palette().color(QPalette::WindowText));
      painter.drawText(rect().adjusted(12, 12, -12, -12), Qt::AlignCenter | Qt::TextWordWrap, m_text);
      return;
    }
    const QRect place = area(m_image.size());
    painter.fillRect(place.translated(3, 3), QColor(0, 0, 0, 60));
    painter.fillRect(place, Qt::white);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, m_image);
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawRect(place.adjusted(0, 0, -1, -1));
  }

 private:
  QImage m_image;
  QString m_text;
};

Preview::Preview(QWidget* parent)
    : QWidget(parent),
      m_sheet(new Sheet(this)),
      m_back(new QToolButton(this)),
      m_forward(new QToolButton(this)),
      m_position(new QLabel(this)) {
  m_back->setArrowType(Qt::LeftArrow);
  m_back->setAccessibleName(tr("Previous page"));
  m_back->setToolTip(m_back->accessibleName());
  m_forward->setArrowType(Qt::RightArrow);
  m_forward->setAccessibleName(tr("Next page"));
  m_forward->setToolTip(m_forward->accessibleName());
  m_position->setAlignment(Qt::AlignCenter);
  auto* row = new QHBoxLayout;
  row->addWidget(m_back);
  row->addWidget(m_position, 1);
  row->addWidget(m_forward);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  m_sheet->setMinimumSize(fontMetrics().horizontalAdvance(u'0') * 24, fontMetrics().height() * 12);
  column->addWidget(m_sheet, 1);
  column->addLayout(row);
  m_redraw.setSingleShot(true);
  connect(&m_redraw, &QTimer::timeout, this, &Preview::drawPage);
  connect(m_back, &QToolButton::clicked, this, [this] { showPage(m_page - 1); });
  connect(m_forward, &QToolButton::clicked, this, [this] { showPage(m_page + 1); });
  updateButtons();
}

Preview::~Preview() {
  drop(&m_counting);
  drop(&m_drawing);
}

QSize Preview::sizeHint() const {
  return {fontMetrics().horizontalAdvance(u'0') * 40, fontMetrics().height() * 26};
}

void Preview::show(const QString& path, const QString& text) {
  drop(&m_counting);
  drop(&m_drawing);
  m_path = path;
  m_page = 1;
  m_pageCount = 0;
  m_isPdf = !path.isNull() && isPdfFile(path);
  m_isSettled = false;
  ++m_request;
  updateButtons();
  if (path.isNull()) return settle({}, text);
  m_sheet->show({}, {});
  if (!m_isPdf) return readAsImage();
  countPages();
  drawPage();
}

// A large image takes a while.
void Preview::readAsImage() {
  m_reader.post([this, path = m_path, request = m_request] {
    const QImage image = readImage(path);
    answer(this, [this, image, request] {
      if (request != m_request) return;
      m_pageCount = image.isNull() ? 0 : 1;
      updateButtons();
      settle(image, tr("There is no preview of this kind of document."));
    });
  });
}

void Preview::countPages() {
  m_counting = std::make_unique<QProcess>();
  connect(m_counting.get(), &QProcess::finished, this, [this] {
    for (const QByteArray& line : m_counting->readAllStandardOutput().split('\n')) {
      if (line.startsWith("Pages:")) m_pageCount = line.mid(6).trimmed().toInt();
    }
    updateButtons();
  });
  m_counting->start(QStringLiteral("pdfinfo"), {m_path});
}

void Preview::drawPage() {
  if (!m_isPdf) return;
  drop(&m_drawing);
  m_drawing = std::make_unique<QProcess>();
  connect(m_drawing.get(), &QProcess::finished, this, &Preview::takePage);
  connect(m_drawing.get(), &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart)
      settle({}, tr("There is no preview: the program pdftoppm of poppler-utils is missing."));
  });
  // In some languages the page's own fonts would be replaced by ones without its letters.
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
  m_drawing->setProcessEnvironment(environment);
  const QString page = QString::number(m_page);
  const int pixels = qRound(qMax(m_sheet->width(), m_sheet->height()) * devicePixelRatioF());
  m_drawing->start(QStringLiteral("pdftoppm"),
                   {QStringLiteral("-png"), QStringLiteral("-singlefile"), QStringLiteral("-f"), page,
                    QStringLiteral("-l"), page, QStringLiteral("-scale-to"),
                    QString::number(qBound(64, pixels, largestImage)), m_path});
}

void Preview::takePage() {
  const QImage image = QImage::fromData(m_drawing->readAllStandardOutput(), "PNG");
  settle(image, tr("There is no preview: the document cannot be read as PDF."));
}

void Preview::settle(const QImage& image, const QString& text) {
  m_sheet->show(image, text);
  m_isSettled = !m_redraw.isActive();
  if (m_isSettled) Q_EMIT shown();
}

void Preview::showPage(int page) {
  m_page = page;
  m_isSettled = false;
  updateButtons();
  drawPage();
}

void Preview::updateButtons() {
  m_back->setEnabled(m_page > 1);
  m_forward->setEnabled(m_page < m_pageCount);
  m_position->setText(m_pageCount > 0 ? tr("Page %1 of %2").arg(m_page).arg(m_pageCount) : QString());
}

void Preview::resizeEvent(QResizeEvent* /*event*/) {
  if (!m_isPdf) return;
  m_isSettled = false;
  m_redraw.start(redrawDelay);
}

}  // namespace kesto
