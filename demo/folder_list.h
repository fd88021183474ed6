// The document-filing folders that the demo printer offers, and the list of them that goes over the wire.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <vector>

#include "platform/outcome.h"

namespace kesto {

/// One folder of the printer.
struct DemoFolder {
  QString name;
  bool isLocked = false;  ///< Guarded by a pass code.
};

using DemoFolders = std::vector<DemoFolder>;

/// The folders of a printer that was given no file.
DemoFolders sampleFolders();

/// Reads a file of folders in UTF-8: one a line, its name, and for a locked one then a tab and "locked".
/// Empty lines and lines that begin with "#" count for nothing. The outcome names the line that cannot be
/// read.
Outcome readFolders(const QString& path, DemoFolders* folders);

/// The answer's envelope around the children of its response.
QByteArray envelopeOf(const QByteArray& responseChildren);

/// One folder as the answer writes it.
QByteArray elementOf(const DemoFolder& folder);

/// The answer with all folders.
QByteArray listOf(const DemoFolders& folders);

}  // namespace kesto
