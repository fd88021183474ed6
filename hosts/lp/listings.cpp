#include "hosts/lp/listings.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <algorithm>
#include <iostream>
#include <iterator>

#include "hosts/command/output.h"
#include "hosts/cups/job_privacy.h"
#include "hosts/cups/ppd_file.h"
#include "hosts/lp/lp_texts.h"
#include "hosts/session/panel_entries.h"
#include "hosts/session/printer_reasons.h"
#include "panel/model/button.h"
#include "panel/model/panel_view.h"
#include "panel/model/text_field.h"
#include "platform/locale_name.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

QJsonObject jsonOf(const QueueSummary& queue) {
  QStringList reasons = queue.stateReasons;
  reasons.removeAll(QStringLiteral("none"));  // the standard's word for an empty list
  return {{QStringLiteral("queue"), queue.name},
          {QStringLiteral("state"), queue.state},
          {QStringLiteral("accepting"), queue.isAccepting},
          {QStringLiteral("address"), queue.deviceUri},
          {QStringLiteral("info"), queue.info},
          {QStringLiteral("model"), queue.model},
          {QStringLiteral("location"), queue.location},
          {QStringLiteral("jobs"), queue.jobs},
          {QStringLiteral("network"), queue.isOnNetwork},
          {QStringLiteral("message"), queue.stateMessage},
          {QStringLiteral("reasons"), QJsonArray::fromStringList(reasons)}};
}

// What the printer reports, within a line. A German noun keeps its capital there.
QString withinLine(const QString& reason) {
  const QLocale language = userLanguage();
  return language.language() == QLocale::German ? reason : language.toLower(reason);
}

// The state in words: "stopped, not accepting jobs, out of paper, 3 jobs".
QString stateOf(const QueueSummary& queue) {
  if (queue.isOnNetwork) return LpTexts::tr("on the network");
  QStringList parts{queue.state == u"idle"      ? LpTexts::tr("idle")
                    : queue.state == u"stopped" ? LpTexts::tr("stopped")
                                                : LpTexts::tr("processing")};
  if (!queue.isAccepting) parts.append(LpTexts::tr("not accepting jobs"));
  for (const PrinterReason& reason : printerReasons(queue.stateReasons))
    parts.append(withinLine(reason.text));
  if (queue.jobs > 0)
    parts.append(queue.jobs == 1 ? LpTexts::tr("1 job") : LpTexts::tr("%n jobs", nullptr, queue.jobs));
  return parts.join(QStringLiteral(", "));
}

std::string lineOf(const QueueSummary& queue) {
  QStringList columns;
  for (const QString& column : {queue.name, stateOf(queue), queue.deviceUri, queue.model, queue.location})
    columns.append(shownText(column));
  return columns.join(u'\t').toStdString() + '\n';
}

// Keeps the queues whose PPD offers the panel.
Outcome keepJobHandling(PrintServer& server, std::vector<QueueSummary>* queues) {
  std::vector<QueueSummary> kept;
  for (QueueSummary& queue : *queues) {
    PpdFile ppd;
    if (Outcome fetched = fetchPpdFile(server, queue.name, &ppd); !fetched) return fetched;
    if (ppd && offersJobHandling(*ppd)) kept.push_back(std::move(queue));
  }
  *queues = std::move(kept);
  return Outcome::done();
}

Outcome printArray(const QJsonArray& array) {
  std::cout << printableJson(QJsonDocument(array), QJsonDocument::Indented).constData();
  return Outcome::done();
}

}  // namespace

Outcome printPairs(const QMap<QString, QString>& pairs, const char* separator, bool json, QJsonObject facts) {
  if (json) {
    for (auto it = pairs.begin(); it != pairs.end(); ++it)
      facts.insert(it.key(), it.value());
    std::cout << printableJson(QJsonDocument(facts), QJsonDocument::Indented).constData();
    return Outcome::done();
  }
  for (auto it = pairs.begin(); it != pairs.end(); ++it) {
    std::cout << shownText(it.key()).toStdString() << separator << shownText(it.value()).toStdString()
              << '\n';
  }
  return Outcome::done();
}

Outcome printPresets(const PresetStore& store, bool json) {
  QStringList names;
  if (Outcome found = store.names(&names); !found) return found;
  if (json) return printArray(QJsonArray::fromStringList(names));
  for (const QString& name : names)
    std::cout << shownText(name).toStdString() << '\n';
  return Outcome::done();
}

Outcome fetchFolders(PanelView& view, const QString& address) {
  auto* field = view.control<TextField>(QStringLiteral("printersAddressEditText"));
  auto* button = view.control<Button>(QStringLiteral("getFolderNameButton"));
  if (field == nullptr || button == nullptr) {
    return Outcome::failed(LpTexts::tr("this printer has no folder list"));
  }
  if (!address.isNull()) {
    if (Outcome placed = field->placeCaret({0, field->stringValue().size()}); !placed) return placed;
    if (Outcome emptied = field->backspace(); !emptied) return emptied;
    if (Outcome typed = field->type(address); !typed) return typed;
  }
  const QString known = printerAddress(view);
  if (known.isEmpty()) {
    return Outcome::failed(LpTexts::tr("the printer's address is unknown; set it with --address"));
  }
  return isPrinterAddress(known) ? button->click()
                                 : Outcome::failed(LpTexts::tr("\"%1\" is not an address").arg(known));
}

Outcome printQueues(PrintServer& server, const std::vector<QueueSummary>& network, bool jobHandlingOnly,
                    bool json) {
  std::vector<QueueSummary> queues;
  if (Outcome listed = server.listQueues(&queues); !listed) return listed;
  if (jobHandlingOnly) {
    if (Outcome kept = keepJobHandling(server, &queues); !kept) return kept;
  }
  const std::vector<QueueSummary> listed = queues;
  std::ranges::copy_if(network, std::back_inserter(queues), [&](const QueueSummary& each) {
    return std::ranges::find(listed, each.name, &QueueSummary::name) == listed.end();
  });
  if (json) {
    QJsonArray array;
    for (const QueueSummary& queue : queues)
      array.append(jsonOf(queue));
    return printArray(array);
  }
  for (const QueueSummary& queue : queues)
    std::cout << lineOf(queue);
  return Outcome::done();
}

void printPrivacy(const QString& queue, const JobPrivacy& privacy, bool json) {
  const QStringList lines = QString::fromLatin1(privatePolicyLines).split(u'\n', Qt::SkipEmptyParts);
  if (json) {
    const QJsonObject object{{QStringLiteral("queue"), queue},
                             {QStringLiteral("policy"), privacy.policy},
                             {QStringLiteral("shown"), QJsonArray::fromStringList(privacy.shown)},
                             {QStringLiteral("closedBy"), QJsonArray::fromStringList(lines)}};
    std::cout << printableJson(QJsonDocument(object), QJsonDocument::Indented).constData();
    return;
  }
  const auto say = [](const QString& line) { std::cout << shownText(line).toStdString() << '\n'; };
  if (privacy.shown.isEmpty())
    return say(LpTexts::tr("%1: other users see none of a job's options.").arg(queue));
  say(LpTexts::tr("%1: other users see of a job %2.").arg(queue, privacy.shown.join(QStringLiteral(", "))));
  say(privacy.policy.isNull()
          ? LpTexts::tr("An administrator closes this in cupsd.conf, in the printer's policy:")
          : LpTexts::tr("An administrator closes this in cupsd.conf, in <Policy %1>:").arg(privacy.policy));
  for (const QString& line : lines)
    std::cout << "  " << line.toStdString() << '\n';
}

Outcome printFolders(const PrintDialogPanel& panel, bool json) {
  QJsonArray array;
  for (const FolderEntry& folder : panel.folders().value_or(std::vector<FolderEntry>())) {
    array.append(jsonOf(folder));
    if (json) continue;
    const QString mark = folder.password ? u'\t' + LpTexts::tr("locked") : QString();
    std::cout << (shownText(folder.name) + mark).toStdString() << '\n';
  }
  return json ? printArray(array) : Outcome::done();
}

}  // namespace kesto
