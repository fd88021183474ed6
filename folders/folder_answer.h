// Reads the printer's answer to a folder-list request (docs/formats/folder-exchange.md).
#pragma once

#include <QtCore/QByteArray>
#include <optional>
#include <vector>

#include "platform/folder_entry.h"

namespace kesto {

/// What an answer says.
struct FolderAnswer {
  bool isList = false;               ///< A folder list was read; otherwise the printer sent none.
  std::vector<FolderEntry> folders;  ///< In the answer's order; empty when there is no list.
};

/// Reads the document by position and name: the envelope's last child is the body, its last child the
/// response; there "result-code" other than "ok" fails the answer, and each child of the last "files" is a
/// folder. Comments, instructions and CDATA sections count as nodes; blank text does not. Names are compared
/// as written, with their prefix. Folders without a name are left out. None when the document is not
/// well-formed or exceeds the limits (folders/answer_limits.h). Nothing outside the document is ever read.
std::optional<FolderAnswer> readFolderAnswer(const QByteArray& xml);

}  // namespace kesto
