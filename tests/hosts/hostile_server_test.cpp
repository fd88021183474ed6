// Print servers that misbehave, and answers that lack what was asked for.
#include <future>
#include <list>

#include "hosts/cups/bounds.h"
#include "hosts/cups/ipp_reply.h"
#include "hosts/cups/network_printers.h"
#include "hosts/cups/ppd_file.h"
#include "hosts/cups/sent_job.h"
#include "hosts/cups/server_address.h"
#include "tests/support/hostile_server.h"
#include "tests/support/print_program.h"

namespace kesto::test {
namespace {

using namespace std::chrono_literals;

const QString tooLarge = u"the print server's answer is too large"_s;

// Replies as bytes. An attribute is a tag, a name and a value; the name and the value follow their lengths.
TEST(IppReply, IsReadOnlyWithinItsBounds) {
  const auto value = [](int tag, const QByteArray& name, const QByteArray& bytes) {
    const auto part = [](const QByteArray& text) {
      return QByteArray(1, static_cast<char>(text.size() >> 8)) + static_cast<char>(text.size()) + text;
    };
    return static_cast<char>(tag) + part(name) + part(bytes);
  };
  const QByteArray opened = value(IPP_TAG_MEMBERNAME, "", "x") + value(IPP_TAG_BEGIN_COLLECTION, "", "");
  const QByteArray first = value(IPP_TAG_BEGIN_COLLECTION, "c", "");
  const QByteArray closed = value(IPP_TAG_END_COLLECTION, "", "");
  const auto nested = [&](int depth) {
    return first + opened.repeated(depth - 1) + closed.repeated(depth) + '\3';
  };
  const QByteArray values = value(IPP_TAG_INTEGER, "i", "1234").repeated(mostValues);
  const QString unreadable = u"cannot read the print server's answer"_s;
  using Case = std::pair<QByteArray, QString>;  // what follows the head, and the fault
  for (const auto& [rest, fault] :
       {Case{value(IPP_TAG_KEYWORD, "k", "v") + '\3', {}}, Case{"", unreadable},
        Case{"\x44\0\x09k"_ba, unreadable},       // a name beyond the end
        Case{"\x44\0\1k\0\7v\3"_ba, unreadable},  // a value beyond the end
        Case{value(IPP_TAG_INTEGER, "i", "12") + '\3', unreadable},
        Case{'\x7f' + "\0\0\0"_ba + first + closed + '\3', unreadable},  // an extended tag
        Case{first + '\3', unreadable}, Case{closed + '\3', unreadable},
        Case{value(IPP_TAG_BEGIN_COLLECTION, "c", "v") + closed + '\3', unreadable},
        Case{nested(deepestCollection), {}}, Case{nested(deepestCollection + 1), tooLarge},
        Case{nested(50'000), tooLarge},
        Case{(value(IPP_TAG_KEYWORD, "k", "v").repeated(20) + '\4').repeated(1000) + '\3', {}},
        Case{values + '\3', {}}, Case{values + value(IPP_TAG_INTEGER, "i", "1234") + '\3', tooLarge},
        Case{'\3' + QByteArray(longestReply, ' '), tooLarge}}) {
    Ipp reply;
    const Outcome read = readReply("\2\0\0\0\0\0\0\1\2"_ba + rest, &reply);
    EXPECT_EQ(read.reason(), fault) << rest.left(100).toHex(' ');
    EXPECT_EQ(reply != nullptr, fault.isNull()) << rest.left(100).toHex(' ');
  }
  Ipp reply;
  EXPECT_EQ(readReply("", &reply).reason(), unreadable);
}

QByteArray answered(const QByteArray& status, const QByteArray& fields = "Content-Length: 9\r\n") {
  return "HTTP/1.1 " + status + "\r\n" + fields + "\r\n";
}

QByteArray chunk(const QByteArray& bytes) {
  return QByteArray::number(bytes.size(), 16) + "\r\n" + bytes + "\r\n";
}

// Twenty megabytes in a few kilobytes: data that Qt has compressed, between gzip's header and trailer.
QByteArray gzipBomb() {
  const QByteArray packed = qCompress(QByteArray(20'000'000, ' ')).mid(4 + 2);
  return "\x1f\x8b\x08\0\0\0\0\0\0\3"_ba + packed;
}

constexpr auto limit = 1s;  // for sixty servers at once
const QString lateAnswer = u"the print server %1 did not answer within 1 s"_s;
const QString moved =
    u"the print server %1 redirected to another address (HTTP status %2); redirects are not followed"_s;
const QByteArray chunked = answered("200 OK", "Transfer-Encoding: chunked\r\n");
const QByteArray packed = answered("200 OK", "Content-Encoding: gzip\r\nTransfer-Encoding: chunked\r\n");

// Each misbehaviour, and the message that every operation gives for it; "%1" is the server.
const std::tuple<const char*, Misbehaviour, QString> misbehaviours[] = {
    {"silent", {}, lateAnswer},
    {"a field that never ends", {answered("200 OK", "X: ").chopped(2), "x", 20ms}, lateAnswer},
    {"fields that never end", {answered("200 OK", "").chopped(2), "Allow: GET\r\n", 1ms}, lateAnswer},
    {"leave to go on, over and over", {"", "HTTP/1.1 100 Continue\r\n\r\n", 1ms}, lateAnswer},
    {"a body that stops", {answered("200 OK") + "x"}, lateAnswer},
    {"a body that trickles", {chunked, chunk("x"), 20ms}, lateAnswer},
    {"a body that never ends", {chunked, chunk(QByteArray(60'000, 'x'))}, tooLarge},
    {"a packed body", {packed, chunk(gzipBomb())}, tooLarge},
    {"broken off", {.closes = true}, u"the print server %1 closed the connection"_s},
    {"no HTTP", {"SSH-2.0-x\r\n"}, u"the print server %1 closed the connection"_s},
    {"busy",
     {answered("503 Busy")},
     u"the print server %1 answered: Service Unavailable (HTTP status 503)"_s},
    {"secret", {answered("401 No")}, u"the print server %1 asks for a password"_s},
    {"301", {answered("301 Moved", "Location: /\r\n")}, moved.arg(u"%1"_s, u"301"_s)},
    {"308", {answered("308 No", "Location: http://192.0.2.1/\r\n")}, moved.arg(u"%1"_s, u"308"_s)},
};

// The command lines, by the operation at which the server misbehaves.
Outcome askAt(int operation, PrintServer& server) {
  std::vector<QueueSummary> queues;
  Destination queue;
  PpdFile ppd;
  int job = 0;
  if (operation == IPP_OP_CUPS_GET_PRINTERS) return server.listQueues(&queues);
  if (operation == IPP_OP_GET_PRINTER_ATTRIBUTES) return server.findQueue(u"q"_s, &queue);
  if (operation == IPP_OP_CUPS_CREATE_LOCAL_PRINTER) {
    queues.resize(1);
    queues.front().name = u"q"_s;
    return makeQueue(server, queues.front());
  }
  if (operation == HostileServer::atGet) return fetchPpdFile(server, u"q"_s, &ppd);
  return sendJob(
      server, u"q"_s, {.title = u"t"_s, .files = {{.path = "/dev/zero"}}, .options = {}},
      [](int, qint64, qint64) { return true; }, &job);
}

// Asks servers all at once, since waiting takes the time, and returns what each comes to.
class HostilePrintServer : public testing::Test {
 protected:
  void ask(int operation, const Misbehaviour& misbehaviour, std::chrono::milliseconds patience = limit,
           http_encryption_t encryption = HTTP_ENCRYPTION_IF_REQUESTED) {
    const QString address = m_servers.emplace_back(operation, misbehaviour).address();
    m_reasons.push_back(std::async(std::launch::async, [=] {
      cupsSetEncryption(encryption);  // of this thread
      std::unique_ptr<PrintServer> server;
      Outcome asked = PrintServer::connect(address, patience, &server);
      if (asked) asked = askAt(operation, *server);
      return QString(asked.reason()).replace(address, u"%1"_s);
    }));
  }
  QString reason() {
    QString reason = m_reasons.front().get();
    m_reasons.pop_front();
    return reason;
  }

 private:
  std::list<HostileServer> m_servers;
  std::list<std::future<QString>> m_reasons;
};

TEST_F(HostilePrintServer, NeitherBlocksAProgramNorFillsItsMemory) {
  const std::pair<int, QString> operations[] = {
      {IPP_OP_CUPS_GET_PRINTERS, {}},
      {IPP_OP_GET_PRINTER_ATTRIBUTES, {}},
      {HostileServer::atGet, u"cannot get the PPD of q: "_s},
      {IPP_OP_CUPS_CREATE_LOCAL_PRINTER, u"cannot set up the printer \"q\": "_s},
      {IPP_OP_CREATE_JOB, u"the print server refused the job: "_s},
      {IPP_OP_SEND_DOCUMENT, u"could not print zero: "_s},
  };
  for (const auto& [what, misbehaviour, fault] : misbehaviours) {
    for (const auto& [operation, subject] : operations)
      ask(operation, misbehaviour, fault == lateAnswer ? limit : 60s);
  }
  for (const auto& [what, misbehaviour, fault] : misbehaviours) {
    for (const auto& [operation, subject] : operations)
      EXPECT_EQ(reason(), subject + fault) << what;
  }
}

TEST_F(HostilePrintServer, APpdIsReadWithinItsBounds) {
  const auto ppd = [](const QByteArray& lines, int count) {
    return "*PPD-Adobe: \"4.3\"\n*OpenUI *PageSize: PickOne\n*PageSize A4/A4: \"\"\n*CloseUI: *PageSize\n" +
           lines.repeated(count);
  };
  const QByteArray option = "*OpenUI *Tray#: PickOne\n*Tray# A/A: \"\"\n*CloseUI: *Tray#\n";
  QByteArray options;
  for (int number = 0; number <= mostPpdChoices / 2; ++number)
    options += QByteArray(option).replace("#", QByteArray::number(number));
  const QString tooLargePpd = u"the PPD of q is too large"_s;
  const std::pair<QByteArray, QString> cases[] = {
      {ppd({}, 0), {}},
      {"damaged", u"q.ppd: line 0: Missing asterisk in column 1"_s},
      {gzipBomb(), tooLargePpd},
#ifndef __SANITIZE_ADDRESS__  // whose allocator copies all options or constraints for each further one
      {ppd(options, 1), tooLargePpd},
      {ppd("*UIConstraints: *PageSize A4 *PageSize A4\n", mostPpdConstraints), {}},
      {ppd("*UIConstraints: *PageSize A4 *PageSize A4\n", mostPpdConstraints + 1), tooLargePpd},
#endif
  };
  for (const auto& [bytes, fault] : cases)
    ask(HostileServer::atGet, {chunked + chunk(bytes) + chunk({})}, 60s);
  for (const auto& [bytes, fault] : cases)
    EXPECT_EQ(reason(), fault) << bytes.left(100).toStdString();
}

TEST(ServerAddress, ConnectsToItsServerWhateverTheLastOneWas) {
  const Misbehaviour refusal{.once = "HTTP/1.1 403 No\r\nContent-Length: 0\r\n\r\n", .closes = true};
  HostileServer usual(IPP_OP_CUPS_GET_PRINTERS, refusal);
  HostileServer printer(IPP_OP_CUPS_GET_PRINTERS, refusal);
  qputenv("CUPS_SERVER", usual.address().toLatin1());
  const QString user = QString::fromUtf8(cupsUser());
  const auto wrongAt = [](const ServerAddress& address) {
    std::unique_ptr<PrintServer> server;
    std::vector<QueueSummary> queues;
    Outcome asked = address.connect(&server);
    return asked ? server->listQueues(&queues).reason() : asked.reason();
  };
  const ServerAddress address{.address = {}, .user = {}};
  ServerAddress other = address.forQueue(u"ipp://%1/ipp/print"_s.arg(printer.address()));
  other.user = u"somebody"_s;
  EXPECT_TRUE(wrongAt(other).contains(printer.address()));
  EXPECT_FALSE(usual.hasMisbehaved());
  EXPECT_TRUE(wrongAt(address.forQueue(u"q"_s)).contains(usual.address()));
  EXPECT_TRUE(usual.hasMisbehaved());
  EXPECT_EQ(QString::fromUtf8(cupsUser()), user);
}

// The second request is on its way by then.
TEST(HttpConnection, MayEndAfterAnAnswer) {
  for (const QByteArray version : {"1.0", "1.1"}) {
    const QByteArray answer = "HTTP/" + version + " 200 OK\r\nContent-Length: 9\r\n\r\n\2\0\0\0\0\0\0\1\3"_ba;
    const HostileServer hostile(IPP_OP_GET_PRINTER_ATTRIBUTES, {answer, {}, 50ms, true});
    std::unique_ptr<PrintServer> server;
    ASSERT_TRUE(PrintServer::connect(hostile.address(), 60s, &server));
    Destination queue;
    EXPECT_EQ(server->findQueue(u"q"_s, &queue).reason(), QString());
    std::vector<QueueSummary> queues;
    EXPECT_EQ((version == "1.0" ? cancelJob(*server, {u"q"_s, 1}) : server->listQueues(&queues)).reason(),
              QString())
        << version.toStdString();
  }
}

TEST_F(HostilePrintServer, AHandshakeHasATimeLimitToo) {
  const QByteArray leave =
      "HTTP/1.1 101 Switching Protocols\r\nConnection: Upgrade\r\nUpgrade: TLS/1.2\r\n\r\n";
  const QByteArray record = "\x16\3\3\x40\0"_ba;  // of sixteen kilobytes
  ask(HostileServer::atConnect, {}, limit, HTTP_ENCRYPTION_ALWAYS);
  ask(HostileServer::atConnect, {record, "x", 20ms}, limit, HTTP_ENCRYPTION_ALWAYS);
  ask(HostileServer::atConnect, {leave}, limit, HTTP_ENCRYPTION_REQUIRED);
  ask(HostileServer::atConnect, {"", "HTTP/1.1 100 Continue\r\n\r\n", 1ms}, limit, HTTP_ENCRYPTION_REQUIRED);
  for (int i = 0; i < 4; ++i)
    EXPECT_EQ(reason(), lateAnswer) << i;
}

// Well-formed answers that lack what was asked for.
TEST_F(LpTest, AnIncompleteAnswerIsAFault) {
  EXPECT_FALSE(checkReply("\2\0\0\0\0\0\0\1"_ba + QByteArray(500'000, '\4') + '\3')) << "groups without end";
  for (const auto& name : {u""_s, u"\n"_s, u"a/b"_s, u"a#b"_s, u"a\x7F"_s})
    EXPECT_FALSE(isQueueName(name)) << name;
  const auto reply = [](const QByteArray& status, const QByteArray& attributes) {
    const QByteArray ipp = "\2\0"_ba + status + "\0\0\0\1"_ba + attributes + '\3';
    return "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(ipp.size()) + "\r\n\r\n" + ipp;
  };
  m_folder.write(u"test.file"_s, "of no type");
  const QByteArray ok(2, '\0');
  const QByteArray aborted =
      "\2\x23\0\x09job-state\0\4\0\0\0\x08\x44\0\x11job-state-reasons\0\x11"
      "aborted-by-system"_ba;
  using Case = std::tuple<int, QByteArray, Text, Text>;
  for (const auto& [operation, answer, line, fault] :
       {Case{IPP_OP_GET_JOB_ATTRIBUTES, reply("\5\7", {}), "--check q",
             "cannot find out what other users see: server-error-busy"},
        Case{IPP_OP_GET_JOB_ATTRIBUTES, reply(ok, {}), "--check q",
             "cannot find out what other users see: the print server's answer does not contain the job"},
        Case{IPP_OP_SEND_DOCUMENT, reply(ok, aborted), "-d q FILE",
             "could not print test.file: the print server stopped the job: aborted-by-system"},
        Case{IPP_OP_SEND_DOCUMENT, reply("\4\12", {}), "-d q FILE",
             "could not print test.file: this printer does not accept this type of file"},
        Case{IPP_OP_SEND_DOCUMENT, reply("\4\12", {}), "-d q -o document-format=image/png FILE",
             "could not print test.file: this printer does not accept this type of file (PNG image)"},
        Case{IPP_OP_CREATE_JOB, reply("\5\6", {}), "-d q FILE", "\"q\" is not accepting jobs"}}) {
    const HostileServer server(operation, {.once = answer, .closes = true});
    const QString arguments = QString(line).replace(u"FILE"_s, m_folder.path(u"test.file"_s));
    const LpRun run = this->run(u"-h %1 "_s.arg(server.address()) + arguments);
    EXPECT_TRUE(server.hasMisbehaved());
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.err, u"kesto-lp: "_s + fault + u'\n');
    EXPECT_EQ(run.out, QString());
  }
}

}  // namespace
}  // namespace kesto::test
