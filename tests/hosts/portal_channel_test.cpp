// The channel between the portal's service and its dialog: which messages it carries, what ends it, and the
// settings that go through it.
#include <fcntl.h>
#include <sys/socket.h>

#include <QtCore/QTemporaryFile>

#include "hosts/channel/channel.h"
#include "hosts/channel/portal_settings.h"
#include "tests/support/demo_process.h"

namespace kesto::test {
namespace {

// The far end of a channel keeps what arrives.
class ChannelTest : public testing::Test {
 protected:
  ChannelTest() { connect(); }
  // Makes a new channel, and returns the near end.
  void connect() {
    Descriptor far;
    EXPECT_TRUE(PrintChannel::makePair(&m_nearEnd, &far));
    m_far = std::make_unique<PrintChannel>(std::move(far));
    m_messages.clear();
    m_ends = 0;
    QObject::connect(m_far.get(), &PrintChannel::received,
                     [this](const QJsonObject& message, Descriptor& attached) {
                       m_messages.append(message);
                       m_lastNumber = attached.get();
                       if (m_takes) m_attached = std::move(attached);
                     });
    QObject::connect(m_far.get(), &PrintChannel::closed, [this] { ++m_ends; });
  }
  void send(PrintChannel& near, const QJsonObject& message, int attached = -1) {
    const qsizetype count = m_messages.size();
    ASSERT_TRUE(near.send(message, attached));
    waitFor([&] { return m_messages.size() > count; });
    EXPECT_EQ(m_messages.last(), message);
  }
  static QJsonObject messageOfSize(qsizetype size) {
    return {{u"t"_s, QString(size - qsizetype(sizeof R"({"t":""})" - 1), u'x')}};
  }

  Descriptor m_nearEnd;
  std::unique_ptr<PrintChannel> m_far;
  QList<QJsonObject> m_messages;
  bool m_takes = true;
  Descriptor m_attached;
  int m_lastNumber = -1;
  int m_ends = 0;
};

TEST_F(ChannelTest, CarriesADescriptorWithOneOwner) {
  QTemporaryFile file;
  ASSERT_TRUE(file.open() && file.write("the document") && file.flush());
  PrintChannel near(std::move(m_nearEnd));
  const QJsonObject message{{u"do"_s, u"print"_s}, {u"title"_s, u"Größe \"A4\" \U0001F5A8"_s}};
  send(near, message, file.handle());
  EXPECT_EQ(::fcntl(m_attached.get(), F_GETFD), FD_CLOEXEC);
  std::array<char, 12> bytes{};
  EXPECT_EQ(::pread(m_attached.get(), bytes.data(), bytes.size(), 0), 12);
  EXPECT_EQ(QByteArray(bytes.data(), 12), "the document");
  send(near, {{u"do"_s, u"close"_s}});
  EXPECT_LT(m_attached.get(), 0) << "the first message's";
  m_takes = false;
  send(near, message, file.handle());
  EXPECT_EQ(::fcntl(m_lastNumber, F_GETFD), -1) << "a descriptor that nobody took is open";
}

TEST_F(ChannelTest, RefusesTooLargeMessagesInsteadOfWaiting) {
  auto near = std::make_unique<PrintChannel>(std::move(m_nearEnd));
  send(*near, messageOfSize(PrintChannel::largestMessage));
  EXPECT_FALSE(near->send(messageOfSize(PrintChannel::largestMessage + 1)));
  int sent = 1;
  while (near->send(messageOfSize(100'000)) && sent < 1000)
    ++sent;
  EXPECT_LT(sent, 1000);
  waitFor([&] { return m_messages.size() == sent; });
  near.reset();
  waitFor([&] { return m_ends > 0; });
  QCoreApplication::processEvents();
  EXPECT_EQ(m_ends, 1);
  EXPECT_FALSE(m_far->send({})) << "closed, and yet it sends";
}

TEST_F(ChannelTest, EndsAtAnInvalidMessage) {
  const QByteArray blanks(PrintChannel::largestMessage, ' ');
  for (const QByteArray& bytes : {""_ba, "{"_ba, "[]"_ba, "7"_ba, "null"_ba, R"({"a":1}{"b":2})"_ba,
                                  "{\"\xff\":1}"_ba, "no json"_ba, blanks + "{}", "{}" + blanks}) {
    connect();
    const int room = 1 << 20;
    ::setsockopt(m_nearEnd.get(), SOL_SOCKET, SO_SNDBUF, &room, sizeof room);
    const auto size = static_cast<std::size_t>(bytes.size());
    ASSERT_EQ(::send(m_nearEnd.get(), bytes.constData(), size, 0), bytes.size());
    m_nearEnd.reset();
    waitFor([&] { return m_ends > 0; });
    EXPECT_TRUE(m_messages.isEmpty()) << bytes.left(20);
  }
}

const QJsonObject a4 =
    json(R"({"PPDName":"A4", "DisplayName":"A4", "Width":210, "Height":297, "MarginTop":6.35,
    "MarginBottom":14.224, "MarginLeft":6.35, "MarginRight":6.35, "Orientation":"portrait"})");

// An object with the texts of "key=value key=value".
QJsonObject texts(const QString& notation) {
  QJsonObject object;
  forEachValue(notation, [&](const QString& key, const QString& value) { object.insert(key, value); });
  return object;
}

TEST(PortalSettings, MeaninglessValuesBecomeTheDefault) {
  const auto asked = [](const char* key, const QString& value) {
    return choiceAskedFor({{QLatin1String(key), value}}, {});
  };
  for (const QString& value : {u""_s, u"0"_s, u"-1"_s, u"10000"_s, u"many"_s, u"2.5"_s}) {
    EXPECT_EQ(asked("n-copies", value).copies, 1) << value;
    EXPECT_EQ(asked("number-up", value).numberUp, 1) << value;
  }
  for (const QString& value : {u""_s, u"x"_s, u"2-1"_s, u"-3--2"_s, u"1,x"_s}) {
    const PortalChoice choice = choiceAskedFor(texts(u"print-pages=ranges page-ranges="_s + value), {});
    EXPECT_EQ(choice.pages, PortalPages::All) << value;
  }
  EXPECT_EQ(asked("scale", u"0"_s).scale, 100);
  EXPECT_EQ(choiceAskedFor(texts(u"number-up=1 dialog-number-up=4"_s), {}).numberUp, 4);
  EXPECT_EQ(choiceAskedFor(texts(u"number-up=2 dialog-number-up=4"_s), {}).numberUp, 2);
  EXPECT_EQ(asked("number-up-layout", u"xxxx"_s).numberUpLayout, u"lrtb"_s);
  EXPECT_EQ(asked("page-set", u"some"_s).pageSet, PortalPageSet::All);
  EXPECT_TRUE(asked("collate", u""_s).isCollated);
  EXPECT_EQ(asked("paper-format", u"iso_a4"_s).paper.name, u"iso_a4"_s) << "without a page setup";
  EXPECT_EQ(asked("printer", u"Office"_s).printer, u"Office"_s);
  for (const QString& word : {u"landscape"_s, u"reverse_landscape"_s, u"reverse-landscape"_s}) {
    EXPECT_TRUE(asked("orientation", word).isLandscape) << word;
    EXPECT_TRUE(choiceAskedFor({}, {{u"Orientation"_s, word}}).isLandscape) << word;
    EXPECT_FALSE(choiceAskedFor({{u"orientation"_s, word}}, a4).isLandscape) << "the page setup counts";
  }
}

TEST(PortalSettings, ThePrintSystemsOptionsAreNeutralForTheClient) {
  const QJsonObject settings = texts(
      u"n-copies=3 reverse=true number-up=2 number-up-layout=rltb scale=70 page-set=even collate=false "
      "output-file-format=ps quality=high output-uri=file:///etc/x print-pages=ranges page-ranges=4"_s);
  PortalChoice choice = choiceAskedFor(settings, a4);
  choice.pages = PortalPages::All;
  choice.printer = u"Office"_s;
  EXPECT_EQ(
      settingsToReturn(settings, choice),
      texts(u"n-copies=1 reverse=false number-up=1 number-up-layout=lrtb scale=100 page-set=all collate=true "
            "output-file-format=pdf quality=high print-pages=all orientation=portrait duplex=simplex "
            "dialog-number-up=2 dialog-number-up-layout=rltb "
            "printer=Office paper-format=A4 paper-width=210.000000 paper-height=297.000000"_s));
}

TEST(PortalSettings, TheClientDrawsTheChosenPages) {
  using enum PortalPages;
  using Case = std::tuple<PortalPages, Text, Text>;
  for (const auto& [pages, ranges, drawn] :
       {Case{All, "2", "all"}, Case{Current, "", "current"}, Case{Selection, "", "selection"},
        Case{Ranges, "1", "ranges 0"}, Case{Ranges, " 2 - 4, 7", "ranges 1-3,6"},
        Case{Ranges, "-3,9-", "ranges 0-2,8-2147483646"}, Case{Ranges, "0-3", "all"},
        Case{Ranges, ",", "all"}}) {
    PortalChoice choice;
    choice.pages = pages;
    choice.pageRanges = ranges;
    const QJsonObject returned = settingsToReturn({}, choice);
    const QString given =
        returned[u"print-pages"_s].toString() + u' ' + returned[u"page-ranges"_s].toString();
    EXPECT_EQ(given.trimmed(), drawn) << ranges;
  }
}

TEST(PortalSettings, NoEntryOfTheUserIsSentToTheClient) {
  QJsonObject settings{{u"print-at"_s, u"now"_s}, {u"my-option"_s, u"kesto."_s}};
  const QJsonObject open = settings;
  for (const QString& name :
       {u"kesto.print.PrintSettings.jobSuspend2Key"_s, u"Kesto.Print.PrintSettings.loginName11"_s,
        u"job-password"_s, u"job-password-encryption"_s, u"auth-info"_s, u"JOB-ACCOUNT-ID"_s,
        u"job-accounting-user-id"_s}) {
    settings.insert(name, u"1234"_s);
    settings.insert(u"cups-"_s + name, u"1234"_s);
  }
  EXPECT_EQ(withoutPrivateKeys(settings), open);
  EXPECT_EQ(settingsToReturn(settings, {}), settingsToReturn(open, {}));
}

TEST(PortalSettings, TheChosenPaperReplacesTheClients) {
  PortalChoice choice;
  EXPECT_EQ(pageSetupToReturn(a4, choice), a4) << "the client's own paper stays";
  choice.paper = {u"A5"_s, u"iso_a5"_s, {}, 148, 210, 4, 5, 6, 7};
  choice.isLandscape = true;
  EXPECT_EQ(pageSetupToReturn(a4, choice), json(R"({"PPDName":"A5", "Name":"iso_a5", "DisplayName":"A5",
      "Width":148, "Height":210, "MarginTop":4, "MarginBottom":5, "MarginLeft":6, "MarginRight":7,
      "Orientation":"landscape"})"));
  const QJsonObject settings = settingsToReturn({}, choice);
  EXPECT_EQ(settings[u"paper-format"_s], u"iso_a5"_s);
  EXPECT_EQ(settings[u"paper-width"_s], u"148.000000"_s);
  EXPECT_EQ(settings[u"orientation"_s], u"landscape"_s);
}

}  // namespace
}  // namespace kesto::test
