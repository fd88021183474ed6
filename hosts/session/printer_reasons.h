// What keeps a printer from printing, or soon will, in the user's words.
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <vector>

namespace kesto {

/// How much a reason matters.
enum class Severity {
  Report,   ///< It is worth knowing.
  Warning,  ///< It prints, but not for long.
  Error,    ///< It does not print until someone sees to it.
};

/// One reason for a printer's state.
struct PrinterReason {
  QString text;  ///< For people, in the language of the program.
  Severity severity = Severity::Report;
};

/// The reasons of the attribute "printer-state-reasons", the most severe first, each text once. A suffix of a
/// keyword (-error, -warning, -report) gives its severity. Those that say nothing to a user are left out; a
/// keyword that is not known becomes words.
std::vector<PrinterReason> printerReasons(const QStringList& keywords);

}  // namespace kesto
