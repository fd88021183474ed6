// The channel between the portal's service and its dialog: which messages it carries, and what ends it.
#include <fcntl.h>
#include <sys/socket.h>

#include <QtCore/QTemporaryFile>

#include "hosts/channel/channel.h"
#include "tests/support/demo_process.h"

namespace kesto::test {
namespace {

// Two ends; messages that arrive at the far one are kept.
class ChannelTest : public testing::Test {
 protected:
  ChannelTest() {
    Descriptor near;
    Descriptor far;
    EXPECT_TRUE(PrintChannel::makePair(&near, &far));
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
  void send(const QJsonObject& message, int attached = -1) {
    const qsizetype count = m_messages.size();
    ASSERT_TRUE(m_near->send(message, attached));
    waitFor([&] { return m_messages.size() > count; });
    EXPECT_EQ(m_messages.last(), message);
  }
  static QJsonObject messageOfSize(qsizetype size) {
    return {{u"t"_s, QString(size - qsizetype(sizeof R"({"t":""})" - 1), u'x')}};
  }

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
  send(message, file.handle());
  EXPECT_EQ(::fcntl(m_attached.get(), F_GETFD), FD_CLOEXEC);
  std::array<char, 12> bytes{};
  EXPECT_EQ(::pread(m_attached.get(), bytes.data(), bytes.size(), 0), 12);
  EXPECT_EQ(QByteArray(bytes.data(), 12), "the document");
  send({{u"do"_s, u"close"_s}});
  EXPECT_LT(m_attached.get(), 0) << "the first message's";
  m_takes = false;
  send(message, file.handle());
  EXPECT_EQ(::fcntl(m_lastNumber, F_GETFD), -1) << "a descriptor that nobody took is open";
}

TEST_F(ChannelTest, RefusesTooLargeMessagesInsteadOfWaiting) {
  send(messageOfSize(PrintChannel::largestMessage));
  EXPECT_FALSE(m_near->send(messageOfSize(PrintChannel::largestMessage + 1)));
  int sent = 1;
  while (m_near->send(messageOfSize(100'000)) && sent < 1000)
    ++sent;
  EXPECT_LT(sent, 1000);
  waitFor([&] { return m_messages.size() == sent; });
  m_near.reset();
  waitFor([&] { return m_ends > 0; });
  QCoreApplication::processEvents();
  EXPECT_EQ(m_ends, 1);
  EXPECT_FALSE(m_far->send({})) << "closed, and yet it sends";
}

TEST_F(ChannelTest, EndsAtAnInvalidMessage) {
  const QByteArray cases[] = {"",
                              "{",
                              "[]",
                              "7",
                              "null",
                              R"({"a":1}{"b":2})",
                              "{\"\xff\":1}",
                              "no json",
                              QByteArray(PrintChannel::largestMessage, ' ') + "{}",
                              "{}" + QByteArray(PrintChannel::largestMessage, ' ')};
  for (const QByteArray& bytes : cases) {
    SCOPED_TRACE(bytes.left(20).toStdString());
    Descriptor near;
    Descriptor far;
    ASSERT_TRUE(PrintChannel::makePair(&near, &far));
    const int room = 1 << 20;
    ::setsockopt(near.get(), SOL_SOCKET, SO_SNDBUF, &room, sizeof room);
    PrintChannel channel(std::move(far));
    int messages = 0;
    bool isClosed = false;
    QObject::connect(&channel, &PrintChannel::received, [&] { ++messages; });
    QObject::connect(&channel, &PrintChannel::closed, [&] { isClosed = true; });
    ASSERT_EQ(::send(near.get(), bytes.constData(), static_cast<std::size_t>(bytes.size()), 0), bytes.size());
    near.reset();
    waitFor([&] { return isClosed; });
    EXPECT_EQ(messages, 0);
  }
}

}  // namespace
}  // namespace kesto::test
