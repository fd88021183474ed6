// Measures the panel's work against the bare cost of its parts: writing the settings against cipher, digest
// and conversions; reading an answer against the XML reader alone; and how the cost of lists grows.
#include <benchmark/benchmark.h>

#include <QtCore/QXmlStreamReader>

#include "folders/folder_answer.h"
#include "panel/initialize_ui.h"
#include "panel/layout_loader.h"
#include "panel/localized.h"
#include "plugin/job_handling_panel.h"
#include "settings/stored_forms.h"
#include "tests/support/bench_host.h"

namespace {

using namespace kesto;

const QString jobName = QStringLiteral("Quarterly report of the northern branch, second draft");

// A panel with every field filled and retention on.
struct FilledPanel {
  FilledPanel() : panel(host) {
    panel.restoreValuesAndReturnError(nullptr);
    PanelView& view = *panel.panelView();
    (void)view.control<Button>(QStringLiteral("retentionCheckBox"))->click();
    for (const char* digits : {"suspendKey", "folderPassword", "userNumber", "accountNumber"})
      set(digits, QStringLiteral("12345"));
    for (const char* text : {"userName", "jobName"})
      set(text, jobName);
    panel.saveValuesAndReturnError(nullptr);
  }
  void set(const char* field, const QString& text) {
    panel.panelView()
        ->control<TextField>(QLatin1String(field) + QStringLiteral("EditText"))
        ->setStringValue(text);
  }

  bench::BenchHost host;
  KestoPrintPdeVq250nJC panel;
};

void writeAllSettings(benchmark::State& state) {
  FilledPanel filled;
  for ([[maybe_unused]] auto _ : state)
    filled.panel.saveValuesAndReturnError(nullptr);
}

// What every write needs: four sealed codes, two digests, six name forms and their hexadecimal texts.
void primitivesOfAWrite(benchmark::State& state) {
  const QByteArray spoolTime = "Tue, 24 Nov 2026 12:00:00 +0000";
  for ([[maybe_unused]] auto _ : state) {
    for (int i = 0; i < 4; ++i)
      benchmark::DoNotOptimize(sealedHex("12345", 16));
    for (int i = 0; i < 2; ++i)
      benchmark::DoNotOptimize(jobDigest("12345", spoolTime));
    for (int i = 0; i < 2; ++i) {
      for (const TextEncoding encoding :
           {TextEncoding::MacRoman, TextEncoding::WindowsLatin1, TextEncoding::Utf8}) {
        benchmark::DoNotOptimize(hexText(bytesOfText(jobName, encoding, 80, 80, ' ')));
      }
    }
  }
}

void restoreAllSettings(benchmark::State& state) {
  FilledPanel filled;
  for ([[maybe_unused]] auto _ : state)
    filled.panel.restoreValuesAndReturnError(nullptr);
}

void openAPanel(benchmark::State& state) {
  bench::BenchHost host;
  for ([[maybe_unused]] auto _ : state) {
    KestoPrintPdeVq250nJC panel(host);
    panel.restoreValuesAndReturnError(nullptr);
  }
}

QByteArray answerOf(std::int64_t count) {
  QByteArray xml = "<e><b><r><result-code>ok</result-code><files>";
  for (std::int64_t i = 0; i < count; ++i) {
    xml += "<f><name>Folder " + QByteArray::number(i) + "</name><password>true</password><dir>true</dir></f>";
  }
  return xml + "</files></r></b></e>";
}

void readAnAnswer(benchmark::State& state) {
  const QByteArray xml = answerOf(state.range(0));
  for ([[maybe_unused]] auto _ : state)
    benchmark::DoNotOptimize(readFolderAnswer(xml));
}

void xmlReaderAlone(benchmark::State& state) {
  const QByteArray xml = answerOf(state.range(0));
  for ([[maybe_unused]] auto _ : state) {
    QXmlStreamReader reader(xml);
    while (!reader.atEnd())
      reader.readNext();
    benchmark::DoNotOptimize(reader.hasError());
  }
}

// The groups that the pop-up needs, on a list of folders.
struct FolderPanel {
  explicit FolderPanel(std::int64_t count) : state(host) {
    const auto form = state.pdeBundle->resource(QStringLiteral("JobControl6"), QStringLiteral("ui"));
    if (!loadLayout(form.value_or(QByteArray()), *state.pdeBundle, &view)) std::abort();
    state.outlets = outletsOfView(view.get());
    state.folderList.emplace();
    for (std::int64_t i = 0; i < count; ++i)
      state.folderList->push_back({.name = QStringLiteral("Folder %1").arg(i)});
  }

  bench::BenchHost host;
  PanelState state;
  EnablingRules rules{state};
  ControlActions actions{state, rules};
  FolderPopup popup{state, actions};
  std::unique_ptr<PanelView> view;
};

void rebuildThePopUp(benchmark::State& state) {
  FolderPanel panel(state.range(0));
  for ([[maybe_unused]] auto _ : state) {
    panel.state.outlets.folderSelectionPopup->setItems({});
    panel.popup.makeFolderPopup();
  }
}

void findTheLastFolder(benchmark::State& state) {
  const FolderPanel panel(state.range(0));
  const QString name = QStringLiteral("FOLDER %1").arg(state.range(0) - 1);
  for ([[maybe_unused]] auto _ : state)
    benchmark::DoNotOptimize(panel.popup.SearchSameFolderName(name));
}

void runTheStorageRules(benchmark::State& state) {
  FolderPanel panel(100000);
  for ([[maybe_unused]] auto _ : state)
    panel.actions.retentionCBoxProc(nullptr);
}

BENCHMARK(primitivesOfAWrite);
BENCHMARK(writeAllSettings);
BENCHMARK(restoreAllSettings);
BENCHMARK(runTheStorageRules);
BENCHMARK(openAPanel)->Unit(benchmark::kMicrosecond);
BENCHMARK(xmlReaderAlone)->Arg(10)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(readAnAnswer)->Arg(10)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(rebuildThePopUp)->Arg(10)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(findTheLastFolder)->Arg(10)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);

}  // namespace
