// Printers that announce themselves on the network, and queues for them.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "hosts/cups/queue.h"

namespace kesto {

/// Looks for printers, with libcups's search in a thread of its own, which is abandoned when it does not end
/// in time. `found` is called in that thread for each, and returns whether to go on. Returns whether there
/// can be such printers at all, which takes a running Avahi; without it, at once.
bool searchNetwork(std::chrono::milliseconds time, const std::shared_ptr<int>& cancel,
                   const std::function<bool(const QueueSummary& printer)>& found);

/// All that are found in that time, by name.
std::vector<QueueSummary> networkPrinters(std::chrono::milliseconds time);

/// Has the server make a queue for such a printer, and waits until the queue accepts jobs. The server removes
/// the queue when nobody uses it any more. Fails when the server refuses, or is not on this machine.
Outcome makeQueue(PrintServer& server, const QueueSummary& printer);

/// Opens a queue as `openQueue` does. When the server has none of this name, looks for a printer of the name
/// on the network, no longer than `time`, and has the server make its queue; `*announced` is that printer.
Outcome openOrMakeQueue(PrintServer& server, const QString& name, std::chrono::milliseconds time,
                        Queue* queue, std::optional<QueueSummary>* announced);

}  // namespace kesto
