// Measures what the folder exchange adds to the printer's own time: one exchange through the client against
// the same bytes over a bare socket, both with a printer that answers after a fixed delay.
#include <benchmark/benchmark.h>

#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>

#include "folders/soap_client.h"
#include "tests/support/bench_host.h"

namespace {

using namespace std::chrono_literals;

constexpr auto printerDelay = 20ms;
const QByteArray answer = "HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: 4\r\n\r\n<e/>";

// A printer in a separate thread.
class Printer {
 public:
  Printer() {
    m_thread.start();
    QObject* server = &m_server;
    m_server.moveToThread(&m_thread);
    QObject::connect(&m_server, &QTcpServer::newConnection, server,
                     [this] { serve(m_server.nextPendingConnection()); });
    QMetaObject::invokeMethod(
        server, [this] { m_server.listen(QHostAddress::LocalHost); }, Qt::BlockingQueuedConnection);
  }
  ~Printer() {
    QMetaObject::invokeMethod(
        &m_server, [this] { m_server.close(); }, Qt::BlockingQueuedConnection);
    m_thread.quit();
    m_thread.wait();
  }
  quint16 port() const { return m_server.serverPort(); }

 private:
  static void serve(QTcpSocket* socket) {
    QObject::connect(socket, &QTcpSocket::readyRead, socket, [socket] {
      if (!socket->readAll().endsWith("<request/>")) return;
      QTimer::singleShot(printerDelay, Qt::PreciseTimer, socket, [socket] {
        socket->write(answer);
        socket->disconnectFromHost();
      });
    });
    QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
  }

  QThread m_thread;
  QTcpServer m_server;
};

class Context : public kesto::SoapContext {
 public:
  void recieveEndCallback() override { std::abort(); }
};

void exchangeThroughTheClient(benchmark::State& state) {
  kesto::bench::application();
  const Printer printer;
  kesto::test::TestPlatform platform;
  Context context;
  const QString url = QStringLiteral("http://127.0.0.1:%1/kesto-mfp-srv").arg(printer.port());
  for ([[maybe_unused]] auto _ : state) {
    const auto client = kesto::KestoPrintPdeVq250nJCSOAPClient::initWithServerName(url, platform, &context);
    client->sendMessage("<request/>");
  }
}

void exchangeOverABareSocket(benchmark::State& state) {
  kesto::bench::application();
  const Printer printer;
  const QByteArray request = "POST /kesto-mfp-srv HTTP/1.1\r\nContent-Length: 10\r\n\r\n<request/>";
  for ([[maybe_unused]] auto _ : state) {
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, printer.port());
    if (!socket.waitForConnected()) std::abort();
    socket.write(request);
    while (socket.state() == QAbstractSocket::ConnectedState)
      socket.waitForReadyRead();
    benchmark::DoNotOptimize(socket.readAll());
  }
}

BENCHMARK(exchangeThroughTheClient)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(exchangeOverABareSocket)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
