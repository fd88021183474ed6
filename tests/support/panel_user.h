// A simulated user who tries every control of a panel once, in the order of the layout.
#pragma once

#include "panel/model/button.h"
#include "panel/model/panel_view.h"
#include "panel/model/pop_up.h"
#include "panel/model/radio_matrix.h"
#include "panel/model/text_field.h"

namespace kesto::test {

/// Clicks, chooses and types where the controls allow it; never asks a printer for its folders.
inline void useEveryControl(const PanelView& view) {
  for (Control* control : view.controls()) {
    if (control->action() == u"getFolderNameButtonProc:") continue;
    if (auto* button = qobject_cast<Button*>(control)) (void)button->click();
    if (auto* matrix = qobject_cast<RadioMatrix*>(control)) {
      for (int row = -1; row < 4; ++row)
        (void)matrix->choose(row);
    }
    if (auto* popUp = qobject_cast<PopUp*>(control)) {
      for (int item = -1; item < 4; ++item)
        (void)popUp->choose(item);
    }
    if (auto* field = qobject_cast<TextField*>(control)) {
      (void)field->type(QStringLiteral("1a\U0001F600"));
      (void)field->placeCaret({1, 2});
      (void)field->backspace();
      (void)field->paste(QStringLiteral("9\n\u00E9"));
    }
  }
}

}  // namespace kesto::test
