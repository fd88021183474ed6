// The addresses of a host by its name.
#pragma once

#include <sys/socket.h>

#include <QtCore/QList>
#include <QtCore/QObject>
#include <memory>

#include "platform/descriptor.h"

class QSocketNotifier;

namespace kesto {

/// Where to connect to.
struct SocketAddress {
  sockaddr_storage storage{};
  socklen_t length = 0;

  const sockaddr* get() const { return reinterpret_cast<const sockaddr*>(&storage); }
};

/// Asks the system in a thread that nobody waits for. Where name servers are silent the system's look-up
/// takes a minute and cannot be stopped. Destroying this object abandons the thread, and the process can end
/// before it; with Qt's own look-up the process would wait.
class HostLookup : public QObject {
  Q_OBJECT

 public:
  HostLookup();
  ~HostLookup() override;

  /// Starts the look-up of a name or a numeric address, for connections to a port; call it once. False,
  /// without a later signal, when no descriptor or thread is available.
  bool start(const QString& host, quint16 port);

 Q_SIGNALS:
  /// In the system's order; empty when the name is not known.
  void found(const QList<kesto::SocketAddress>& addresses);

 private:
  struct Answer;
  void take();

  std::shared_ptr<Answer> m_answer;
  Descriptor m_bell;  // readable once the answer is there
  std::unique_ptr<QSocketNotifier> m_notifier;
};

}  // namespace kesto
