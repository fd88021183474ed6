#include "hosts/cups/queue.h"

#include "hosts/cups/faults.h"
#include "hosts/cups/ipp_choices.h"
#include "hosts/cups/ppd_choices.h"

namespace kesto {
namespace {

Outcome fetchAttributes(PrintServer& server, Queue* queue) {
  const Ipp request = requestTo(IPP_OP_GET_PRINTER_ATTRIBUTES, uriOfQueue(queue->id));
  IppChoices::askForAttributes(request.get());
  Outcome asked = server.order(request.get(), resourceOfQueue(queue->id), &queue->attributes);
  if (asked) return asked;
  return Outcome::failed(Faults::tr("cannot open the printer \"%1\": %2").arg(queue->id, asked.reason()));
}

}  // namespace

Outcome openQueue(PrintServer& server, const QString& name, Queue* queue) {
  if (Outcome found = server.findQueue(name, &queue->destination); !found) return found;
  queue->id = QString::fromUtf8(queue->destination->name);
  queue->deviceUri = optionOf(*queue->destination, "device-uri");
  if (!isPrinterUri(queue->id)) {
    if (Outcome fetched = fetchPpdFile(server, queue->id, &queue->ppd); !fetched) return fetched;
  }
  return queue->ppd ? Outcome::done() : fetchAttributes(server, queue);
}

std::unique_ptr<QueueChoices> choicesOf(const Queue& queue) {
  if (queue.ppd || !queue.attributes) return std::make_unique<PpdChoices>(queue.ppd.get());
  return std::make_unique<IppChoices>(queue.attributes.get());
}

}  // namespace kesto
