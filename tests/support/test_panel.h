// Panels for tests: the whole controller with a double of the host, or single groups.
#pragma once

#include "panel/layout_loader.h"
#include "plugin/job_handling_panel.h"
#include "tests/support/controls.h"
#include "tests/support/test_host.h"

namespace kesto::test {

/// A model of printer whose capabilities the test chooses.
class TestController : public KestoPrintPdeVq250nJC {
 public:
  using KestoPrintPdeVq250nJC::KestoPrintPdeVq250nJC;
  int getUIMode() const override { return uiMode; }
  bool CheckHardDisk() const override { return hasHardDisk; }
  bool isVelkoMorra() const override { return isVelko; }

  int uiMode = 6;
  bool hasHardDisk = false;
  bool isVelko = false;
};

/// A panel with its host, printer and PPD.
struct TestPanel {
  explicit TestPanel(TestPlatform& platform, const QByteArray& ppdLines = ppdOfModel)
      : ppd(ppdLines), host(platform) {
    host.ppd = ppd.file();
    controller = std::make_unique<TestController>(host);
  }

  PanelView& view() { return *controller->panelView(); }
  void restore() { EXPECT_TRUE(controller->restoreValuesAndReturnError(nullptr)); }
  void save() { EXPECT_TRUE(controller->saveValuesAndReturnError(nullptr)); }
  QVariant fact(const char* name) const { return controller->property(name); }

  PpdFixture ppd;
  TestHost host;
  std::unique_ptr<TestController> controller;
};

/// A model of printer that has no panel.
struct TestModel : CapabilityQueries {
  int getUIMode() const override { return 6; }
  bool CheckHardDisk() const override { return hasHardDisk; }
  bool isVelkoMorra() const override { return isVelko; }

  bool hasHardDisk = false;
  bool isVelko = false;
};

/// The form of a layout resource.
inline QByteArray layoutForm(const Bundle& bundle, const QString& name) {
  return bundle.resource(name, u"ui"_s).value_or(QByteArray());
}

/// The groups of a panel on a loaded layout, without the controller and without actions bound to controls.
struct PanelGroups {
  explicit PanelGroups(const Text& layout = "JobControl6") {
    const Outcome loaded = loadLayout(layoutForm(*state.pdeBundle, layout), *state.pdeBundle, &view);
    EXPECT_TRUE(loaded) << loaded.reason();
    state.outlets = outletsOfView(view.get());
  }

  TestPlatform platform;
  TestHost host{platform};
  TestModel model;
  std::unique_ptr<PanelView> view;
  PanelState state{host};
  EnablingRules rules{state};
  ControlActions actions{state, rules};
  FolderPopup folderPopup{state, actions};
  SettingsWriter writer{state, model};
  SettingsReader reader{state, actions, folderPopup};
  PreferenceStore preferences{state};
};

}  // namespace kesto::test
