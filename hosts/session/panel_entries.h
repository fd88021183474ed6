// What a host knows about the panel's controls: its entries and its printer's address.
#pragma once

#include <QtCore/QString>
#include <array>
#include <cstddef>
#include <optional>

#include "platform/panel_choices.h"

namespace kesto {

class PanelView;

/// The panel's text entries, each with its own hold button, in the order in which a user enters them.
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
/// Whether only a held job has the entry.
bool needsHold(Entry entry);

/// The entry that a panel misses when it refuses a job: the login name or the user number.
Entry missingEntry(const PanelView& view);

/// How the printer holds the job, in the panel's words; null when it does not.
QString holdMode(const PanelView& view);

/// The address in the panel, at which it asks for the printer's folders.
QString printerAddress(const PanelView& view);
/// Whether a text is a printer's address: a host name or a numeric address, optionally with a port. With any
/// other text the panel contacts nobody and shows no message.
bool isPrinterAddress(const QString& text);

}  // namespace kesto
