#include "hosts/dialog/user/dialog_user.h"

#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionButton>

namespace kesto {
namespace {

// Where a click takes effect: check boxes and radio buttons may be wider than the part that reacts.
QPoint placeToClick(const QWidget& widget) {
  const auto* button = qobject_cast<const QAbstractButton*>(&widget);
  const bool hasIndicator = button != nullptr && button->isCheckable() && button->autoExclusive();
  const bool isCheckBox = widget.inherits("QCheckBox");
  return hasIndicator || isCheckBox ? QPoint(8, widget.height() / 2) : widget.rect().center();
}

}  // namespace

// A folded section may hold it, or be about to.
QWidget* DialogUser::unfoldTo(const QString& name) {
  const auto isSeen = [](const QWidget* widget) { return widget != nullptr && widget->isVisible(); };
  auto* widget = m_window.findChild<QWidget*>(name);
  for (auto* header : m_window.findChildren<QAbstractButton*>()) {
    if (isSeen(widget)) break;
    const bool isHeader = header->objectName().endsWith(QLatin1String("Header"));
    if (!isHeader || !header->isVisible() || header->isChecked()) continue;
    if (widget != nullptr && !header->parentWidget()->isAncestorOf(widget)) continue;
    QTest::mouseClick(header, Qt::LeftButton);
    widget = m_window.findChild<QWidget*>(name);
  }
  return widget;
}

Outcome DialogUser::turnTo(const QString& name, QWidget** widget) {
  QCoreApplication::processEvents();  // a person sees what is laid out
  *widget = unfoldTo(name);
  if (*widget == nullptr) return Outcome::failed(QStringLiteral("there is no %1").arg(name));
  // A section that has just been unfolded has no room yet.
  const bool isSeen = QTest::qWaitFor([&] {
    for (QWidget* each = (*widget)->parentWidget(); each != nullptr; each = each->parentWidget()) {
      if (auto* area = qobject_cast<QScrollArea*>(each)) area->ensureWidgetVisible(*widget);
    }
    return (*widget)->visibleRegion().contains(placeToClick(**widget));
  });
  if (!isSeen) return Outcome::failed(QStringLiteral("%1 is not seen").arg(name));
  if (!(*widget)->isEnabled()) return Outcome::failed(QStringLiteral("%1 is dimmed").arg(name));
  return Outcome::done();
}

Outcome DialogUser::click(const QString& name) {
  QWidget* widget = nullptr;
  if (Outcome turned = turnTo(name, &widget); !turned) return turned;
  QTest::mouseClick(widget, Qt::LeftButton, {}, placeToClick(*widget));
  return Outcome::done();
}

Outcome DialogUser::type(const QString& name, const QString& text) {
  if (Outcome clicked = click(name); !clicked) return clicked;
  QWidget* focused = m_window.focusWidget();
  if (focused == nullptr || focused->objectName() != name)
    return Outcome::failed(
        QStringLiteral("%1 does not take the focus, %2 has it")
            .arg(name, focused == nullptr ? QStringLiteral("nothing") : focused->objectName()));
  QTest::keyClicks(focused, text);
  return Outcome::done();
}

Outcome DialogUser::replace(const QString& name, const QString& text) {
  if (Outcome clicked = type(name, {}); !clicked) return clicked;
  QTest::keyClick(m_window.focusWidget(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(m_window.focusWidget(), text);
  return Outcome::done();
}

Outcome DialogUser::choose(const QString& name, int index) {
  QWidget* widget = nullptr;
  if (Outcome turned = turnTo(name, &widget); !turned) return turned;
  auto* list = qobject_cast<QComboBox*>(widget);
  if (list == nullptr || index < 0 || index >= list->count())
    return Outcome::failed(QStringLiteral("%1 has no item %2").arg(name).arg(index));
  list->setFocus(Qt::TabFocusReason);
  while (list->currentIndex() != index) {
    const int before = list->currentIndex();
    QTest::keyClick(list, before < index ? Qt::Key_Down : Qt::Key_Up);
    if (list->currentIndex() == before) return Outcome::failed(QStringLiteral("%1 stays as it is").arg(name));
  }
  return Outcome::done();
}

Outcome DialogUser::waitUntil(const std::function<bool()>& isSo, const QString& what, int milliseconds) {
  return QTest::qWaitFor(isSo, milliseconds)
             ? Outcome::done()
             : Outcome::failed(QStringLiteral("timed out waiting for %1").arg(what));
}

}  // namespace kesto
