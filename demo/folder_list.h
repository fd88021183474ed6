// The document-filing folders of the demo printer, and the answer that lists them.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <vector>

#include "platform/outcome.h"

namespace kesto {

/// One folder of the printer.
struct DemoFolder {
  QString name;
  bool isLocked = false;  ///< Protected by a pass code.
};

using DemoFolders = std::vector<DemoFolder>;

/// The folders of a printer without a file of folders.
DemoFolders sampleFolders();

/// Reads a file of folders in UTF-8, one name a line, followed by a tab and "locked" for a protected one.
/// Empty lines and lines that begin with "#" are ignored. On failure the outcome names the faulty line.
Outcome readFolders(const QString& path, DemoFolders* folders);

/// The whole answer around the given children of its response.
QByteArray envelopeOf(const QByteArray& responseChildren);

/// The element for one folder.
QByteArray elementOf(const DemoFolder& folder);

/// The answer with all folders.
QByteArray listOf(const DemoFolders& folders);

}  // namespace kesto
