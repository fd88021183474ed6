#include "hosts/dialog/portal_options.h"

#include <algorithm>
#include <array>
#include <span>

#include "hosts/session/job_option_values.h"
#include "hosts/session/option_offer.h"
#include "hosts/session/standard_texts.h"

namespace kesto {
namespace {

// What GTK and the standard call a value; of several, the first is returned.
struct Word {
  const char* setting;
  const char* standard;
};
constexpr std::array colors{Word{"true", "color"}, Word{"false", "monochrome"}};
constexpr std::array qualities{Word{"draft", "3"}, Word{"low", "3"}, Word{"normal", "4"}, Word{"high", "5"}};

// Without words, GTK has the standard's values or the PPD's.
struct Setting {
  const char* key;
  const char* option;
  std::span<const Word> words{};
};
constexpr std::array table{
    Setting{"use-color", "print-color-mode", colors},
    Setting{"quality", "print-quality", qualities},
    Setting{"default-source", "media-source"},
    Setting{"media-type", "media-type"},
    Setting{"output-bin", "output-bin"},
    Setting{"finishings", "finishings"},
    Setting{"resolution", "printer-resolution"},
};

// Paper and sides have keys and messages of their own.
constexpr std::array others{"media", "sides"};

QString cupsKey(const QString& option) {
  return QStringLiteral("cups-") + option;
}

// The options of the queue that have no key but the one of the PPD.
QStringList furtherOptions(const JobOptions& options) {
  QStringList known;
  for (const Setting& each : table)
    known.append(keyOf(QLatin1String(each.option), options.ofQueue()));
  for (const char* each : others)
    known.append(keyOf(QLatin1String(each), options.ofQueue()));
  QStringList further;
  for (const OptionGroup group : optionGroups) {
    for (const OfferedOption& each : offeredOptions(options, group)) {
      if (options.isOfQueue(each.key) && !known.contains(each.key)) further.append(each.key);
    }
  }
  return further;
}

QString standardFor(const Setting& row, const QString& value) {
  if (qstrcmp(row.key, "resolution") == 0) return value + QStringLiteral("dpi");
  const auto word =
      std::ranges::find_if(row.words, [&](const Word& each) { return value == QLatin1String(each.setting); });
  return word == row.words.end() ? value : QLatin1String(word->standard);
}

// The name by which the choice is found again, on another queue too if there is such a name.
QString settingFor(const Setting& row, const JobOptions& options) {
  const QString option = QLatin1String(row.option);
  const QString choice = options.value(option);
  if (qstrcmp(row.key, "resolution") == 0)
    return QString(choice).remove(QStringLiteral("dpi")).section(u'x', 0, 0);
  const QString key = keyOf(option, options.ofQueue());
  const QString standard = standardValueOf(key, choice);
  const QStringList names = standardNames(key, choice) + QStringList{standard};
  const auto word = std::ranges::find_if(row.words, [&](const Word& each) {
    return names.contains(QLatin1String(each.standard), Qt::CaseInsensitive);
  });
  if (word != row.words.end()) return QLatin1String(word->setting);
  return !standard.isNull() && options.choiceFor(option, standard) == choice ? standard : choice;
}

}  // namespace

void chooseOptions(const QJsonObject& settings, JobOptions& options) {
  QMap<QString, QString> chosen;
  const auto add = [&](const QString& key, const QString& option, const QString& value) {
    const QString choice = settings.contains(key) ? options.choiceFor(option, value) : QString();
    if (!choice.isNull()) chosen.insert(option, choice);
  };
  for (const Setting& row : table) {
    const QString key = QLatin1String(row.key);
    add(key, QLatin1String(row.option), standardFor(row, settings.value(key).toString()));
  }
  for (const QString& option : furtherOptions(options))
    add(cupsKey(option), option, settings.value(cupsKey(option)).toString());
  options.set(JobOptions::Source::Chosen, chosen);
}

QJsonObject withOptions(QJsonObject settings, const JobOptions& options) {
  for (const Setting& row : table) {
    if (!options.isOfQueue(keyOf(QLatin1String(row.option), options.ofQueue()))) continue;
    const QString value = settingFor(row, options);
    if (!value.isEmpty()) settings.insert(QLatin1String(row.key), value);
  }
  for (const QString& option : furtherOptions(options)) {
    if (!options.isDefault(option) || settings.contains(cupsKey(option)))
      settings.insert(cupsKey(option), options.value(option));
  }
  return settings;
}

}  // namespace kesto
