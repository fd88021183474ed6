#include "hosts/dialog/panel/dimming_reasons.h"

#include <QtCore/QCoreApplication>
#include <algorithm>
#include <array>

#include "hosts/session/panel_entries.h"
#include "panel/model/button.h"
#include "panel/model/panel_view.h"
#include "panel/model/pop_up.h"
#include "panel/model/radio_matrix.h"
#include "panel/model/text_field.h"

namespace kesto {
namespace {

int rowOf(const PanelView& view, const char* matrix) {
  const auto* found = view.control<RadioMatrix>(QLatin1String(matrix));
  return found == nullptr ? -1 : found->selectedRow();
}

bool isOff(const PanelView& view, const char* button) {
  const auto* found = view.control<Button>(QLatin1String(button));
  return found == nullptr || found->state() == 0;
}

bool isRetentionOff(const PanelView& view) {
  return isOff(view, "retentionCheckBox");
}

bool isQuickFile(const PanelView& view) {
  const auto* popUp = view.control<PopUp>(QStringLiteral("folderSelectionPopup"));
  return rowOf(view, "folderSelectionMatrix") == QuickFile ||
         (popUp != nullptr && popUp->selectedIndex() == QuickFile);
}

bool isNotCustom(const PanelView& view) {
  return rowOf(view, "folderSelectionMatrix") != CustomFolder;
}

bool isByUserNumber(const PanelView& view) {
  return rowOf(view, "authenticationMatrix") != ByLogin;
}

// One reason; the names of the controls that it dims begin with `stem`.
struct Reason {
  const char* stem;
  bool (*applies)(const PanelView& view);
  const char* text;
};

constexpr char retentionOff[] =
    QT_TRANSLATE_NOOP("DimmingReasons", "The job is not held on the printer. Turn on Retention first.");
constexpr char quickFile[] = QT_TRANSLATE_NOOP("DimmingReasons", "A quick file has no pass code.");
constexpr char noCustomFolder[] =
    QT_TRANSLATE_NOOP("DimmingReasons", "Only a custom folder needs a name. Choose Custom folder first.");
constexpr char noGuardedFolder[] =
    QT_TRANSLATE_NOOP("DimmingReasons", "Only a custom folder or a protected folder has a pass code.");
constexpr char byUserNumber[] =
    QT_TRANSLATE_NOOP("DimmingReasons", "This printer identifies you by user number, not by login name.");
constexpr char held[] = QT_TRANSLATE_NOOP(
    "DimmingReasons", "This entry is locked and remembered for this printer. Open the padlock to change it.");

// The first reason that applies is shown.
constexpr std::array reasons{
    Reason{"suspend", isRetentionOff, retentionOff},   Reason{"folder", isRetentionOff, retentionOff},
    Reason{"suspendKey", isQuickFile, quickFile},      Reason{"folderPassword", isNotCustom, noGuardedFolder},
    Reason{"folderName", isNotCustom, noCustomFolder}, Reason{"loginName", isByUserNumber, byUserNumber},
    Reason{"password", isByUserNumber, byUserNumber},
};

bool isHeld(const Control& control) {
  constexpr QLatin1String suffix("EditText");
  const QString name = control.objectName();
  if (!name.endsWith(suffix)) return false;
  const auto* button =
      control.view()->control<Button>(name.chopped(suffix.size()) + QStringLiteral("Button"));
  return button != nullptr && button->state() == 1;
}

bool isDimmed(const Control& control) {
  if (const auto* text = qobject_cast<const TextField*>(&control))
    return text->textColor() == TextField::Color::Gray;
  const QVariant enabled = control.property("enabled");
  return enabled.isValid() && !enabled.toBool();
}

// The cells of a matrix are dimmed with it.
QString nameOf(const Control& control) {
  const auto* cell = qobject_cast<const RadioCell*>(&control);
  return cell == nullptr ? control.objectName() : cell->matrix()->objectName();
}

}  // namespace

QString dimmingReason(const Control& control) {
  if (!isDimmed(control)) return {};
  const QString name = nameOf(control);
  const auto found = std::ranges::find_if(reasons, [&](const Reason& reason) {
    return name.startsWith(QLatin1String(reason.stem)) && reason.applies(*control.view());
  });
  if (found != reasons.end()) return QCoreApplication::translate("DimmingReasons", found->text);
  return isHeld(control) ? QCoreApplication::translate("DimmingReasons", held) : QString();
}

}  // namespace kesto
