#include "folders/folder_popup.h"

#include "panel/localized.h"
#include "tests/support/test_panel.h"

namespace kesto::test {
namespace {

// The pop-up of a laid-out panel, on a list that the test sets.
struct Popup {
  explicit Popup(QLocale::Language language = QLocale::English)
      : platform(language), host(platform), state(host) {
    EXPECT_TRUE(loadLayout(layoutForm(*state.pdeBundle, u"JobControl6"_s), *state.pdeBundle, &view));
    state.outlets = outletsOfView(view.get());
    state.spaceImage = imageOfResource(*state.pdeBundle, u"space"_s);
    state.outlets.retentionCheckBox->setState(1);
  }

  void setFolders(const QString& names) {
    std::vector<FolderEntry> list;
    for (const QString& name : names.split(u'|', Qt::SkipEmptyParts)) {
      list.push_back({.name = name.endsWith(u'*') ? name.chopped(1) : name, .password = name.endsWith(u'*')});
    }
    state.folderList = std::move(list);
  }

  // Titles and images of all items: "title(image)", "-" for a separator.
  QString items() const {
    QStringList texts;
    for (const PopUpItem& item : state.outlets.folderSelectionPopup->items()) {
      texts.append(item.separator ? u"-"_s
                                  : item.title + u'(' + (item.image ? item.image->name : QString()) + u')');
    }
    return texts.join(u' ');
  }

  TestPlatform platform;
  TestHost host;
  PanelState state;
  EnablingRules rules{state};
  ControlActions actions{state, rules};
  FolderPopup folderPopup{state, actions};
  std::unique_ptr<PanelView> view;
};

TEST(FolderPopup, ItemsFollowTheList) {
  Popup popup;
  const QString fixed = u"Quick File(space) Main Folder(space)"_s;
  EXPECT_TRUE(popup.folderPopup.offersAllFolders());
  for (const auto& [list, behind] :
       {std::pair{u"Art|Maps: north*|OK"_s, u" - Art(space) Maps: north(lock) OK(space)"_s},
        {u"B"_s, u" - B(space)"_s},
        {u""_s, u""_s},
        {u"Work|WORK*"_s, u" - Work(space) WORK(lock)"_s}}) {
    popup.setFolders(list);
    popup.folderPopup.makeFolderPopup();
    EXPECT_EQ(popup.items(), fixed + behind);
    EXPECT_TRUE(popup.folderPopup.offersAllFolders());
    EXPECT_EQ(popup.state.outlets.folderSelectionPopup->selectedIndex(), 1);
  }
  popup.setFolders(u"Work|Other"_s);
  EXPECT_FALSE(popup.folderPopup.offersAllFolders());
}

TEST(FolderPopup, FixedItemsAreLocalised) {
  Popup popup(QLocale::German);
  popup.folderPopup.makeFolderPopup();
  EXPECT_EQ(popup.items(), u"Schnellablage(space) Hauptordner(space)"_s);
}

TEST(FolderPopup, FindsTheFirstFolderOfAName) {
  Popup popup;
  EXPECT_EQ(popup.folderPopup.SearchSameFolderName(u"Work"_s), 1);
  popup.setFolders(u"Art|Work|WORK|Äpfel"_s);
  for (const auto& [name, item] : {std::pair{u"Art"_s, 3},
                                   {u"work"_s, 4},
                                   {u"WORK"_s, 4},
                                   {u"äPFEL"_s, 6},
                                   {u"Wor"_s, 1},
                                   {u""_s, 1},
                                   {QString(), 1}}) {
    EXPECT_EQ(popup.folderPopup.SearchSameFolderName(name), item) << name.toStdString();
  }
}

TEST(FolderPopup, ARebuildKeepsTheChoice) {
  struct Row {
    const char* name;
    int chosen;
    QString list;
    int item;
    QString focus;  // after the rebuild; a folder found again has its action sent
  };
  const QList<Row> rows{
      {"quick file", 0, u"X"_s, 0, u"jobNameEditText"_s},
      {"main folder", 1, u""_s, 1, u"jobNameEditText"_s},
      {"a folder that moved", 4, u"Maps*|Art"_s, 3, u"folderPasswordEditText"_s},
      {"a folder in other case", 4, u"X|MAPS*"_s, 4, u"folderPasswordEditText"_s},
      {"a folder no longer protected", 4, u"Maps"_s, 3, u""_s},
      {"a folder that is gone", 4, u"Art"_s, 1, u""_s},
      {"all folders gone", 4, u""_s, 1, u""_s},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Popup popup;
    popup.setFolders(u"Art|Maps*"_s);
    popup.folderPopup.makeFolderPopup();
    popup.state.outlets.folderSelectionPopup->selectItemAtIndex(row.chosen);
    popup.view->makeFirstResponder(popup.state.outlets.jobNameEditText);
    popup.setFolders(row.list);
    popup.folderPopup.makeFolderPopup();
    expectControls(*popup.view, u"folderSelectionPopup=%1 focus=%2"_s.arg(row.item).arg(row.focus));
  }
}

TEST(FolderPopup, WithoutAPopUpNothingHappens) {
  Popup popup;
  popup.state.outlets.folderSelectionPopup = nullptr;
  popup.setFolders(u"Art"_s);
  popup.folderPopup.makeFolderPopup();
  EXPECT_TRUE(popup.folderPopup.offersAllFolders());
}

}  // namespace
}  // namespace kesto::test
