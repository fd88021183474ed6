// How a panel's form is laid out in one column: its pages and boxes as headed parts.
#pragma once

#include <QtWidgets/QWidget>

class QLabel;

namespace kesto {

/// The pages of a panel under one another, each under its name. A single page needs none.
class PanelPages : public QWidget {
  Q_OBJECT

 public:
  explicit PanelPages(QWidget* parent) : QWidget(parent) {}

  /// Lays out the pages, which are its children. Call it once the form is loaded.
  void layOut();
  void setTitles(const QStringList& titles);
  /// Scrolls to a page, unless the user is in it.
  void turnTo(int page);

 Q_SIGNALS:
  /// The user has entered a page.
  void entered(int page);

 private:
  bool holdsFocus(int page) const;

  QList<QLabel*> m_headings;
  QWidgetList m_pages;
  int m_current = 0;
};

/// A box of a panel without a frame. Its grid has a free place for the title: before its one choice, which
/// the title names as a label does, or in a row above its fields.
class PanelGroup : public QWidget {
  Q_OBJECT

 public:
  explicit PanelGroup(QWidget* parent) : QWidget(parent) {}

  void setTitle(const QString& title);

 private:
  void placeTitle();

  QLabel* m_title = nullptr;
};

}  // namespace kesto
