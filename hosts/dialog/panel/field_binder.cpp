#include "hosts/dialog/panel/field_binder.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QAction>
#include <QtGui/QFocusEvent>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtWidgets/QLineEdit>

#include "panel/model/panel_view.h"
#include "panel/model/text_field.h"
#include "platform/secret.h"
#include "platform/surrogates.h"

namespace kesto {
namespace {

TextRange selectionOf(const QLineEdit& line) {
  if (line.hasSelectedText()) return {line.selectionStart(), line.selectionLength()};
  return {line.cursorPosition(), 0};
}

// The range of `before` that an edit to `after` has replaced; surrogate pairs stay whole.
TextRange rangeReplaced(const QString& before, const QString& after) {
  const qsizetype shorter = qMin(before.size(), after.size());
  qsizetype begin = 0;
  while (begin < shorter && before[begin] == after[begin])
    ++begin;
  if (isWithinPair(before, begin) || isWithinPair(after, begin)) --begin;
  qsizetype rest = 0;
  while (rest < shorter - begin && before[before.size() - 1 - rest] == after[after.size() - 1 - rest])
    ++rest;
  if (isWithinPair(before, before.size() - rest) || isWithinPair(after, after.size() - rest)) --rest;
  return {begin, before.size() - rest - begin};
}

class FieldBinder : public QObject {
 public:
  FieldBinder(TextField& field, QLineEdit& line) : QObject(&line), m_field(field), m_line(line) {
    connect(&field, &Control::changed, this, &FieldBinder::show);
    connect(&line, &QLineEdit::textEdited, &field, [this] { takeEdit(); });
    connect(&line, &QLineEdit::textChanged, &field, [this] { takeChange(); });
    connect(&line, &QLineEdit::selectionChanged, &field, [this] { takeSelection(); });
    connect(&line, &QLineEdit::cursorPositionChanged, &field, [this] { takeSelection(); });
    connect(&field, &QObject::destroyed, &line, [this] { m_line.removeEventFilter(this); });
    line.installEventFilter(this);
    show();
  }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    PanelView* view = m_field.view();
    if (event->type() == QEvent::FocusIn) {
      view->makeFirstResponder(&m_field);
      takeSelection();  // it may have changed while the line had no focus
    }
    if (event->type() == QEvent::FocusOut && view->firstResponder() == &m_field) {
      // An inactive window and a menu return the focus later.
      const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
      if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
        view->makeFirstResponder(nullptr);
    }
    return false;
  }

 private:
  void show() {
    m_isShowing = true;
    if (m_line.text() != m_field.stringValue()) m_line.setText(m_field.stringValue());
    const TextRange selection = m_field.selection();
    if (selectionOf(m_line) != selection) {
      m_line.setCursorPosition(static_cast<int>(selection.location));
      if (selection.length > 0)
        m_line.setSelection(static_cast<int>(selection.location), static_cast<int>(selection.length));
    }
    m_line.setReadOnly(!m_field.isEditable());
    m_line.setEnabled(m_field.isEditable() || m_field.isSelectable());
    m_isShowing = false;
  }

  // The line's text has changed, but its selection is not reported yet. The field still has both as they
  // were.
  void takeEdit() {
    if (!m_line.hasFocus()) return takeChange();  // a drop; the field does not follow the caret
    m_field.edit(m_line.text(), selectionOf(m_line));
    show();
  }

  // Assistive technology sets the whole text, wherever the caret is. The part that differs is pasted, as if
  // the user had selected just the old part. The focus does not move.
  void takeChange() {
    if (m_isShowing || m_line.text() == m_field.stringValue()) return;
    const TextRange replaced = rangeReplaced(m_field.stringValue(), m_line.text());
    const qsizetype growth = m_line.text().size() - m_field.stringValue().size();
    QString inserted = m_line.text().sliced(replaced.location, replaced.length + growth);
    const WipedAtEnd wiped(inserted);
    TextField* responder = m_field.view()->firstResponder();
    if (m_line.isEnabled() && m_field.placeCaret(replaced))
      (void)(inserted.isEmpty() ? m_field.backspace() : m_field.paste(inserted));
    m_field.view()->makeFirstResponder(responder);
    show();
  }

  void takeSelection() {
    if (m_isShowing || m_line.text() != m_field.stringValue()) return;
    if (m_line.hasFocus()) (void)m_field.placeCaret(selectionOf(m_line));  // a disabled line has no focus
  }

  TextField& m_field;
  QLineEdit& m_line;
  bool m_isShowing = false;
};

QPixmap eyePixmap(const QColor& color, qreal ratio, bool isOpen) {
  constexpr int points = 16;
  QPixmap pixmap(QSize(points, points) * ratio);
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(color, 1.3));
  QPainterPath lids(QPointF(1.5, 8));
  lids.quadTo(8, 1, 14.5, 8);
  lids.quadTo(8, 15, 1.5, 8);
  painter.drawPath(lids);
  painter.drawEllipse(QPointF(8, 8), 2, 2);
  if (!isOpen) painter.drawLine(QPointF(3, 13.5), QPointF(13, 2.5));
  return pixmap;
}

// An eye, open or crossed out, in the colour of the text.
QIcon eyeIcon(const QWidget& widget, bool isOpen) {
  const QPalette& palette = widget.palette();
  const qreal ratio = widget.devicePixelRatioF();
  QIcon icon(eyePixmap(palette.color(QPalette::Active, QPalette::Text), ratio, isOpen));
  icon.addPixmap(eyePixmap(palette.color(QPalette::Disabled, QPalette::Text), ratio, isOpen),
                 QIcon::Disabled);
  return icon;
}

// The button in a line that shows or hides the line's text.
class RevealButton : public QObject {
 public:
  explicit RevealButton(QLineEdit& line)
      : QObject(&line), m_line(line), m_action(line.addAction(QIcon(), QLineEdit::TrailingPosition)) {
    m_action->setCheckable(true);
    m_action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_R));
    m_action->setShortcutContext(Qt::WidgetShortcut);
    connect(m_action, &QAction::toggled, this, &RevealButton::show);
    line.installEventFilter(this);
    show();
  }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::PaletteChange) show();
    return false;
  }

 private:
  void show() {
    const bool isRevealed = m_action->isChecked();
    m_line.setEchoMode(isRevealed ? QLineEdit::Normal : QLineEdit::Password);
    m_action->setIcon(eyeIcon(m_line, isRevealed));
    m_action->setText(isRevealed ? QCoreApplication::translate("FieldBinder", "Hide the digits")
                                 : QCoreApplication::translate("FieldBinder", "Show the digits"));
    m_action->setToolTip(QStringLiteral("%1 (%2)").arg(
        m_action->text(), m_action->shortcut().toString(QKeySequence::NativeText)));
  }

  QLineEdit& m_line;
  QAction* m_action;
};

}  // namespace

void bindField(TextField& field, QLineEdit& line) {
  if (line.property("revealable").toBool()) new RevealButton(line);
  const int columns = line.property("columns").toInt();
  if (columns > 0) {
    // Room for the widest digits, the frame and a button inside.
    const int width = line.fontMetrics().horizontalAdvance(QString(columns + 6, u'0'));
    line.setMaximumWidth(width);
    line.setMinimumWidth(width);
  }
  new FieldBinder(field, line);
}

}  // namespace kesto
