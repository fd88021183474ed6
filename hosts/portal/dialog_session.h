// What one dialog is to the portal's service: the request that it answers, and the ticket that it becomes.
#pragma once

#include <QtCore/QObject>
#include <QtCore/QTimer>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusServiceWatcher>
#include <chrono>
#include <memory>

#include "hosts/portal/dialog_process.h"
#include "hosts/portal/request.h"

namespace kesto {

/// Whom a session belongs to, and what its choices are kept under.
struct Ticket {
  QString client;  ///< The client's unique bus name.
  QString appId;   ///< As the front end knows the client; empty when it does not.
  quint32 token = 0;
  std::chrono::milliseconds lifetime{};  ///< From the choice on.
};

/// Lives as long as its dialog. The client's end, a withdrawn request and an expired ticket close the dialog;
/// once the choice is made and a document handed on, the dialog decides whether that one is whole.
class DialogSession : public QObject {
  Q_OBJECT

 public:
  DialogSession(const QDBusConnection& bus, Ticket ticket, QObject* parent);

  /// Starts the dialog `program` and opens it with the message `open`; its answer goes to `request`. With
  /// `document`, the dialog shows and prints that one. On failure the request is answered as failed.
  Outcome open(const QString& program, const QJsonObject& open, std::unique_ptr<PortalRequest> request,
               int document = -1);
  /// Hands the ticket's document on. Fails when the dialog is not there any more: `request` is untouched
  /// then, and the ticket spent in any case.
  Outcome print(const QString& title, int document, std::unique_ptr<PortalRequest>* request);

  quint32 token() const { return m_ticket.token; }
  /// Whether it is a dialog of this client's, or of the same application's.
  bool isOf(const QString& client, const QString& appId) const;
  /// Whether it waits for the document of this client's token.
  bool waitsFor(quint32 token, const QString& client) const;

 private:
  enum class State {
    Choosing,         ///< The user is asked.
    Waiting,          ///< The choice is made, the document is to come: the ticket is good.
    ChoosingToPrint,  ///< The user is asked, and the dialog has the document.
    Printing,         ///< Choice and document are the dialog's.
    Ended,            ///< Nothing is expected of the dialog but its end.
  };

  void hold(std::unique_ptr<PortalRequest> request);
  void handleAnswer(const QJsonObject& message);
  void keepChoice(const QJsonObject& message);
  void confirmEnd();
  void withdraw();
  void end(Response response);
  void answer(Response response, const QVariantMap& results = {});

  QDBusConnection m_bus;
  Ticket m_ticket;
  State m_state = State::Choosing;
  DialogProcess m_dialog;
  QDBusServiceWatcher m_clientWatcher;
  QTimer m_expiry;
  QTimer m_settling;                   // from the end of what the client wrote on
  PortalRequest* m_request = nullptr;  // a child; null when none waits
};

}  // namespace kesto
