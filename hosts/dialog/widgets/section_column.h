// A scrolling column of sections.
#pragma once

#include <QtWidgets/QScrollArea>

class QFormLayout;
class QVBoxLayout;

namespace kesto {

class Section;

/// Sections under one another. Whatever receives the keyboard focus in it is scrolled into view, and so is
/// the content of a section that the user opens.
class SectionColumn : public QScrollArea {
  Q_OBJECT

 public:
  explicit SectionColumn(QWidget* parent);

  /// Takes a section over, below the others.
  void add(Section* section);
  const QList<Section*>& sections() const { return m_sections; }
  /// Lets the labels of a form beside the column end where those of the sections do.
  void alignWith(QFormLayout* form);
  /// Opens the section that a widget is in and scrolls to the widget.
  void reveal(QWidget* widget);
  /// Lets the labels of all sections end at the same place, and the wheel scroll over fields that it would
  /// change. Call it again when there are new ones.
  void takeContents();
  /// As wide as its contents, with room for the scroll bar.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void alignLabels();
  void scrollTo(const Section* section);

  QList<Section*> m_sections;
  QFormLayout* m_beside = nullptr;  // its labels are aligned, too
  QVBoxLayout* m_layout;
};

}  // namespace kesto
