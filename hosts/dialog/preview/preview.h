// The preview of a job.
#pragma once

#include <QtCore/QTimer>
#include <QtWidgets/QWidget>
#include <optional>

#include "hosts/dialog/preview/document_examiner.h"
#include "hosts/dialog/preview/page_images.h"
#include "hosts/session/sheet_plan.h"

class QLabel;

namespace kesto {

class PageNavigator;
class SheetView;

/// Shows the sheets of paper that a job becomes, one side at a time, and says so when there is nothing to
/// show. What is found out about the document on the way is known here as well.
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
  /// The first file that needs a password, among those given to `show`; none while all are looked at.
  std::optional<int> lockedFile() const;
  /// The pages in the order of the sheets, once all files have been looked at and nothing has changed since.
  PageSequence pages();
  /// Why they cannot be saved as PDF, in a sentence; null when nothing is known against it.
  QString saveFault() const;
  /// The line that says how much paper the job takes. It stands below the preview unless it is moved.
  QLabel* total() const { return m_total; }
  QSize sizeHint() const override;

 Q_SIGNALS:
  /// Another side or text is shown.
  void shown();
  /// All files have been looked at.
  void examined();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  // A side. The number is that of its page, or where it has no page to itself that of its sheet.
  struct Place {
    const Sheet* sheet;
    const SheetSide* side;
    int number;
    bool isPage;
  };

  void connectParts();
  void plan();
  int numberOfPage(const SheetCell& cell) const;
  void goTo(qsizetype position);
  void goToNumber(int number);
  void turn(int by);
  void drawSide();
  void showSide();
  void showPlace();
  QString textInPlace() const;
  QString positionText(const Place& place) const;
  QString fileText() const;
  QString totalText() const;

  std::optional<SheetPlan> m_plan;
  QList<Place> m_places;  // the sides in their order
  QList<int> m_pages;     // the number of pages before each file, and of all
  bool m_isTwoSided = false;
  qsizetype m_position = 0;
  bool m_hasFiles = false;
  bool m_isSettled = true;
  bool m_isPlanned = false;  // for what is known
  QString m_text;            // without files
  SheetPaper m_paper;
  QMap<QString, QString> m_options;
  PageImages m_images;
  SheetView* m_view;
  PageNavigator* m_navigator;
  QLabel* m_file;
  QLabel* m_total;
  QTimer m_redraw;
  DocumentExaminer m_examiner;
};

}  // namespace kesto
