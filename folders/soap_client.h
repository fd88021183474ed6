// Posts one SOAP message to the printer and waits for the answer (docs/formats/folder-exchange.md).
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <chrono>
#include <memory>

#include "folders/answer_limits.h"
#include "folders/endpoint.h"
#include "folders/http_response.h"
#include "folders/tcp_stream.h"
#include "platform/panel.h"

namespace kesto {

class Platform;

/// Notified when an exchange fails or times out.
class SoapContext {
 public:
  virtual ~SoapContext() = default;
  virtual void recieveEndCallback() = 0;
  /// The requesting panel, for the trace; null without one.
  virtual const void* controller() const { return nullptr; }
};

/// The path of the answer file: "vwxyz.xml" in the user's temporary directory, or in "/tmp/" when there is
/// none.
QString answerFilePath(Platform& platform);

/// One exchange with one endpoint. The whole answer, whatever its HTTP status, replaces the answer file; a
/// failure leaves it as it was. Redirects are not followed and no proxy is used. When no descriptor is left
/// for a connection, nobody is notified.
class KestoPrintPdeVq250nJCSOAPClient : public QObject {
  Q_OBJECT

 public:
  static constexpr std::chrono::milliseconds timeLimit{20000};

  /// A client for the URL `serverName`; null when that is not a valid URL. `context` is not owned; it is
  /// notified of a failure before `sendMessage` returns, unless the exchange is cancelled. `limit` is the
  /// longest wait.
  static std::unique_ptr<KestoPrintPdeVq250nJCSOAPClient> initWithServerName(
      const QString& serverName, Platform& platform, SoapContext* context,
      std::chrono::milliseconds limit = timeLimit);

  /// Posts `body` and returns when the exchange has ended. Meanwhile it runs the thread's event loop.
  void sendMessage(const QByteArray& body);
  /// Whether the last exchange had a complete answer, and whether that is in the answer file.
  bool isAnswered() const { return m_finished == Finished::Answered; }
  bool isKept() const { return m_isKept; }
  /// Why the last exchange had no complete answer; `None` when it had one.
  FolderFault fault() const { return m_fault; }
  /// Ends the exchange at once; the context is neither notified nor used any more. This holds even when the
  /// exchange has just ended in another way and `sendMessage` has yet to return. What has arrived is not
  /// kept.
  void cancel();

 Q_SIGNALS:
  void finishedChanged();

 private:
  enum class Finished { Running, Answered, TimedOut, Failed, Cancelled };

  KestoPrintPdeVq250nJCSOAPClient(Endpoint url, Platform& platform, SoapContext* context,
                                  std::chrono::milliseconds limit);
  QByteArray requestFor(const QByteArray& body) const;
  void connectionDidReceiveResponse();
  void connectionDidReceiveData(const QByteArray& bytes);
  void connectionDidEnd(TcpStream::End how);
  void connectionFail();
  void connectionDidFinishLoading();
  void connectionDidFailWithError(FolderFault fault);
  void firedByTimer();
  void finish(Finished state);
  void waitUntilFinished();

  Endpoint m_url;
  Platform& m_platform;
  SoapContext* m_context;
  std::chrono::milliseconds m_limit;
  Finished m_finished = Finished::Running;
  bool m_isKept = false;
  FolderFault m_fault = FolderFault::None;
  HttpResponse m_responseData{answer_limits::bytes};
};

}  // namespace kesto
