// What a panel leaves in the memory of its process.
#include <unistd.h>

#include <algorithm>

#include "platform/secret.h"
#include "tests/support/test_panel.h"

namespace kesto::test {
namespace {

constexpr char mask = 0x5A;

// Masks and unmasks a text, because the search itself must not put the text into memory.
QByteArray masked(QByteArray bytes) {
  for (char& byte : bytes)
    byte = static_cast<char>(byte ^ mask);
  return bytes;
}

// Whether the heap contains the masked text, as bytes or as UTF-16.
bool isInHeap(const QByteArray& wanted) {
  QByteArray wide;
  for (const char byte : wanted)
    wide.append(byte).append(mask);
  const QList<QByteArray> lines = bytesOf(u"/proc/self/maps"_s).split('\n');
  const auto heap =
      std::ranges::find_if(lines, [](const QByteArray& line) { return line.contains("[heap]"); });
  if (heap == lines.end()) return false;
  const auto* start = reinterpret_cast<const char*>(heap->left(heap->indexOf('-')).toULongLong(nullptr, 16));
  // The heap may have shrunk since, so its end is read anew.
  const auto* end = static_cast<const char*>(::sbrk(0));
  const auto holds = [&](const QByteArray& bytes) {
    const auto isWanted = [](char byte, char other) { return (byte ^ mask) == other; };
    return std::search(start, end, bytes.begin(), bytes.end(), isWanted) != end;
  };
  return holds(wanted) || holds(wide);
}

// The sanitizers and valgrind notice when a byte too many is wiped.
TEST(Secrets, ABufferIsWipedWithinItsStorage) {
  const std::function<void(QString&)> edits[] = {
      [](QString& text) { text.prepend(u'b'); }, [](QString& text) { text.remove(0, 1); },
      [](QString& text) { text.truncate(3); }, [](QString& text) { text.reserve(500); }};
  for (const auto& edit : edits) {
    QString text(40, u'a');
    edit(text);
    const QString shared = text;
    const QString expected = text + u'.';
    wipe(text);
    EXPECT_TRUE(text.isNull());
    EXPECT_EQ(shared + u'.', expected) << "storage of another was wiped";
    edit(text = QString(40, u'a'));
    wipe(text);
  }
}

// The sanitizers and valgrind keep the heap elsewhere.
TEST(Secrets, NothingStaysInTheHeapOfAPanelThatIsGone) {
  const QByteArray probe = masked("a probe");
  if (!isInHeap(masked(probe))) GTEST_SKIP() << "the heap is not where it usually is";
  const std::pair<const char*, QByteArray> secrets[] = {{"suspendKey", masked("83915027")},
                                                        {"folderPassword", masked("70264918")},
                                                        {"loginName", masked("Qj7vXw0rTz")},
                                                        {"password", masked("kW3#pLs9_vBn")}};
  TestPlatform platform;
  {
    TestPanel panel(platform);
    panel.restore();
    ASSERT_TRUE(operate(panel.view(), "retention"));
    ASSERT_TRUE(operate(panel.view(), "folder=2"));
    for (const auto& [name, secret] : secrets) {
      for (const char byte : secret)
        EXPECT_TRUE(field(panel.view(), name).type(QString(QChar(static_cast<char16_t>(byte ^ mask)))));
      EXPECT_TRUE(isInHeap(secret)) << name << ": the search finds nothing";
      ASSERT_TRUE(operate(panel.view(), QLatin1String(name) + u"Button"_s));
    }
    panel.save();
    EXPECT_TRUE(panel.controller->shouldPrint());
    panel.restore();
    panel.save();
  }
  for (const auto& [name, secret] : secrets)
    EXPECT_FALSE(isInHeap(secret)) << name;
}

}  // namespace
}  // namespace kesto::test
