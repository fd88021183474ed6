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
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  Outcome put(const QJsonObject& stored, const QString& name) const {
    return store(JsonUserDefaults(folder), stored, name);
  }
  static unsigned modeOf(const QString& path) {
    struct stat info {};
    EXPECT_EQ(::stat(QFile::encodeName(path).constData(), &info), 0);
    return info.st_mode & 07777;
  }

  QTemporaryDir m_folder;
  const QString folder = path(u"config/kesto"_s);
  const QString file = folder + u'/' + domain + u".json"_s;
  JsonUserDefaults defaults{folder};
};

TEST_F(JsonUserDefaultsTest, WrittenPrivatelyAndReadByAnother) {
  EXPECT_TRUE(defaults.persistentDomainForName(domain).available);
  EXPECT_EQ(defaults.persistentDomainForName(domain).values, std::nullopt);
  for (int time = 0; time < 3; ++time)
    ASSERT_TRUE(put(values, domain));
  EXPECT_EQ(JsonUserDefaults(folder).persistentDomainForName(domain).values, values);
  EXPECT_EQ(modeOf(folder), 0700U);
  EXPECT_EQ(modeOf(file), 0600U);
  EXPECT_EQ(files(), QSet{domain + u".json"_s}) << "a temporary file is left";
  ASSERT_EQ(::chmod(QFile::encodeName(folder).constData(), 0755), 0);
  ASSERT_TRUE(put(values, domain));
  EXPECT_EQ(modeOf(folder), 0700U) << "a folder open to others";
}

TEST_F(JsonUserDefaultsTest, WhatIsThereAlreadyIsNotWrittenAgain) {
  const auto writeInode = [&](const QJsonObject& written) {
    EXPECT_TRUE(put(written, domain));
    struct stat info {};
    EXPECT_EQ(::lstat(QFile::encodeName(file).constData(), &info), 0);
    EXPECT_TRUE(S_ISREG(info.st_mode) && (info.st_mode & 077) == 0);
    return info.st_ino;
  };
  const ino_t first = writeInode(values);
  EXPECT_EQ(writeInode(values), first);
  QJsonObject others = values;
  others[u"a"_s] = 2;
  EXPECT_NE(writeInode(others), first) << "the same size, other bytes";
  EXPECT_EQ(defaults.persistentDomainForName(domain).values, others);
  const ino_t last = writeInode(values);
  ASSERT_EQ(::chmod(QFile::encodeName(file).constData(), 0640), 0);
  EXPECT_NE(writeInode(values), last) << "others could read it";
  ASSERT_TRUE(QFile::rename(file, path(u"elsewhere"_s)) && QFile::link(path(u"elsewhere"_s), file));
  writeInode(values);
}

TEST_F(JsonUserDefaultsTest, NamesArePercentEncoded) {
  const QStringList names{u"Az09._-"_s, u"../up"_s, u"a b~c%"_s, u"Büro"_s, u"a/b"_s, u".."_s};
  for (const QString& name : names)
    ASSERT_TRUE(put({{u"name"_s, name}}, name));
  for (const QString& name : names) {
    EXPECT_EQ(defaults.persistentDomainForName(name).values->value(u"name"_s).toString(), name);
  }
  EXPECT_EQ(files(), (QSet{u"...json"_s, u"..%2Fup.json"_s, u"Az09._-.json"_s, u"B%C3%BCro.json"_s,
                           u"a%20b%7Ec%25.json"_s, u"a%2Fb.json"_s}));
}

TEST_F(JsonUserDefaultsTest, NamesTooLongForAFileEndInADigest) {
  // sha256sum has the digests.
  const std::pair<QString, QByteArray> cases[] = {
      {QString(250, u'n'), {}},
      {QString(251, u'n'), "64091ef053a17b18"},
      {u"kesto.mfp."_s + QString(26, u'印'), {}},
      {u"kesto.mfp."_s + QString(27, u'印'), "55166a8eb6b2f440"},
  };
  for (const auto& [name, digest] : cases) {
    const QByteArray encoded = name.toUtf8().toPercentEncoding();
    const QByteArray expected = digest.isEmpty() ? encoded : encoded.first(233) + '-' + digest;
    ASSERT_TRUE(put({{u"name"_s, name}}, name));
    ASSERT_TRUE(put({{u"name"_s, name}, {u"again"_s, 1}}, name)) << "no temporary file has room";
    EXPECT_EQ(defaults.persistentDomainForName(name).values->value(u"name"_s).toString(), name);
    EXPECT_TRUE(files().contains(QString::fromLatin1(expected) + u".json"_s)) << expected.constData();
    write(folder + u'/' + QString::fromLatin1(expected) + u".json"_s, "x");
    const ExpectedWarning warning("was not readable and is kept as");
    EXPECT_TRUE(defaults.persistentDomainForName(name).available) << "no damaged one has room";
  }
}

TEST_F(JsonUserDefaultsTest, ALockThatIsNotFreeIsAnError) {
  ASSERT_TRUE(put(values, domain));
  FolderLock lock;
  ASSERT_TRUE(lock.take(folder, {}));
  const auto impatient = [&] { return JsonUserDefaults(folder, std::chrono::milliseconds(20)); };
  EXPECT_TRUE(store(impatient(), values, domain)) << "there is nothing to change";
  const ExpectedWarning warning("not kept");
  const Outcome written = store(impatient(), {}, domain);
  EXPECT_TRUE(written.reason().contains(u"lock"_s)) << written.reason();
  write(file, "damaged");
  EXPECT_FALSE(impatient().persistentDomainForName(domain).available) << "another may be replacing it";
  EXPECT_EQ(files(), QSet{domain + u".json"_s});
}

TEST_F(JsonUserDefaultsTest, BeyondTheBoundNothingIsReadOrWritten) {
  const ExpectedWarning warning("not kept");
  const QString huge(largestDomain, u'x');
  EXPECT_TRUE(put({{u"a"_s, huge}}, domain).reason().contains(u"16 MiB"_s));
  EXPECT_EQ(files(), QSet<QString>());
  write(file, R"({"a":")" + huge.toLatin1() + R"("})");
  EXPECT_TRUE(defaults.persistentDomainForName(domain).reason.contains(u"16 MiB"_s));
  EXPECT_FALSE(put(values, domain));
  EXPECT_GT(QFileInfo(file).size(), largestDomain) << "it was replaced";
}

TEST_F(JsonUserDefaultsTest, DamagedFilesAreKeptAside) {
  int number = 0;
  for (const QByteArray& damaged :
       {QByteArray("{\"a\": 1"), QByteArray("[1, 2]"), QByteArray("\xFF\xFE"), QByteArray(3, '\0')}) {
    write(file, damaged);
    const ExpectedWarning warning("was not readable and is kept as");
    const Domain read = defaults.persistentDomainForName(domain);
    EXPECT_TRUE(read.available && !read.values);
    EXPECT_FALSE(QFile::exists(file));
    QFile aside(file + u".damaged-%1"_s.arg(++number));
    ASSERT_TRUE(aside.open(QIODevice::ReadOnly));
    EXPECT_EQ(aside.readAll(), damaged);
  }
  write(file, "");
  EXPECT_TRUE(defaults.persistentDomainForName(domain).available) << "an empty file holds nothing to keep";
  EXPECT_EQ(files().size(), 5);
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
  ASSERT_TRUE(put(values, domain));
  QSet<QString> expected(std::begin(others), std::end(others));
  EXPECT_EQ(files(), expected << domain + u".json"_s);
}

TEST_F(JsonUserDefaultsTest, WhatIsNoFileIsUnavailableAndStays) {
  ASSERT_TRUE(QDir().mkpath(file));
  const ExpectedWarning warning("not kept");
  EXPECT_FALSE(defaults.persistentDomainForName(domain).available);
  const Outcome written = put(values, domain);
  EXPECT_FALSE(written);
  EXPECT_TRUE(written.reason().contains(domain)) << written.reason();
  EXPECT_EQ(files(), QSet<QString>()) << "a temporary file is left";
}

TEST_F(JsonUserDefaultsTest, AFailedWriteLeavesTheOldDomain) {
  const ExpectedWarning warning("not kept");
  write(folder, "a file where the folder would be");
  EXPECT_TRUE(defaults.persistentDomainForName(domain).available);
  const Outcome written = put(values, domain);
  EXPECT_FALSE(written);
  EXPECT_TRUE(written.reason().contains(folder)) << written.reason();
}

TEST_F(JsonUserDefaultsTest, WithoutTheRights) {
  if (::geteuid() == 0) GTEST_SKIP() << "root may do everything";
  ASSERT_TRUE(put(values, domain));
  ASSERT_TRUE(QFile::setPermissions(file, QFile::WriteOwner));
  EXPECT_FALSE(defaults.persistentDomainForName(domain).available);
  ASSERT_TRUE(QFile::setPermissions(file, QFile::ReadOwner));
  ASSERT_TRUE(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
  const ExpectedWarning warning("not kept");
  EXPECT_FALSE(put({}, domain));
  EXPECT_EQ(defaults.persistentDomainForName(domain).values, values);
  QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

}  // namespace
}  // namespace kesto
