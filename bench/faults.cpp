// The faults that need a program of their own; tools/faults runs them. "zones" writes the spool time around
// every clock change in every time zone; "soak N" opens, uses and closes N panels. Prints one line, or what
// broke.
#include <malloc.h>

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QTimeZone>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "hosts/session/panel_host.h"
#include "platform/json_user_defaults.h"
#include "plugin/entry.h"
#include "settings/value_helpers.h"
#include "tests/support/bench_host.h"
#include "tests/support/panel_user.h"

namespace {

using namespace kesto;

int fail(const char* what, const QByteArray& where) {
  std::fprintf(stderr, "%s: %s\n", where.constData(), what);
  return 1;
}

// Whether the spool time, read as the mail format that it is, gives the same time again.
bool isSpoolTimeRight(const QDateTime& moment) {
  std::array<char, 64> text{};
  const std::size_t length = GetSpoolTime(text, moment);
  const auto read = QDateTime::fromString(QString::fromLatin1(text.data()), Qt::RFC2822Date);
  return length == 31 && read.isValid() && read.toSecsSinceEpoch() == moment.toSecsSinceEpoch();
}

int writeInEveryZone() {
  // Before 1972 zones had offsets with seconds.
  const QDateTime first(QDate(1972, 1, 2), QTime(0, 0), QTimeZone::utc());
  const QDateTime last(QDate(2037, 12, 31), QTime(0, 0), QTimeZone::utc());
  const QList<QByteArray> zones = QTimeZone::availableTimeZoneIds();
  int changes = 0;
  for (const QByteArray& id : zones) {
    const QTimeZone zone(id);
    if (!isSpoolTimeRight(QDateTime::currentDateTimeUtc().toTimeZone(zone))) return fail("now", id);
    const QTimeZone::OffsetDataList transitions = zone.transitions(first, last);
    for (const QTimeZone::OffsetData& change : transitions) {
      ++changes;
      // The mail format has no seconds in an offset.
      if (change.offsetFromUtc % 60 != 0 || zone.offsetFromUtc(change.atUtc.addSecs(-1)) % 60 != 0) continue;
      for (const int seconds : {-3601, -1, 0, 1, 3600}) {
        const QDateTime moment = change.atUtc.addSecs(seconds).toTimeZone(zone);
        if (!isSpoolTimeRight(moment)) return fail(qPrintable(moment.toString(Qt::ISODate)), id);
      }
    }
  }
  std::printf("%d zones, %d changes of their clocks\n", static_cast<int>(zones.size()), changes);
  return 0;
}

// The resources of a process.
struct Holdings {
  std::size_t heap = mallinfo2().uordblks;
  qsizetype descriptors = QDir(QStringLiteral("/proc/self/fd")).count();
};

int usePanel(PrintDialogPlugIn& plugIn, Platform& platform) {
  PpdFile ppd;
  PanelHost host(platform);
  host.settings.emplace().setJobName(QStringLiteral("Letter"));
  host.session.currentPrinter = {.id = QStringLiteral("Office_MFP"), .deviceUri = QStringLiteral("lpd://x")};
  const bool hasPpd = bool(openPpdFile(QStringLiteral(KESTO_DEMO_PPD), &ppd));
  host.ppd = ppd.get();
  if (!hasPpd || !host.openPanel(plugIn)) return fail("does not open", "panel");
  PrintDialogPanel& panel = *host.panel();
  const PanelView* view = panel.panelView();
  if (view == nullptr) return fail("has no view", "panel");
  panel.willShow();
  panel.restoreValuesAndReturnError(nullptr);
  test::useEveryControl(*view);
  panel.saveValuesAndReturnError(nullptr);
  panel.shouldPrint();
  panel.summaryInfo();
  return 0;
}

int soak(int count) {
  const QTemporaryDir folder;
  JsonUserDefaults defaults(folder.path());
  test::TestPlatform platform;
  platform.store = &defaults;
  KestoPrintPdeVq250nJCPDEPlugIn plugIn;
  // By then everything that exists only once has been created.
  const int warmUp = count / 10;
  std::optional<Holdings> before;
  for (int i = 0; i < count; ++i) {
    if (i == warmUp) before.emplace();
    if (usePanel(plugIn, platform) != 0) return 1;
    platform.alerts.clear();
  }
  const Holdings after;
  const auto growth = static_cast<long>(after.heap) - static_cast<long>(before->heap);
  std::printf("%d panels: heap %+ld bytes, %+d descriptors since panel %d\n", count, growth,
              static_cast<int>(after.descriptors - before->descriptors), warmUp);
  // A leak is at least the smallest allocation for each panel; less comes from the libraries' caches.
  constexpr long smallestAllocation = 24;
  const bool leaks = growth >= (count - warmUp) * smallestAllocation / 2;
  return !leaks && after.descriptors == before->descriptors ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  bench::application();
  if (argc == 2 && std::strcmp(argv[1], "zones") == 0) return writeInEveryZone();
  if (argc == 3 && std::strcmp(argv[1], "soak") == 0) return soak(std::atoi(argv[2]));
  std::fprintf(stderr, "usage: kesto-faults zones | soak N\n");
  return 2;
}
