#include "folders/tcp_stream.h"

#include <poll.h>
#include <sys/socket.h>

#include <QtCore/QSocketNotifier>
#include <QtCore/QTimer>
#include <cerrno>

namespace kesto {
namespace {

constexpr qsizetype blockSize = 65536;

TcpStream::End endOf(int error) {
  switch (error) {
    case ECONNREFUSED:
      return TcpStream::End::Refused;
    case ECONNRESET:
    case EPIPE:
      return TcpStream::End::Reset;
    case EMFILE:
    case ENFILE:
    case ENOBUFS:
    case ENOMEM:
      return TcpStream::End::NoResources;
    default:
      return TcpStream::End::Other;
  }
}

// A reset that follows the peer's orderly end is not reported when reading. After such an end alone, this
// side could still send.
bool isBroken(const Descriptor& socket) {
  pollfd state{.fd = socket.get(), .events = 0, .revents = 0};
  return ::poll(&state, 1, 0) > 0 && (state.revents & (POLLHUP | POLLERR)) != 0;
}

bool isForLater(int error) {
  return error == EAGAIN || error == EINTR;
}

}  // namespace

TcpStream::TcpStream() = default;

TcpStream::~TcpStream() = default;

void TcpStream::open(const QString& host, quint16 port, const QByteArray& request) {
  m_unsent = request;
  connect(&m_lookup, &HostLookup::found, this, [this](const QList<SocketAddress>& addresses) {
    m_addresses = addresses;
    tryNext();
  });
  if (!m_lookup.start(host, port)) endWith(End::NoResources);
}

void TcpStream::tryNext() {
  m_writable.reset();
  if (m_addresses.isEmpty()) return endWith(m_fault);
  const SocketAddress address = m_addresses.takeFirst();
  m_socket.reset(::socket(address.storage.ss_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
  if (m_socket && (::connect(m_socket.get(), address.get(), address.length) == 0 || errno == EINPROGRESS)) {
    m_writable = std::make_unique<QSocketNotifier>(m_socket.get(), QSocketNotifier::Write);
    connect(m_writable.get(), &QSocketNotifier::activated, this, &TcpStream::goOn);
    return;
  }
  m_fault = endOf(errno);
  tryNext();
}

// The connection is made, or has failed, or takes more of the request.
void TcpStream::goOn() {
  if (m_isConnected) return send();
  int error = 0;
  socklen_t size = sizeof error;
  if (::getsockopt(m_socket.get(), SOL_SOCKET, SO_ERROR, &error, &size) != 0) error = errno;
  if (error != 0) {
    m_fault = endOf(error);
    // This is called from the notifier that goes.
    m_writable->setEnabled(false);
    return QTimer::singleShot(0, this, &TcpStream::tryNext);
  }
  m_isConnected = true;
  m_readable = std::make_unique<QSocketNotifier>(m_socket.get(), QSocketNotifier::Read);
  connect(m_readable.get(), &QSocketNotifier::activated, this, &TcpStream::receive);
  send();
}

// A failure shows when reading, after what the peer has sent before.
void TcpStream::send() {
  const ssize_t sent =
      ::send(m_socket.get(), m_unsent.constData(), static_cast<std::size_t>(m_unsent.size()), MSG_NOSIGNAL);
  if (sent > 0) m_unsent.remove(0, sent);
  const bool isOver = m_unsent.isEmpty() || (sent < 0 && !isForLater(errno));
  m_writable->setEnabled(!isOver);
}

void TcpStream::receive() {
  QByteArray block(blockSize, Qt::Uninitialized);
  const ssize_t count = ::recv(m_socket.get(), block.data(), static_cast<std::size_t>(block.size()), 0);
  if (count < 0) return isForLater(errno) ? void() : endWith(endOf(errno));
  if (count == 0) return endWith(isBroken(m_socket) ? End::Reset : End::Closed);
  block.truncate(count);
  Q_EMIT received(block);
}

void TcpStream::endWith(End how) {
  if (m_readable) m_readable->setEnabled(false);
  if (m_writable) m_writable->setEnabled(false);
  Q_EMIT ended(how);
}

}  // namespace kesto
