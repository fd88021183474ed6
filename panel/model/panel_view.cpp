#include "panel/model/panel_view.h"

#include "panel/model/control.h"
#include "panel/model/text_field.h"

namespace kesto {

QList<Control*> PanelView::controls() const {
  return findChildren<Control*>(Qt::FindDirectChildrenOnly);
}

void PanelView::makeFirstResponder(TextField* field) {
  if (m_firstResponder == field) return;
  m_firstResponder = field;
  Q_EMIT firstResponderChanged();
}

}  // namespace kesto
