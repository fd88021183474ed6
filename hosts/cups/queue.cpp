#include "hosts/cups/queue.h"

namespace kesto {

Outcome openQueue(PrintServer& server, const QString& name, Queue* queue) {
  if (Outcome found = server.findQueue(name, &queue->destination); !found) return found;
  queue->id = QString::fromUtf8(queue->destination->name);
  queue->deviceUri = optionOf(*queue->destination, "device-uri");
  return fetchPpdFile(server, queue->id, &queue->ppd);
}

}  // namespace kesto
