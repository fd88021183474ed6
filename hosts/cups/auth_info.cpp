#include "hosts/cups/auth_info.h"

#include <array>
#include <vector>

#include "platform/secret.h"

namespace kesto {
namespace {

constexpr char authInfoRequired[] = "auth-info-required";

// Asks the scheduler what the printer wants to know.
Outcome askPrinter(PrintServer& server, const QString& queue, Ipp* printer) {
  const Ipp request = requestTo(IPP_OP_GET_PRINTER_ATTRIBUTES, uriOfQueue(queue));
  askFor(request.get(), std::array{authInfoRequired});
  return server.order(request.get(), resourceOfQueue(queue), printer);
}

// None for a printer that asks for nothing, or for a ticket, which the scheduler takes from the connection.
QStringList wantedBy(ipp_t* printer) {
  QStringList wanted = textsOf(ippFindAttribute(printer, authInfoRequired, IPP_TAG_KEYWORD));
  return wanted.contains(QStringLiteral("password")) ? wanted : QStringList();
}

QString valueOf(const Credentials& credentials, const QString& name) {
  if (name == u"domain") return credentials.domain;
  return name == u"password" ? credentials.password : credentials.user;
}

PasswordQuestion questionOf(const QString& queue, const QStringList& wanted) {
  PasswordQuestion question{.subject = queue, .isPrinter = true, .wanted = wanted};
  question.proposed.user = QString::fromUtf8(cupsUser());
  return question;
}

Outcome ask(PrintServer& server, const PasswordQuestion& question, const std::optional<Credentials>& refused,
            QStringList* authInfo) {
  Credentials credentials;
  Outcome found = server.passwords()->find(question, refused, &credentials);
  if (!found) return found;
  for (const QString& name : question.wanted)
    authInfo->append(valueOf(credentials, name));
  return found;
}

}  // namespace

Outcome findAuthInfo(PrintServer& server, const QString& queue, QStringList* authInfo) {
  Ipp printer;
  Outcome asked = askPrinter(server, queue, &printer);
  if (!printer) return asked;
  const QStringList wanted = wantedBy(printer.get());
  if (wanted.isEmpty() || server.passwords() == nullptr) return Outcome::done();
  return ask(server, questionOf(queue, wanted), {}, authInfo);
}

Outcome authenticateJob(PrintServer& server, const SentJob& job, bool* isDeclined) {
  Ipp printer;
  if (Outcome asked = askPrinter(server, job.queue, &printer); !asked) return asked;
  const QStringList wanted = wantedBy(printer.get());
  *isDeclined = server.passwords() == nullptr || wanted.isEmpty();
  if (*isDeclined) return Outcome::failed(QStringLiteral("nobody can be asked for the password"));
  const PasswordQuestion toUser = questionOf(job.queue, wanted);
  std::optional<Credentials> refused = server.passwords()->kept(toUser);
  QStringList authInfo;
  Outcome answered = ask(server, toUser, refused, &authInfo);
  if (refused) wipe(*refused);
  *isDeclined = !answered;
  if (!answered) return answered;
  const Ipp request = requestTo(IPP_OP_CUPS_AUTHENTICATE_JOB, uriOfQueue(job.queue), job.number);
  addAuthInfo(request.get(), authInfo);
  Ipp reply;
  return server.order(request.get(), "/jobs/", &reply);
}

void addAuthInfo(ipp_t* request, const QStringList& authInfo) {
  if (authInfo.isEmpty()) return;
  QByteArrayList bytes;
  std::vector<const char*> values;
  for (const QString& each : authInfo)
    bytes.append(each.toUtf8());
  for (const QByteArray& each : bytes)
    values.push_back(each.constData());
  ippAddStrings(request, IPP_TAG_JOB, IPP_TAG_TEXT, "auth-info", static_cast<int>(values.size()), nullptr,
                values.data());
  for (QByteArray& each : bytes)
    wipe(each);
}

}  // namespace kesto
