#include "hosts/session/panel_entries.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QUrl>

#include "panel/model/button.h"
#include "panel/model/panel_view.h"
#include "panel/model/radio_matrix.h"
#include "panel/model/text_field.h"

namespace kesto {
namespace {

struct EntryRow {
  const char* stem;  // the beginning of its controls' names
  bool needsHold;
};

constexpr std::array<EntryRow, entryCount> entryRows{{
    {"suspendKey", true},
    {"folderName", true},
    {"folderPassword", true},
    {"loginName", false},
    {"password", false},
    {"userNumber", false},
    {"accountNumber", false},
    {"userName", false},
    {"jobName", false},
}};

}  // namespace

QString fieldOf(Entry entry) {
  return QLatin1String(entryRows.at(entry).stem) + QStringLiteral("EditText");
}

QString holdButtonOf(Entry entry) {
  return QLatin1String(entryRows.at(entry).stem) + QStringLiteral("Button");
}

bool needsHold(Entry entry) {
  return entryRows.at(entry).needsHold;
}

Entry missingEntry(const PanelView& view) {
  const auto* authentication = view.control<RadioMatrix>(QStringLiteral("authenticationMatrix"));
  return authentication != nullptr && authentication->selectedRow() == ByLogin ? Login : UserNumber;
}

QString holdMode(const PanelView& view) {
  const auto* retention = view.control<Button>(QStringLiteral("retentionCheckBox"));
  const auto* mode = view.control<RadioMatrix>(QStringLiteral("suspendMatrix"));
  const bool isHeld = retention != nullptr && retention->state() == 1;
  return isHeld && mode != nullptr && mode->selectedCell() != nullptr ? mode->selectedCell()->title()
                                                                      : QString();
}

QString printerAddress(const PanelView& view) {
  const auto* field = view.control<TextField>(QStringLiteral("printersAddressEditText"));
  return field == nullptr ? QString() : field->stringValue();
}

bool isPrinterAddress(const QString& text) {
  // Stricter than a URL: no user name, no escapes, only ASCII.
  static const QRegularExpression form(QStringLiteral(
      R"(\A(?:\[[0-9A-Fa-f:.]+\]|[A-Za-z0-9._~-]+)(?::[0-9]{1,5})?(?:/[A-Za-z0-9._~/-]*)?\z)"));
  return form.match(text).hasMatch() &&
         QUrl(QStringLiteral("http://%1/").arg(text), QUrl::StrictMode).isValid();
}

}  // namespace kesto
