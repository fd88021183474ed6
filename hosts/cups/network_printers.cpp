#include "hosts/cups/network_printers.h"

#include <algorithm>
#include <atomic>
#include <future>
#include <thread>

#include "hosts/cups/bounds.h"
#include "hosts/cups/faults.h"

namespace kesto {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds searchGrace(500);  // for the search to end by itself
constexpr milliseconds acceptPoll(100);
constexpr milliseconds longestLook(2000);  // for a name that may be mistyped
// The server asks the printer for what it can do before the queue accepts jobs.
constexpr milliseconds timeToAccept(10'000);

QueueSummary summaryOf(const cups_dest_t& printer) {
  QueueSummary summary;
  summary.name = QString::fromUtf8(printer.name);
  summary.info = optionOf(printer, "printer-info");
  summary.deviceUri = optionOf(printer, "device-uri");
  summary.location = optionOf(printer, "printer-location");
  summary.model = optionOf(printer, "printer-make-and-model");
  summary.state = QStringLiteral("idle");
  summary.isOnNetwork = true;
  return summary;
}

// What the search's thread uses, which may outlive whoever began it.
struct Search {
  std::shared_ptr<int> cancel;
  std::function<bool(const QueueSummary&)> found;

  static int take(void* search, unsigned flags, cups_dest_t* printer) {
    const auto* self = static_cast<Search*>(search);
    const bool isAdded = (flags & CUPS_DEST_FLAGS_REMOVED) == 0;
    return !isAdded || self->found(summaryOf(*printer)) ? 1 : 0;
  }
};

}  // namespace

bool searchNetwork(milliseconds time, const std::shared_ptr<int>& cancel,
                   const std::function<bool(const QueueSummary&)>& found) {
  std::packaged_task<bool()> task([time, search = std::make_shared<Search>(Search{cancel, found})] {
    return cupsEnumDests(CUPS_DEST_FLAGS_NONE, static_cast<int>(time.count()), search->cancel.get(),
                         CUPS_PRINTER_DISCOVERED, CUPS_PRINTER_DISCOVERED, Search::take, search.get()) != 0;
  });
  std::future<bool> ended = task.get_future();
  std::thread(std::move(task)).detach();
  if (ended.wait_for(time + searchGrace) == std::future_status::ready) return ended.get();
  std::atomic_ref(*cancel).store(1);
  return false;
}

std::vector<QueueSummary> networkPrinters(milliseconds time) {
  // The thread may still add one when the time is up.
  struct Found {
    std::mutex mutex;
    std::vector<QueueSummary> printers;
  };
  const auto found = std::make_shared<Found>();
  (void)searchNetwork(time, std::make_shared<int>(0), [found](const QueueSummary& printer) {
    const std::lock_guard lock(found->mutex);
    if (found->printers.size() < mostNetworkPrinters) found->printers.push_back(printer);
    return true;
  });
  const std::lock_guard lock(found->mutex);
  std::vector<QueueSummary> printers = std::move(found->printers);
  std::ranges::sort(printers, {}, &QueueSummary::name);
  return printers;
}

Outcome openOrMakeQueue(PrintServer& server, const QString& name, milliseconds time, Queue* queue,
                        std::optional<QueueSummary>* announced) {
  Outcome opened = openQueue(server, name, queue);
  if (opened || name.isEmpty() || isPrinterUri(name)) return opened;
  std::optional<QueueSummary> known;
  if (!server.summarize(name, &known) || known) return opened;
  // Where it is not found, the first reason is the better one.
  const std::vector<QueueSummary> printers = networkPrinters(std::min(time, longestLook));
  const auto found = std::ranges::find(printers, name, &QueueSummary::name);
  if (found == printers.end()) return opened;
  *announced = *found;
  if (Outcome made = makeQueue(server, *found); !made) return made;
  return openQueue(server, name, queue);
}

Outcome makeQueue(PrintServer& server, const QueueSummary& printer) {
  const Ipp request = requestTo(IPP_OP_CUPS_CREATE_LOCAL_PRINTER, "ipp://localhost/");
  const auto add = [&](ipp_tag_t tag, const char* attribute, const QString& value) {
    if (!value.isEmpty())
      ippAddString(request.get(), IPP_TAG_PRINTER, tag, attribute, nullptr, value.toUtf8().constData());
  };
  add(IPP_TAG_URI, "device-uri", printer.deviceUri);
  add(IPP_TAG_NAME, "printer-name", printer.name);
  add(IPP_TAG_TEXT, "printer-info", printer.info);
  add(IPP_TAG_TEXT, "printer-location", printer.location);
  Ipp reply;
  if (Outcome made = server.order(request.get(), "/", &reply); !made)
    return Outcome::failed(
        Faults::tr("cannot set up the printer \"%1\": %2").arg(printer.name, made.reason()));
  const auto end = std::chrono::steady_clock::now() + timeToAccept;
  std::optional<QueueSummary> queue;
  do {
    if (Outcome asked = server.summarize(printer.name, &queue); !asked) return asked;
    if (queue && queue->isAccepting) return Outcome::done();
    std::this_thread::sleep_for(acceptPoll);
  } while (std::chrono::steady_clock::now() < end);
  const QString why = queue && !queue->stateMessage.isEmpty() ? queue->stateMessage
                                                              : Faults::tr("the printer does not answer");
  return Outcome::failed(Faults::tr("cannot set up the printer \"%1\": %2").arg(printer.name, why));
}

}  // namespace kesto
