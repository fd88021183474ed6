// The preview of a job.
#pragma once

#include <QtCore/QTimer>
#include <QtWidgets/QWidget>
#include <optional>

#include "hosts/dialog/preview/document_examiner.h"
#include "hosts/dialog/preview/page_images.h"
#include "hosts/session/sheet_plan.h"

class QLabel;
class QToolButton;

namespace kesto {

class SheetView;

/// Shows the sheets of paper that a job becomes, side by side, and says so when there is nothing to show.
/// What is found out about the document on the way is known here as well.
class Preview : public QWidget {
  Q_OBJECT

 public:
  explicit Preview(QWidget* parent);

  /// Shows the first side; `text` in its place without files.
  void show(const std::vector<JobFile>& files, const QString& text = {});
  /// How the files are printed, by the options as `SheetPlan` takes them.
  void setJob(const SheetPaper& paper, const QMap<QString, QString>& options);
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
  /// Another side or text is shown.
  void shown();
  /// All files have been looked at.
  void examined();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Place {
    const Sheet* sheet;
    const SheetSide* side;
  };

  void plan();
  void goTo(int position);
  void drawSide();
  void showSide();
  void updateButtons();
  QString textInPlace() const;
  QString positionText() const;
  QString totalText() const;

  std::optional<SheetPlan> m_plan;
  QList<Place> m_places;  // the sides in their order
  int m_position = 0;
  bool m_hasFiles = false;
  bool m_isSettled = true;
  QString m_text;  // without files
  SheetPaper m_paper;
  QMap<QString, QString> m_options;
  PageImages m_images;
  SheetView* m_view;
  QToolButton* m_back;
  QToolButton* m_forward;
  QLabel* m_positionLabel;
  QLabel* m_total;
  QTimer m_redraw;
  DocumentExaminer m_examiner;
};

}  // namespace kesto
