#include <QtCore/QSet>

#include "panel/initialize_ui.h"
#include "panel/input_filters.h"
#include "panel/localized.h"
#include "tests/support/test_panel.h"

namespace kesto {
namespace {

using namespace test;

// Name and kind of a caption, a field and its hold button for each base name, and of the controls given
// whole.
QSet<QString> controlsOf(const Text& rows, const Text& others) {
  QSet<QString> controls;
  for (const QString& row : rows.split(u' ')) {
    controls |= {row + u"StaticText:label"_s, row + u"EditText:textField"_s, row + u"Button:holdButton"_s};
  }
  for (const QString& other : others.split(u' '))
    controls.insert(other);
  return controls;
}

const QSet<QString> everyLayout = controlsOf(
    "suspendKey folderPassword loginName password userNumber accountNumber userName jobName",
    "tabView:tabView retentionCheckBox:checkBox suspendBox:box suspendMatrix:matrix "
    "holdOnlyRadioButton:radio "
    "holdAfterRadioButton:radio samplePrintRadioButton:radio filingBox:box authenticationMatrix:matrix "
    "authenticationRadioButton:radio userNumberRadioButton:radio jobIDBox:box");
const QSet<QString> withMatrix =
    controlsOf("folderName",
               "folderSelectionMatrix:matrix quickFileRadioButton:radio mainFolderRadioButton:radio "
               "customFolderRadioButton:radio") -
    QSet{u"folderNameStaticText:label"_s};
const QSet<QString> withPopUp =
    controlsOf("printersAddress",
               "folderSelectionStaticText:label folderSelectionPopup:popUp chasingArrow:progress "
               "getFolderNameButton:pushButton") -
    QSet{u"printersAddressButton:holdButton"_s};

// The action that a control of a layout is wired to.
QString actionOf(const Control& control) {
  static const QMap<QString, QString> others{
      {u"retentionCheckBox"_s, u"retentionCBoxProc:"_s},
      {u"suspendMatrix"_s, u"suspendKeyMatrixProc:"_s},
      {u"folderSelectionPopup"_s, u"folderSelectionPopUpButtonProc:"_s},
      {u"printersAddressEditText"_s, u"printersAddressButtonProc:"_s},
      {u"folderNameEditText"_s, u""_s},
      {u"tabView"_s, u"tabProc:"_s}};
  const QString name = control.objectName();
  if (others.contains(name)) return others.value(name);
  if (control.kind() == u"textField") return QString(name).replace(u"EditText"_s, u"ETextProc:"_s);
  const bool isOperated = QStringList{u"holdButton"_s, u"pushButton"_s, u"matrix"_s}.contains(control.kind());
  return isOperated ? name + u"Proc:"_s : QString();
}

TEST(Layouts, HoldTheControlsOfTheirModeAllFreeAndWired) {
  struct Case {
    Text name;
    QSet<QString> controls;
    int pages = 0;
    Text values;
  };
  for (const Case& row : {Case{"JobControl4", everyLayout | withMatrix, 1, "folderSelectionMatrix=1"},
                          Case{"JobControl5", everyLayout | withPopUp, 2, "folderSelectionPopup=1"},
                          Case{"JobControl6", everyLayout | withMatrix | withPopUp, 2,
                               "folderSelectionMatrix=1 folderSelectionPopup=1"}}) {
    SCOPED_TRACE(row.name);
    const PanelGroups panel(row.name);
    QSet<QString> controls;
    for (const Control* control : panel.view->controls()) {
      const QString kind = control->kind();
      controls.insert(control->objectName() + u':' + kind);
      EXPECT_EQ(control->action(), actionOf(*control)) << control->objectName();
      EXPECT_TRUE(isAvailable(*control) || kind == u"box" || kind == u"tabView" || kind == u"progress");
      EXPECT_TRUE(kind != u"textField" || valueOf(*panel.view, control->objectName()).isEmpty());
      EXPECT_TRUE(kind != u"holdButton" || control->property("state") == 0);
    }
    EXPECT_EQ(QStringList((controls - row.controls).values()), QStringList());
    EXPECT_EQ(QStringList((row.controls - controls).values()), QStringList());
    EXPECT_EQ(panel.state.outlets.tabView->labels().size(), row.pages);
    expectControls(*panel.view, "retentionCheckBox=0 suspendMatrix=0 authenticationMatrix=0 focus=");
    expectControls(*panel.view, row.values);
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
    QFile file(QStringLiteral(KESTO_TEST_DATA "/") + name);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    expectFault(file.readAll(), fault);
  }
  expectFault("<ui>" + QByteArray("<widget class=\"QFrame\">").repeated(200) +
                  QByteArray("</widget>").repeated(200) + "</ui>",
              "line 1: elements nested too deep");
}

TEST(LocalizedStringValue, KeyUpToTheColon) {
  const Bundle bundle(Bundle::find(u"JobHandling.pde"_s), QLocale(QLocale::German));
  for (const auto& [source, text] : Cases{{"User Name:", "Benutzername:"},
                                          {"User Name", "Benutzername"},
                                          {"User Name:extra: more", "Benutzername:"},
                                          {" \n\tJob Name:", "Auftragsname:"},
                                          {"User Name :", "User Name :"},
                                          {"user name", "user name"},
                                          {"Unknown:rest", "Unknown:"},
                                          {":User Name", ":User Name"},
                                          {"  :", "  :"},
                                          {":", ":"},
                                          {"  ", "  "},
                                          {"", ""},
                                          {nullptr, nullptr}}) {
    EXPECT_EQ(localizedStringValue(bundle, source), text) << source;
    EXPECT_EQ(localizedStringValue(bundle, source).isNull(), source.isNull());
  }
}

TEST(InitializeUI, TypingReachesTheLimitOfEachField) {
  PanelGroups panel;
  initializeUI(panel.state);
  forEachValue(
      u"suspendKey=8 folderPassword=8 userNumber=5 accountNumber=5 folderName=255 userName=32 jobName=80 "
      "loginName=301 password=301 printersAddress=301"_s,
      [&](const QString& name, const QString& value) {
        const int limit = value.toInt();
        TextField& text = field(*panel.view, name);
        EXPECT_TRUE(text.type(u"x"_s));
        EXPECT_EQ(text.stringValue().isEmpty(), limit <= 8) << name << ", a digit field or not";
        EXPECT_TRUE(text.paste(QString(limit - text.stringValue().size(), u'7')));
        EXPECT_EQ(text.stringValue().size(), limit) << name;
        EXPECT_TRUE(text.type(u"7"_s));
        EXPECT_EQ(text.stringValue().size(), limit > 300 ? limit + 1 : limit) << name;
      });
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

TEST(InitializeUI, HappensOnceAndToleratesAbsentControls) {
  PanelGroups panel;
  initializeUI(panel.state);
  panel.state.mfpURL = u"later"_s;
  field(*panel.view, "userName").setFormatter(nullptr);
  panel.state.outlets.chasingArrow->setHidden(false);
  initializeUI(panel.state);
  expectControls(*panel.view, "printersAddress=");
  EXPECT_EQ(field(*panel.view, "userName").formatter(), nullptr);
  EXPECT_FALSE(panel.state.outlets.chasingArrow->isHidden());

  PanelGroups bare;
  bare.state.outlets = {};
  initializeUI(bare.state);
  EXPECT_TRUE(bare.state.hasInited);
}

TEST(InitializeUI, TranslatesTheFirstTwoPages) {
  for (const auto& [labels, translated] :
       Cases{{"Job Storage", "Auftragsspeicher"}, {"On Off", "Ein Aus"}, {"On Off OK On", "Ein Aus OK On"}}) {
    TestPlatform german(QLocale::German);
    PanelGroups panel;
    panel.state.pdeBundle = german.bundle();
    TabView& tabs = *panel.state.outlets.tabView;
    tabs.setLabels(labels == u"Job Storage" ? QStringList{labels} : labels.split(u' '));
    tabs.selectTab(1);
    initializeUI(panel.state);
    EXPECT_EQ(tabs.labels().join(u' '), translated);
    EXPECT_EQ(tabs.selectedTab(), 0);
  }
}

TEST(InitializeUI, AGermanPanel) {
  TestPlatform german(QLocale::German);
  std::unique_ptr<PanelView> asLoaded;
  ASSERT_TRUE(loadLayout(layoutForm(*german.bundle(), u"JobControl6"_s), *german.bundle(), &asLoaded));
  expectControls(*asLoaded,
                 "suspendBox=Hold_Mode userNameStaticText=User_Name: holdOnlyRadioButton=Nur_zurückhalten");
  TestPanel panel(german);
  expectControls(
      panel.view(),
      "suspendBox=Haltemodus suspendKeyStaticText=PIN: filingBox=Dokumentenablage "
      "folderPasswordStaticText=PIN_des_Ordners: userNumberStaticText=Benutzernummer: "
      "userNumberRadioButton=Benutzernummer accountNumberStaticText=Kontonummer: jobIDBox=Auftragskennung "
      "userNameStaticText=Benutzername: jobNameStaticText=Auftragsname: "
      "holdAfterRadioButton=Nach_dem_Druck_halten printersAddressStaticText=Druckeradresse: "
      "customFolderRadioButton=Eigener_Ordner loginNameStaticText=Anmeldename: passwordStaticText=Passwort: "
      "folderSelectionStaticText=Ordner: samplePrintRadioButton=Probedruck");
  EXPECT_EQ(button(panel.view(), "retentionCheckBox").title(), u"Zurückhalten"_s);
  EXPECT_EQ(button(panel.view(), "getFolderNameButton").title(), u"Ordnernamen abrufen"_s);
  EXPECT_EQ(popUp(panel.view(), "folderSelectionPopup").selectedItem()->title, u"Hauptordner"_s);
}

}  // namespace
}  // namespace kesto
