// The command line of kesto-print.
#pragma once

#include <QtCore/QByteArrayList>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <optional>

#include "hosts/cups/server_address.h"

namespace kesto {

/// What the program is to do.
struct PrintOptions {
  QString queue;                      ///< Null for the user's default queue.
  QString title;                      ///< Null for the document's own name.
  QByteArrayList files;               ///< Paths; "-" is standard input.
  QMap<QString, QString> jobOptions;  ///< Those that the dialog has a control for it starts with.
  ServerAddress server;
  bool documentLater = false;  ///< The document comes only after the choice, drawn as was chosen.
  bool offersPdf = true;       ///< Whether the pages may be saved in a file instead.
  QString acceptLabel;         ///< What the button that prints is called; empty for the usual.
  bool timings = false;        ///< Measure the start, print it and end.
  QString screenshot;          ///< Write a picture of the dialog here and end; null for no picture.
  QString pane;                ///< The section that is opened, by its object name; null for the usual ones.
  int channel = -1;  ///< The descriptor by which the portal service speaks to the dialog; -1 for none.
};

/// Reads the command line. None when there is something to do; otherwise the program ends with this code, the
/// help or the fault having been printed.
std::optional<int> parsePrintOptions(int argc, char** argv, PrintOptions* options);

}  // namespace kesto
