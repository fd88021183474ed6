#include "hosts/session/option_conflict.h"

#include <QtCore/QCoreApplication>
#include <algorithm>

#include "hosts/session/job_option_values.h"

namespace kesto {
namespace {

const QString duplexKey = QStringLiteral("Duplex");

bool isOneSided(const QString& option, const QString& choice) {
  return option == duplexKey && standardValueOf(duplexKey, choice) == u"one-sided";
}

// The one to keep.
QString keptOf(const JobOptions& options) {
  const QStringList& conflicts = options.conflicts();
  if (conflicts.contains(options.lastSet())) return options.lastSet();
  return *std::ranges::max_element(conflicts, {}, [&](const QString& each) { return options.source(each); });
}

QString sentenceOn(const JobOptions& options, QString one, QString other) {
  if (other == duplexKey) std::swap(one, other);
  const QString shown = options.textOf(other, options.value(other));
  if (one == duplexKey && (other == u"MediaType" || other == u"PageSize"))
    return QCoreApplication::translate("JobOptions", "Two-sided printing is not possible on %1.").arg(shown);
  return QCoreApplication::translate("JobOptions", R"(%1 "%2" is not possible with %3 "%4".)")
      .arg(options.text(one), options.textOf(one, options.value(one)), options.text(other), shown);
}

QString remedyOf(const JobOptions& options, const QString& option, const QString& choice) {
  if (isOneSided(option, choice)) return QCoreApplication::translate("JobOptions", "Turn off two-sided");
  return QCoreApplication::translate("JobOptions", "Set %1 to %2")
      .arg(options.text(option), options.textOf(option, choice));
}

}  // namespace

std::optional<OptionConflict> conflictOf(const JobOptions& options) {
  if (options.conflicts().isEmpty()) return {};
  const QString kept = keptOf(options);
  const QStringList others = options.ofQueue().conflictsWith(kept);
  OptionConflict conflict{.text = sentenceOn(options, kept, others.value(0, kept))};
  conflict.changes = options.ofQueue().resolution(kept);
  if (!conflict.changes.isEmpty())
    conflict.remedy = remedyOf(options, conflict.changes.firstKey(), conflict.changes.first());
  return conflict;
}

}  // namespace kesto
