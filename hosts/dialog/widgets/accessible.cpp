#include "hosts/dialog/widgets/accessible.h"

#include <QtCore/QPointer>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QAccessibleWidget>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>

#include "hosts/dialog/widgets/plain_text.h"

namespace kesto {
namespace {

// Keys and the mouse highlight the current item. Assistive technology alone selects another one.
void chooseSelected(QComboBox& box) {
  const QModelIndexList selected = box.view()->selectionModel()->selectedIndexes();
  if (selected.isEmpty() || selected.front() == box.view()->currentIndex()) return;
  box.hidePopup();
  box.setCurrentIndex(selected.front().row());
}

// Called when assistive technology first looks at a box, whose list would be too slow to make before that.
QAccessibleInterface* watchSelection(const QString& className, QObject* object) {
  auto* box = qobject_cast<QComboBox*>(object);
  if (box == nullptr || className != QLatin1String("QComboBox")) return nullptr;
  // When it is reported, the current item may still be the one before.
  QObject::connect(
      box->view()->selectionModel(), &QItemSelectionModel::selectionChanged, box,
      [box] { chooseSelected(*box); }, Qt::QueuedConnection);
  return nullptr;  // Qt's own serves
}

constexpr char groupProperty[] = "accessibleGroup";

QAccessibleInterface* makeGroup(const QString& /*className*/, QObject* object) {
  const bool isGroup = object != nullptr && object->property(groupProperty).toBool();
  return isGroup ? new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Grouping) : nullptr;
}

#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
// The description that a widget has for a time, and its own.
struct SpokenText {
  QPointer<QWidget> widget;
  QString text;
  QString own;

  void takeBack() {
    if (widget != nullptr && widget->accessibleDescription() == text) widget->setAccessibleDescription(own);
    widget = nullptr;
  }
};

void speakAt(QWidget* focused, const QString& text) {
  static SpokenText last;
  [[maybe_unused]] static const auto connection =
      QObject::connect(qApp, &QApplication::focusChanged, [] { last.takeBack(); });
  last.takeBack();
  if (focused == nullptr || text.isEmpty() || focused->accessibleDescription() == text) return;
  last = {focused, text, focused->accessibleDescription()};
  focused->setAccessibleDescription(text);
}
#endif

}  // namespace

void nameGroup(QWidget& widget, const QString& name) {
  [[maybe_unused]] static const bool isInstalled = [] {
    QAccessible::installFactory(makeGroup);
    return true;
  }();
  widget.setProperty(groupProperty, true);
  widget.setAccessibleName(name);
}

void nameList(QComboBox& list, const QString& name) {
  static const QString labelName = QStringLiteral("unseenLabel");
  list.setAccessibleName(name);
  auto* label = list.parentWidget()->findChild<QLabel*>(labelName, Qt::FindDirectChildrenOnly);
  if (label == nullptr || label->buddy() != &list) {
    label = new QLabel(list.parentWidget());
    label->setObjectName(labelName);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(&list);
    label->hide();
  }
  label->setText(withPlainAmpersands(name));
}

void announce(QWidget& source, const QString& text) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  if (text.isEmpty()) return;
  QAccessibleAnnouncementEvent event(&source, text);
  QAccessible::updateAccessibility(&event);
#else
  // What appears may move the focus as well.
  QMetaObject::invokeMethod(
      &source, [&source, text] { speakAt(source.window()->focusWidget(), text); }, Qt::QueuedConnection);
#endif
}

void chooseSelectedItems() {
  [[maybe_unused]] static const bool isInstalled = [] {
    QAccessible::installFactory(watchSelection);
    return true;
  }();
}

}  // namespace kesto
