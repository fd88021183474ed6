// A print server that misbehaves at one operation, in threads of its own.
#pragma once

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QtEndian>
#include <atomic>
#include <mutex>
#include <thread>
#include <vector>

namespace kesto::test {

/// What a server sends instead of a reply: one part once, then another over and over, if there is one.
struct Misbehaviour {
  QByteArray once{};
  QByteArray again{};
  std::chrono::milliseconds pause{0};  ///< before each repetition, and before it closes the connection
  bool closes = false;                 ///< instead of staying open
};

/// Answers IPP requests correctly, with a pending job and a subscription, except for one operation; to
/// requests without its password it answers that it wants one.
class HostileServer {
 public:
  static constexpr int atNothing = -2;
  static constexpr int atConnect = -1;
  static constexpr int atGet = 0;

  /// `operation` is IPP's number, `atGet` or `atConnect`.
  HostileServer(int operation, Misbehaviour misbehaviour)
      : m_operation(operation), m_misbehaviour(std::move(misbehaviour)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    (void)::bind(m_listener, reinterpret_cast<sockaddr*>(&address), length);
    ::listen(m_listener, 64);
    ::getsockname(m_listener, reinterpret_cast<sockaddr*>(&address), &length);
    m_port = ntohs(address.sin_port);
    m_threads.emplace_back([this] { accept(); });
  }
  ~HostileServer() {
    m_isOver = true;
    ::shutdown(m_listener, SHUT_RDWR);
    m_threads.front().join();  // after this no thread is added
    for (const int client : m_clients)
      ::shutdown(client, SHUT_RDWR);
    for (std::size_t i = 1; i < m_threads.size(); ++i)
      m_threads[i].join();
    for (const int client : m_clients)
      ::close(client);
    ::close(m_listener);
  }
  HostileServer(const HostileServer&) = delete;
  HostileServer& operator=(const HostileServer&) = delete;

  /// A server that wants a password, in the form "user:password", and otherwise behaves well.
  explicit HostileServer(const QByteArray& password) : HostileServer(atNothing, {}) {
    m_password = password.toBase64().toLower();
  }

  QString address() const { return QStringLiteral("127.0.0.1:%1").arg(m_port); }
  /// Whether it has misbehaved yet.
  bool hasMisbehaved() const { return m_hasMisbehaved; }

 private:
  void accept() {
    for (int client = 0; (client = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC)) >= 0;) {
      m_clients.push_back(client);
      m_threads.emplace_back([this, client] { serve(client); });
    }
  }
  static bool readMore(int client, QByteArray* bytes) {
    char block[4096];
    const ssize_t count = ::recv(client, block, sizeof block, 0);
    if (count > 0) bytes->append(block, count);
    return count > 0;
  }
  bool sendAll(int client, QByteArrayView bytes) const {
    while (!bytes.empty() && !m_isOver) {
      const ssize_t count =
          ::send(client, bytes.data(), static_cast<std::size_t>(bytes.size()), MSG_NOSIGNAL);
      if (count <= 0) return false;
      bytes = bytes.sliced(count);
    }
    return !m_isOver;
  }

  // The steps of one connection in their order; in several functions they would be harder to follow.
  // NOLINTNEXTLINE(readability-function-cognitive-complexity)
  void serve(int client) {
    if (m_operation == atConnect) return misbehave(client);
    for (QByteArray bytes; !m_isOver;) {
      while (!bytes.contains("\r\n\r\n"))
        if (!readMore(client, &bytes)) return;
      const QByteArray head = bytes.left(bytes.indexOf("\r\n\r\n") + 4).toLower();
      bytes.remove(0, head.size());
      if (head.startsWith("get ")) {
        if (m_operation == atGet) return misbehave(client);
        if (!sendAll(client, "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n")) return;
        continue;
      }
      const bool isChunked = head.contains("chunked");
      const auto begin = [&] { return isChunked ? bytes.indexOf("\r\n") + 2 : 0; };
      while (bytes.size() < begin() + 8)
        if (!readMore(client, &bytes)) return;
      if (qFromBigEndian<quint16>(bytes.constData() + begin() + 2) == m_operation) return misbehave(client);
      const qsizetype length =
          head.mid(head.indexOf("content-length: ") + 16).split('\r').first().toLongLong();
      while (bytes.size() < length)
        if (!readMore(client, &bytes)) return;
      if (!head.contains(m_password)) {
        bytes.remove(0, length);
        if (!sendAll(client,
                     "HTTP/1.1 401 No\r\nWWW-Authenticate: Basic realm=\"x\"\r\n"
                     "Content-Length: 0\r\n\r\n"))
          return;
        continue;
      }
      using namespace Qt::StringLiterals;
      const QByteArray reply = "\2\0\0\0"_ba + bytes.mid(4, 4) +
                               "\2\x21\0\6job-id\0\4\0\0\0\1\x23\0\x09job-state\0\4\0\0\0\3"
                               "\6\x21\0\x16notify-subscription-id\0\4\0\0\0\1\3"_ba;
      bytes.remove(0, length);
      if (!sendAll(client, "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(reply.size()) +
                               "\r\n\r\n" + reply))
        return;
    }
  }
  void misbehave(int client) {
    m_hasMisbehaved = true;
    if (!sendAll(client, m_misbehaviour.once)) return;
    if (m_misbehaviour.closes) {
      std::this_thread::sleep_for(m_misbehaviour.pause);
      ::shutdown(client, SHUT_RDWR);
      return;
    }
    while (!m_misbehaviour.again.isEmpty() && sendAll(client, m_misbehaviour.again))
      std::this_thread::sleep_for(m_misbehaviour.pause);
  }

  QByteArray m_password;  // null for none
  const int m_operation;
  const Misbehaviour m_misbehaviour;
  const int m_listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  int m_port = 0;
  std::atomic<bool> m_isOver = false;
  std::atomic<bool> m_hasMisbehaved = false;
  std::vector<int> m_clients;          // used by the accepting thread
  std::vector<std::thread> m_threads;  // the first accepts connections and adds the others
};

}  // namespace kesto::test
