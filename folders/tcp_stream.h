// One connection over TCP, driven by the thread's event loop.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <memory>

#include "folders/host_lookup.h"
#include "platform/descriptor.h"

class QSocketNotifier;

namespace kesto {

/// Sends a request to a host and hands over what comes back. Qt's own socket reports a reset as an orderly
/// end, and would make every program that opens a panel load its network library.
class TcpStream : public QObject {
  Q_OBJECT

 public:
  /// How a connection ended, or why there was none.
  enum class End { Closed, Reset, NotFound, Refused, NoResources, Other };

  TcpStream();
  ~TcpStream() override;

  /// Connects to the first address of `host`, a name or a numeric address, that accepts the connection, and
  /// sends `request`. Call it once.
  void open(const QString& host, quint16 port, const QByteArray& request);

 Q_SIGNALS:
  void received(const QByteArray& bytes);
  /// Emitted once, after all that was received; from within `open` when that cannot even begin.
  void ended(kesto::TcpStream::End how);

 private:
  void tryNext();
  void goOn();
  void send();
  void receive();
  void endWith(End how);

  HostLookup m_lookup;
  QList<SocketAddress> m_addresses;  // still to be tried
  End m_fault = End::NotFound;       // of the last address
  QByteArray m_unsent;
  bool m_isConnected = false;
  Descriptor m_socket;
  std::unique_ptr<QSocketNotifier> m_writable;
  std::unique_ptr<QSocketNotifier> m_readable;
};

}  // namespace kesto
