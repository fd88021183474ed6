#include <dlfcn.h>
#include <netdb.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>

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
using End = FolderServer::End;

// One exchange with an answer file of its own.
struct Exchange : SoapContext {
  Exchange() { platform.temporary = folder.path() + u'/'; }

  void recieveEndCallback() override { ++failures; }

  bool run(const QString& url, std::chrono::milliseconds limit = 10s, const QByteArray& body = "<request/>") {
    client = KestoPrintPdeVq250nJCSOAPClient::initWithServerName(url, platform, this, limit);
    if (client) client->sendMessage(body);
    return client != nullptr;
  }

  QString path() { return answerFilePath(platform); }
  // The answer file's bytes; null without one.
  QByteArray answer() {
    QFile file(path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  void putOld() {
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("old");
  }

  QTemporaryDir folder;
  TestPlatform platform;
  std::unique_ptr<KestoPrintPdeVq250nJCSOAPClient> client;
  int failures = 0;
};

TEST(SoapClient, SendsTheRequestAsItIs) {
  for (const QByteArray& body : {QByteArray("<request>\xC3\xA4</request>\n"), QByteArray()}) {
    SCOPED_TRACE(body.size());
    FolderServer server;
    Exchange exchange;
    ASSERT_TRUE(exchange.run(server.url(), 10s, body));
    ASSERT_EQ(server.requests.size(), 1);
    const QByteArray head = server.requests[0].left(server.requests[0].indexOf("\r\n\r\n"));
    QList<QByteArray> lines = head.split('\n');
    for (QByteArray& line : lines)
      line = line.trimmed();
    EXPECT_EQ(lines[0], "POST /kesto-mfp-srv HTTP/1.1");
    EXPECT_TRUE(lines.contains("SOAPAction: \"SoapActionDummy\""));
    EXPECT_TRUE(lines.contains("Content-Type: application/soap; charset=\"utf-8\""));
    EXPECT_TRUE(lines.contains("Content-Length: " + QByteArray::number(body.size())));
    EXPECT_EQ(head.count("Content-"), 2);
    EXPECT_EQ(server.requests[0].mid(head.size() + 4), body);
  }
}

TEST(SoapClient, TriesTheAddressesOfAName) {
  FolderServer server;
  Exchange exchange;
  ASSERT_TRUE(exchange.run(server.url().replace(u"127.0.0.1"_s, u"two.test"_s)));
  EXPECT_TRUE(exchange.answer().contains("Maps"));
  EXPECT_EQ(exchange.failures, 0);
  EXPECT_TRUE(server.requests[0].contains("Host: two.test:"));
}

TEST(SoapClient, ASilentNameServerHoldsNobody) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto ask = [] {
    ::alarm(60);  // in place of a process that never ends
    Exchange exchange;
    exchange.run(u"http://silent.test/"_s, 50ms);
    std::exit(exchange.failures);
  };
  EXPECT_EXIT(ask(), testing::ExitedWithCode(1), "");
}

TEST(SoapClient, TheEventThatEndsTheExchangeDecides) {
  struct Row {
    const char* name;
    QByteArray answer;
    End end;
    bool isAnswered;
    QByteArray body;
  };
  const QByteArray chunked = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\nConnection: close\r\n\r\n";
  const QByteArray tooLong(answer_limits::bytes + 1, 'x');
  const QList<Row> rows{
      {"whole", httpAnswer("good"), End::Close, true, "good"},
      {"whole, connection stays open", httpAnswer("good"), End::StayOpen, true, "good"},
      {"empty", httpAnswer(""), End::Close, true, ""},
      {"an error of the server with a body", httpAnswer("bad", "500 Internal Server Error"), End::Close, true,
       "bad"},
      {"an error of the request with a body", httpAnswer("bad", "400 Bad Request"), End::Close, true, "bad"},
      {"a demand to log in", httpAnswer("no", "401 Unauthorized", "WWW-Authenticate: Basic realm=\"x\"\r\n"),
       End::Close, true, "no"},
      {"chunks", chunked + "3\r\nabc\r\n4\r\ndefg\r\n0\r\n\r\n", End::Close, true, "abcdefg"},
      {"until the connection ends", "HTTP/1.0 200 OK\r\n\r\nlast", End::Close, true, "last"},
      {"lines that end in a mere line feed",
       "HTTP/1.1 100 Continue\n\nHTTP/1.1 200 OK\nContent-Length: 4\n\ngood", End::StayOpen, true, "good"},
      {"one length twice", httpAnswer("good", "200 OK", "Content-Length: 4\r\n"), End::Close, true, "good"},
      {"two lengths", httpAnswer("good", "200 OK", "Content-Length: 2\r\n"), End::Close, false, "old"},
      {"two codings",
       "HTTP/1.1 200 OK\r\nTransfer-Encoding: identity\r\n" + chunked.mid(17) + "2\r\nab\r\n0\r\n\r\n",
       End::Close, true, "ab"},
      {"a length beyond all numbers", "HTTP/1.1 200 OK\r\nContent-Length: 99999999999999999999\r\n\r\nlong",
       End::Close, false, "old"},
      {"a head without end", "HTTP/1.1 200 OK\r\n" + QByteArray("X: y\r\n").repeated(20000), End::StayOpen,
       false, "old"},
      {"no answer", "", End::Close, false, "old"},
      {"reset", "", End::Reset, false, "old"},
      {"cut short", "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nshort", End::Close, false, "old"},
      {"reset in the middle", "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nshort", End::Reset, false,
       "old"},
      {"reset in a body without a length", "HTTP/1.0 200 OK\r\n\r\nhalf", End::Reset, false, "old"},
      {"last chunk missing", chunked + "3\r\nabc\r\n", End::Close, false, "old"},
      {"not HTTP", "hello\r\n\r\n", End::Close, false, "old"},
      {"longer than the limit", httpAnswer(tooLong), End::Close, false, "old"},
      {"no answer in time", "", End::StayOpen, false, "old"},
      {"half an answer in time", "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nslow", End::StayOpen, false,
       "old"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    FolderServer server;
    server.answer = row.answer;
    server.end = row.end;
    Exchange exchange;
    exchange.putOld();
    const bool isSlow = !row.isAnswered && row.end == End::StayOpen && row.answer.size() < 100;
    ASSERT_TRUE(exchange.run(server.url(), isSlow ? 50ms : 10000ms));
    EXPECT_EQ(exchange.failures, row.isAnswered ? 0 : 1);
    EXPECT_EQ(exchange.answer(), row.body);
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
  EXPECT_TRUE(exchange.answer().isNull());
}

TEST(SoapClient, EndsWithTheApplication) {
  FolderServer server;
  server.answer.clear();
  server.end = End::StayOpen;
  server.onRequest = [] { QCoreApplication::exit(7); };
  Exchange exchange;
  exchange.putOld();
  QTimer::singleShot(0, &server, [&] { EXPECT_TRUE(exchange.run(server.url(), 10min)); });
  EXPECT_EQ(QCoreApplication::exec(), 7);
  EXPECT_EQ(exchange.failures, 0);
  EXPECT_EQ(exchange.answer(), "old");
}

// What comes after the authority of a valid URL goes out as it is written, and the authority itself.
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

TEST(SoapClient, NoProxyStandsBetween) {
  qputenv("http_proxy", "http://127.0.0.1:9");
  FolderServer server;
  Exchange exchange;
  ASSERT_TRUE(exchange.run(server.url()));
  qunsetenv("http_proxy");
  EXPECT_EQ(server.requests.size(), 1);
  EXPECT_EQ(exchange.failures, 0);
}

TEST(SoapClient, RedirectsAreNotFollowed) {
  FolderServer elsewhere;
  FolderServer server;
  server.answer = httpAnswer("here", "302 Found", "Location: " + elsewhere.url().toLatin1() + "\r\n");
  Exchange exchange;
  ASSERT_TRUE(exchange.run(server.url()));
  EXPECT_EQ(elsewhere.requests.size(), 0);
  EXPECT_EQ(exchange.answer(), "here");
}

TEST(SoapClient, TheAnswerFileIsPrivateAndReplacesALink) {
  FolderServer server;
  Exchange exchange;
  const QString victim = exchange.folder.filePath(u"victim"_s);
  QFile precious(victim);
  ASSERT_TRUE(precious.open(QIODevice::WriteOnly));
  precious.write("precious");
  precious.close();
  ASSERT_TRUE(QFile::link(victim, exchange.path()));
  ASSERT_TRUE(exchange.run(server.url()));
  ASSERT_TRUE(precious.open(QIODevice::ReadOnly));
  EXPECT_EQ(precious.readAll(), "precious");
  struct stat info {};
  ASSERT_EQ(::lstat(QFile::encodeName(exchange.path()).constData(), &info), 0);
  EXPECT_TRUE(S_ISREG(info.st_mode));
  EXPECT_EQ(info.st_mode & 0777, 0600U);
  EXPECT_EQ(exchange.answer(), folders({"Art", "Maps*"}));
}

TEST(SoapClient, AnAnswerThatCannotBeWrittenIsNotReported) {
  FolderServer server;
  Exchange exchange;
  exchange.platform.temporary = exchange.folder.filePath(u"nowhere/"_s);
  ASSERT_TRUE(exchange.run(server.url()));
  EXPECT_EQ(exchange.failures, 0);
  EXPECT_EQ(server.requests.size(), 1);
}

// Also when the exchange has just ended otherwise: who would be told may be gone.
TEST(SoapClient, CancelledIsCancelledInEveryState) {
  struct Row {
    const char* name;
    QByteArray answer;
    End end;
    bool isEarly;
  };
  for (const Row& row :
       {Row{"running", "", End::StayOpen, true}, Row{"answered", httpAnswer("good"), End::Close, false},
        Row{"failed", "", End::Close, false}, Row{"out of time", "", End::StayOpen, false}}) {
    SCOPED_TRACE(row.name);
    FolderServer server;
    server.answer = row.answer;
    server.end = row.end;
    Exchange exchange;
    exchange.putOld();
    exchange.client = KestoPrintPdeVq250nJCSOAPClient::initWithServerName(
        server.url(), exchange.platform, &exchange, row.isEarly ? 10s : 100ms);
    const auto cancel = [&exchange] { exchange.client->cancel(); };
    if (row.isEarly) server.onRequest = cancel;
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
  exchange.putOld();
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

TEST(SoapClient, WithoutATemporaryDirectoryTheFileIsInTmp) {
  TestPlatform platform;
  EXPECT_EQ(answerFilePath(platform), u"/tmp/vwxyz.xml"_s);
}

}  // namespace
}  // namespace kesto::test
