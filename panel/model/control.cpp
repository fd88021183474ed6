#include "panel/model/control.h"

#include "panel/model/panel_view.h"

namespace kesto {

Control::Control(const QString& name, PanelView* view) : QObject(view), m_view(view) {
  setObjectName(name);
}

}  // namespace kesto
