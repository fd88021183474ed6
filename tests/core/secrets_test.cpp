// What a panel leaves in the memory of its process.
#include <unistd.h>

#include <QtCore/QFile>
#include <algorithm>

#include "platform/secret.h"
#include "tests/support/test_panel.h"

namespace kesto::test {
namespace {

constexpr char mask = 0x5A;

// Both ways: the search itself must not put what it looks for into the memory.
QByteArray masked(QByteArray bytes) {
  for (char& byte : bytes)
    byte = static_cast<char>(byte ^ mask);
  return bytes;
}

// Whether the heap holds the bytes, which are given masked.
bool isInHeap(const QByteArray& wanted) {
  QFile maps(u"/proc/self/maps"_s);
  EXPECT_TRUE(maps.open(QIODevice::ReadOnly));
  const auto isWanted = [](char byte, char other) { return (byte ^ mask) == other; };
  const QList<QByteArray> lines = maps.readAll().split('\n');
  return std::ranges::any_of(lines, [&](const QByteArray& line) {
    if (!line.contains("[heap]")) return false;
    const QList<QByteArray> range = line.left(line.indexOf(' ')).split('-');
    const auto* start = reinterpret_cast<const char*>(range[0].toULongLong(nullptr, 16));
    // Not the end that was read: freeing what was read can have made the heap smaller.
    const auto* end = static_cast<const char*>(::sbrk(0));
    return std::search(start, end, wanted.begin(), wanted.end(), isWanted) != end;
  });
}

QByteArray inUtf16(const QByteArray& text) {
  QByteArray wide;
  for (const char byte : text)
    wide.append(byte).append(static_cast<char>(0 ^ mask));
  return wide;
}

struct Secret {
  const char* field;
  QByteArray masked;
};

const Secret secrets[] = {
    {"suspendKey", masked("83915027")},
    {"folderPassword", masked("70264918")},
    {"loginName", masked("Qj7vXw0rTz")},
    {"password", masked("kW3#pLs9_vBn")},
};

// Types a secret without leaving it in the test's own memory.
void type(TextField& field, const QByteArray& secret) {
  for (const char byte : secret)
    EXPECT_TRUE(field.type(QString(QChar(static_cast<char16_t>(byte ^ mask)))));
}

// The sanitizers and valgrind see a byte too many.
TEST(Secrets, ABufferIsWipedWithinItsStorage) {
  const std::function<void(QString&)> edits[] = {
      [](QString& text) { text.prepend(u'b'); }, [](QString& text) { text.remove(0, 1); },
      [](QString& text) { text.truncate(3); }, [](QString& text) { text.insert(5, u"xy"_s); },
      [](QString& text) { text.reserve(500); }};
  for (const auto& first : edits) {
    for (const auto& second : edits) {
      QString text(40, u'a');
      first(text);
      second(text);
      QString shared = text;
      const QString expected = text + u'.';
      wipe(text);
      EXPECT_TRUE(text.isNull());
      EXPECT_EQ(shared + u'.', expected) << "storage of another was wiped";
      wipe(shared);
    }
  }
}

// The sanitizers and valgrind keep the heap elsewhere.
TEST(Secrets, NothingStaysInTheHeapOfAPanelThatIsGone) {
  const QByteArray probe = masked("a probe");
  if (!isInHeap(masked(probe))) GTEST_SKIP() << "the heap is not where it usually is";
  TestPlatform platform;
  {
    TestPanel panel(platform);
    panel.restore();
    setControls(panel.view(), "folderSelectionMatrix=2");
    ASSERT_TRUE(operate(panel.view(), "retentionCheckBox"));
    ASSERT_TRUE(operate(panel.view(), "folderSelectionMatrix=2"));
    for (const Secret& secret : secrets) {
      type(field(panel.view(), secret.field), secret.masked);
      EXPECT_TRUE(isInHeap(inUtf16(secret.masked))) << secret.field << ": the search finds nothing";
      ASSERT_TRUE(operate(panel.view(), QLatin1String(secret.field) + u"Button"_s));
    }
    panel.save();
    EXPECT_TRUE(panel.controller->shouldPrint());
    panel.restore();
    panel.save();
  }
  for (const Secret& secret : secrets) {
    EXPECT_FALSE(isInHeap(secret.masked)) << secret.field;
    EXPECT_FALSE(isInHeap(inUtf16(secret.masked))) << secret.field;
  }
}

}  // namespace
}  // namespace kesto::test
