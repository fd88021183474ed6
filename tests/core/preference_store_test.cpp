#include "prefs/preference_store.h"

#include <QtCore/QJsonArray>

#include "tests/support/test_panel.h"

namespace kesto {
namespace {

using namespace test;

const QString model = u"KESTO VQ-250n"_s;
const QJsonObject freshRecord{{u"Model Name"_s, model}, {u"Release Number"_s, u"2.00"_s}};

class PreferenceStoreTest : public testing::Test {
 protected:
  PreferenceStoreTest() {
    panel.state.preferenceName = printerDomain;
    panel.state.modelStringRef = model;
  }
  // The keys of the record whose values were loaded.
  QString loaded() const {
    QStringList keys;
    for (const HeldField& row : heldFields) {
      if (!(panel.state.remembered.*row.remembered).isNull()) keys.append(Text(row.recordKey));
    }
    if (panel.state.remembered.prefAuthenticationBooleanRef) keys.append(u"authentication"_s);
    return keys.join(u", "_s);
  }
  QJsonValue stored(const QString& key) { return platform.remembered().value(key); }

  PanelGroups panel;
  TestPlatform& platform = panel.platform;
  PreferenceStore& store = panel.preferences;
};

TEST_F(PreferenceStoreTest, ARecordOfAnotherModelOrReleaseIsReset) {
  const auto record = [](const QJsonValue& model, const QJsonValue& release) {
    return QJsonObject{{u"Model Name"_s, model}, {u"Release Number"_s, release}, {u"hold button"_s, 1}};
  };
  store.GetFolderPreference();
  EXPECT_FALSE(panel.state.folderList) << "there is no record yet";
  const QJsonValue own = record(model, u"2.00"_s);
  for (const QJsonValue& before :
       {own, QJsonValue(QJsonValue::Undefined), QJsonValue(record(model, u"2.0"_s)),
        QJsonValue(record(model, 2.00)), QJsonValue(record(model.toLower(), u"2.00"_s)),
        QJsonValue(record(250, u"2.00"_s)), QJsonValue(QJsonObject{{u"Release Number"_s, u"2.00"_s}}),
        QJsonValue(u"record"_s)}) {
    platform.defaults.domains.insert(printerDomain, {{u"Job Handling"_s, before}, {u"Other"_s, 7}});
    store.CheckPreference();
    EXPECT_EQ(platform.remembered(), before == own ? own.toObject() : freshRecord);
    EXPECT_EQ(platform.defaults.domains.value(printerDomain).value(u"Other"_s), 7) << "another key is gone";
  }
}

// The store fails while the check reads or writes. Another model's record still counts as reset, and the
// printer's own is loaded.
TEST_F(PreferenceStoreTest, ACheckThatCannotBeWrittenHoldsAllTheSame) {
  for (const auto& [failing, isOwn] : {std::pair(1, false), {2, false}, {1, true}, {2, true}}) {
    SCOPED_TRACE(testing::Message() << failing << ' ' << isOwn);
    platform.remember({{u"Model Name"_s, isOwn ? model : u"KESTO VQ-900"_s},
                       {u"hold button"_s, 257},
                       {u"pass code"_s, u"x"_s},
                       {u"folder name"_s, u"Akten"_s},
                       {u"address"_s, u"there"_s},
                       {u"files"_s, QJsonArray{jsonOf({.name = u"Akten"_s})}}});
    const QJsonObject before = platform.remembered();
    platform.defaults.accesses = 0;
    platform.defaults.shallFail = [failing = failing](int access) { return access == failing; };
    store.CheckPreference();
    EXPECT_EQ(platform.remembered(), before);
    platform.defaults.shallFail = nullptr;
    store.GetUserPreference();
    store.GetFolderPreference();
    EXPECT_EQ(panel.state.prefHoldButtonFlag, isOwn ? 257 : 0);
    EXPECT_EQ(loaded(), isOwn ? u"pass code, folder name"_s : u""_s);
    ASSERT_TRUE(panel.state.folderList);
    EXPECT_EQ(panel.state.folderList->size(), isOwn ? 1U : 0U);
    EXPECT_EQ(panel.state.addressStringRef, isOwn ? u"there"_s : QString());
    EXPECT_TRUE(store.SaveFolderPreference());
    EXPECT_EQ(stored(u"Model Name"_s), model);
    EXPECT_EQ(stored(u"pass code"_s).isUndefined(), !isOwn) << "another model's entry was kept";
  }
}

// Sealed values by openssl enc -aes-128-ecb; "_" stands for a blank in keys.
TEST_F(PreferenceStoreTest, EntriesAreStoredInTheirForms) {
  const QString zeros = u"0"_s.repeated(32);
  const auto expectRecord = [&](const QString& controls, const QString& values) {
    setControls(*panel.view, controls);
    EXPECT_TRUE(store.SaveUserPreference());
    forEachValue(values, [&](QString key, const QString& value) {
      EXPECT_EQ(stored(key.replace(u'_', u' ')), QJsonValue(value)) << controls;
    });
  };
  for (const auto& [controls, values] : Cases{
           {"suspendKey=12345 password=s3cr loginName=jdoe userNumber=42",
            u"pass_code=14B7EEEE335A1C6F80913C213FC87AC6 user_login_name=J715aTy6C1tJPaVj4yTI/Q== "
            "user_number=D4C886221F974CE34F262182C082702D user_password=6C5D5CE2349D0D3454E276F4FF4EAC7C"_s +
                zeros},
           {"accountNumber=7 folderPassword=1234 userName=Jürgen\"漢\" jobName= folderName=Akten",
            "account_number=898A6A33D5CDC2286B1F5D0458FBA991 "
            "folder_pass_code=3F3FA6A226B041DE0CA8F37F0E03543E user_name=Jürgen\"漢\" job_name= "
            "folder_name=Akten"},
           {"suspendKey=0123456789abcdefX loginName=0123456789abcdefghij password=0123456789abcdef",
            u"pass_code=C604CF6E588747093B725502E4C1A943 user_password=C604CF6E588747093B725502E4C1A943"_s +
                zeros + u" user_login_name=xgTPbliHRwk7clUC5MGpQ8o/mQ3kPAx9auS4EgYyTzs="_s},
           {"suspendKey= loginName= folderPassword=12é password=0123456789abcdef0123456789ABCDEFX",
            "pass_code= user_login_name= folder_pass_code= "
            "user_password=C604CF6E588747093B725502E4C1A94317EE51593C583158CFAA7B43F3EFDD65"},
           {"suspendKey=漢 password=a漢b",
            u"pass_code= user_password=77F113BE1F8A9F11AB5FCCA2B778E206"_s + zeros}})
    expectRecord(controls, values);
  panel.state.systemEncoding = TextEncoding::MacJapanese;
  expectRecord(u"password=漢"_s, u"user_password=B6360A871E810F5DDC8150BF859A77BF"_s + zeros);
}

TEST_F(PreferenceStoreTest, EveryEntryIsStoredAndTheMaskTellsWhichReturn) {
  for (const auto& [controls, mask, entries] :
       {std::tuple("suspendKeyButton=1 folderNameButton=1 folderName=Akten", 257,
                   "pass code, folder name, authentication"),
        std::tuple("suspendKeyButton=0 folderNameButton=0 accountNumberButton=1 who=1", 128,
                   "account number, authentication")}) {
    setControls(*panel.view, controls);
    EXPECT_TRUE(store.SaveUserPreference());
    EXPECT_EQ(platform.remembered().size(), 11);
    store.GetUserPreference();
    EXPECT_EQ(panel.state.prefHoldButtonFlag, mask);
    EXPECT_EQ(loaded(), Text(entries));
    EXPECT_EQ(panel.state.remembered.prefAuthenticationBooleanRef, mask == 257);
  }
}

TEST_F(PreferenceStoreTest, AHeldLoginNameIsStoredAlthoughBulletsAreShown) {
  setControls(*panel.view, "loginName=•• loginNameButton=1");
  panel.state.loginNameStringRef = u"jdoe"_s;
  EXPECT_TRUE(store.SaveUserPreference());
  EXPECT_EQ(stored(u"user login name"_s), u"J715aTy6C1tJPaVj4yTI/Q=="_s);
  panel.state.loginNameStringRef = u""_s;
  panel.state.outlets.userNameEditText = nullptr;
  EXPECT_TRUE(store.SaveUserPreference());
  EXPECT_EQ(stored(u"user login name"_s), u"J715aTy6C1tJPaVj4yTI/Q=="_s)
      << "an empty held name replaces nothing";
}

// Entries that replace those of a record in which every entry has a text; the mask, and how many entries were
// loaded.
TEST_F(PreferenceStoreTest, MasksAndValuesOfEveryKind) {
  using Case = std::tuple<const char*, int, qsizetype>;
  for (const auto& [entries, flag, values] :
       {Case{R"("hold button": 257)", 257, 3}, Case{R"("hold button": 511)", 511, 10},
        Case{R"("hold button": 0)", 0, 1}, Case{R"("hold button": -1)", -1, 10},
        Case{R"("hold button": 257.5)", 257, 0}, Case{R"("hold button": 4294967301)", 5, 0},
        Case{R"("hold button": 3000000000)", -1294967296, 0}, Case{R"("hold button": 1e300)", 0, 0},
        Case{R"("hold button": "257")", 0, 0}, Case{R"("hold button": true)", 0, 0}, Case{R"("x": 1)", 0, 0},
        Case{R"("hold button": 511, "pass code": 1, "user name": ["x"], "job name": null)", 511, 7},
        Case{R"("hold button": 511, "authentication": 1, "user number": "")", 511, 9}}) {
    QJsonObject record{{u"authentication"_s, true}};
    for (const HeldField& field : heldFields)
      record.insert(Text(field.recordKey), u"value"_s);
    const QJsonObject others = QJsonDocument::fromJson(QByteArray("{") + entries + '}').object();
    for (auto it = others.begin(); it != others.end(); ++it)
      record.insert(it.key(), it.value());
    platform.remember(record);
    panel.state.remembered.prefJobNameStringRef = u"of before"_s;
    store.GetUserPreference();
    EXPECT_EQ(panel.state.prefHoldButtonFlag, flag) << entries;
    EXPECT_EQ(loaded().split(u", "_s, Qt::SkipEmptyParts).size(), values) << entries;
  }
}

TEST_F(PreferenceStoreTest, FoldersAndAddress) {
  const std::vector<FolderEntry> folders{{.name = u"Akten"_s, .password = true},
                                         {.name = u"Zwei"_s, .dir = true}};
  panel.state.folderList = folders;
  EXPECT_TRUE(store.SaveFolderPreference());
  const QByteArray files = QJsonDocument(stored(u"files"_s).toArray()).toJson(QJsonDocument::Compact);
  EXPECT_EQ(files, R"([{"add":false,"dir":false,"name":"Akten","password":true},)"
                   R"({"add":false,"dir":true,"name":"Zwei","password":false}])");
  panel.state.folderList.reset();
  setControls(*panel.view, "printersAddress=there");
  EXPECT_TRUE(store.SaveFolderPreference());
  store.GetFolderPreference();
  EXPECT_EQ(panel.state.addressStringRef, u"there"_s);
  EXPECT_TRUE(panel.state.folderList == folders) << "without a list the stored one stays";

  platform.remember(
      {{u"files"_s,
        QJsonDocument::fromJson(R"([{"name": ""}, {}, 1, {"name": "Drei", "password": "true"}])").array()},
       {u"address"_s, 2}});
  store.GetFolderPreference();
  EXPECT_TRUE(panel.state.folderList == std::vector{FolderEntry{.name = u"Drei"_s}});
  EXPECT_TRUE(panel.state.addressStringRef.isNull());
  platform.remember({{u"files"_s, u"f"_s}});
  store.GetFolderPreference();
  EXPECT_TRUE(panel.state.folderList && panel.state.folderList->empty());
}

TEST_F(PreferenceStoreTest, AStoreThatFailsLeavesEverythingAsItWas) {
  platform.remember({{u"hold button"_s, 1}, {u"pass code"_s, u"x"_s}});
  const auto before = platform.defaults.domains;
  panel.state.folderList.emplace();
  setControls(*panel.view, "userName=new userNameButton=1");
  for (const int failing : {1, 2}) {  // the read, then the write
    for (const bool isOfFolders : {false, true}) {
      platform.defaults.accesses = 0;
      platform.defaults.shallFail = [failing](int access) { return access == failing; };
      EXPECT_FALSE(isOfFolders ? store.SaveFolderPreference() : store.SaveUserPreference());
      EXPECT_EQ(platform.defaults.accesses, failing) << "went on after a failure";
    }
  }
  panel.state.remembered.prefUserNameStringRef = u"old"_s;
  panel.state.folderList.reset();
  platform.defaults.shallFail = [](int) { return true; };
  store.CheckPreference();
  store.GetUserPreference();
  store.GetFolderPreference();
  EXPECT_EQ(loaded(), u""_s);
  EXPECT_EQ(panel.state.prefHoldButtonFlag, 0);
  EXPECT_FALSE(panel.state.folderList);
  EXPECT_EQ(platform.defaults.domains, before);
}

TEST_F(PreferenceStoreTest, WithoutAPrinterNothingIsTouched) {
  panel.state.preferenceName = QString();
  store.CheckPreference();
  store.GetUserPreference();
  store.GetFolderPreference();
  EXPECT_FALSE(store.SaveUserPreference() || store.SaveFolderPreference());
  EXPECT_TRUE(store.GetHDDPreference() && store.SaveHDDPreference());
  EXPECT_EQ(platform.defaults.accesses, 0);
}

}  // namespace
}  // namespace kesto
