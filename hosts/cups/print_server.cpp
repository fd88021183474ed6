#include "hosts/cups/print_server.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

#include "hosts/cups/faults.h"

namespace kesto {
namespace {

// libcups asks whether to go on waiting: never.
int giveUp(http_t* /*http*/, void* /*data*/) {
  return 0;
}

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

void addAttribute(ipp_attribute_t* attribute, QueueSummary* queue) {
  const QByteArrayView name(ippGetName(attribute));
  const auto text = [&] { return QString::fromUtf8(ippGetString(attribute, 0, nullptr)); };
  if (name == "printer-name") queue->name = text();
  if (name == "printer-info") queue->info = text();
  if (name == "device-uri") queue->deviceUri = text();
  if (name == "printer-state") queue->state = nameOfState(ippGetInteger(attribute, 0));
  if (name == "printer-is-accepting-jobs") queue->isAccepting = ippGetBoolean(attribute, 0) != 0;
}

void askForSummary(ipp_t* request) {
  static const char* const shown[] = {"printer-name", "printer-info", "device-uri", "printer-state",
                                      "printer-is-accepting-jobs"};
  ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", std::size(shown),
                nullptr, shown);
}

// Each printer of a reply is a run of attributes in the printer group.
std::vector<QueueSummary> queuesOf(ipp_t* reply) {
  std::vector<QueueSummary> queues;
  bool isInside = false;
  for (ipp_attribute_t* each = ippFirstAttribute(reply); each != nullptr; each = ippNextAttribute(reply)) {
    const bool isPrinter = ippGetGroupTag(each) == IPP_TAG_PRINTER && ippGetName(each) != nullptr;
    if (isPrinter && !isInside) queues.emplace_back();
    isInside = isPrinter;
    if (isPrinter) addAttribute(each, &queues.back());
  }
  return queues;
}

}  // namespace

void CloseHttp::operator()(http_t* http) const {
  httpClose(http);
}

void FreeDest::operator()(cups_dest_t* dest) const {
  cupsFreeDests(1, dest);
}

Outcome lastCupsError(const QString& attempt) {
  // A wait that was given up is no error to libcups.
  const QString reason = cupsLastError() > IPP_STATUS_OK_EVENTS_COMPLETE
                             ? QString::fromUtf8(cupsLastErrorString())
                             : Faults::tr("the print server does not answer");
  return Outcome::failed(attempt + QStringLiteral(": ") + reason);
}

QString optionOf(const cups_dest_t& destination, const char* name) {
  return QString::fromUtf8(cupsGetOption(name, destination.num_options, destination.options));
}

QByteArray uriOfQueue(const QString& queue) {
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
                             std::unique_ptr<PrintServer>* server) {
  server->reset();
  if (!address.isNull()) cupsSetServer(address.toUtf8().constData());
  const QString name = QStringLiteral("%1:%2").arg(QString::fromUtf8(cupsServer())).arg(ippPort());
  http_t* http = httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                              static_cast<int>(limit.count()), nullptr);
  if (http == nullptr) return lastCupsError(Faults::tr("the print server %1 does not answer").arg(name));
  server->reset(new PrintServer(http));
  httpSetTimeout(http, std::chrono::duration<double>(limit).count(), giveUp, nullptr);
  return Outcome::done();
}

Outcome PrintServer::findQueue(const QString& name, Destination* destination) {
  // libcups looks for a queue on connections of its own as well, which wait for a minute: a server that is
  // silent is to be known before.
  if (Outcome answered = probe(); !answered) return answered;
  // "queue/instance" names a user's own set of options for the queue.
  const QByteArray queue = name.section(u'/', 0, 0).toUtf8();
  const QByteArray instance = name.section(u'/', 1).toUtf8();
  destination->reset(cupsGetNamedDest(http(), name.isNull() ? nullptr : queue.constData(),
                                      instance.isEmpty() ? nullptr : instance.constData()));
  if (*destination) return Outcome::done();
  return name.isNull()
             ? Outcome::failed(QStringLiteral("there is no default queue, or LPDEST or PRINTER names none; "
                                              "choose one with -d"))
             : lastCupsError(Faults::tr("the queue %1 cannot be had").arg(name));
}

Outcome PrintServer::probe() {
  QByteArray reply;
  const Ipp request(ippNewRequest(IPP_OP_CUPS_GET_DEFAULT));
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
               "printer-name");
  Outcome answered = exchange(request.get(), &reply);
  // One that wants to know who asks has answered, too.
  return httpGetStatus(http()) == HTTP_STATUS_ERROR ? answered : Outcome::done();
}

// The reply is read in blocks: libcups's own reading of it takes a system call for nearly every value.
Outcome PrintServer::exchange(ipp_t* request, QByteArray* reply) {
  if (cupsSendRequest(http(), request, "/", ippLength(request)) != HTTP_STATUS_CONTINUE) {
    return lastCupsError(Faults::tr("the print server does not take the request"));
  }
  http_status_t status = HTTP_STATUS_CONTINUE;
  while (status == HTTP_STATUS_CONTINUE)
    status = httpUpdate(http());
  if (status != HTTP_STATUS_OK) {
    httpFlush(http());
    // A wait that was given up leaves no error behind.
    const int error = httpError(http()) == 0 ? ETIMEDOUT : httpError(http());
    const char* text = status == HTTP_STATUS_ERROR ? std::strerror(error) : httpStatus(status);
    return Outcome::failed(Faults::tr("the print server does not answer") + QStringLiteral(": ") +
                           QString::fromUtf8(text));
  }
  QByteArray block(65536, Qt::Uninitialized);
  ssize_t count = 0;
  while ((count = httpRead2(http(), block.data(), static_cast<std::size_t>(block.size()))) > 0) {
    reply->append(block.constData(), count);
  }
  return count == 0 ? Outcome::done() : Outcome::failed(Faults::tr("the print server's answer breaks off"));
}

Outcome PrintServer::request(ipp_t* request, Ipp* reply) {
  QByteArray bytes;
  if (Outcome exchanged = exchange(request, &bytes); !exchanged) return exchanged;
  return readReply(bytes, reply);
}

Outcome PrintServer::ask(ipp_t* request, Ipp* reply, ipp_status_t allowed) {
  if (Outcome asked = this->request(request, reply); !asked) return asked;
  const ipp_status_t status = ippGetStatusCode(reply->get());
  if (status <= IPP_STATUS_OK_EVENTS_COMPLETE || status == allowed) return Outcome::done();
  return Outcome::failed(QString::fromUtf8(ippErrorString(status)));
}

Outcome PrintServer::listQueues(std::vector<QueueSummary>* queues) {
  queues->clear();
  const Ipp request(ippNewRequest(IPP_OP_CUPS_GET_PRINTERS));
  askForSummary(request.get());
  Ipp reply;
  // A server without queues says that it found nothing.
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
