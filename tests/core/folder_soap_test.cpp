#include <dlfcn.h>
#include <netdb.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QTimer>
#include <optional>

#include "folders/soap_client.h"
#include "tests/support/folder_server.h"
#include "tests/support/test_platform.h"

// Two names stand for what no test can rely on: a name server that never answers, and a host with an address
// that nobody listens at before one where somebody does.
extern "C" int getaddrinfo(const char* node, const char* service, const addrinfo* hints, addrinfo** list) {
  static const auto system = reinterpret_cast<decltype(&::getaddrinfo)>(::dlsym(RTLD_NEXT, "getaddrinfo"));
  const std::string_view name(node == nullptr ? "" : node);
  while (name == "silent.test")
    ::pause();
  if (name != "two.test") return system(node, service, hints, list);
  const int status = system("127.0.0.9", service, hints, list);
  return status != 0 ? status : system("127.0.0.1", service, hints, &(*list)->ai_next);
}

namespace kesto::test {
namespace {

using namespace std::chrono_literals;
using namespace std::string_view_literals;
using End = FolderServer::End;

// One exchange with an answer file of its own.
struct Exchange : SoapContext {
  void recieveEndCallback() override { ++failures; }

  bool run(const QString& url, std::chrono::milliseconds limit = 10s, const QByteArray& body = "<request/>") {
    client = KestoPrintPdeVq250nJCSOAPClient::initWithServerName(url, platform, this, limit);
    if (client) client->sendMessage(body);
    return client != nullptr;
  }

  QString path() { return answerFilePath(platform); }
  // The answer file's bytes; null without one.
  QByteArray answer() { return QFile::exists(path()) ? bytesOf(path()) : QByteArray(); }

  Exchange() { writeFile(path(), "old"); }

  TestPlatform platform;
  std::unique_ptr<KestoPrintPdeVq250nJCSOAPClient> client;
  int failures = 0;
};

TEST(SoapClient, SendsTheRequestAsItIs) {
  FolderServer server;
  Exchange exchange;
  const QByteArray body = "<request>\xC3\xA4</request>\n";
  ASSERT_TRUE(exchange.run(server.url(), 10s, body));
  ASSERT_EQ(server.requests.size(), 1);
  EXPECT_EQ(server.requests[0], "POST /kesto-mfp-srv HTTP/1.1\r\nHost: " + server.address().toLatin1() +
                                    "\r\nSOAPAction: \"SoapActionDummy\"\r\n"
                                    "Content-Type: application/soap; charset=\"utf-8\"\r\n"
                                    "Content-Length: 22\r\nConnection: close\r\n\r\n" +
                                    body);
}

TEST(SoapClient, TriesTheAddressesOfAName) {
  FolderServer server;
  Exchange exchange;
  ASSERT_TRUE(exchange.run(server.url().replace(u"127.0.0.1"_s, u"two.test"_s)));
  EXPECT_TRUE(exchange.answer().contains("Maps"));
  EXPECT_EQ(exchange.failures, 0);
  EXPECT_TRUE(server.requests[0].contains("Host: two.test:"));
}

TEST(SoapClient, ASilentNameServerBlocksNothing) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto ask = [] {
    ::alarm(60);  // in place of a process that never ends
    std::optional<Exchange> exchange(std::in_place);
    exchange->run(u"http://silent.test/"_s, 50ms);
    const int failures = exchange->failures;
    exchange.reset();  // exit() would leave its folder
    std::exit(failures);
  };
  EXPECT_EXIT(ask(), testing::ExitedWithCode(1), "");
}

// What the answer file, which was "old", holds afterwards; a failure leaves it.
TEST(SoapClient, TheEventThatEndsTheExchangeDecides) {
  using Row = std::tuple<QByteArray, End, const char*>;
  const QByteArray chunked = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\nConnection: close\r\n\r\n";
  const QByteArray hundred = "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n";
  const QByteArray tooLong(answer_limits::bytes + 1, 'x');
  const QByteArray withoutEnd = "HTTP/1.1 200 OK\r\n" + QByteArray("X: y\r\n").repeated(20000);
  const QByteArray identity = "HTTP/1.1 200 OK\r\nTransfer-Encoding: identity\r\n" + chunked.mid(17);
  for (const auto& [answer, end, body] :
       {Row{httpAnswer("good"), End::StayOpen, "good"},
        Row{httpAnswer(""), End::StayOpen, ""},
        Row{httpAnswer("bad", "500 Internal Server Error"), End::Close, "bad"},
        Row{httpAnswer("no", "401 Unauthorized", "WWW-Authenticate: Basic\r\n"), End::Close, "no"},
        Row{httpAnswer("here", "302 Found", "Location: http://127.0.0.1:9/\r\n"), End::Close, "here"},
        Row{chunked + "3\r\nabc\r\n4\r\ndefg\r\n0\r\n\r\n", End::Close, "abcdefg"},
        Row{"HTTP/1.0 200 OK\r\n\r\nlast", End::Close, "last"},
        Row{"HTTP/1.1 100 Continue\n\nHTTP/1.1 200 OK\ncontent-length : 4\n\ngood", End::StayOpen, "good"},
        Row{httpAnswer("good", "200 OK", "Content-Length: 4\r\n"), End::Close, "good"},
        Row{httpAnswer("good", "200 OK", "Content-Length: 2\r\n"), End::Close, nullptr},
        Row{identity + "2\r\nab\r\n0\r\n\r\n", End::Close, "ab"},
        Row{"HTTP/1.1 200 OK\r\nContent-Length: 99999999999999999999\r\n\r\nlong", End::Close, nullptr},
        Row{withoutEnd, End::StayOpen, nullptr},
        Row{QByteArray(100000, 'x'), End::StayOpen, nullptr},
        Row{"", End::Close, nullptr},
        Row{"", End::Reset, nullptr},
        Row{hundred + "short", End::Close, nullptr},
        Row{hundred + "short", End::Reset, nullptr},
        Row{"HTTP/1.0 200 OK\r\n\r\nhalf", End::Reset, nullptr},
        Row{chunked + "3\r\nabc\r\n", End::Close, nullptr},
        Row{"hello\r\n\r\n", End::Close, nullptr},
        Row{httpAnswer(tooLong), End::StayOpen, nullptr},
        Row{"", End::StayOpen, nullptr},
        Row{hundred + "slow", End::StayOpen, nullptr}}) {
    SCOPED_TRACE(answer.left(200) + (end == End::Reset ? ", reset" : ""));
    FolderServer server;
    server.answer = answer;
    server.end = end;
    Exchange exchange;
    const bool isSlow = body == nullptr && end == End::StayOpen && answer.size() < 100;
    ASSERT_TRUE(exchange.run(server.url(), isSlow ? 50ms : 10000ms));
    EXPECT_EQ(exchange.failures, body == nullptr ? 1 : 0);
    EXPECT_EQ(exchange.answer(), body == nullptr ? "old" : body);
  }
}

TEST(SoapClient, ASlowTrickleEndsAtTheLimit) {
  FolderServer server;
  server.answer = "HTTP/1.1 200 OK\r\nContent-Length: 100000\r\n\r\n";
  server.end = End::StayOpen;
  QTimer drip;
  drip.callOnTimeout([&] {
    for (QTcpSocket* socket : server.findChildren<QTcpSocket*>())
      socket->write(" ");
  });
  drip.start(5);
  Exchange exchange;
  ASSERT_TRUE(exchange.run(server.url(), 100ms));
  EXPECT_EQ(exchange.failures, 1);
}

TEST(SoapClient, EndsWithTheApplication) {
  FolderServer server;
  server.answer.clear();
  server.end = End::StayOpen;
  server.onRequest = [] { QCoreApplication::exit(7); };
  Exchange exchange;
  QTimer::singleShot(0, &server, [&] { EXPECT_TRUE(exchange.run(server.url(), 10min)); });
  EXPECT_EQ(QCoreApplication::exec(), 7);
  EXPECT_EQ(exchange.failures, 0);
  EXPECT_EQ(exchange.answer(), "old");
}

// The authority of a valid URL and everything after it are sent as they are written.
TEST(SoapClient, AValidUrlGoesOutUnchanged) {
  for (const auto& [suffix, target] :
       Cases{{"", "/"},
             {"?x/kesto-mfp-srv", "/?x/kesto-mfp-srv"},
             {"#x/kesto-mfp-srv", "/"},
             {"/%41%7e%c3%A4/a//b/../c;d=(e)", "/%41%7e%c3%A4/a//b/../c;d=(e)"},
             {"/x?a=%5b&b='*!$,:@/?#f", "/x?a=%5b&b='*!$,:@/?"}}) {
    FolderServer server;
    Exchange exchange;
    ASSERT_TRUE(exchange.run(u"http://us%65r@LOCALHOST:0%1"_s.arg(server.serverPort()) + suffix));
    const QByteArray request = server.requests.value(0);
    EXPECT_TRUE(request.startsWith("POST " + target.toLatin1() + " HTTP/1.1\r\n")) << suffix;
    EXPECT_TRUE(request.contains("\r\nHost: LOCALHOST:0" + QByteArray::number(server.serverPort()) + "\r\n"));
  }
}

TEST(SoapClient, InvalidUrlsGiveNoClient) {
  // "_" stands for a blank, the last is empty.
  QStringList urls =
      u"http://bad_address/x http://host:_/x http://127.0.0.1:99999/x http://[::1/x http://[1.2.3.4]/x "
      "http://[::1]x/ http://a]/x http://host/[1] http://host/a|b http://host/%4 http://host/%zz "
      "http://dr\u00FCck/x http://host/\u00E4 http://host/?\" http://host/#< http://host/x\n "
      "http://fe80::1/x "
      "http:///x http://u@:80/x http:// ftp://host/ host "_s.split(u' ');
  urls << u"http://"_s + QString(1000000, u'a') + u"_/x"_s;
  for (QString& url : urls) {
    Exchange exchange;
    EXPECT_FALSE(exchange.run(url.replace(u'_', u' '))) << url.left(40).toStdString();
    EXPECT_EQ(exchange.failures, 0);
  }
}

TEST(SoapClient, TheAnswerFileIsPrivateAndReplacesALink) {
  FolderServer server;
  Exchange exchange;
  const QString precious = exchange.platform.temporary + u"victim"_s;
  writeFile(precious, "precious");
  ASSERT_TRUE(QFile::remove(exchange.path()) && QFile::link(precious, exchange.path()));
  ASSERT_TRUE(exchange.run(server.url()));
  EXPECT_EQ(bytesOf(precious), "precious");
  struct stat info {};
  ASSERT_EQ(::lstat(QFile::encodeName(exchange.path()).constData(), &info), 0);
  EXPECT_TRUE(S_ISREG(info.st_mode));
  EXPECT_EQ(info.st_mode & 0777, 0600U);
  EXPECT_EQ(exchange.answer(), folders("Art|Maps*"));
  exchange.platform.temporary = QString();
  EXPECT_EQ(exchange.path(), u"/tmp/vwxyz.xml"_s);
}

// This holds when the exchange has just ended in another way, too: the context may no longer exist.
TEST(SoapClient, CancelledIsCancelledInEveryState) {
  for (const auto& [name, answer, end] : {std::tuple("running", ""_ba, End::StayOpen),
                                          {"answered", httpAnswer("good"), End::Close},
                                          {"failed", "", End::Close},
                                          {"out of time", "", End::StayOpen}}) {
    SCOPED_TRACE(name);
    const bool isEarly = name == "running"sv;
    FolderServer server;
    server.answer = answer;
    server.end = end;
    Exchange exchange;
    exchange.client = KestoPrintPdeVq250nJCSOAPClient::initWithServerName(server.url(), exchange.platform,
                                                                          &exchange, isEarly ? 10s : 100ms);
    const auto cancel = [&exchange] { exchange.client->cancel(); };
    if (isEarly) server.onRequest = cancel;
    QObject::connect(exchange.client.get(), &KestoPrintPdeVq250nJCSOAPClient::finishedChanged, &server,
                     cancel, Qt::SingleShotConnection);
    exchange.client->sendMessage("<request/>");
    EXPECT_EQ(exchange.failures, 0);
    EXPECT_EQ(exchange.answer(), "old");
  }
}

TEST(SoapClient, WithoutADescriptorForTheConnectionNobodyIsNotified) {
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "the sanitizer needs a descriptor to look at an object";
#endif
  FolderServer server;
  Exchange exchange;
  rlimit before{};
  ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
  const int next = ::dup(0);
  ::close(next);
  const rlimit none{.rlim_cur = static_cast<rlim_t>(next), .rlim_max = before.rlim_max};
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &none), 0);
  const bool isMade = exchange.run(server.url());
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
  EXPECT_TRUE(isMade);
  EXPECT_EQ(exchange.failures, 0);
  EXPECT_EQ(exchange.answer(), "old");
  EXPECT_TRUE(server.requests.isEmpty());
}

}  // namespace
}  // namespace kesto::test
