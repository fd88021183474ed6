#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include "platform/bundle.h"
#include "platform/environment.h"
#include "platform/locale_name.h"
#include "platform/panel.h"
#include "platform/shown_text.h"
#include "platform/text_encoding.h"
#include "tests/support/printing.h"

namespace kesto {
namespace {

using enum TextEncoding;
using namespace test;

const QString bundleName = u"JobHandling.pde"_s;

// Sets environment variables; "-" unsets one.
void setAll(std::initializer_list<const char*> names, const Text& values) {
  const QStringList parts = values.split(u' ');
  for (qsizetype at = 0; const char* name : names) {
    const QString& part = parts.at(at++);
    part == u"-" ? qunsetenv(name) : qputenv(name, part.toLatin1());
  }
}

TEST(Environment, TheFirstLocaleVariableThatIsSetDecides) {
  for (const auto& [values, encoding] :
       {std::pair("ja_JP ko_KR ru_RU", MacJapanese), std::pair("- ko_KR ru_RU", MacKorean),
        std::pair(" ko_KR ru_RU", MacKorean), std::pair("-  ru_RU", MacCyrillic),
        std::pair("C ko_KR ru_RU", MacRoman), std::pair("- - -", MacRoman)}) {
    setAll({"LC_ALL", "LC_CTYPE", "LANG"}, values);
    EXPECT_EQ(systemEncodingOfEnvironment(), encoding) << values;
  }
}

TEST(Environment, TheFirstLanguageOfTheUsersThatThereIsDecides) {
  for (const auto& [values, language] :
       {Pair{"de_DE.UTF-8 fr_FR es_ES -", "de"}, Pair{" fr_CA.UTF-8 es_ES ", "fr"}, Pair{"- - es_MX -", "es"},
        Pair{"- - en_US.UTF-8 en_US:de", "en"}, Pair{"- - de_DE.UTF-8 fi_FI:es", "es"},
        Pair{"- - de_DE.UTF-8 eo:tlh", "de"}, Pair{"- - eo.UTF-8 tlh::ja_JP", "ja"},
        Pair{"- - de_DE.UTF-8 C:fr", "en"}, Pair{"C - de_DE de", "en"}, Pair{"POSIX - - de", "en"},
        Pair{"- C.UTF-8 de_DE de", "en"}, Pair{"- - - de", "en"}, Pair{"- - fi_FI -", "en"},
        Pair{"- - zh_SG.UTF-8 -", "zh_CN"}, Pair{"- - zh_HK.UTF-8 -", "zh_TW"},
        Pair{"- - pt_PT.UTF-8 -", "pt_BR"}, Pair{"- - sr_RS.UTF-8 sr_RS@latin:fr", "fr"}}) {
    setAll({"LC_ALL", "LC_MESSAGES", "LANG", "LANGUAGE"}, values);
    EXPECT_TRUE(userLanguage().name().startsWith(language)) << values << " gives " << userLanguage().name();
  }
}

TEST(Environment, TheTemporaryDirectoryIsNamedOrPrivate) {
  const QTemporaryDir folder;
  const QByteArray runtime = folder.path().toLatin1();
  const QByteArray own = runtime + "/kesto";
  const QString path = folder.path();
  for (const auto& [values, directory] :
       {Pair{u"/named "_s + path, "/named/"}, Pair{u"/named/ "_s + path, "/named/"}, Pair{"- -", nullptr},
        Pair{u"- "_s + path + u"/missing"_s, nullptr}, Pair{u"- "_s + QDir().relativeFilePath(path), nullptr},
        Pair{u" "_s + path, path + u"/kesto/"_s}}) {
    setAll({"TMPDIR", "XDG_RUNTIME_DIR"}, values);
    EXPECT_EQ(userTemporaryDirectory(), directory) << values;
  }
  struct stat info {};
  ASSERT_EQ(::stat(own.constData(), &info), 0);
  EXPECT_EQ(info.st_mode & 07777, 0700U);
  ASSERT_EQ(::chmod(own.constData(), 0750), 0);
  EXPECT_TRUE(userTemporaryDirectory().isNull()) << "others may enter";
  ASSERT_EQ(::rmdir(own.constData()), 0);
  const QByteArray elsewhere = runtime + "/elsewhere";
  ASSERT_EQ(::mkdir(elsewhere.constData(), 0700) + ::symlink(elsewhere.constData(), own.constData()), 0);
  EXPECT_TRUE(userTemporaryDirectory().isNull()) << "a link was followed";
}

TEST(Environment, FoldersOfVariablesAreAbsoluteOrIgnored) {
  const passwd* entry = getpwuid(getuid());
  const QString home = QLatin1String(entry == nullptr ? "" : entry->pw_dir) + u"/.config/"_s;
  for (const auto& [values, folder] :
       {Pair{"/c /home/x", "/c/"}, Pair{"/c/ -", "/c/"}, Pair{"./c /home/x/", "/home/x/.config/"},
        Pair{" /home/x", "/home/x/.config/"}, Pair{"- -", home}, Pair{"~/c here", home}}) {
    setAll({"XDG_CONFIG_HOME", "HOME"}, values);
    EXPECT_EQ(userConfigurationDirectory(), folder) << values;
  }
}

TEST(ShownText, ControlCharactersHaveNoEffect) {
  for (const auto& [text, shown] : Cases{{"Größe 印 \U0001F5A8", "Größe 印 \U0001F5A8"},
                                         {"a\nb\r\tc", R"(a\nb\r\tc)"},
                                         {"\x1b[2J\x01\x7f\u009b", R"(\x1b[2J\x01\x7f\x9b)"},
                                         {"x\u202Efdp.exe\u2028\u200F", R"(x\u202efdp.exe\u2028\u200f)"},
                                         {"می\u200Cخواهم", "می\u200Cخواهم"},
                                         {"", ""}})
    EXPECT_EQ(shownText(text), shown);
  for (const auto& [path, shown] : {std::pair("/tmp/gr\xf6n/na\xc3\xafve\x1b.txt", "na\u00EFve\\x1b.txt"),
                                    {"\xff\xc3\xa4\xe5\x8d", "\\xff\u00E4\\xe5\\x8d"},
                                    {"plain", "plain"}})
    EXPECT_EQ(shownFileName(path), QString::fromUtf8(shown));
  EXPECT_EQ(shownPath("/gr\xf6n/a\n"), u"/gr\\xf6n/a\\n"_s);
}

TEST(BundleTest, ResourcesAndTextsByName) {
  const Bundle bundle(Bundle::find(bundleName), QLocale(QLocale::German));
  EXPECT_TRUE(bundle.resource(u"listfiles2"_s, u"xml"_s).value_or("").contains("Envelope"));
  EXPECT_TRUE(bundle.pathForResource(u"space"_s, u"gif"_s).isNull());
  EXPECT_TRUE(bundle.pathForResource(u"../Resources/"_s, u""_s).isNull()) << "a folder is no resource";
  EXPECT_EQ(bundle.localizedStringForKey(u"Retention"_s), u"Zurückhalten"_s);
  EXPECT_EQ(bundle.localizedStringForKey(u"No such text"_s), u"No such text"_s);
  EXPECT_TRUE(Bundle::find(u"NoSuch.pde"_s).isNull());
}

TEST(BundleTest, CodeThatDoesNotLoadIsReported) {
  const QTemporaryDir folder;
  ASSERT_TRUE(QDir(folder.path()).mkdir(u"Damaged.pde"_s));
  writeFile(folder.filePath(u"Damaged.pde/Damaged.so"_s), "no code");
  for (const QString& name : {u"Missing.pde"_s, u"Damaged.pde"_s}) {
    PrintDialogPlugIn* plugIn = nullptr;
    const Outcome loaded = Bundle(folder.filePath(name)).loadPrincipalObject(&plugIn);
    EXPECT_FALSE(loaded || loaded.reason().isEmpty());
    EXPECT_EQ(plugIn, nullptr);
  }
}

constexpr qsizetype noLimit = 1000;

struct EncodingCase {
  TextEncoding encoding{};
  int systemCode = 0;
  int stringCode = 0;
  Text text;
  const char* bytes = "";  // hexadecimal
};

// The bytes as Python's codecs mac_roman, cp932, cp950, euc_kr, mac_greek, mac_cyrillic, gb2312, mac_latin2,
// mac_turkish, latin-1, cp1252 and utf-8 give them.
const std::array encodingCases{
    EncodingCase{MacRoman, 0, 30, "Aé†ﬁ", "418ea0de"},
    EncodingCase{MacJapanese, 1, -1, "Aｶ漢表", "41b68abf955c"},
    EncodingCase{MacTraditionalChinese, 2, -1, "A漢字", "41ba7ea672"},
    EncodingCase{MacKorean, 3, -1, "A한글", "41c7d1b1db"},
    EncodingCase{MacGreek, 6, -1, "AΩλ", "41bfec"},
    EncodingCase{MacCyrillic, 7, -1, "AЖя", "4186df"},
    EncodingCase{MacSimplifiedChinese, 25, -1, "A汉字", "41babad7d6"},
    EncodingCase{MacCentralEurope, 29, -1, "AŁőž", "41fcceec"},
    EncodingCase{MacTurkish, 35, -1, "AĞış", "41dadddf"},
    EncodingCase{IsoLatin1, -1, 5, "Aéÿ", "41e9ff"},
    EncodingCase{WindowsLatin1, -1, 12, "A€é", "4180e9"},
    EncodingCase{ShiftJis, -1, 8, "Aｶ漢表", "41b68abf955c"},
    EncodingCase{Utf8, -1, 4, "Aé漢😀", "41c3a9e6bca2f09f9880"},
};

TEST(TextEncoding, EveryEncodingConvertsBothWays) {
  QString ascii;  // control characters included, the same bytes everywhere
  for (char16_t unit = 1; unit < 0x80; ++unit)
    ascii.append(unit);
  for (const EncodingCase& row : encodingCases) {
    SCOPED_TRACE(row.text);
    const QByteArray bytes = QByteArray::fromHex(row.bytes);
    EXPECT_EQ(systemEncodingCode(row.encoding), row.systemCode);
    EXPECT_EQ(stringEncodingCode(row.encoding), row.stringCode);
    EXPECT_EQ(bytesOfText(row.text, row.encoding, noLimit, noLimit), bytes);
    EXPECT_EQ(cStringOfText(row.text, row.encoding, bytes.size() + 1), bytes);
    EXPECT_EQ(cStringOfText(row.text, row.encoding, bytes.size()), std::nullopt) << "no room for the NUL";
    EXPECT_EQ(textOfBytes(bytes, row.encoding), row.text);
    EXPECT_EQ(bytesOfText(ascii, row.encoding, noLimit, noLimit), ascii.toLatin1());
    EXPECT_EQ(textOfBytes(ascii.toLatin1(), row.encoding), ascii);
  }
}

TEST(TextEncoding, WhatDoesNotConvertStopsOrIsSubstituted) {
  const QString high(QChar(0xD83D));
  const QString low(QChar(0xDE00));
  using Case = std::tuple<Text, TextEncoding, const char*, const char*>;
  for (const auto& [text, encoding, stopped, substituted] :
       {Case{"ab漢cd", MacRoman, "ab", "ab cd"}, Case{"漢", MacRoman, "", " "},
        Case{"a😀b", WindowsLatin1, "a", "a b"}, Case{"aéb", MacJapanese, "a", "a b"},
        Case{u'a' + high, Utf8, "a", "a "}, Case{u'a' + high + u'b', Utf8, "a", "a b"},
        Case{low + high, Utf8, "", "  "}, Case{u'a' + high + u'b', MacKorean, "a", "a b"}}) {
    EXPECT_EQ(bytesOfText(text, encoding, noLimit, noLimit), stopped) << text;
    EXPECT_EQ(bytesOfText(text, encoding, noLimit, noLimit, ' '), substituted) << text;
    EXPECT_EQ(cStringOfText(text, encoding, noLimit), std::nullopt) << text;
  }
}

TEST(TextEncoding, LimitsNeverSplitACharacter) {
  // One, two, three and four bytes in UTF-8; one, one, one and two units.
  const QString text = u"aé漢😀"_s;
  const std::array<int, 11> sizesWithinBytes{0, 1, 1, 3, 3, 3, 6, 6, 6, 6, 10};
  const std::array<int, 11> sizesWithinUnits{0, 1, 3, 6, 6, 10, 10, 10, 10, 10, 10};
  for (std::size_t limit = 0; limit < sizesWithinBytes.size(); ++limit) {
    const auto most = static_cast<qsizetype>(limit);
    EXPECT_EQ(bytesOfText(text, Utf8, noLimit, most).size(), sizesWithinBytes.at(limit)) << limit;
    EXPECT_EQ(bytesOfText(text, Utf8, most, noLimit).size(), sizesWithinUnits.at(limit)) << limit;
  }
  EXPECT_EQ(bytesOfText(u"漢漢"_s, MacJapanese, noLimit, 3).toHex(), "8abf");
  EXPECT_EQ(bytesOfText(u"漢漢"_s, MacRoman, noLimit, 1, ' '), " ");
}

TEST(TextEncoding, NulsEndStringsButNotByteRuns) {
  const QString text = u"a\0b"_s;
  EXPECT_EQ(bytesOfText(text, MacRoman, noLimit, noLimit), QByteArray("a\0b", 3));
  EXPECT_EQ(cStringOfText(text, MacRoman, 2), "a");
  EXPECT_EQ(asciiOfText(text, 2), "a");
  EXPECT_EQ(asciiOfText(u"abc"_s, 3), std::nullopt);
  EXPECT_EQ(asciiOfText(u"abé"_s, 10), std::nullopt);
  EXPECT_EQ(textOfBytes(QByteArray("a\0\xFF", 3), Utf8), u"a"_s);
}

TEST(TextEncoding, UndecodableBytesGiveNull) {
  using Bytes = std::pair<TextEncoding, const char*>;
  for (const auto& [encoding, bytes] :
       {Bytes{Utf8, "a\xFF"}, Bytes{Utf8, "\xE6\xBC"}, Bytes{Utf8, "\xED\xA0\x80"},
        Bytes{MacJapanese, "\x8A"}, Bytes{ShiftJis, "a\xFF"}, Bytes{MacKorean, "a\xC7"},
        Bytes{MacSimplifiedChinese, "\xFF\xFF"}}) {
    EXPECT_TRUE(textOfBytes(bytes, encoding).isNull()) << QByteArray(bytes).toHex().toStdString();
  }
  const QString empty = textOfBytes("", Utf8);
  EXPECT_TRUE(empty.isEmpty() && !empty.isNull()) << "no characters are a text all the same";
}

TEST(SystemEncoding, FollowsTheLanguageOfTheLocale) {
  using Locales = std::pair<TextEncoding, Text>;
  for (const auto& [encoding, locales] :
       {Locales{MacJapanese, "ja ja_JP ja_JP.UTF-8 ja_JP.eucJP"},
        Locales{MacTraditionalChinese, "zh_TW.UTF-8 zh_HK zh_MO"}, Locales{MacKorean, "ko_KR.UTF-8"},
        Locales{MacSimplifiedChinese, "zh zh_CN.GB18030 zh_SG"}, Locales{MacGreek, "el_GR.UTF-8 el_CY"},
        Locales{MacCyrillic, "ru_RU.UTF-8 uk_UA bg_BG be_BY mk_MK sr_RS kk_KZ ky_KG mn_MN tg_TJ tt_RU"},
        Locales{MacCyrillic, "cv_RU.UTF-8 os_RU ce sah_RU av kv uz_UZ@cyrillic az@cyrillic sr_ME@cyrillic"},
        Locales{MacRoman, "tt_RU@iqtelif be_BY@latin uz_UZ sr_ME.UTF-8 mn_CN kk_CN"},
        Locales{MacCentralEurope, "pl_PL cs_CZ sk_SK hu_HU et_EE lv_LV lt_LT.UTF-8"},
        Locales{MacTurkish, "tr_TR.UTF-8"},
        Locales{MacRoman, "en_US.UTF-8 de_DE@euro fr C C.UTF-8 POSIX sr_RS@latin x_JP JA_JP "}}) {
    for (const QString& locale : locales.split(u' '))
      EXPECT_EQ(systemEncodingForLocale(locale), encoding) << locale;
  }
}

}  // namespace
}  // namespace kesto
