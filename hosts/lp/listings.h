// What kesto-lp lists: queues and folders.
#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QMap>

#include "hosts/cups/job_privacy.h"
#include "hosts/cups/print_server.h"
#include "hosts/session/preset_store.h"
#include "platform/panel.h"

namespace kesto {

/// Prints pairs, a line each with `separator` between name and value, or as one JSON object with `facts`
/// beside them.
Outcome printPairs(const QMap<QString, QString>& pairs, const char* separator, bool json,
                   QJsonObject facts = {});

/// Prints the names of a queue's presets, a line each or as one JSON array.
Outcome printPresets(const PresetStore& store, bool json);

/// Prints the server's queues, and the printers of `network`, which have none, a line each or as one JSON
/// array; with `jobHandlingOnly` only those queues whose PPD offers the panel, which needs each queue's PPD.
Outcome printQueues(PrintServer& server, const std::vector<QueueSummary>& network, bool jobHandlingOnly,
                    bool json);

/// Prints what other users of the server see of a job on the queue, and the policy lines that prevent it.
void printPrivacy(const QString& queue, const JobPrivacy& privacy, bool json);

/// Fetches the printer's folders through the panel, from `address` when it is not null. Fails on an invalid
/// address, which the panel would ignore. When the printer does not answer, the panel's alert says so.
Outcome fetchFolders(PanelView& view, const QString& address);

/// Prints the folders that the panel has, a line each or as one JSON array. A protected folder's line ends in
/// a tab and "locked".
Outcome printFolders(const PrintDialogPanel& panel, bool json);

}  // namespace kesto
