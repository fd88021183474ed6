#include "hosts/channel/channel.h"

#include <fcntl.h>
#include <sys/socket.h>

#include <QtCore/QJsonDocument>
#include <array>
#include <cerrno>
#include <cstring>

namespace kesto {
namespace {

// Room for the control data of one descriptor, aligned as the system requires.
union ControlBuffer {
  cmsghdr header;
  std::array<char, CMSG_SPACE(sizeof(int))> bytes;
};

Outcome systemFailure(const QString& attempt) {
  return Outcome::failed(attempt + QStringLiteral(": ") + qt_error_string(errno));
}

// The descriptor that arrived with a message, if any.
Descriptor attachedTo(msghdr* message) {
  for (cmsghdr* part = CMSG_FIRSTHDR(message); part != nullptr; part = CMSG_NXTHDR(message, part)) {
    if (part->cmsg_level != SOL_SOCKET || part->cmsg_type != SCM_RIGHTS) continue;
    int number = -1;
    std::memcpy(&number, CMSG_DATA(part), sizeof number);
    return Descriptor(number);
  }
  return {};
}

}  // namespace

Outcome PrintChannel::makePair(Descriptor* one, Descriptor* other) {
  std::array<int, 2> ends{};
  if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0)
    return systemFailure(QStringLiteral("cannot create a channel to the dialog"));
  one->reset(ends[0]);
  other->reset(ends[1]);
  return Outcome::done();
}

PrintChannel::PrintChannel(Descriptor socket, QObject* parent)
    : QObject(parent),
      m_socket(std::move(socket)),
      m_notifier(m_socket.get(), QSocketNotifier::Read),
      m_buffer(largestMessage, Qt::Uninitialized) {
  ::fcntl(m_socket.get(), F_SETFD, FD_CLOEXEC);
  // The system counts its own bookkeeping against the buffer, and doubles the requested size to make up for
  // it.
  const int room = largestMessage;
  ::setsockopt(m_socket.get(), SOL_SOCKET, SO_SNDBUF, &room, sizeof room);
  connect(&m_notifier, &QSocketNotifier::activated, this, &PrintChannel::readMessage);
}

Outcome PrintChannel::send(const QJsonObject& message, int attached) {
  QByteArray bytes = QJsonDocument(message).toJson(QJsonDocument::Compact);
  if (bytes.size() > largestMessage) return Outcome::failed(QStringLiteral("the message is too large"));
  iovec part{.iov_base = bytes.data(), .iov_len = static_cast<std::size_t>(bytes.size())};
  msghdr datagram{};
  datagram.msg_iov = &part;
  datagram.msg_iovlen = 1;
  ControlBuffer control{};
  if (attached >= 0) {
    datagram.msg_control = control.bytes.data();
    datagram.msg_controllen = control.bytes.size();
    cmsghdr* header = CMSG_FIRSTHDR(&datagram);
    header->cmsg_level = SOL_SOCKET;
    header->cmsg_type = SCM_RIGHTS;
    header->cmsg_len = CMSG_LEN(sizeof attached);
    std::memcpy(CMSG_DATA(header), &attached, sizeof attached);
  }
  if (::sendmsg(m_socket.get(), &datagram, MSG_DONTWAIT | MSG_NOSIGNAL) < 0)
    return systemFailure(QStringLiteral("cannot write to the other end"));
  return Outcome::done();
}

void PrintChannel::readMessage() {
  iovec part{.iov_base = m_buffer.data(), .iov_len = static_cast<std::size_t>(m_buffer.size())};
  ControlBuffer control{};
  msghdr datagram{};
  datagram.msg_iov = &part;
  datagram.msg_iovlen = 1;
  datagram.msg_control = control.bytes.data();
  datagram.msg_controllen = control.bytes.size();
  const ssize_t size = ::recvmsg(m_socket.get(), &datagram, MSG_DONTWAIT | MSG_CMSG_CLOEXEC);
  if (size < 0 && (errno == EAGAIN || errno == EINTR)) return;
  Descriptor attached = size < 0 ? Descriptor() : attachedTo(&datagram);
  const bool isWhole = size > 0 && (datagram.msg_flags & (MSG_TRUNC | MSG_CTRUNC)) == 0;
  const QJsonDocument document = isWhole ? QJsonDocument::fromJson(m_buffer.left(size))
                                         : QJsonDocument();  // a copy, because slots may destroy this object
  if (!document.isObject()) return close();
  Q_EMIT received(document.object(), attached);
}

void PrintChannel::close() {
  // The notifier must be destroyed before its descriptor.
  m_notifier.setEnabled(false);
  m_socket.reset();
  Q_EMIT closed();
}

}  // namespace kesto
