// A part of a column that folds under its header.
#pragma once

#include <QtWidgets/QAbstractButton>
#include <functional>

class QVBoxLayout;

namespace kesto {

/// The button that folds and unfolds a section: an arrow, the section's title, and at its other end what is
/// chosen in it. Assistive technology sees a button that is expanded or collapsed, with the choice as its
/// description.
class SectionHeader : public QAbstractButton {
  Q_OBJECT

 public:
  explicit SectionHeader(QWidget* parent);

  /// Shows what is chosen; in the accent colour when it differs from the default.
  void setHeadline(const QString& text, bool isChanged);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QFont titleFont() const;
  int arrowWidth() const;

  QString m_headline;
  bool m_isChanged = false;
};

/// A header and the content that it folds away. The content is made when it is first shown, or before that by
/// `build`.
class Section : public QWidget {
  Q_OBJECT

 public:
  /// Makes the content as a child of the widget; null when there is none to be had.
  using Factory = std::function<QWidget*(QWidget*)>;

  /// The header's object name is `name` followed by "Header".
  Section(const QString& name, const QString& title, Factory make, QWidget* parent);

  SectionHeader& header() { return *m_header; }
  QString title() const;
  void setTitle(const QString& title);
  /// Null until it is made.
  QWidget* content() const { return m_content; }
  /// Makes the content unless it is there.
  void build();
  /// Gives up the content, which may still be waiting in one of its own events.
  void clear();

  /// The width of the space at either side of the content.
  int margin() const { return fontMetrics().height() / 2; }

  bool isOpen() const { return m_header->isChecked(); }
  /// A focus inside goes to the header when the section folds.
  void setOpen(bool isOpen) { m_header->setChecked(isOpen); }

 Q_SIGNALS:
  /// The content was made.
  void built();
  /// The section was opened or folded.
  void toggled(bool isOpen);

 private:
  void unfold(bool isOpen);
  void takeMargins();

  Factory m_make;
  SectionHeader* m_header;
  QVBoxLayout* m_body;
  QWidget* m_content = nullptr;
};

}  // namespace kesto
