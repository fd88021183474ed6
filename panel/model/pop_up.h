// The pop-up list.
#pragma once

#include <optional>
#include <vector>

#include "panel/model/control.h"
#include "platform/export.h"
#include "platform/outcome.h"

namespace kesto {

/// One item of a pop-up.
struct PopUpItem {
  QString title;
  std::optional<Image> image;
  bool separator = false;

  bool operator==(const PopUpItem&) const = default;
};

/// A list of items, of which one is selected; index -1 when none is.
class KESTO_EXPORT PopUp : public Control {
  Q_OBJECT
  Q_PROPERTY(bool enabled READ isEnabled NOTIFY changed)
  Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY changed)
  Q_PROPERTY(QVariantList items READ itemList NOTIFY changed)

 public:
  using Control::Control;

  QString kind() const override { return QStringLiteral("popUp"); }

  bool isEnabled() const { return m_enabled; }
  void setEnabled(bool enabled) { assign(m_enabled, enabled); }

  const std::vector<PopUpItem>& items() const { return m_items; }
  /// Replaces all items. The selected index stays the same, or becomes that of the last item when it would
  /// lie beyond.
  void setItems(std::vector<PopUpItem> items);

  int selectedIndex() const { return m_selectedIndex; }
  /// Selects an item that exists and is not a separator; another index changes nothing.
  void selectItemAtIndex(int index);
  /// The selected item, null when none is.
  const PopUpItem* selectedItem() const;

  /// The user chooses an item, possibly the selected one: sends the action. Fails when disabled, out of range
  /// or on a separator.
  Outcome choose(int index);

 private:
  bool isChoice(int index) const;
  QVariantList itemList() const;

  std::vector<PopUpItem> m_items;
  int m_selectedIndex = -1;
  bool m_enabled = true;
};

}  // namespace kesto
