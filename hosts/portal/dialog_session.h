// One dialog as the portal's service sees it: the request that it answers, and the ticket that it becomes.
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

/// Who a session belongs to, and its token.
struct Ticket {
  QString client;  ///< The client's unique bus name.
  QString appId;   ///< The front end's identifier for the client; empty when unknown.
  quint32 token = 0;
  std::chrono::milliseconds lifetime{};  ///< Counted from the choice.
};

/// Exists as long as its dialog. The end of the client, a withdrawn request and an expired ticket close the
/// dialog. After the choice is made and a document handed over, the dialog decides whether the document is
/// complete.
class DialogSession : public QObject {
  Q_OBJECT

 public:
  DialogSession(const QDBusConnection& bus, Ticket ticket, QObject* parent);

  /// Starts the dialog `program` and opens it with the message `open`; its answer goes to `request`. With
  /// `document`, the dialog shows and prints it. On failure the request is answered as failed.
  Outcome open(const QString& program, const QJsonObject& open, std::unique_ptr<PortalRequest> request,
               int document = -1);
  /// Hands the ticket's document over. Fails when the dialog no longer exists; `request` is then untouched.
  /// The ticket is used up in either case.
  Outcome print(const QString& title, int document, std::unique_ptr<PortalRequest>* request);

  quint32 token() const { return m_ticket.token; }
  /// Whether the dialog belongs to this client or to the same application, and does not merely follow its
  /// job.
  bool isOf(const QString& client, const QString& appId) const;
  /// Whether the dialog waits for the document of this client's token.
  bool waitsFor(quint32 token, const QString& client) const;

 private:
  enum class State {
    Choosing,         ///< The user is choosing.
    Waiting,          ///< The choice is made and the document is to come: the ticket is valid.
    ChoosingToPrint,  ///< The user is choosing, and the dialog has the document.
    Printing,         ///< The dialog has choice and document.
    Ended,            ///< Nothing is expected but the end of the dialog.
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
  bool m_hasPrinted = false;  // the dialog is left with the job
  DialogProcess m_dialog;
  QDBusServiceWatcher m_clientWatcher;
  QTimer m_expiry;
  QTimer m_settling;                   // runs from the end of what the client wrote
  PortalRequest* m_request = nullptr;  // a child; null when none waits
};

}  // namespace kesto
