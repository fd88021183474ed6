#include "hosts/dialog/preview/preview.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtGui/QPainter>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace kesto {
namespace {

constexpr int redrawDelay = 150;   // ms of rest after a change of size
constexpr int largestPage = 4000;  // pixels

// The program that draws images lies beside ours, in a build as in an installation.
QString imageProgram() {
  return QCoreApplication::applicationDirPath() + QStringLiteral("/../libexec/kesto/kesto-draw-image");
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
  connect(&m_program, &PageProgram::ended, this, &Preview::takePage);
  connect(&m_examiner, &DocumentExaminer::counted, this, &Preview::updateButtons);
  connect(&m_examiner, &DocumentExaminer::examined, this, [this] {
    if (!m_reason.isNull()) settle({}, m_reason);
    Q_EMIT examined();
  });
  connect(m_back, &QToolButton::clicked, this, [this] { showPage(m_page - 1); });
  connect(m_forward, &QToolButton::clicked, this, [this] { showPage(m_page + 1); });
  updateButtons();
}

QSize Preview::sizeHint() const {
  return {fontMetrics().horizontalAdvance(u'0') * 40, fontMetrics().height() * 26};
}

void Preview::show(const std::vector<JobFile>& files, const QString& text) {
  m_program.stop();
  m_path = files.empty() ? QString() : QFile::decodeName(files.front().path);
  m_page = 1;
  m_isPdf = !files.empty() && isPdfFile(m_path);
  m_isDrawn = false;
  m_isSettled = false;
  m_reason = QString();
  m_examiner.examine(files);
  updateButtons();
  if (files.empty()) return settle({}, text);
  m_sheet->show({}, {});
  drawPage();
}

int Preview::pages() const {
  return m_isPdf ? m_examiner.pageCount() : m_isDrawn ? 1 : 0;
}

void Preview::drawPage() {
  if (m_path.isNull()) return;
  const int wanted = qRound(qMax(m_sheet->width(), m_sheet->height()) * devicePixelRatioF());
  const QString pixels = QString::number(qBound(64, wanted, largestPage));
  if (!m_isPdf) return m_program.start(imageProgram(), {pixels}, m_path);
  const QString page = QString::number(m_page);
  m_program.start(
      QStringLiteral("pdftoppm"),
      {QStringLiteral("-png"), QStringLiteral("-singlefile"), QStringLiteral("-f"), page,
       QStringLiteral("-l"), page, QStringLiteral("-scale-to"), pixels, QStringLiteral("/dev/stdin")},
      m_path);
}

void Preview::takePage(PageProgram::End end) {
  const QImage image = QImage::fromData(m_program.output(), "PNG");
  m_isDrawn = !image.isNull();
  updateButtons();
  if (m_isDrawn) return settle(image, {});
  m_reason = tr("There is no preview of this kind of document.");
  if (m_isPdf) m_reason = tr("There is no preview: the document cannot be read as PDF.");
  if (m_isPdf && end == PageProgram::End::Missing)
    m_reason = tr("There is no preview: the program pdftoppm of poppler-utils is missing.");
  if (end == PageProgram::End::Late) m_reason = tr("There is no preview: drawing the page takes too long.");
  if (isExamined()) settle({}, m_reason);
}

void Preview::settle(const QImage& image, const QString& text) {
  m_sheet->show(image, fault().isNull() ? text : fault());
  m_reason = QString();
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
  m_forward->setEnabled(m_page < pages());
  m_position->setText(pages() > 0 ? tr("Page %1 of %2").arg(m_page).arg(pages()) : QString());
}

void Preview::resizeEvent(QResizeEvent* /*event*/) {
  if (m_path.isNull()) return;
  m_isSettled = false;
  m_redraw.start(redrawDelay);
}

}  // namespace kesto
