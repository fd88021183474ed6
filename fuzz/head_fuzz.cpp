// The input is a print server's answer to a request, head and body of HTTP, up to the end of the connection.
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <array>
#include <cerrno>
#include <mutex>
#include <thread>

#include "fuzz/targets.h"
#include "hosts/cups/print_server.h"

namespace kesto::fuzz {
namespace {

constexpr qsizetype largestBody = 10'000;

// Answers every connection with the same bytes, until the program ends.
class Server {
 public:
  Server() : m_socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    const QByteArray path = QFile::encodeName(this->path());
    require(path.size() < static_cast<qsizetype>(sizeof address.sun_path), "a socket's path is short");
    path.toStdString().copy(address.sun_path, sizeof address.sun_path - 1);
    require(::bind(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
                ::listen(m_socket, SOMAXCONN) == 0,
            "the server listens");
    m_thread = std::thread([this] { serve(); });
  }
  ~Server() {
    ::shutdown(m_socket, SHUT_RDWR);  // ends accept4
    m_thread.join();
    ::close(m_socket);
  }
  Server(const Server&) = delete;
  Server& operator=(const Server&) = delete;
  QString path() const { return m_folder.filePath(QStringLiteral("s")); }
  void answer(const QByteArray& bytes) {
    const std::lock_guard lock(m_mutex);
    m_bytes = bytes;
  }

 private:
  void serve() {
    for (;;) {
      const int client = ::accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC);
      if (client < 0 && errno == EINVAL) return;
      if (client < 0) continue;
      std::array<char, 4096> request{};
      // A server does not answer before it is asked.
      bool isOpen = ::recv(client, request.data(), request.size(), 0) > 0;
      QByteArray bytes;
      {
        const std::lock_guard lock(m_mutex);
        bytes = m_bytes;
      }
      while (isOpen && !bytes.isEmpty()) {
        const ssize_t count =
            ::send(client, bytes.constData(), static_cast<std::size_t>(bytes.size()), MSG_NOSIGNAL);
        isOpen = count > 0;
        if (isOpen) bytes.remove(0, count);
      }
      ::shutdown(client, SHUT_WR);
      while (isOpen && ::recv(client, request.data(), request.size(), 0) > 0) {
      }
      ::close(client);
    }
  }

  QTemporaryDir m_folder;
  int m_socket;
  std::mutex m_mutex;
  QByteArray m_bytes;
  std::thread m_thread;
};

}  // namespace

void runHead(const QByteArray& input) {
  static Server server;
  server.answer(input);
  std::unique_ptr<PrintServer> connection;
  require(bool(PrintServer::connect(server.path(), std::chrono::seconds(2), &connection)),
          "there is a connection");
  QByteArray body;
  const bool isFetched = bool(connection->fetch("/printers/Office.ppd", largestBody, &body));
  require(!isFetched || body.size() <= largestBody, "a body is within its limit");
  std::vector<QueueSummary> queues;
  const bool isListed = bool(connection->listQueues(&queues));
  require(isListed || queues.empty(), "a failure lists no queue");
}

}  // namespace kesto::fuzz
