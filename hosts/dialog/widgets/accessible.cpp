#include "hosts/dialog/widgets/accessible.h"

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>

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

}  // namespace

void chooseSelectedItems() {
  [[maybe_unused]] static const bool isInstalled = [] {
    QAccessible::installFactory(watchSelection);
    return true;
  }();
}

}  // namespace kesto
