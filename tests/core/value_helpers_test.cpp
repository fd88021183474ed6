#include "settings/value_helpers.h"

#include <QtCore/QTimeZone>

#include "tests/support/filled_array.h"
#include "tests/support/printing.h"

namespace kesto {
namespace {

using namespace test;

TEST(HexText, BytesToUpperCaseDigitsAndBackByTheirArithmetic) {
  FilledArray<char, 7> text;
  myitoa(std::array<std::uint8_t, 3>{0x00, 0xAB, 0xFF}, text);
  EXPECT_STREQ(text.text(), "00ABFF");
  myitoa(std::array<std::uint8_t, 4>{0x12, 0x34, 0x56, 0x78}, text);
  EXPECT_STREQ(text.text(), "123456") << "a byte that does not fit was begun";
  myitoa({}, text);
  EXPECT_STREQ(text.text(), "");
  using Case = std::pair<std::string, QByteArray>;
  for (const auto& [digits, expected] :
       {Case{"00ABFF", QByteArray("\x00\xAB\xFF", 3)}, Case{"1", ""}, Case{"123", "\x12"}, Case{"a0", "\xA0"},
        Case{"0a", "*"}, Case{"::", "3"}, Case{"\xFF\xFF", "H"}, Case{"0102030405", "\x01\x02\x03"}}) {
    FilledArray<std::uint8_t, 4> bytes;
    myatoi(digits, bytes);
    EXPECT_EQ(QByteArray(bytes.text(), expected.size() + 1).toHex(), expected.toHex() + "00") << digits;
  }
}

TEST(SpoolTime, EnglishWithTheZonesOffset) {
  using Case = std::tuple<QDate, int, const char*>;
  for (const auto& [date, minutes, expected] :
       {Case{{2024, 2, 29}, -210, "Thu, 29 Feb 2024 07:08:09 -0330"},
        Case{{2023, 12, 3}, 0, "Sun, 03 Dec 2023 07:08:09 +0000"},
        Case{{2000, 9, 30}, 840, "Sat, 30 Sep 2000 07:08:09 +1400"},
        Case{{2038, 1, 20}, -45, "Wed, 20 Jan 2038 07:08:09 -0045"}}) {
    FilledArray<char, 64> text;
    EXPECT_EQ(GetSpoolTime(text, QDateTime(date, {7, 8, 9}, QTimeZone(minutes * 60))), 31U);
    EXPECT_STREQ(text.text(), expected);
  }
  FilledArray<char, 63> small;
  EXPECT_EQ(GetSpoolTime(small, QDateTime::currentDateTime()), 0U);
  EXPECT_STREQ(small.text(), "");
}

TEST(MultiKey, PiecesOf254AndOneStalePieceRemoved) {
  // The lengths of five pieces, all of which existed before; 0 for one that is removed.
  using Case = std::pair<int, std::vector<qsizetype>>;
  for (const auto& [length, expected] : {Case{0, {0, 5, 5, 5, 5}}, Case{254, {254, 0, 5, 5, 5}},
                                         Case{255, {254, 1, 0, 5, 5}}, Case{600, {254, 254, 92, 0, 5}}}) {
    PrintSettings settings;
    for (int piece = 1; piece <= 5; ++piece)
      settings.setValue(u"k%1"_s.arg(piece), u"stale"_s);
    MyMultiPMPrintSetAsciiCStrValue(&settings, "k", QByteArray(length, 'x').constData());
    std::vector<qsizetype> lengths;
    for (int piece = 1; piece <= 5; ++piece)
      lengths.push_back(settings.value(u"k%1"_s.arg(piece)).value_or(u""_s).size());
    EXPECT_EQ(lengths, expected);
  }
  PrintSettings settings;
  MyMultiPMPrintSetAsciiCStrValue(&settings, "k", QByteArray(254, 'a') + "\xE9" + QByteArray(254, 'b'));
  EXPECT_EQ(settings.all().keys(), (QStringList{u"k1"_s, u"k3"_s})) << "a piece that is not ASCII is removed";
}

TEST(MultiKey, BaseKeysOfOneTo98Characters) {
  for (const int length : {0, 98, 99}) {
    PrintSettings settings;
    const QByteArray key(length, 'k');
    MyMultiPMPrintSetAsciiCStrValue(&settings, key.constData(), "value");
    EXPECT_EQ(settings.all().size(), length == 98 ? 1 : 0);
    FilledArray<char, 8> joined;
    MyMultiPMPrintGetAsciiCStrValue(&settings, key.constData(), joined);
    EXPECT_EQ(joined[0], length == 98 ? 'v' : static_cast<char>(0xAA));
  }
}

TEST(MultiKey, JoinsAtMostTenPiecesThatFit) {
  PrintSettings settings;
  const auto joinedWithin = [&](auto buffer) {
    MyMultiPMPrintGetAsciiCStrValue(&settings, "k", buffer);
    return QByteArray(buffer.text());
  };
  for (int piece = 1; piece <= 11; ++piece)
    settings.setValue(u"k%1"_s.arg(piece), QString(254, u'a'));
  EXPECT_EQ(joinedWithin(FilledArray<char, 254 * 11 + 1>()).size(), 2540);
  int piece = 2;
  for (const QString& value : {u"b"_s, u"\u00E9"_s, QString(256, u'd'), u""_s, u"f"_s})
    settings.setValue(u"k%1"_s.arg(piece++), value);
  settings.setValue(u"k7"_s, std::nullopt);
  const QByteArray first(254, 'a');
  EXPECT_EQ(joinedWithin(FilledArray<char, 257>()), first + "bf");
  EXPECT_EQ(joinedWithin(FilledArray<char, 256>()), first + "b") << "the last piece does not fit";
  EXPECT_EQ(joinedWithin(FilledArray<char, 2>()), "b") << "the first does not, the next does";
}

}  // namespace
}  // namespace kesto
