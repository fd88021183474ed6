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
#include "tests/support/printing.h"

namespace kesto {
namespace {

using namespace test;

const QString bundleName = u"JobHandling.pde"_s;

// Sets environment variables for one test.
class Environment : public testing::Test {
 protected:
  void TearDown() override {
    for (const auto& [name, value] : m_before)
      put(name, value);
  }
  // A null value unsets the variable.
  void set(const char* name, const QByteArray& value) {
    m_before.insert(m_before.begin(), {name, qgetenv(name)});
    put(name, value);
  }
  // "-" unsets a variable.
  void setAll(std::initializer_list<const char*> names, const Text& values) {
    const QStringList parts = values.split(u' ');
    qsizetype at = 0;
    for (const char* name : names) {
      const QString& part = parts.at(at++);
      set(name, part == u"-" ? QByteArray() : part.toLatin1());
    }
  }

 private:
  static void put(const char* name, const QByteArray& value) {
    value.isNull() ? qunsetenv(name) : qputenv(name, value);
  }
  std::vector<std::pair<const char*, QByteArray>> m_before;
};

TEST_F(Environment, TheFirstLocaleVariableThatIsSetDecides) {
  using enum TextEncoding;
  for (const auto& [values, encoding] :
       {std::pair("ja_JP ko_KR ru_RU", MacJapanese), std::pair("- ko_KR ru_RU", MacKorean),
        std::pair(" ko_KR ru_RU", MacKorean), std::pair("-  ru_RU", MacCyrillic),
        std::pair("C ko_KR ru_RU", MacRoman), std::pair("- - -", MacRoman)}) {
    setAll({"LC_ALL", "LC_CTYPE", "LANG"}, values);
    EXPECT_EQ(systemEncodingOfEnvironment(), encoding) << values;
  }
}

TEST_F(Environment, TheFirstLanguageOfTheUsersThatThereIsDecides) {
  for (const auto& [values, language] : Cases{{"de_DE.UTF-8 fr_FR es_ES -", "de"},
                                              {" fr_CA.UTF-8 es_ES ", "fr"},
                                              {"- - es_MX -", "es"},
                                              {"- - en_US.UTF-8 en_US:de", "en"},
                                              {"- - de_DE.UTF-8 pt_BR:es", "es"},
                                              {"- - de_DE.UTF-8 pt_BR:nl", "de"},
                                              {"- - pt_BR.UTF-8 nl::ja_JP", "ja"},
                                              {"- - de_DE.UTF-8 C:fr", "en"},
                                              {"C - de_DE de", "en"},
                                              {"POSIX - - de", "en"},
                                              {"- C.UTF-8 de_DE de", "en"},
                                              {"- - - de", "en"},
                                              {"- - pt_BR -", "en"},
                                              {"- - zh_SG.UTF-8 -", "zh"},
                                              {"- - zh_TW.UTF-8 zh_TW:fr", "fr"}}) {
    setAll({"LC_ALL", "LC_MESSAGES", "LANG", "LANGUAGE"}, values);
    EXPECT_EQ(QLocale::languageToCode(userLanguage().language()), language) << values;
  }
}

TEST_F(Environment, TheTemporaryDirectoryIsNamedOrPrivate) {
  const QTemporaryDir folder;
  const QByteArray runtime = folder.path().toLatin1();
  const QByteArray own = runtime + "/kesto";
  const QByteArray relative = QDir().relativeFilePath(folder.path()).toLatin1();
  struct Case {
    QByteArray named;
    QByteArray runtime;
    QByteArray directory;
  };
  for (const Case& row :
       {Case{"/named", runtime, "/named/"}, Case{"/named/", runtime, "/named/"}, Case{{}, {}, {}},
        Case{{}, runtime + "/missing", {}}, Case{{}, relative, {}}, Case{"", runtime, own + '/'}}) {
    set("TMPDIR", row.named);
    set("XDG_RUNTIME_DIR", row.runtime);
    EXPECT_EQ(userTemporaryDirectory().toLatin1(), row.directory) << row.named << ' ' << row.runtime;
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

TEST_F(Environment, FoldersOfVariablesAreAbsoluteOrIgnored) {
  const passwd* entry = getpwuid(getuid());
  const QString home = QLatin1String(entry == nullptr ? "" : entry->pw_dir) + u"/.config/"_s;
  for (const auto& [values, folder] : Cases{{"/c /home/x", "/c/"},
                                            {"/c/ -", "/c/"},
                                            {"./c /home/x/", "/home/x/.config/"},
                                            {" /home/x", "/home/x/.config/"},
                                            {"- -", home},
                                            {"~/c here", home}}) {
    setAll({"XDG_CONFIG_HOME", "HOME"}, values);
    EXPECT_EQ(userConfigurationDirectory(), folder) << values;
  }
}

TEST(ShownText, NothingOfItIsObeyed) {
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
  QFile code(folder.filePath(u"Damaged.pde/Damaged.so"_s));
  ASSERT_TRUE(code.open(QIODevice::WriteOnly) && code.write("no code") > 0 && code.flush());
  for (const QString& name : {u"Missing.pde"_s, u"Damaged.pde"_s}) {
    PrintDialogPlugIn* plugIn = nullptr;
    const Outcome loaded = Bundle(folder.filePath(name)).loadPrincipalObject(&plugIn);
    EXPECT_FALSE(loaded || loaded.reason().isEmpty());
    EXPECT_EQ(plugIn, nullptr);
  }
}

}  // namespace
}  // namespace kesto
