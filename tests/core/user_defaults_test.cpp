#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSet>
#include <QtCore/QTemporaryDir>

#include "platform/folder_lock.h"
#include "platform/json_user_defaults.h"
#include "tests/support/printing.h"
#include "tests/support/test_platform.h"
#include "tests/support/warnings.h"

namespace kesto {
namespace {

using namespace test;

const QString domain = u"kesto.mfp.Office_MFP"_s;
const QJsonObject values{{u"a"_s, 1}, {u"b"_s, QJsonObject{{u"c"_s, true}}}};

class JsonUserDefaultsTest : public testing::Test {
 protected:
  QString path(const QString& name) const { return m_folder.filePath(name); }
  QSet<QString> files() const {
    const QStringList names = QDir(folder).entryList(QDir::Files | QDir::Hidden);
    return {names.begin(), names.end()};
  }
  static void write(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).path());
    writeFile(path, bytes);
  }
  Outcome put(const QJsonObject& stored, const QString& name = domain,
              std::chrono::milliseconds limit = std::chrono::seconds(10)) const {
    return store(JsonUserDefaults(folder, limit), stored, name);
  }
  // A file's kind, mode and number.
  static std::pair<unsigned, ino_t> stateOf(const QString& path) {
    struct stat info {};
    EXPECT_EQ(::lstat(QFile::encodeName(path).constData(), &info), 0);
    return {info.st_mode, info.st_ino};
  }

  QTemporaryDir m_folder;
  const QString folder = path(u"config/kesto"_s);
  const QString file = folder + u'/' + domain + u".json"_s;
  JsonUserDefaults defaults{folder};
};

TEST_F(JsonUserDefaultsTest, WrittenPrivatelyAndOnlyWhenItChanges) {
  const auto writeInode = [&](const QJsonObject& written) {
    EXPECT_TRUE(put(written));
    EXPECT_EQ(JsonUserDefaults(folder).persistentDomainForName(domain).values, written);
    EXPECT_EQ(stateOf(file).first, S_IFREG | 0600U);
    EXPECT_EQ(stateOf(folder).first, S_IFDIR | 0700U);
    EXPECT_EQ(files(), QSet{domain + u".json"_s}) << "a temporary file is left";
    return stateOf(file).second;
  };
  EXPECT_TRUE(defaults.persistentDomainForName(domain).available);
  EXPECT_EQ(defaults.persistentDomainForName(domain).values, std::nullopt);
  const ino_t first = writeInode(values);
  EXPECT_EQ(writeInode(values), first);
  QJsonObject others = values;
  others[u"a"_s] = 2;
  EXPECT_NE(writeInode(others), first) << "the same size, other bytes";
  for (const auto& [open, mode] : {std::pair(file, 0640), {folder, 0755}}) {
    ASSERT_EQ(::chmod(QFile::encodeName(open).constData(), mode), 0);
    writeInode(others);
  }
  ASSERT_TRUE(QFile::rename(file, path(u"elsewhere"_s)) && QFile::link(path(u"elsewhere"_s), file));
  writeInode(others);
}

// The digests are those of sha256sum. The longest name leaves room for the suffixes of a temporary and of a
// damaged file.
TEST_F(JsonUserDefaultsTest, NamesArePercentEncodedAndCut) {
  const QString kanji = u"kesto.mfp."_s + QString(27, u'印');
  const QString encoded = QString::fromLatin1(kanji.toUtf8().toPercentEncoding());
  for (const auto& [name, fileName] : Cases{{"Az09._-", "Az09._-"},
                                            {"../up", "..%2Fup"},
                                            {"a b~c%", "a%20b%7Ec%25"},
                                            {"Büro", "B%C3%BCro"},
                                            {"..", ".."},
                                            {QString(250, u'n'), QString(250, u'n')},
                                            {QString(251, u'n'), QString(233, u'n') + u"-64091ef053a17b18"_s},
                                            {kanji, encoded.first(233) + u"-55166a8eb6b2f440"_s}}) {
    ASSERT_TRUE(put(values, name));
    EXPECT_EQ(defaults.persistentDomainForName(name).values, values);
    const QString file = folder + u'/' + fileName + u".json"_s;
    ASSERT_TRUE(QFile::exists(file)) << name;
    write(file, "x");
    const ExpectedWarning warning("was not readable and is kept as");
    EXPECT_TRUE(defaults.persistentDomainForName(name).available);
  }
}

TEST_F(JsonUserDefaultsTest, ALockThatIsNotFreeIsAnError) {
  ASSERT_TRUE(put(values));
  FolderLock lock;
  ASSERT_TRUE(lock.take(folder, {}));
  constexpr std::chrono::milliseconds impatient(20);
  EXPECT_TRUE(put(values, domain, impatient)) << "there is nothing to change";
  const ExpectedWarning warning("not kept");
  const Outcome written = put({}, domain, impatient);
  EXPECT_TRUE(written.reason().contains(u"lock"_s)) << written.reason();
  write(file, "damaged");
  EXPECT_FALSE(JsonUserDefaults(folder, impatient).persistentDomainForName(domain).available)
      << "another may be replacing it";
  EXPECT_EQ(files(), QSet{domain + u".json"_s});
}

TEST_F(JsonUserDefaultsTest, BeyondTheBoundNothingIsReadOrWritten) {
  const ExpectedWarning warning("not kept");
  const QString huge(largestDomain, u'x');
  EXPECT_TRUE(put({{u"a"_s, huge}}).reason().contains(u"16 MiB"_s));
  EXPECT_EQ(files(), QSet<QString>());
  write(file, R"({"a":")" + huge.toLatin1() + R"("})");
  EXPECT_TRUE(defaults.persistentDomainForName(domain).reason.contains(u"16 MiB"_s));
  EXPECT_FALSE(put(values));
  EXPECT_GT(QFileInfo(file).size(), largestDomain) << "it was replaced";
}

TEST_F(JsonUserDefaultsTest, DamagedFilesAreKeptAside) {
  int number = 0;
  for (const QByteArray& damaged : {QByteArray("{\"a\": 1"), QByteArray("[1]"), QByteArray("\xFF\xFE")}) {
    write(file, damaged);
    const ExpectedWarning warning("was not readable and is kept as");
    const Domain read = defaults.persistentDomainForName(domain);
    EXPECT_TRUE(read.available && !read.values && !QFile::exists(file));
    EXPECT_EQ(bytesOf(file + u".damaged-%1"_s.arg(++number)), damaged);
  }
  write(file, "");
  EXPECT_TRUE(defaults.persistentDomainForName(domain).available) << "an empty file holds nothing to keep";
  EXPECT_EQ(files().size(), 1 + number);
}

TEST_F(JsonUserDefaultsTest, WhatAKilledWriterLeftGoesWithTheNextWrite) {
  const QString living = domain + u".json.abcDEF"_s;
  const QString others[] = {living, domain + u".json.b.json"_s, domain + u".json.abcdefg"_s,
                            u"other.json.abcdef"_s, domain + u".json.damaged-1"_s};
  for (const QString& name : others)
    write(folder + u'/' + name, "{}");
  write(file + u".abandn"_s, "{}");
  QFile writer(folder + u'/' + living);
  ASSERT_TRUE(writer.open(QIODevice::ReadOnly) && ::flock(writer.handle(), LOCK_EX) == 0);
  ASSERT_TRUE(put(values));
  QSet<QString> expected(std::begin(others), std::end(others));
  EXPECT_EQ(files(), expected << domain + u".json"_s);
}

TEST_F(JsonUserDefaultsTest, OtherFilesInThePlaceOfARecordStay) {
  ASSERT_TRUE(QDir().mkpath(file));
  const ExpectedWarning warning("not kept");
  EXPECT_FALSE(defaults.persistentDomainForName(domain).available);
  EXPECT_TRUE(put(values).reason().contains(domain));
  EXPECT_EQ(files(), QSet<QString>()) << "a temporary file is left";
  ASSERT_TRUE(QDir(folder).removeRecursively());
  write(folder, "a file where the folder would be");
  EXPECT_TRUE(defaults.persistentDomainForName(domain).available);
  EXPECT_TRUE(put(values).reason().contains(folder));
}

}  // namespace
}  // namespace kesto
