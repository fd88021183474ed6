#include "hosts/cups/auth_info.h"

#include <vector>

#include "platform/secret.h"

namespace kesto {
namespace {

// None for a printer that asks for nothing, or for a ticket, which the scheduler takes from the connection.
QStringList wantedBy(ipp_t* printer) {
  QStringList wanted = textsOf(ippFindAttribute(printer, "auth-info-required", IPP_TAG_KEYWORD));
  return wanted.contains(QStringLiteral("password")) ? wanted : QStringList();
}

QString valueOf(const Credentials& credentials, const QString& name) {
  if (name == u"domain") return credentials.domain;
  return name == u"password" ? credentials.password : credentials.user;
}

}  // namespace

Outcome findAuthInfo(PrintServer& server, const QString& queue, ipp_t* printer, QStringList* authInfo) {
  const QStringList wanted = wantedBy(printer);
  if (wanted.isEmpty() || server.passwords() == nullptr) return Outcome::done();
  PasswordQuestion question{.subject = queue, .isPrinter = true, .wanted = wanted};
  question.proposed.user = QString::fromUtf8(cupsUser());
  Credentials credentials;
  int tries = 0;
  if (Outcome found = server.passwords()->find(question, {}, &tries, &credentials); !found) return found;
  for (const QString& name : wanted)
    authInfo->append(valueOf(credentials, name));
  return Outcome::done();
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
