// The preview of a document's pages.
#pragma once

#include <QtCore/QTimer>
#include <QtGui/QImage>
#include <QtWidgets/QWidget>

#include "hosts/dialog/preview/document_examiner.h"
#include "hosts/dialog/preview/page_program.h"

class QLabel;
class QToolButton;

namespace kesto {

/// Shows one page of a PDF file or an image, and says so when there is none to show. Pages are drawn by
/// programs of their own, one at a time, so that a hostile file harms nobody. What is found out about the
/// document on the way is known here as well.
class Preview : public QWidget {
  Q_OBJECT

 public:
  explicit Preview(QWidget* parent);

  /// Shows the first page of the first file; `text` in its place without files.
  void show(const std::vector<JobFile>& files, const QString& text = {});
  /// Whether what there is to show is shown.
  bool isSettled() const { return m_isSettled; }
  /// Whether all files have been looked at, for what the next two answer.
  bool isExamined() const { return m_examiner.isDone(); }
  /// The number of pages of the first file where it is a PDF; 0 while it is not known, and for others.
  int pageCount() const { return m_examiner.pageCount(); }
  /// Why the document cannot be printed, in a sentence; null when nothing is known against it.
  const QString& fault() const { return m_examiner.fault(); }
  QSize sizeHint() const override;

 Q_SIGNALS:
  /// Another page or text is shown.
  void shown();
  /// All files have been looked at.
  void examined();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  class Sheet;

  void showPage(int page);
  void drawPage();
  void takePage(PageProgram::End end);
  int pages() const;
  void settle(const QImage& image, const QString& text);
  void updateButtons();

  QString m_path;
  QString m_reason;  // why there is no page, while it is not known whether the document says more
  int m_page = 1;
  bool m_isPdf = false;
  bool m_isDrawn = false;
  bool m_isSettled = true;
  Sheet* m_sheet;
  QToolButton* m_back;
  QToolButton* m_forward;
  QLabel* m_position;
  QTimer m_redraw;
  DocumentExaminer m_examiner;
  PageProgram m_program;
};

}  // namespace kesto
