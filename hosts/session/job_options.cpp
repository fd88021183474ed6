#include "hosts/session/job_options.h"

#include <QtCore/QCoreApplication>
#include <utility>

#include "hosts/cups/option_array.h"
#include "hosts/cups/queue.h"
#include "hosts/cups/queue_options.h"
#include "hosts/session/hold_time.h"
#include "hosts/session/job_option_values.h"
#include "hosts/session/page_range.h"
#include "hosts/session/standard_texts.h"
#include "platform/locale_name.h"

namespace kesto {
namespace {

constexpr std::array sources{JobOptions::Source::Kept, JobOptions::Source::Preset, JobOptions::Source::Given,
                             JobOptions::Source::Chosen};

// The text of a value of the user's own, as in "Custom.10x15cm".
QString customText(const QString& choice) {
  if (const std::optional<CustomSize> size = customSizeOf(choice))
    return QCoreApplication::translate("JobOptions", "Custom %1 x %2 %3")
        .arg(size->width, size->length, size->unit);
  return QCoreApplication::translate("JobOptions", "Custom %1").arg(choice.section(u'.', 1));
}

// What counts when pages are saved in a file.
const QStringList& filesOptions() {
  static const QStringList options{QStringLiteral("page-ranges"), QStringLiteral("page-set"),
                                   QStringLiteral("outputorder")};
  return options;
}

}  // namespace

void JobOptions::openFor(const Queue& queue) {
  close();
  m_choices = choicesOf(queue);
  m_isInUsersLanguage = m_choices->isIn(userLanguage());
  m_values.clear();  // their names were those of no queue
  m_isForFile = queue.isFile;
  m_isOwnServer = isPrinterUri(queue.id);
  given(Source::Kept) = keptOptions(queue);
  if (queue.destination)
    m_covers = optionOf(*queue.destination, "job-sheets-supported").split(u',', Qt::SkipEmptyParts);
  resolve();
}

void JobOptions::close() {
  given(Source::Kept).clear();
  given(Source::Preset).clear();
  given(Source::Chosen).removeIf([this](const auto& each) {
    return m_choices->has(keyOf(each.key(), *m_choices));
  });
  m_choices = std::make_unique<PpdChoices>(nullptr);
  m_isForFile = false;
  m_isOwnServer = false;
  m_ofPanel.clear();
  m_covers.clear();
  resolve();
}

void JobOptions::setPageCount(int count) {
  if (std::exchange(m_pageCount, count) == count) return;
  Q_EMIT changed();
}

void JobOptions::set(Source source, const QMap<QString, QString>& options) {
  given(source).insert(options);
  if (!options.isEmpty()) m_lastSet = keyOf(options.firstKey(), *m_choices);
  resolve();
}

std::optional<QString> JobOptions::fitting(const QString& name, const QString& value) const {
  const OptionRow* row = rowOf(name, *m_choices);
  const QString key = keyOf(name, *m_choices);
  QString found;
  if (m_choices->has(key)) {
    found = kesto::choiceFor(*m_choices, key, value);
    const QString standard = found.isNull() ? standardValueOf(key, value) : QString();
    if (!standard.isNull()) found = kesto::choiceFor(*m_choices, key, standard);
  } else if (row != nullptr && row->kind != OptionKind::Choice) {
    found = valueFor(*row, value);
  }
  return found.isNull() ? std::nullopt : std::optional(found);
}

QStringList JobOptions::choosePreset(const QMap<QString, QString>& options) {
  QStringList others;
  given(Source::Chosen).clear();
  for (auto it = options.begin(); it != options.end(); ++it) {
    if (const std::optional<QString> value = fitting(it.key(), it.value())) {
      given(Source::Chosen).insert(it.key(), *value);
    } else {
      const QString label = text(it.key());
      others.append(
          QStringLiteral("%1: %2").arg(label.isNull() ? it.key() : label, textOf(it.key(), it.value())));
    }
  }
  resolve();
  return others;
}

void JobOptions::clear(Source source) {
  given(source).clear();
  resolve();
}

void JobOptions::resolve() {
  const Values before = std::exchange(m_values, {});
  m_refused.clear();
  for (const Source source : sources) {
    const ResolvedOptions found = resolveOptions(given(source), *m_choices);
    if (source == Source::Kept) m_kept = found;
    m_refused += found.refused;
    for (auto it = found.options.begin(); it != found.options.end(); ++it)
      m_values.insert(it.key(), {it.value(), source});
  }
  m_refused.removeDuplicates();
  markChanges(before);
  Q_EMIT changed();
}

void JobOptions::markChanges(const Values& before) {
  Values touched = before;
  touched.insert(m_values);
  QStringList keys;
  for (const QString& key : touched.keys()) {
    const QString old = before.contains(key) ? before[key].value.value : defaultOf(key);
    if (m_choices->has(key) && value(key) != old) keys.append(key);
  }
  for (const QString& key : keys)
    m_choices->mark(key, value(key));
  m_conflicts = m_choices->conflicts();
  for (const QString& key : keys)
    Q_EMIT choiceChanged(key, value(key));
}

QString JobOptions::defaultOf(const QString& key) const {
  if (m_choices->has(key)) return m_choices->defaultOf(key);
  if (key == u"outputorder" && paper() && paper()->isReversed) return QStringLiteral("reverse");
  const OptionRow* row = rowOf(key, *m_choices);
  return row == nullptr || row->initial == nullptr ? QString() : QLatin1String(row->initial);
}

QString JobOptions::value(const QString& name) const {
  const QString key = keyOf(name, *m_choices);
  const auto found = m_values.find(key);
  return found == m_values.end() ? defaultOf(key) : found->value.value;
}

JobOptions::Source JobOptions::source(const QString& name) const {
  return m_values.value(keyOf(name, *m_choices)).source;
}

QString JobOptions::choiceFor(const QString& option, const QString& value) const {
  return kesto::choiceFor(*m_choices, keyOf(option, *m_choices), value);
}

QString JobOptions::pages() const {
  return pagesUpTo(m_pageCount);
}

QString JobOptions::pagesUpTo(int count) const {
  const QString asked = value(QStringLiteral("page-ranges"));
  const QString pages = asked.isNull() ? QString() : pageRangesOf(asked, count).value_or(QString());
  return pages.isEmpty() ? QString() : pages;
}

std::vector<OptionChoice> JobOptions::choices(const QString& option) const {
  std::vector<OptionChoice> choices = m_choices->choices(option);
  const OptionRow* row = rowOf(option, *m_choices);
  if (row != nullptr && row->kind == OptionKind::Covers) {
    for (const QString& each : m_covers)
      choices.push_back({each, each});
  } else if (row != nullptr && row->kind != OptionKind::Choice) {
    for (const QString& each : listedValues(*row))
      choices.push_back({each, each});
  }
  for (OptionChoice& each : choices) {
    if (const QString own = ownText(option, each.keyword, each.text); !own.isNull()) each.text = own;
  }
  return choices;
}

QString JobOptions::text(const QString& option) const {
  const OptionRow* row = rowOf(option, *m_choices);
  const bool isOurs = row != nullptr && row->text != nullptr;
  return isOurs ? QCoreApplication::translate("JobOptions", row->text) : m_choices->text(option);
}

QString JobOptions::ownText(const QString& option, const QString& value, const QString& text) const {
  const OptionRow* row = rowOf(option, *m_choices);
  const OptionKind kind = row == nullptr ? OptionKind::Choice : row->kind;
  if (kind == OptionKind::Scaling && value.toInt() > 0)
    return QCoreApplication::translate("JobOptions", "%1%").arg(value);
  if (const QTime time = kind == OptionKind::Hold ? holdTimeFrom(value) : QTime(); time.isValid())
    return QCoreApplication::translate("JobOptions", "At %1").arg(shownHoldTime(time));
  if (kind == OptionKind::Covers && value.contains(u',')) {
    QStringList covers;
    for (const QString& each : value.split(u','))
      covers.append(textOf(option, each));
    return covers.join(QStringLiteral(", "));
  }
  if (const char* ours = textOfValue(option, value); ours != nullptr)
    return QCoreApplication::translate("JobOptions", ours);
  if (kind != OptionKind::Choice) return {};
  const bool isPpds = !text.isEmpty() && m_isInUsersLanguage && !isStandardText(option, value, text);
  if (isPpds) return {};
  const QString ours = standardText(option, value);
  return ours.isNull() && !text.isEmpty() ? standardText(option, text) : ours;
}

QString JobOptions::textOf(const QString& option, const QString& value) const {
  QString text = m_choices->text(option, value);
  if (QString own = ownText(option, value, text); !own.isNull()) return own;
  if (!text.isNull()) return text;
  return value.startsWith(u"Custom.") ? customText(value) : value;
}

bool JobOptions::isIdle(const QString& option) const {
  if (m_isForFile && !filesOptions().contains(keyOf(option, *m_choices))) return true;
  const OptionRow* row = rowOf(option, *m_choices);
  return row != nullptr && row->needs != nullptr && isDefault(QLatin1String(row->needs));
}

bool JobOptions::travels(const QString& key) const {
  const OptionRow* row = rowOf(key, *m_choices);
  if (isIdle(key)) return false;
  if (row != nullptr && row->kind == OptionKind::Switch && row->needs != nullptr) return true;
  if (!isDefault(key)) return true;
  // The server may have another default than the PPD, and cover sheets of its own.
  const auto kept = m_kept.options.find(key);
  const bool isServers = m_choices->has(key) || (row != nullptr && row->kind == OptionKind::Covers);
  return kept != m_kept.options.end() && (isServers || kept->value != defaultOf(key));
}

QMap<QString, QString> JobOptions::apart() const {
  QMap<QString, QString> options;
  for (auto it = m_values.begin(); it != m_values.end(); ++it) {
    if (!travels(it.key())) continue;
    const auto [name, sent] = m_choices->has(it.key()) ? m_choices->sentAs(it.key(), it->value.value)
                                                       : std::pair(it->value.name, it->value.value);
    options.insert(name, sent);
  }
  for (const OptionRow& row : optionTable()) {
    const QString key = QLatin1String(row.key);
    if (row.needs != nullptr && travels(key)) options.insert(key, value(key));
    if (row.kind == OptionKind::Pages) options.insert(key, pages());
  }
  options.removeIf([](const auto& each) { return each.value().isNull(); });
  return options;
}

QMap<QString, QString> JobOptions::travelling() const {
  QMap<QString, QString> options = apart();
  // A printer that is its own server may not know the two cover sheets of a print server.
  const QString covers = QStringLiteral("job-sheets");
  if (m_isOwnServer && isDefault(covers)) options.remove(covers);
  m_choices->join(&options);
  return options;
}

QMap<QString, QString> JobOptions::inForce() const {
  QMap<QString, QString> options = apart();
  for (const OptionRow& row : optionTable()) {
    const QString key = QLatin1String(row.key);
    if (!m_choices->has(key) || value(key).isNull()) continue;
    const auto [name, sent] = m_choices->sentAs(key, value(key));
    options.insert(name, sent);
  }
  return options;
}

QMap<QString, QString> JobOptions::asGiven() const {
  // A preset names an option by its key, and would stand beside another name of it.
  QMap<QString, QString> kept = given(Source::Kept);
  kept.removeIf([this](const auto& each) { return source(each.key()) == Source::Preset; });
  QMap<QString, QString> preset = given(Source::Preset);
  preset.removeIf([this](const auto& each) { return source(each.key()) != Source::Preset; });
  OptionArray options;
  options.add(kept);
  options.add(preset);
  options.add(given(Source::Given));
  return options.all();
}

bool JobOptions::goesRaw() const {
  const OptionArray options(asGiven());
  return options.has("raw") || QByteArray(options.value("document-format")) == CUPS_FORMAT_RAW;
}

QMap<QString, QString> JobOptions::ofPreset() const {
  QMap<QString, QString> options = apart();
  options.removeIf([this](const auto& each) {
    const bool isKnown = rowOf(each.key(), *m_choices) != nullptr || m_choices->has(each.key());
    return !isKnown || source(each.key()) < Source::Preset;
  });
  // Another document may have more pages.
  if (const QString key = QStringLiteral("page-ranges"); options.contains(key)) options[key] = pagesUpTo(0);
  return options;
}

QMap<QString, QString> keptOptions(const Queue& queue) {
  QMap<QString, QString> kept;
  if (!queue.destination) return kept;
  const cups_dest_t& destination = *queue.destination;
  for (int i = 0; i < destination.num_options; ++i) {
    const cups_option_t& option = destination.options[i];
    if (!describesQueue(option.name))
      kept.insert(QString::fromUtf8(option.name), QString::fromUtf8(option.value));
  }
  return kept;
}

}  // namespace kesto
