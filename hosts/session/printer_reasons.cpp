#include "hosts/session/printer_reasons.h"

#include <QtCore/QCoreApplication>
#include <algorithm>
#include <array>
#include <optional>

namespace kesto {
namespace {

using enum Severity;

struct Row {
  const char* keyword;
  Severity severity;  // without a suffix
  const char* text;   // null when it says nothing to a user
};

constexpr std::array rows{
    Row{"connecting-to-device", Report, QT_TRANSLATE_NOOP("PrinterReasons", "Connecting")},
    Row{"cover-open", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Cover open")},
    Row{"cups-insecure-filter", Report, nullptr},
    Row{"cups-missing-filter", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Driver missing")},
    Row{"cups-waiting-for-job-completed", Report, nullptr},
    Row{"developer-empty", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Out of developer")},
    Row{"developer-low", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Developer low")},
    Row{"door-open", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Door open")},
    Row{"fuser-over-temp", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Too hot")},
    Row{"fuser-under-temp", Report, QT_TRANSLATE_NOOP("PrinterReasons", "Warming up")},
    Row{"hold-new-jobs", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Holding new jobs")},
    Row{"input-tray-missing", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Paper tray missing")},
    Row{"interlock-open", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Cover open")},
    Row{"marker-supply-empty", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Out of ink or toner")},
    Row{"marker-supply-low", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Ink or toner low")},
    Row{"marker-waste-almost-full", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Waste toner almost full")},
    Row{"marker-waste-full", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Waste toner full")},
    Row{"media-empty", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Out of paper")},
    Row{"media-jam", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Paper jam")},
    Row{"media-low", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Paper low")},
    Row{"media-needed", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Paper needed")},
    Row{"moving-to-paused", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Pausing")},
    Row{"none", Report, nullptr},
    Row{"offline", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Offline")},
    Row{"opc-life-over", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Drum worn out")},
    Row{"opc-near-eol", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Drum almost worn out")},
    Row{"other", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Needs attention")},
    Row{"output-area-almost-full", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Output tray almost full")},
    Row{"output-area-full", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Output tray full")},
    Row{"output-tray-missing", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Output tray missing")},
    Row{"paused", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Paused")},
    Row{"shutdown", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Turned off")},
    Row{"spool-area-full", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Printer memory full")},
    Row{"stopped-partly", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Partly stopped")},
    Row{"stopping", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Stopping")},
    Row{"timed-out", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Not responding")},
    Row{"toner-empty", Error, QT_TRANSLATE_NOOP("PrinterReasons", "Out of toner")},
    Row{"toner-low", Warning, QT_TRANSLATE_NOOP("PrinterReasons", "Toner low")},
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
    const auto* row =
        std::ranges::find_if(rows, [&](const Row& each) { return keyword == QLatin1String(each.keyword); });
    const bool isKnown = row != rows.end();
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
