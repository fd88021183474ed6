#include "hosts/cups/queue_events.h"

#include <chrono>
#include <limits>

namespace kesto {
namespace {

// Long enough for a dialog that asks every few seconds, and short enough for one that was killed.
constexpr std::chrono::seconds lease = std::chrono::minutes(10);

Ipp requestOf(ipp_op_t operation) {
  return requestTo(operation, "ipp://localhost/");
}

void addAttribute(ipp_attribute_t* attribute, ServerEvent* event) {
  const QByteArrayView name(ippGetName(attribute));
  const auto text = [&] { return QString::fromUtf8(ippGetString(attribute, 0, nullptr)); };
  if (name == "printer-name") event->queue = text();
  if (name == "notify-job-id") event->job = ippGetInteger(attribute, 0);
  if (name == "job-state") event->jobState = ippGetInteger(attribute, 0);
  if (name == "notify-text") event->text = text();
  if (name == "job-state-reasons") event->jobReasons = textsOf(attribute);
}

}  // namespace

Outcome QueueEvents::subscribe(std::span<const char* const> events) {
  const Ipp request = requestOf(IPP_OP_CREATE_PRINTER_SUBSCRIPTIONS);
  ippAddStrings(request.get(), IPP_TAG_SUBSCRIPTION, IPP_TAG_KEYWORD, "notify-events",
                static_cast<int>(events.size()), nullptr, events.data());
  ippAddString(request.get(), IPP_TAG_SUBSCRIPTION, IPP_TAG_KEYWORD, "notify-pull-method", nullptr, "ippget");
  ippAddInteger(request.get(), IPP_TAG_SUBSCRIPTION, IPP_TAG_INTEGER, "notify-lease-duration",
                static_cast<int>(lease.count()));
  Ipp reply;
  if (Outcome asked = m_server.ask(request.get(), &reply); !asked) return asked;
  ipp_attribute_t* id = ippFindAttribute(reply.get(), "notify-subscription-id", IPP_TAG_INTEGER);
  if (id == nullptr) return Outcome::failed(QStringLiteral("the print server refused a subscription"));
  m_id = ippGetInteger(id, 0);
  m_sequence = 1;
  return Outcome::done();
}

Outcome QueueEvents::take(std::vector<ServerEvent>* events) {
  const Ipp request = requestOf(IPP_OP_GET_NOTIFICATIONS);
  ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "notify-subscription-ids", m_id);
  ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "notify-sequence-numbers", m_sequence);
  Ipp reply;
  if (Outcome asked = m_server.ask(request.get(), &reply); !asked) return asked;
  bool isInside = false;
  for (ipp_attribute_t* each = ippFirstAttribute(reply.get()); each != nullptr;
       each = ippNextAttribute(reply.get())) {
    const bool isEvent = ippGetGroupTag(each) == IPP_TAG_EVENT_NOTIFICATION && ippGetName(each) != nullptr;
    if (isEvent && !isInside) events->emplace_back();
    isInside = isEvent;
    if (!isEvent) continue;
    addAttribute(each, &events->back());
    const int number = ippGetInteger(each, 0);
    const bool isNumber = QByteArrayView(ippGetName(each)) == "notify-sequence-number";
    if (isNumber && number >= m_sequence && number < std::numeric_limits<int>::max()) m_sequence = number + 1;
  }
  return Outcome::done();
}

void QueueEvents::cancel() {
  if (m_id == 0) return;
  const Ipp request = requestOf(IPP_OP_CANCEL_SUBSCRIPTION);
  ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "notify-subscription-id", m_id);
  Ipp reply;
  // If this fails, the subscription ends by itself.
  (void)m_server.ask(request.get(), &reply);
  m_id = 0;
}

}  // namespace kesto
