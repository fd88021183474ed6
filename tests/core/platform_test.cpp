#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>

#include "hosts/session/panel_host.h"
#include "platform/environment.h"
#include "platform/shown_text.h"
#include "tests/support/test_host.h"

namespace kesto {
namespace {

using namespace test;

const QString bundleName = u"JobHandling.pde"_s;

// Sets environment variables for one test; a null value unsets one.
class Environment : public testing::Test {
 protected:
  void TearDown() override {
    for (const auto& [name, value] : m_before)
      put(name, value);
  }
  void set(const char* name, const QByteArray& value) {
    m_before.insert(m_before.begin(), {name, qgetenv(name)});
    put(name, value);
  }

 private:
  static void put(const char* name, const QByteArray& value) {
    value.isNull() ? qunsetenv(name) : qputenv(name, value);
  }
  std::vector<std::pair<const char*, QByteArray>> m_before;
};

TEST_F(Environment, TheFirstLocaleVariableThatIsSetDecides) {
  using enum TextEncoding;
  using Case = std::pair<std::array<const char*, 3>, TextEncoding>;
  for (const auto& [values, encoding] :
       {Case{{"ja_JP", "ko_KR", "ru_RU"}, MacJapanese}, Case{{nullptr, "ko_KR", "ru_RU"}, MacKorean},
        Case{{"", "ko_KR", "ru_RU"}, MacKorean}, Case{{nullptr, "", "ru_RU"}, MacCyrillic},
        Case{{"C", "ko_KR", "ru_RU"}, MacRoman}, Case{{nullptr, nullptr, nullptr}, MacRoman}}) {
    set("LC_ALL", values[0]);
    set("LC_CTYPE", values[1]);
    set("LANG", values[2]);
    EXPECT_EQ(systemEncodingOfEnvironment(), encoding);
  }
}

TEST_F(Environment, TheFirstLanguageOfTheUsersThatThereIsDecides) {
  // LC_ALL, LC_MESSAGES, LANG and LANGUAGE.
  using Case = std::pair<std::array<const char*, 4>, Text>;
  for (const auto& [values, language] :
       {Case{{"de_DE.UTF-8", "fr_FR", "es_ES", nullptr}, "de"}, Case{{"", "fr_CA.UTF-8", "es_ES", ""}, "fr"},
        Case{{nullptr, nullptr, "es_MX", nullptr}, "es"},
        Case{{nullptr, nullptr, "en_US.UTF-8", "en_US:de"}, "en"},
        Case{{nullptr, nullptr, "en_GB.UTF-8", "en_GB:en:fr"}, "en"},
        Case{{nullptr, nullptr, "de_DE.UTF-8", "pt_BR:es"}, "es"},
        Case{{nullptr, nullptr, "de_DE.UTF-8", "pt_BR:nl"}, "de"},
        Case{{nullptr, nullptr, "pt_BR.UTF-8", "nl::ja_JP"}, "ja"},
        Case{{nullptr, nullptr, "de_DE.UTF-8", "C:fr"}, "en"}, Case{{"C", nullptr, "de_DE", "de"}, "en"},
        Case{{"POSIX", nullptr, nullptr, "de"}, "en"}, Case{{nullptr, "C.UTF-8", "de_DE", "de"}, "en"},
        Case{{nullptr, nullptr, nullptr, "de"}, "en"}, Case{{nullptr, nullptr, "pt_BR", nullptr}, "en"},
        Case{{nullptr, nullptr, "zh_SG.UTF-8", nullptr}, "zh"},
        Case{{nullptr, nullptr, "zh_TW.UTF-8", "zh_TW:fr"}, "fr"}}) {
    int number = 0;
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG", "LANGUAGE"})
      set(variable, values.at(static_cast<std::size_t>(number++)));
    EXPECT_EQ(QLocale::languageToCode(userLanguage().language()), language) << values[2] << values[3];
    const Bundle bundle(Bundle::find(bundleName));
    EXPECT_EQ(bundle.localizedStringForKey(u"Retention"_s) == u"Zurückhalten"_s, language == u"de"_s);
    EXPECT_EQ(bundle.localizedStringForKey(u"No such text"_s), u"No such text"_s);
  }
}

TEST_F(Environment, TheTemporaryDirectoryIsNamedOrPrivate) {
  const QTemporaryDir folder;
  const QByteArray own = folder.path().toLatin1() + "/kesto";
  for (const char* named : {"/named", "/named/"}) {
    set("TMPDIR", named);
    EXPECT_EQ(userTemporaryDirectory(), u"/named/"_s);
  }
  set("TMPDIR", {});
  for (const QByteArray& runtime : {QByteArray(), QByteArray(), folder.path().toLatin1() + "/missing"}) {
    set("XDG_RUNTIME_DIR", runtime);
    EXPECT_TRUE(userTemporaryDirectory().isNull());
  }
  set("XDG_RUNTIME_DIR", folder.path().toLatin1());
  EXPECT_EQ(userTemporaryDirectory().toLatin1(), own + '/');
  set("TMPDIR", "");
  EXPECT_EQ(userTemporaryDirectory().toLatin1(), own + '/');
  struct stat info {};
  ASSERT_EQ(::stat(own.constData(), &info), 0);
  EXPECT_EQ(info.st_mode & 07777, 0700U);

  ASSERT_EQ(::chmod(own.constData(), 0750), 0);
  EXPECT_TRUE(userTemporaryDirectory().isNull()) << "others may enter";
  ASSERT_EQ(::rmdir(own.constData()), 0);
  ASSERT_EQ(::symlink("/tmp", own.constData()), 0);
  EXPECT_TRUE(userTemporaryDirectory().isNull()) << "a link was followed";
}

TEST_F(Environment, FoldersOfVariablesAreAbsoluteOrIgnored) {
  const passwd* entry = getpwuid(getuid());
  const QByteArray home = QByteArray(entry == nullptr ? "" : entry->pw_dir) + "/.config/";
  using Case = std::tuple<const char*, const char*, QByteArray>;
  for (const auto& [configuration, variable, folder] :
       {Case{"/c", "/home/x", "/c/"}, Case{"/c/", nullptr, "/c/"}, Case{"c", "/home/x", "/home/x/.config/"},
        Case{"./c", "/home/x/", "/home/x/.config/"}, Case{"", "/home/x", "/home/x/.config/"},
        Case{nullptr, nullptr, home}, Case{nullptr, "", home}, Case{"~/c", "here", home}}) {
    set("XDG_CONFIG_HOME", configuration);
    set("HOME", variable);
    EXPECT_EQ(userConfigurationDirectory().toLatin1(), folder);
  }
  set("TMPDIR", {});
  const QTemporaryDir folder;
  const QByteArray relative = QDir().relativeFilePath(folder.path()).toLatin1();
  set("XDG_RUNTIME_DIR", relative);
  EXPECT_TRUE(userRuntimeDirectory().isNull() && userTemporaryDirectory().isNull()) << relative.constData();
}

TEST(ShownText, NothingOfItIsObeyed) {
  for (const auto& [text, shown] : Cases{{"Größe 印 \U0001F5A8", "Größe 印 \U0001F5A8"},
                                         {"a\nb\r\tc", R"(a\nb\r\tc)"},
                                         {"\x1b[2J\x7f\u009b", R"(\x1b[2J\x7f\x9b)"},
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

TEST(Bundle, ResourcesByNameAndType) {
  const QString path = Bundle::find(bundleName);
  const Bundle bundle(path);
  EXPECT_EQ(bundle.pathForResource(u"space"_s, u"png"_s), path + u"/Resources/space.png"_s);
  EXPECT_TRUE(bundle.resource(u"listfiles2"_s, u"xml"_s).value_or("").contains("Envelope"));
  EXPECT_TRUE(bundle.pathForResource(u"space"_s, u"gif"_s).isNull());
  EXPECT_TRUE(bundle.pathForResource(u"../Resources/"_s, u""_s).isNull()) << "a folder is no resource";
  EXPECT_EQ(bundle.resource(u"missing"_s, u"xml"_s), std::nullopt);
  EXPECT_TRUE(Bundle::find(u"NoSuch.pde"_s).isNull());
}

TEST(Bundle, LoadedThroughItsPrincipalObjectGivesAPanel) {
  PrintDialogPlugIn* plugIn = nullptr;
  std::shared_ptr<const Bundle> bundle;
  const Outcome loaded = loadJobHandlingBundle(&bundle, &plugIn);
  ASSERT_TRUE(loaded) << loaded.reason();
  TestPlatform platform;
  const PpdFixture ppd;
  TestHost host(platform);
  host.ppd = ppd.file();
  PanelList panels = plugIn->PDEPanelsForType(QLatin1String(printDialogType), &host);
  ASSERT_TRUE(panels && panels->size() == 1);
  EXPECT_EQ(panels->front()->panelName(), u"Job Handling"_s);
  EXPECT_NE(panels->front()->panelView(), nullptr);
  EXPECT_TRUE(panels->front()->shouldPrint());
  host.expect("jobSuspend=0");
}

TEST(Bundle, CodeThatDoesNotLoadIsReported) {
  const QTemporaryDir folder;
  ASSERT_TRUE(QDir(folder.path()).mkdir(u"Damaged.pde"_s));
  QFile code(folder.filePath(u"Damaged.pde/Damaged.so"_s));
  ASSERT_TRUE(code.open(QIODevice::WriteOnly));
  code.write("no code");
  code.close();
  for (const QString& name : {u"Missing.pde"_s, u"Damaged.pde"_s}) {
    PrintDialogPlugIn* plugIn = nullptr;
    const Outcome loaded = Bundle(folder.filePath(name)).loadPrincipalObject(&plugIn);
    EXPECT_FALSE(loaded || loaded.reason().isEmpty());
    EXPECT_EQ(plugIn, nullptr);
  }
}

}  // namespace
}  // namespace kesto
