// The preview of a document's pages.
#pragma once

#include <QtCore/QProcess>
#include <QtCore/QTimer>
#include <QtGui/QImage>
#include <QtWidgets/QWidget>
#include <memory>

#include "hosts/cups/worker_thread.h"

class QLabel;
class QToolButton;

namespace kesto {

/// Shows one page of a PDF file or an image, and says so when there is none to show. The pages of a PDF are
/// drawn by poppler's own program, one page at a time, so that a damaged file harms nobody.
class Preview : public QWidget {
  Q_OBJECT

 public:
  explicit Preview(QWidget* parent);
  ~Preview() override;

  /// Shows the first page of a file; nothing with `text` in its place for a null path.
  void show(const QString& path, const QString& text = {});
  /// Whether what there is to show is shown.
  bool isSettled() const { return m_isSettled; }
  QSize sizeHint() const override;

 Q_SIGNALS:
  /// Another page or text is shown.
  void shown();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  class Sheet;

  void showPage(int page);
  void readAsImage();
  void countPages();
  void drawPage();
  void takePage();
  void settle(const QImage& image, const QString& text);
  void updateButtons();

  QString m_path;
  int m_page = 1;
  int m_pageCount = 0;  // 0 while it is not known
  int m_request = 0;
  bool m_isPdf = false;
  bool m_isSettled = true;
  Sheet* m_sheet;
  QToolButton* m_back;
  QToolButton* m_forward;
  QLabel* m_position;
  QTimer m_redraw;
  std::unique_ptr<QProcess> m_counting;
  std::unique_ptr<QProcess> m_drawing;
  WorkerThread m_reader;
};

}  // namespace kesto
