#include "hosts/session/kept_options.h"

#include "hosts/cups/ppd_choices.h"

namespace kesto {
namespace {

JobChoices takeFrom(cups_dest_t& destination, ppd_file_t* ppd) {
  const JobOptionTable table(ppd);
  QMap<QString, QString> kept;
  for (int i = destination.num_options - 1; i >= 0; --i) {
    const cups_option_t& each = destination.options[i];
    const QString name = QString::fromUtf8(each.name);
    if (!table.has(name)) continue;
    kept.insert(name, QString::fromUtf8(each.value));
    destination.num_options = cupsRemoveOption(each.name, destination.num_options, &destination.options);
  }
  return table.resolve(kept);
}

}  // namespace

JobChoices takeKeptOptions(Queue& queue) {
  JobChoices kept = queue.destination ? takeFrom(*queue.destination, queue.ppd.get()) : JobChoices();
  if (queue.ppd) markDefaults(*queue.ppd, kept.options);
  return kept;
}

}  // namespace kesto
