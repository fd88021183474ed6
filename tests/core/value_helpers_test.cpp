#include "settings/value_helpers.h"

#include <QtCore/QTimeZone>

#include "tests/support/guarded_buffer.h"
#include "tests/support/printing.h"

namespace kesto {
namespace {

using namespace test;

TEST(HexText, BytesToUpperCaseDigits) {
  GuardedBuffer<char, 7> text;
  myitoa(std::array<std::uint8_t, 3>{0x00, 0xAB, 0xFF}, text.span());
  EXPECT_STREQ(text.text(), "00ABFF");
  myitoa(std::array<std::uint8_t, 4>{0x12, 0x34, 0x56, 0x78}, text.span());
  EXPECT_STREQ(text.text(), "123456") << "a byte that does not fit was begun";
  myitoa({}, text.span());
  EXPECT_STREQ(text.text(), "");
  myitoa(std::array<std::uint8_t, 1>{1}, {});
  EXPECT_TRUE(text.isGuardIntact());
}

TEST(HexText, DigitsToBytesByTheirArithmetic) {
  using Case = std::pair<std::string, QByteArray>;
  for (const auto& [text, expected] :
       {Case{"00ABFF", QByteArray("\x00\xAB\xFF", 3)}, Case{"", ""}, Case{"1", ""}, Case{"123", "\x12"},
        Case{"a0", "\xA0"}, Case{"0a", "*"}, Case{"::", "3"}, Case{"\xFF\xFF", "H"},
        Case{"0102030405", "\x01\x02\x03"}}) {
    GuardedBuffer<std::uint8_t, 4> bytes;
    myatoi(text, bytes.span());
    EXPECT_EQ(QByteArray(bytes.text(), expected.size() + 1).toHex(), expected.toHex() + "00") << text;
    EXPECT_TRUE(bytes.isGuardIntact());
  }
  myatoi(std::string_view("01"), {});
}

TEST(SpoolTime, EnglishWithTheZonesOffset) {
  using Case = std::tuple<QDate, int, const char*>;
  for (const auto& [date, minutes, expected] :
       {Case{{2024, 2, 29}, -210, "Thu, 29 Feb 2024 07:08:09 -0330"},
        Case{{2023, 12, 3}, 0, "Sun, 03 Dec 2023 07:08:09 +0000"},
        Case{{1999, 5, 31}, 345, "Mon, 31 May 1999 07:08:09 +0545"},
        Case{{2000, 9, 30}, 840, "Sat, 30 Sep 2000 07:08:09 +1400"},
        Case{{2038, 1, 20}, -45, "Wed, 20 Jan 2038 07:08:09 -0045"}}) {
    GuardedBuffer<char, 64> text;
    EXPECT_EQ(GetSpoolTime(text.span(), QDateTime(date, {7, 8, 9}, QTimeZone(minutes * 60))), 31U);
    EXPECT_STREQ(text.text(), expected);
    EXPECT_TRUE(text.isGuardIntact());
  }
  GuardedBuffer<char, 63> small;
  EXPECT_EQ(GetSpoolTime(small.span(), QDateTime::currentDateTime()), 0U);
  EXPECT_STREQ(small.text(), "");
  EXPECT_EQ(GetSpoolTime({}, QDateTime::currentDateTime()), 0U);
}

TEST(ReplaceSpaceCode, ControlCharactersAndQuotesBecomeBlanks) {
  std::array<std::uint8_t, 256> bytes{};
  for (std::size_t byte = 0; byte < 256; ++byte)
    bytes.at(byte) = static_cast<std::uint8_t>(byte);
  ReplaceSpaceCode(bytes);
  for (std::size_t byte = 0; byte < 256; ++byte) {
    const bool isReplaced = (byte >= 0x01 && byte <= 0x08) || (byte >= 0x0A && byte <= 0x1F) || byte == 0x22;
    EXPECT_EQ(bytes.at(byte), isReplaced ? 0x20 : byte);
  }
  ReplaceSpaceCode({});
}

TEST(AsciiValue, StoredOrTheKeyRemoved) {
  PrintSettings settings;
  for (const char* value : {static_cast<const char*>(nullptr), "", "\xE9", "abc\x80"}) {
    MyPMPrintSetAsciiCStrValue(&settings, u"k"_s, "new\x7F");
    EXPECT_EQ(settings.value(u"k"_s), u"new\x7F"_s);
    MyPMPrintSetAsciiCStrValue(&settings, u"k"_s, value);
    EXPECT_EQ(settings.value(u"k"_s), std::nullopt);
  }
  MyPMPrintSetAsciiCStrValue(&settings, {}, "new");
  MyPMPrintSetAsciiCStrValue(nullptr, u"k"_s, "new");
  EXPECT_TRUE(settings.all().isEmpty());
}

TEST(MultiKey, PiecesOf254AndOneStalePieceRemoved) {
  // The lengths of six pieces, all there before; 0 for a removed one.
  using Case = std::pair<int, std::vector<qsizetype>>;
  constexpr qsizetype stale = 5;
  for (const auto& [length, expected] :
       {Case{0, {0, stale, stale, stale, stale, stale}}, Case{254, {254, 0, stale, stale, stale, stale}},
        Case{255, {254, 1, 0, stale, stale, stale}}, Case{508, {254, 254, 0, stale, stale, stale}},
        Case{600, {254, 254, 92, 0, stale, stale}}}) {
    PrintSettings settings;
    for (int piece = 1; piece <= 6; ++piece)
      settings.setValue(u"k%1"_s.arg(piece), QString(stale, u's'));
    MyMultiPMPrintSetAsciiCStrValue(&settings, "k", QByteArray(length, 'x').constData());
    std::vector<qsizetype> lengths;
    for (int piece = 1; piece <= 6; ++piece)
      lengths.push_back(settings.value(u"k%1"_s.arg(piece)).value_or(u""_s).size());
    EXPECT_EQ(lengths, expected);
  }
  PrintSettings settings;
  MyMultiPMPrintSetAsciiCStrValue(&settings, "k", QByteArray(254, 'a') + "\xE9" + QByteArray(254, 'b'));
  EXPECT_EQ(settings.all().keys(), (QStringList{u"k1"_s, u"k3"_s})) << "a piece that is not ASCII is removed";
}

TEST(MultiKey, BaseKeysOfOneTo98Characters) {
  for (const auto& [key, isKey] : std::initializer_list<std::pair<QByteArray, bool>>{
           {QByteArray(98, 'k'), true}, {QByteArray(99, 'k'), false}, {"", false}, {{}, false}}) {
    PrintSettings settings;
    const char* baseKey = key.isNull() ? nullptr : key.constData();
    MyMultiPMPrintSetAsciiCStrValue(&settings, baseKey, "value");
    EXPECT_EQ(settings.all().size(), isKey ? 1 : 0);
    GuardedBuffer<char, 8> joined;
    MyMultiPMPrintGetAsciiCStrValue(&settings, baseKey, joined.span());
    EXPECT_EQ(joined[0], isKey ? 'v' : static_cast<char>(0xAA)) << "a buffer was touched, or not read into";
  }
  MyMultiPMPrintSetAsciiCStrValue(nullptr, "k", "value");
  MyMultiPMPrintGetAsciiCStrValue(nullptr, "k", {});
}

TEST(MultiKey, JoinsAtMostTenPiecesThatFit) {
  PrintSettings settings;
  for (int piece = 1; piece <= 11; ++piece)
    settings.setValue(u"k%1"_s.arg(piece), QString(254, QChar(u'a' + piece)));
  GuardedBuffer<char, 254 * 11 + 1> all;
  MyMultiPMPrintGetAsciiCStrValue(&settings, "k", all.span());
  EXPECT_EQ(std::strlen(all.text()), 2540U);

  settings.setValue(u"k2"_s, u"b"_s);
  settings.setValue(u"k3"_s, u"\u00E9"_s);
  settings.setValue(u"k4"_s, QString(256, u'd'));
  settings.setValue(u"k5"_s, u""_s);
  settings.setValue(u"k6"_s, u"f"_s);
  settings.setValue(u"k7"_s, std::nullopt);
  GuardedBuffer<char, 257> joined;
  MyMultiPMPrintGetAsciiCStrValue(&settings, "k", joined.span());
  EXPECT_EQ(std::string(joined.text()), std::string(254, 'b') + "bf");
  GuardedBuffer<char, 256> small;
  MyMultiPMPrintGetAsciiCStrValue(&settings, "k", small.span());
  EXPECT_EQ(std::string(small.text()), std::string(254, 'b') + "b") << "the last piece does not fit";
  GuardedBuffer<char, 2> tiny;
  MyMultiPMPrintGetAsciiCStrValue(&settings, "k", tiny.span());
  EXPECT_STREQ(tiny.text(), "b") << "a piece that does not fit is left out, the next may fit";
  EXPECT_TRUE(all.isGuardIntact() && joined.isGuardIntact() && small.isGuardIntact() && tiny.isGuardIntact());
}

}  // namespace
}  // namespace kesto
