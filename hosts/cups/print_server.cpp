#include "hosts/cups/print_server.h"

#include <QtCore/QUrl>
#include <algorithm>
#include <array>

#include "hosts/cups/bounds.h"
#include "hosts/cups/faults.h"
#include "platform/secret.h"

namespace kesto {
namespace {

QString nameOfState(int state) {
  switch (state) {
    case IPP_PSTATE_PROCESSING:
      return QStringLiteral("processing");
    case IPP_PSTATE_STOPPED:
      return QStringLiteral("stopped");
    default:
      return QStringLiteral("idle");
  }
}

// No printer has more of them; a window would have a widget for each.
constexpr int mostListed = 64;

// The printer lists names, colors and levels of its supplies in the same order.
void addSupplies(const QByteArrayView& name, ipp_attribute_t* attribute, std::vector<Supply>* supplies) {
  const auto count = static_cast<std::size_t>(qMin(ippGetCount(attribute), mostListed));
  if (supplies->size() < count) supplies->resize(count);
  const QStringList texts = name == "marker-levels" ? QStringList() : textsOf(attribute);
  for (std::size_t i = 0; i < count; ++i) {
    Supply& supply = (*supplies)[i];
    const int place = static_cast<int>(i);
    if (name == "marker-names") supply.name = texts.at(place);
    if (name == "marker-colors") supply.color = texts.at(place);
    if (name == "marker-levels") supply.level = qMin(ippGetInteger(attribute, place), 100);
  }
}

void addAttribute(ipp_attribute_t* attribute, QueueSummary* queue) {
  const QByteArrayView name(ippGetName(attribute));
  const auto text = [&] { return QString::fromUtf8(ippGetString(attribute, 0, nullptr)); };
  if (name == "printer-name") queue->name = text();
  if (name == "printer-info") queue->info = text();
  if (name == "device-uri") queue->deviceUri = text();
  if (name == "printer-state") queue->state = nameOfState(ippGetInteger(attribute, 0));
  if (name == "printer-state-message") queue->stateMessage = text();
  if (name == "printer-is-accepting-jobs") queue->isAccepting = ippGetBoolean(attribute, 0) != 0;
  if (name == "printer-location") queue->location = text();
  if (name == "queued-job-count") queue->jobs = ippGetInteger(attribute, 0);
  if (name == "printer-make-and-model") queue->model = text();
  if (name == "printer-state-reasons") queue->stateReasons = textsOf(attribute).mid(0, mostListed);
  if (name.startsWith("marker-")) addSupplies(name, attribute, &queue->supplies);
}

void askForSummary(ipp_t* request) {
  static const char* const shown[] = {"marker-colors",
                                      "marker-levels",
                                      "marker-names",
                                      "printer-name",
                                      "printer-info",
                                      "device-uri",
                                      "printer-make-and-model",
                                      "printer-state-reasons",
                                      "printer-state",
                                      "printer-state-message",
                                      "printer-is-accepting-jobs",
                                      "printer-location",
                                      "queued-job-count"};
  askFor(request, shown);
}

void askForName(ipp_t* request) {
  askFor(request, std::array{"printer-name"});
}

QByteArray nameOf(ipp_t* reply) {
  ipp_attribute_t* name = ippFindAttribute(reply, "printer-name", IPP_TAG_NAME);
  return name == nullptr ? nullptr : ippGetString(name, 0, nullptr);
}

// In a reply, each printer is a run of attributes in the printer group.
std::vector<QueueSummary> queuesOf(ipp_t* reply) {
  std::vector<QueueSummary> queues;
  bool isInside = false;
  for (ipp_attribute_t* each = ippFirstAttribute(reply); each != nullptr; each = ippNextAttribute(reply)) {
    const bool isPrinter = ippGetGroupTag(each) == IPP_TAG_PRINTER && ippGetName(each) != nullptr;
    if (isPrinter && !isInside) queues.emplace_back();
    isInside = isPrinter;
    if (isPrinter) addAttribute(each, &queues.back());
  }
  std::erase_if(queues, [](const QueueSummary& each) { return !isQueueName(each.name); });
  return queues;
}

// The result of a request, in the server's words.
Outcome outcomeOf(ipp_t* reply, ipp_status_t allowed) {
  const ipp_status_t status = ippGetStatusCode(reply);
  if (status <= IPP_STATUS_OK_EVENTS_COMPLETE || status == allowed) return Outcome::done();
  ipp_attribute_t* message = ippFindAttribute(reply, "status-message", IPP_TAG_TEXT);
  const QString words = QString::fromUtf8(message == nullptr ? nullptr : ippGetString(message, 0, nullptr));
  return Outcome::failed(words.isEmpty() ? QString::fromUtf8(ippErrorString(status)) : words);
}

}  // namespace

void FreeDest::operator()(cups_dest_t* dest) const {
  cupsFreeDests(1, dest);
}

QString optionOf(const cups_dest_t& destination, const char* name) {
  return QString::fromUtf8(cupsGetOption(name, destination.num_options, destination.options));
}

bool isQueueName(QStringView name) {
  const auto isForbidden = [](QChar c) { return c < u' ' || c == u'\x7F' || c == u'/' || c == u'#'; };
  return !name.isEmpty() && std::ranges::none_of(name, isForbidden);
}

bool isPrinterUri(const QString& queue) {
  return queue.startsWith(u"ipp://") || queue.startsWith(u"ipps://");
}

QByteArray resourceOfQueue(const QString& queue) {
  return isPrinterUri(queue) ? QUrl(queue).path(QUrl::FullyEncoded).toLatin1()
                             : "/printers/" + queue.toUtf8();
}

QByteArray uriOfQueue(const QString& queue) {
  if (isPrinterUri(queue)) return queue.toUtf8();
  std::array<char, HTTP_MAX_URI> uri{};
  httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), uri.size(), "ipp", nullptr, "localhost", 0,
                   "/printers/%s", queue.toUtf8().constData());
  return uri.data();
}

Ipp requestTo(ipp_op_t operation, const QByteArray& printerUri, int job, const char* user) {
  Ipp request(ippNewRequest(operation));
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, printerUri.constData());
  if (job != 0) ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", job);
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, user);
  return request;
}

Outcome PrintServer::connect(const QString& address, std::chrono::milliseconds limit,
                             std::unique_ptr<PrintServer>* server, const std::shared_ptr<Watchdog>& watchdog,
                             const std::shared_ptr<PasswordKeeper>& passwords) {
  server->reset();
  cupsSetServer(nullptr);  // forgets the address and the port that the thread used last
  if (!address.isNull()) cupsSetServer(address.toUtf8().constData());
  std::unique_ptr<HttpConnection> http;
  if (Outcome opened = HttpConnection::open(limit, watchdog, passwords, &http); !opened) return opened;
  server->reset(new PrintServer(std::move(http)));
  return Outcome::done();
}

Outcome PrintServer::findDefault(QueueName* name) {
  *name = defaultQueueName();
  if (!name->queue.isEmpty()) return Outcome::done();
  const Ipp request(ippNewRequest(IPP_OP_CUPS_GET_DEFAULT));
  askForName(request.get());
  Ipp reply;
  Outcome asked = order(request.get(), "/", &reply);
  // A server without a default queue answers "not found".
  if (!asked && ippGetStatusCode(reply.get()) != IPP_STATUS_ERROR_NOT_FOUND) return asked;
  name->queue = nameOf(reply.get());
  if (!name->queue.isEmpty()) return Outcome::done();
  return Outcome::failed(Faults::tr("no default printer is set; choose one with -d"));
}

Outcome PrintServer::findQueue(const QString& name, Destination* destination) {
  destination->reset();
  QueueName wanted = isPrinterUri(name) ? QueueName{name.toUtf8(), {}} : QueueName::of(name.toUtf8());
  if (name.isNull()) {
    if (Outcome found = findDefault(&wanted); !found) return found;
  }
  const QString queue = QString::fromUtf8(wanted.queue);
  const Ipp request = requestTo(IPP_OP_GET_PRINTER_ATTRIBUTES, uriOfQueue(queue));
  askForOptions(request.get());
  Ipp reply;
  const QByteArray resource = isPrinterUri(queue) ? resourceOfQueue(queue) : "/";
  if (Outcome asked = order(request.get(), resource, &reply); !asked) {
    if (!reply) return asked;
    if (ippGetStatusCode(reply.get()) == IPP_STATUS_ERROR_NOT_FOUND)
      return Outcome::failed(Faults::tr("there is no printer named \"%1\"").arg(queue));
    return Outcome::failed(Faults::tr("cannot open the printer \"%1\": %2").arg(queue, asked.reason()));
  }
  // The server may spell the name differently.
  if (const QByteArray itsName = nameOf(reply.get());
      isQueueName(QString::fromUtf8(itsName)) && !isPrinterUri(queue))
    wanted.queue = itsName;
  cups_dest_t* made = nullptr;
  cupsAddDest(wanted.queue.constData(), wanted.instance.isEmpty() ? nullptr : wanted.instance.constData(), 0,
              &made);
  destination->reset(made);
  addServersOptions(reply.get(), made);
  addKeptOptions(wanted, made);
  return Outcome::done();
}

Outcome PrintServer::exchange(ipp_t* request, HttpRequest message, Ipp* reply) {
  message.body = bytesOfRequest(request);
  message.longestReply = longestReply;
  message.isQuestion = QByteArrayView(ippOpString(ippGetOperation(request))).contains("Get-");
  if (!m_resource.isNull()) message.resource = m_resource;
  QByteArray bytes;
  const Outcome exchanged = m_http->exchange(message, &bytes);
  if (message.isSecret) wipe(message.body);
  return exchanged ? readReply(bytes, reply) : exchanged;
}

Outcome PrintServer::request(ipp_t* request, Ipp* reply) {
  return exchange(request, {.resource = "/"}, reply);
}

Outcome PrintServer::ask(ipp_t* request, Ipp* reply, ipp_status_t allowed) {
  ipp_attribute_t* user = ippFindAttribute(request, "requesting-user-name", IPP_TAG_NAME);
  const bool isOwn = user == nullptr || qstrcmp(ippGetString(user, 0, nullptr), cupsUser()) == 0;
  Outcome asked = exchange(request, {.resource = "/", .mayAskPassword = isOwn}, reply);
  return asked ? outcomeOf(reply->get(), allowed) : asked;
}

Outcome PrintServer::order(ipp_t* request, const QByteArray& resource, Ipp* reply, const Document& document) {
  Outcome ordered = exchange(request,
                             {.resource = resource,
                              .document = document,
                              .mayAskPassword = true,
                              .isSecret = ippFindAttribute(request, "auth-info", IPP_TAG_TEXT) != nullptr},
                             reply);
  return ordered ? outcomeOf(reply->get(), IPP_STATUS_OK) : ordered;
}

Outcome PrintServer::fetch(const QByteArray& resource, qsizetype longest, QByteArray* bytes) {
  Outcome fetched = m_http->exchange(
      {.resource = resource, .longestReply = longest, .mayAskPassword = true, .isQuestion = true}, bytes);
  if (fetched) return fetched;
  bytes->clear();
  return m_http->status() == HTTP_STATUS_NOT_FOUND ? Outcome::done() : fetched;
}

Outcome PrintServer::listQueues(std::vector<QueueSummary>* queues) {
  queues->clear();
  const Ipp request(ippNewRequest(IPP_OP_CUPS_GET_PRINTERS));
  askForSummary(request.get());
  Ipp reply;
  // A server without queues answers "not found".
  if (Outcome asked = ask(request.get(), &reply, IPP_STATUS_ERROR_NOT_FOUND); !asked) return asked;
  *queues = queuesOf(reply.get());
  std::ranges::sort(*queues, {}, &QueueSummary::name);
  return Outcome::done();
}

Outcome PrintServer::summarize(const QString& name, std::optional<QueueSummary>* queue) {
  queue->reset();
  const Ipp request(ippNewRequest(IPP_OP_GET_PRINTER_ATTRIBUTES));
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
               uriOfQueue(name).constData());
  askForSummary(request.get());
  Ipp reply;
  if (Outcome asked = ask(request.get(), &reply, IPP_STATUS_ERROR_NOT_FOUND); !asked) return asked;
  const std::vector<QueueSummary> found = queuesOf(reply.get());
  if (!found.empty()) *queue = found.front();
  return Outcome::done();
}

}  // namespace kesto
