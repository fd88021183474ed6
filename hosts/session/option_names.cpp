#include "hosts/session/option_names.h"

#include <algorithm>
#include <array>
#include <vector>

#include "hosts/cups/option_array.h"
#include "hosts/session/job_option_values.h"

namespace kesto {
namespace {

// A value on its way, with the words that gave it.
struct Given {
  QString name;
  QString value;
  QString words;
  int rank = 0;  // the lowest counts
};

// Beyond every name of a row: a part of "media" is the weakest way to give an option.
constexpr int partRank = 8;

// What "media" says of source and type besides the paper, part by part.
void takeMedia(const QueueChoices& choices, const Given& media, std::vector<Given>* given,
               QStringList* refused) {
  static constexpr std::array options{"PageSize", "InputSlot", "MediaType"};
  for (const QString& part : media.value.split(u',', Qt::SkipEmptyParts)) {
    const auto* option = std::ranges::find_if(
        options, [&](const char* each) { return !choiceFor(choices, QLatin1String(each), part).isNull(); });
    if (option == options.end()) {
      refused->append(media.words);
    } else {
      given->push_back({QLatin1String(*option), part, media.words, media.rank});
    }
  }
}

// The members of a "media-col" that are options by themselves.
void takeMediaCol(const Given& media, std::vector<Given>* given) {
  const QMap<QString, QString> members = parseJobOptions(media.value);
  for (auto it = members.begin(); it != members.end(); ++it) {
    Given member{it.key(), it.value(), media.words, media.rank};
    if (it.key() == u"media-size-name") member.name = QStringLiteral("PageSize");
    if (it.key() == u"media-size") {
      const QMap<QString, QString> size = parseJobOptions(it.value());
      const auto length = [&](const char* side) {  // in hundredths of a millimetre
        return size.value(QLatin1String(side)).toInt() / 100.0;
      };
      member.name = QStringLiteral("PageSize");
      member.value = customChoice(length("x-dimension"), length("y-dimension"));
    }
    given->push_back(member);
  }
}

// What was given, taken apart.
std::vector<Given> takeApart(const QMap<QString, QString>& options, const QueueChoices& choices,
                             QStringList* refused) {
  std::vector<Given> given;
  const bool hasPaper = choices.has(QStringLiteral("PageSize"));
  for (auto it = options.begin(); it != options.end(); ++it) {
    Given each{it.key(), it.value(), it.key() + u'=' + it.value(), partRank};
    const QString name = it.key().toLower();
    if (hasPaper && name == u"media") {
      takeMedia(choices, each, &given, refused);
    } else if (hasPaper && name == u"media-col") {
      takeMediaCol(each, &given);
    } else {
      const OptionRow* row = rowOf(it.key(), choices);
      each.rank = row == nullptr ? 0 : rankIn(*row, it.key());
      given.push_back(each);
    }
  }
  std::ranges::stable_sort(given, {}, &Given::rank);
  return given;
}

}  // namespace

QString keyOf(const QString& name, const QueueChoices& choices) {
  if (const OptionRow* row = rowOf(name, choices)) return QLatin1String(row->key);
  return choices.has(name) ? name : name.toLower();
}

ResolvedOptions resolveOptions(const QMap<QString, QString>& given, const QueueChoices& choices) {
  ResolvedOptions resolved;
  for (const Given& each : takeApart(given, choices, &resolved.refused)) {
    const OptionRow* row = rowOf(each.name, choices);
    const QString key = keyOf(each.name, choices);
    if (resolved.options.contains(key)) continue;
    const bool isOfQueue = choices.has(key);
    const bool isOfJob = row != nullptr && row->kind != OptionKind::Choice;
    QString value = each.value;
    if (isOfQueue)
      value = choiceFor(choices, key, value);
    else if (isOfJob)
      value = valueFor(*row, value);
    // All pages are a value, too.
    if (value.isNull() && !each.value.isNull()) {
      resolved.refused.append(each.words);
    } else {
      QString name = isOfQueue ? key : each.name;
      if (isOfJob && !isOfQueue) name = travellingName(*row, value);
      resolved.options.insert(key, {name, value});
    }
  }
  resolved.refused.removeDuplicates();
  return resolved;
}

}  // namespace kesto
