#include "panel/form.h"
#include "panel/initialize_ui.h"
#include "panel/localized.h"
#include "tests/support/test_panel.h"

namespace kesto {
namespace {

using namespace test;

TEST(Layouts, TheLargestIsAllFreeAndEmpty) {
  const PanelGroups panel;
  for (const Control* control : panel.view->controls()) {
    const QString kind = control->kind();
    EXPECT_TRUE(isAvailable(*control) || kind == u"box" || kind == u"tabView" || kind == u"progress");
    EXPECT_TRUE(kind != u"textField" || valueOf(*panel.view, control->objectName()).isEmpty());
    EXPECT_TRUE(kind != u"holdButton" || control->property("state") == 0);
    EXPECT_EQ(control->action().isEmpty(), kind == u"box" || kind == u"label" || kind == u"radio" ||
                                               kind == u"progress" ||
                                               control->objectName() == u"folderNameEditText")
        << control->objectName();
  }
  expectControls(*panel.view, "retention=0 hold=0 who=0 folder=1 item=1 focus=");
}

TEST(Layouts, TheOthersLackSomeOfItsControlsAndPages) {
  const PanelGroups largest;
  for (const auto& [name, absent, pages] :
       {std::tuple("JobControl4",
                   "chasingArrow folderSelectionPopup folderSelectionStaticText getFolderNameButton "
                   "printersAddressEditText printersAddressStaticText",
                   1),
        std::tuple("JobControl5",
                   "customFolderRadioButton folderNameButton folderNameEditText folderSelectionMatrix "
                   "mainFolderRadioButton quickFileRadioButton",
                   2)}) {
    SCOPED_TRACE(name);
    const PanelGroups panel(name);
    QStringList absentNow;
    for (const Control* control : largest.view->controls()) {
      const Control* same = panel.view->control(control->objectName());
      if (same == nullptr) {
        absentNow.append(control->objectName());
        continue;
      }
      EXPECT_EQ(same->kind() + same->action(), control->kind() + control->action());
      EXPECT_EQ(valueOf(*panel.view, same->objectName()), valueOf(*largest.view, same->objectName()));
      EXPECT_EQ(isAvailable(*same), isAvailable(*control));
    }
    absentNow.sort();
    EXPECT_EQ(absentNow.join(u' '), Text(absent));
    EXPECT_EQ(panel.view->controls().size() + absentNow.size(), largest.view->controls().size());
    EXPECT_EQ(panel.state.outlets.tabView->labels().size(), pages);
  }
}

TEST(Layouts, ACompiledFormIsThatOfItsTextOrNone) {
  const PanelGroups panel;
  for (const QString& name : {u"JobControl4"_s, u"JobControl5"_s, u"JobControl6"_s}) {
    const QByteArray ui = layoutForm(*panel.state.pdeBundle, name);
    const QByteArray compiled = panel.state.pdeBundle->resource(name, u"form"_s).value_or(QByteArray());
    FormWidget root;
    ASSERT_TRUE(readCompiledForm(compiled, ui, &root)) << name;
    EXPECT_TRUE(compiledForm(ui, root) == compiled) << name;
    ASSERT_TRUE(readForm(ui, &root));
    EXPECT_TRUE(compiledForm(ui, root) == compiled) << name;
    EXPECT_FALSE(readCompiledForm(compiled, ui + ' ', &root));
    EXPECT_FALSE(readCompiledForm(compiled + ' ', ui, &root));
    for (qsizetype size = 0; size < compiled.size(); size += 7)
      EXPECT_FALSE(readCompiledForm(compiled.first(size), ui, &root)) << size;
  }
}

void expectFault(const QByteArray& form, const Text& fault) {
  auto view = std::make_unique<PanelView>();
  const Outcome loaded = loadLayout(form, Bundle{QString()}, &view);
  EXPECT_TRUE(!loaded && loaded.reason().startsWith(fault)) << loaded.reason();
  EXPECT_EQ(view, nullptr);
}

TEST(Layouts, MalformedOnesAreReportedWithTheirLine) {
  for (const auto& [name, fault] :
       Cases{{"empty.ui", "line 1: "},
             {"unclosed-widget.ui", "line 6: "},
             {"other-document.ui", "not a form"},
             {"no-widget.ui", "not a form"},
             {"two-of-one-name.ui", "line 6: a second control is called userNameEditText"},
             {"two-cells-of-one-name.ui", "line 6: a second control is called userNameEditText"},
             {"field-without-tag.ui", "line 4: userNameEditText: labels have tag 0, text fields another"},
             {"label-with-tag.ui", "line 4: userNameStaticText: labels have tag 0, text fields another"},
             {"no-row-chosen.ui", "line 4: no row of suspendMatrix is chosen"}}) {
    SCOPED_TRACE(name);
    expectFault(bytesOf(QStringLiteral(KESTO_TEST_DATA "/") + name), fault);
  }
  expectFault("<ui>" + QByteArray("<widget class=\"QFrame\">").repeated(200) +
                  QByteArray("</widget>").repeated(200) + "</ui>",
              "line 1: elements nested too deep");
}

TEST(LocalizedStringValue, KeyUpToTheColon) {
  const Bundle bundle(Bundle::find(u"JobHandling.pde"_s), QLocale(QLocale::German));
  for (const auto& [source, text] :
       {Pair{"User name:", "Benutzername:"}, Pair{"User name", "Benutzername"},
        Pair{"User name:extra: more", "Benutzername:"}, Pair{" \n\tJob name:", "Auftragsname:"},
        Pair{"User name :", "User name :"}, Pair{"user name", "user name"}, Pair{"Unknown:rest", "Unknown:"},
        Pair{":User name", ":User name"}, Pair{"  :", "  :"}, Pair{":", ":"}, Pair{"  ", "  "}, Pair{"", ""},
        Pair{nullptr, nullptr}}) {
    EXPECT_EQ(localizedStringValue(bundle, source), text) << source;
    EXPECT_EQ(localizedStringValue(bundle, source).isNull(), source.isNull());
  }
}

TEST(InitializeUI, PadlocksAddressAndArrow) {
  for (const Text& address : {Text("printer.example"), Text(nullptr)}) {
    PanelGroups panel;
    panel.state.mfpURL = address;
    setControls(*panel.view, "printersAddress=laid-out");
    initializeUI(panel.state);
    EXPECT_TRUE(panel.state.hasInited && panel.state.outlets.chasingArrow->isHidden());
    EXPECT_EQ(valueOf(*panel.view, "printersAddressEditText"), address.isNull() ? Text("laid-out") : address);
    for (const HeldField& row : heldFields) {
      const Button& hold = *(panel.state.outlets.*row.button);
      const bool isLogin = row.field == Held::LoginName || row.field == Held::Password;
      for (const auto& [image, name] :
           {std::pair(hold.image(), u"ulck"), std::pair(hold.alternateImage(), u"lock")}) {
        EXPECT_EQ(image.has_value(), !isLogin);
        EXPECT_TRUE(!image || (image->name == name && image->points == 18 && QFile::exists(image->path)));
      }
    }
  }
}

TEST(InitializeUI, AGermanPanel) {
  PanelGroups panel;
  panel.state.pdeBundle = TestPlatform(QLocale::German).bundle();
  const Bundle& german = *panel.state.pdeBundle;
  ASSERT_TRUE(loadLayout(layoutForm(german, u"JobControl6"_s), german, &panel.view));
  panel.state.outlets = outletsOfView(panel.view.get());
  expectControls(*panel.view,
                 "suspendBox=Hold_mode userNameStaticText=User_name: holdOnlyRadioButton=Nur_zurückhalten");
  TabView& tabs = *panel.state.outlets.tabView;
  tabs.setLabels({u"Job storage"_s, u"Off"_s, u"On"_s});
  tabs.selectTab(1);
  initializeUI(panel.state);
  EXPECT_EQ(tabs.labels().join(u' '), u"Auftragsspeicher Aus On"_s) << "the first two pages";
  EXPECT_EQ(tabs.selectedTab(), 0);
  expectControls(
      *panel.view,
      "suspendBox=Haltemodus suspendKeyStaticText=PIN: filingBox=Dokumentenablage "
      "folderPasswordStaticText=PIN_des_Ordners: userNumberStaticText=Benutzernummer: "
      "userNumberRadioButton=Benutzernummer accountNumberStaticText=Kontonummer: jobIDBox=Auftragskennung "
      "userNameStaticText=Benutzername: jobNameStaticText=Auftragsname: "
      "holdAfterRadioButton=Nach_dem_Druck_halten printersAddressStaticText=Druckeradresse: "
      "customFolderRadioButton=Eigener_Ordner loginNameStaticText=Anmeldename: passwordStaticText=Passwort: "
      "folderSelectionStaticText=Ordner: samplePrintRadioButton=Probedruck");
  EXPECT_EQ(button(*panel.view, "retention").title(), u"Zurückhalten"_s);
  EXPECT_EQ(button(*panel.view, "getFolderNameButton").title(), u"Ordnernamen abrufen"_s);
  EXPECT_EQ(popUp(*panel.view, "item").selectedItem()->title, u"Hauptordner"_s);
}

}  // namespace
}  // namespace kesto
