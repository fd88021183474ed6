#include "hosts/session/printer_reasons.h"

#include <QtCore/QCoreApplication>
#include <algorithm>
#include <array>
#include <optional>

namespace kesto {
namespace {

using enum Severity;

struct ReasonRow {
  const char* keyword;
  Severity severity;  // without a suffix
  const char* text;   // null when it says nothing to a user
};

constexpr std::array reasonRows{
    ReasonRow{"connecting-to-device", Report, QT_TRANSLATE_NOOP("PrinterReasons", "Connecting")},
    ReasonRow{"cover-open", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Cover open")},
    ReasonRow{"cups-insecure-filter", Report, nullptr},
    ReasonRow{"cups-missing-filter", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Driver missing")},
    ReasonRow{"cups-waiting-for-job-completed", Report, nullptr},
    ReasonRow{"developer-empty", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Out of developer")},
    ReasonRow{"developer-low", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Developer low")},
    ReasonRow{"door-open", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Door open")},
    ReasonRow{"fuser-over-temp", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Too hot")},
    ReasonRow{"fuser-under-temp", Report, QT_TRANSLATE_NOOP("PrinterReasons", "Warming up")},
    ReasonRow{"hold-new-jobs", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Holding new jobs")},
    ReasonRow{"input-tray-missing", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Paper tray missing")},
    ReasonRow{"interlock-open", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Cover open")},
    ReasonRow{"marker-supply-empty", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Out of ink or toner")},
    ReasonRow{"marker-supply-low", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Ink or toner low")},
    ReasonRow{"marker-waste-almost-full", Warning,
              QT_TRANSLATE_NOOP("PrinterReasons", "Waste toner almost full")},
    ReasonRow{"marker-waste-full", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Waste toner full")},
    ReasonRow{"media-empty", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Out of paper")},
    ReasonRow{"media-jam", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Paper jam")},
    ReasonRow{"media-low", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Paper low")},
    ReasonRow{"media-needed", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Paper needed")},
    ReasonRow{"moving-to-paused", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Pausing")},
    ReasonRow{"none", Report, nullptr},
    ReasonRow{"offline", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Offline")},
    ReasonRow{"opc-life-over", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Drum worn out")},
    ReasonRow{"opc-near-eol", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Drum almost worn out")},
    ReasonRow{"other", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Needs attention")},
    ReasonRow{"output-area-almost-full", Warning,
              QT_TRANSLATE_NOOP("PrinterReasons", "Output tray almost full")},
    ReasonRow{"output-area-full", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Output tray full")},
    ReasonRow{"output-tray-missing", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Output tray missing")},
    ReasonRow{"paused", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Paused")},
    ReasonRow{"shutdown", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Turned off")},
    ReasonRow{"spool-area-full", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Printer memory full")},
    ReasonRow{"stopped-partly", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Partly stopped")},
    ReasonRow{"stopping", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Stopping")},
    ReasonRow{"timed-out", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Not responding")},
    ReasonRow{"toner-empty", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Out of toner")},
    ReasonRow{"toner-low", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Toner low")},
};

std::optional<Severity> takeSuffix(QString* keyword) {
  for (const auto& [suffix, severity] :
       {std::pair("-error", Error), std::pair("-warning", Warning), std::pair("-report", Report)}) {
    if (!keyword->endsWith(QLatin1String(suffix))) continue;
    keyword->chop(static_cast<qsizetype>(qstrlen(suffix)));
    return severity;
  }
  return {};
}

// "com.example-lamp-low" as "Lamp low".
QString wordsOf(const QString& keyword) {
  QString words = keyword.section(u'.', -1).replace(u'-', u' ');
  if (!words.isEmpty()) words[0] = words[0].toUpper();
  return words;
}

}  // namespace

std::vector<PrinterReason> printerReasons(const QStringList& keywords) {
  std::vector<PrinterReason> reasons;
  for (QString keyword : keywords) {
    const std::optional<Severity> given = takeSuffix(&keyword);
    const auto* row = std::ranges::find_if(
        reasonRows, [&](const ReasonRow& each) { return keyword == QLatin1String(each.keyword); });
    const bool isKnown = row != reasonRows.end();
    if (keyword.isEmpty() || (isKnown && row->text == nullptr)) continue;
    const QString text =
        isKnown ? QCoreApplication::translate("PrinterReasons", row->text) : wordsOf(keyword);
    const Severity severity = given.value_or(isKnown ? row->severity : Warning);
    const auto same = std::ranges::find(reasons, text, &PrinterReason::text);
    if (same == reasons.end())
      reasons.push_back({text, severity});
    else
      same->severity = std::max(same->severity, severity);
  }
  std::ranges::stable_sort(reasons, std::greater{}, &PrinterReason::severity);
  return reasons;
}

}  // namespace kesto
