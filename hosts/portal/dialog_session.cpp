#include "hosts/portal/dialog_session.h"

#include <QtCore/QLoggingCategory>
#include <QtDBus/QDBusConnectionInterface>

#include "hosts/channel/portal_settings.h"

namespace kesto {
namespace {

// A client expects lengths as floating-point numbers and everything else as text.
QVariantMap toVariants(const QJsonObject& object) {
  QVariantMap map;
  for (auto it = object.begin(); it != object.end(); ++it) {
    if (it.value().isDouble()) map.insert(it.key(), it.value().toDouble());
    if (it.value().isString()) map.insert(it.key(), it.value().toString());
  }
  return map;
}

// A client that dies closes its pipe and its bus at about the same time, in any order.
constexpr std::chrono::milliseconds settlingTime(500);

QJsonObject command(const char* word) {
  return {{QStringLiteral("do"), QLatin1String(word)}};
}

}  // namespace

DialogSession::DialogSession(const QDBusConnection& bus, Ticket ticket, QObject* parent)
    : QObject(parent),
      m_bus(bus),
      m_ticket(std::move(ticket)),
      m_dialog(this),
      m_clientWatcher(m_ticket.client, bus, QDBusServiceWatcher::WatchForUnregistration) {
  connect(&m_clientWatcher, &QDBusServiceWatcher::serviceUnregistered, this, &DialogSession::withdraw);
  connect(&m_dialog, &DialogProcess::received, this, &DialogSession::handleAnswer);
  connect(&m_dialog, &DialogProcess::finished, this, [this](bool isNormal) {
    end(isNormal ? Response::Cancelled : Response::Failed);
    deleteLater();
  });
  m_expiry.setSingleShot(true);
  connect(&m_expiry, &QTimer::timeout, this, &DialogSession::withdraw);
  m_settling.setSingleShot(true);
  connect(&m_settling, &QTimer::timeout, this, &DialogSession::confirmEnd);
}

Outcome DialogSession::open(const QString& program, const QJsonObject& open,
                            std::unique_ptr<PortalRequest> request, int document) {
  hold(std::move(request));
  if (Outcome started = m_dialog.start(program); !started) {
    end(Response::Failed);
    deleteLater();  // no process was started whose end would do this
    return started;
  }
  Outcome sent = m_dialog.send(open);
  if (sent && document >= 0) {
    m_state = State::ChoosingToPrint;
    QJsonObject print = command("print");
    print.insert(QStringLiteral("title"), open.value(QStringLiteral("title")));
    sent = m_dialog.send(print, document);
  }
  if (!sent) withdraw();
  return sent;
}

Outcome DialogSession::print(const QString& title, int document, std::unique_ptr<PortalRequest>* request) {
  m_expiry.stop();
  m_state = State::Printing;
  QJsonObject message = command("print");
  message.insert(QStringLiteral("title"), title);
  if (Outcome sent = m_dialog.send(message, document); !sent) {
    m_state = State::Ended;
    return sent;
  }
  hold(std::move(*request));
  return Outcome::done();
}

bool DialogSession::isOf(const QString& client, const QString& appId) const {
  return !m_hasPrinted && (m_ticket.client == client || (!appId.isEmpty() && m_ticket.appId == appId));
}

bool DialogSession::waitsFor(quint32 token, const QString& client) const {
  return m_state == State::Waiting && m_ticket.token == token && m_ticket.client == client;
}

void DialogSession::hold(std::unique_ptr<PortalRequest> request) {
  m_request = request.release();
  m_request->setParent(this);
  connect(m_request, &PortalRequest::closed, this, &DialogSession::withdraw);
}

void DialogSession::handleAnswer(const QJsonObject& message) {
  const QString word = message.value(QStringLiteral("answer")).toString();
  const bool hasDocument = m_state == State::ChoosingToPrint || m_state == State::Printing;
  if (word == u"chosen" && m_state == State::Choosing) return keepChoice(message);
  if (word == u"read" && hasDocument) return m_settling.start(settlingTime);
  if (word == u"taken" && hasDocument) return end(Response::Done);
  if (word == u"cancelled") return end(Response::Cancelled);
  if (word == u"failed" && hasDocument) return end(Response::Failed);
  if (m_state != State::Ended) qWarning("the print dialog sent an unexpected answer");
}

void DialogSession::keepChoice(const QJsonObject& message) {
  m_state = State::Waiting;
  m_expiry.start(m_ticket.lifetime);
  const auto part = [&](const char* name) { return message.value(QLatin1String(name)).toObject(); };
  answer(Response::Done, {{QStringLiteral("settings"), toVariants(withoutPrivateKeys(part("settings")))},
                          {QStringLiteral("page-setup"), toVariants(part("pageSetup"))},
                          {QStringLiteral("token"), m_ticket.token}});
}

// The end of a pipe is the end of the document only while its writer lives.
void DialogSession::confirmEnd() {
  if (!m_bus.interface()->isServiceRegistered(m_ticket.client)) return withdraw();
  if (Outcome told = m_dialog.send(command("whole")); !told)
    qWarning("cannot continue the print dialog: %ls", qUtf16Printable(told.reason()));
}

// Called when the client or the front end withdraws the print, or its time is up. A job whose document has
// arrived goes on.
void DialogSession::withdraw() {
  m_settling.stop();
  if (m_state == State::Ended) return answer(Response::Failed);
  if (Outcome told = m_dialog.send(command("close")); !told)
    qWarning("cannot close the print dialog: %ls", qUtf16Printable(told.reason()));
  end(Response::Failed);
}

void DialogSession::end(Response response) {
  m_expiry.stop();
  m_settling.stop();
  m_state = State::Ended;
  m_hasPrinted = response == Response::Done;
  answer(response);
}

void DialogSession::answer(Response response, const QVariantMap& results) {
  if (m_request == nullptr) return;
  m_request->answer(response, results);
  m_request->deleteLater();  // it may be the caller
  m_request = nullptr;
}

}  // namespace kesto
