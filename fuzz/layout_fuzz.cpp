// The input is the panel's form.
#include "fuzz/targets.h"
#include "plugin/job_handling_panel.h"
#include "tests/support/bench_host.h"
#include "tests/support/panel_user.h"

namespace kesto::fuzz {

void runLayout(const QByteArray& input) {
  const QTemporaryDir folder;
  require(QDir(folder.path()).mkdir(QStringLiteral("Resources")), "the folder can be made");
  QFile form(folder.filePath(QStringLiteral("Resources/JobControl6.ui")));
  require(form.open(QIODevice::WriteOnly) && form.write(input) == input.size(), "the form can be written");
  form.close();

  bench::BenchHost host;
  host.ownPlatform.bundleOfPanel = std::make_shared<const Bundle>(folder.path());
  KestoPrintPdeVq250nJC panel(host);
  const PanelView* view = panel.panelView();
  panel.willShow();
  panel.restoreValuesAndReturnError(nullptr);
  if (view != nullptr) test::useEveryControl(*view);
  panel.saveValuesAndReturnError(nullptr);
  panel.shouldPrint();
  panel.summaryInfo();
}

}  // namespace kesto::fuzz
