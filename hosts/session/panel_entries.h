// What a host knows of the panel's controls: its entries and its printer's address.
#pragma once

#include <QtCore/QString>
#include <array>
#include <cstddef>
#include <optional>

#include "platform/panel_choices.h"

namespace kesto {

class PanelView;

/// The text entries of the panel, each with a hold button of its own, in the order in which a user gives
/// them.
enum Entry : std::size_t {
  Pin,
  Folder,
  FolderPin,
  Login,
  Password,
  UserNumber,
  AccountNumber,
  UserName,
  JobName
};
inline constexpr std::array allEntries{Pin,        Folder,        FolderPin, Login,  Password,
                                       UserNumber, AccountNumber, UserName,  JobName};
inline constexpr std::size_t entryCount = allEntries.size();

/// The names of an entry's text field and of its hold button.
QString fieldOf(Entry entry);
QString holdButtonOf(Entry entry);
/// Whether only a job that is held has the entry.
bool needsHold(Entry entry);

/// What a panel that does not let the job go misses: the login name or the user number.
Entry missingEntry(const PanelView& view);

/// The address at which the panel asks for the printer's folders, as it stands there.
QString printerAddress(const PanelView& view);
/// Whether a text can stand for a printer: a host name or an address, with a port where it is not the usual
/// one. The panel asks nobody at another, and says nothing.
bool isPrinterAddress(const QString& text);

}  // namespace kesto
