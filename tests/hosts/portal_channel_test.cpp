// The channel between the portal's service and its dialog: what it carries, and what ends it.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtCore/QTemporaryFile>

#include "hosts/channel/channel.h"
#include "tests/support/printing.h"

namespace kesto::test {
namespace {

using namespace Qt::StringLiterals;

// Two ends; what arrives at the far one is kept.
class ChannelTest : public testing::Test {
 protected:
  ChannelTest() {
    Descriptor near;
    Descriptor far;
    EXPECT_TRUE(PrintChannel::makePair(&near, &far));
    m_raw = near.get();
    m_near = std::make_unique<PrintChannel>(std::move(near));
    m_far = std::make_unique<PrintChannel>(std::move(far));
    QObject::connect(m_far.get(), &PrintChannel::received,
                     [this](const QJsonObject& message, Descriptor& attached) {
                       m_messages.append(message);
                       m_lastNumber = attached.get();
                       if (m_takes) m_attached = std::move(attached);
                     });
    QObject::connect(m_far.get(), &PrintChannel::closed, [this] { ++m_ends; });
  }
  void waitFor(const std::function<bool()>& isReached) {
    QEventLoop loop;
    while (!isReached())
      loop.processEvents(QEventLoop::WaitForMoreEvents);
  }
  static QJsonObject messageOfSize(qsizetype size) {
    return {{u"t"_s, QString(size - qsizetype(sizeof R"({"t":""})" - 1), u'x')}};
  }

  int m_raw = -1;
  std::unique_ptr<PrintChannel> m_near;
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
  const QJsonObject message{{u"do"_s, u"print"_s}, {u"title"_s, u"Größe \"A4\" \U0001F5A8"_s}};
  ASSERT_TRUE(m_near->send(message, file.handle()));
  ASSERT_TRUE(m_near->send({{u"do"_s, u"close"_s}}));
  waitFor([&] { return m_messages.size() == 2; });
  EXPECT_EQ(m_messages.front(), message);
  ASSERT_TRUE(m_attached.get() < 0) << "the second message has none, and took the first's away";

  m_takes = false;
  ASSERT_TRUE(m_near->send(message, file.handle()));
  waitFor([&] { return m_messages.size() == 3; });
  EXPECT_EQ(::fcntl(m_lastNumber, F_GETFD), -1) << "a descriptor that nobody took is open";
  m_takes = true;
  ASSERT_TRUE(m_near->send(message, file.handle()));
  waitFor([&] { return m_messages.size() == 4; });
  EXPECT_EQ(::fcntl(m_attached.get(), F_GETFD), FD_CLOEXEC);
  std::array<char, 12> bytes{};
  EXPECT_EQ(::pread(m_attached.get(), bytes.data(), bytes.size(), 0), 12);
  EXPECT_EQ(QByteArray(bytes.data(), 12), "the document");
}

TEST_F(ChannelTest, CarriesTheLargestMessageAndRefusesALargerOne) {
  const QJsonObject largest = messageOfSize(PrintChannel::largestMessage);
  ASSERT_TRUE(m_near->send(largest));
  waitFor([&] { return m_messages.size() == 1; });
  EXPECT_EQ(m_messages.front(), largest);
  EXPECT_FALSE(m_near->send(messageOfSize(PrintChannel::largestMessage + 1)));
}

TEST_F(ChannelTest, RefusesInsteadOfWaiting) {
  const QJsonObject message = messageOfSize(100'000);
  int sent = 0;
  while (m_near->send(message) && sent < 1000)
    ++sent;
  EXPECT_LT(sent, 1000);
  waitFor([&] { return m_messages.size() == sent; });
  EXPECT_TRUE(m_near->send(message));
  m_far.reset();
  EXPECT_FALSE(m_near->send(message));
}

TEST_F(ChannelTest, IsNotMadeWhenThereAreTooManyFiles) {
  rlimit limit{};
  ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &limit), 0);
  const rlimit none{.rlim_cur = 0, .rlim_max = limit.rlim_max};
  Descriptor one;
  Descriptor other;
  ::setrlimit(RLIMIT_NOFILE, &none);
  const Outcome made = PrintChannel::makePair(&one, &other);
  ::setrlimit(RLIMIT_NOFILE, &limit);
  EXPECT_FALSE(made);
  EXPECT_EQ(made.reason(), u"no channel to the dialog can be made: Too many open files"_s);
}

TEST_F(ChannelTest, EndsOnceAfterTheLastMessage) {
  ASSERT_TRUE(m_near->send({{u"answer"_s, u"cancelled"_s}}));
  m_near.reset();
  waitFor([&] { return m_ends > 0; });
  EXPECT_EQ(m_messages.size(), 1);
  QCoreApplication::processEvents();
  EXPECT_EQ(m_ends, 1);
}

TEST_F(ChannelTest, EndsAtWhatIsNoMessage) {
  const QByteArray cases[] = {"",
                              "{",
                              "[]",
                              "7",
                              "null",
                              R"({"a":1}{"b":2})",
                              "{\"\xff\":1}",
                              "no json",
                              QByteArray(PrintChannel::largestMessage, ' ') + "{}"};
  for (const QByteArray& bytes : cases) {
    SCOPED_TRACE(bytes.left(20).toStdString());
    Descriptor near;
    Descriptor far;
    ASSERT_TRUE(PrintChannel::makePair(&near, &far));
    const int room = 1 << 20;
    ::setsockopt(near.get(), SOL_SOCKET, SO_SNDBUF, &room, sizeof room);
    PrintChannel channel(std::move(far));
    bool isClosed = false;
    QObject::connect(&channel, &PrintChannel::closed, [&] { isClosed = true; });
    QObject::connect(&channel, &PrintChannel::received, [&] {
      isClosed = true;
      ADD_FAILURE() << "taken for a message";
    });
    ASSERT_EQ(::send(near.get(), bytes.constData(), static_cast<std::size_t>(bytes.size()), 0), bytes.size());
    waitFor([&] { return isClosed; });
    EXPECT_FALSE(channel.send({})) << "closed, and yet it sends";
  }
}

}  // namespace
}  // namespace kesto::test
