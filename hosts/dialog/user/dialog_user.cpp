#include "hosts/dialog/user/dialog_user.h"

#include <QtCore/QList>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionButton>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

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

Outcome DialogUser::turnTo(const QString& name, QWidget** widget) {
  *widget = m_window.findChild<QWidget*>(name);
  if (*widget == nullptr) return Outcome::failed(QStringLiteral("there is no %1").arg(name));
  QList<std::pair<QTabWidget*, QWidget*>> turns;  // outermost first
  for (QWidget* each = *widget; each != &m_window && each->parentWidget() != nullptr;
       each = each->parentWidget()) {
    auto* tabs = qobject_cast<QTabWidget*>(each->parentWidget()->parentWidget());
    if (tabs != nullptr && tabs->indexOf(each) >= 0) turns.prepend({tabs, each});
  }
  for (const auto& [tabs, page] : turns) {
    if (tabs->currentWidget() == page) continue;
    const QRect tab = tabs->tabBar()->tabRect(tabs->indexOf(page));
    QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tab.center());
  }
  if (!(*widget)->isVisible()) return Outcome::failed(QStringLiteral("%1 is not seen").arg(name));
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
    return Outcome::failed(QStringLiteral("%1 does not take the focus").arg(name));
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
