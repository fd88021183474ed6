#include "hosts/cups/queue_options.h"

#include <QtCore/QFile>
#include <algorithm>
#include <array>
#include <functional>

#include "hosts/cups/ipp_reply.h"

namespace kesto {
namespace {

// The attributes that describe a queue, and the group with the defaults of its jobs.
constexpr std::array description{"auth-info-required",
                                 "device-uri",
                                 "job-sheets-default",
                                 "job-sheets-supported",
                                 "printer-defaults",
                                 "printer-info",
                                 "printer-is-accepting-jobs",
                                 "printer-location",
                                 "printer-make-and-model",
                                 "printer-name",
                                 "printer-state",
                                 "printer-state-reasons",
                                 "printer-type",
                                 "printer-uri-supported"};
constexpr char defaultSuffix[] = "-default";

// Writes a value so that cupsParseOptions reads it back.
QByteArray textOfValue(ipp_attribute_t* attribute, int index) {
  switch (ippGetValueTag(attribute)) {
    case IPP_TAG_BOOLEAN:
      return ippGetBoolean(attribute, index) != 0 ? "true" : "false";
    case IPP_TAG_INTEGER:
    case IPP_TAG_ENUM:
      return QByteArray::number(ippGetInteger(attribute, index));
    case IPP_TAG_RANGE: {
      int most = 0;
      const int least = ippGetRange(attribute, index, &most);
      return QByteArray::number(least) + '-' + QByteArray::number(most);
    }
    default:
      return QByteArray(ippGetString(attribute, index, nullptr))
          .replace('\\', "\\\\")
          .replace('"', "\\\"")
          .replace('\'', "\\'");
  }
}

QByteArray textOf(ipp_attribute_t* attribute) {
  QByteArrayList values;
  for (int i = 0; i < ippGetCount(attribute); ++i)
    values.append(textOfValue(attribute, i));
  return values.join(',');
}

// Whether a value of this kind can be an option's value; "no value" and collections cannot.
bool isOneValue(ipp_tag_t tag) {
  constexpr std::array kinds{IPP_TAG_BOOLEAN, IPP_TAG_ENUM, IPP_TAG_INTEGER,
                             IPP_TAG_KEYWORD, IPP_TAG_NAME, IPP_TAG_RANGE};
  return std::ranges::find(kinds, tag) != kinds.end();
}

// The option for an attribute of a queue: the attribute's name, or that of the job's option for which it is
// the default; null for none.
QByteArray optionOf(ipp_attribute_t* attribute) {
  const QByteArray name = ippGetName(attribute);
  if (name == "printer-name") return {};
  if (name.endsWith(defaultSuffix)) {
    // The quality is left to the driver, which has more levels.
    const bool isJobs = !name.startsWith("notify-") && !name.startsWith("print-quality-");
    return isJobs && isOneValue(ippGetValueTag(attribute)) ? name.chopped(qsizetype{sizeof defaultSuffix} - 1)
                                                           : QByteArray();
  }
  return describesQueue(name) ? name : QByteArray();
}

// The longest line in such a file.
constexpr qint64 longestLine = 65536;

// The machine's file comes first, so that the user's overrides it.
QList<QString> files() {
  const QString machine = qEnvironmentVariable("CUPS_SERVERROOT", QStringLiteral("/etc/cups"));
  const QString home = qEnvironmentVariable("HOME");
  QList<QString> paths{machine + QStringLiteral("/lpoptions")};
  if (!home.isEmpty()) paths.append(home + QStringLiteral("/.cups/lpoptions"));
  return paths;
}

// One line: whether the queue is a default ("Default" or "Dest"), its name, its options.
struct Line {
  bool isDefault = false;
  QueueName name;
  QByteArray options;
};

void forEachLine(const QString& path, const std::function<void(const Line&)>& visit) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return;
  while (!file.atEnd()) {
    const QByteArray text = file.readLine(longestLine).simplified();
    const qsizetype word = text.indexOf(' ');
    const QByteArray kind = text.left(word).toLower();
    if (word < 0 || (kind != "dest" && kind != "default")) continue;
    const qsizetype end = text.indexOf(' ', word + 1);
    const QByteArray name = text.mid(word + 1, end < 0 ? -1 : end - word - 1);
    visit({.isDefault = kind == "default",
           .name = QueueName::of(name),
           .options = end < 0 ? QByteArray() : text.mid(end + 1)});
  }
}

bool isSame(const QueueName& one, const QueueName& other) {
  return qstricmp(one.queue, other.queue) == 0 && qstricmp(one.instance, other.instance) == 0;
}

}  // namespace

QueueName QueueName::of(const QByteArray& text) {
  const qsizetype slash = text.indexOf('/');
  return slash < 0 ? QueueName{text, {}} : QueueName{text.left(slash), text.mid(slash + 1)};
}

QueueName defaultQueueName() {
  if (const QByteArray name = qgetenv("LPDEST"); !name.isEmpty()) return QueueName::of(name);
  // Traditionally, "lp" in this variable means a terminal's printer.
  if (const QByteArray name = qgetenv("PRINTER"); !name.isEmpty() && name != "lp") return QueueName::of(name);
  QueueName found;
  for (const QString& path : files()) {
    forEachLine(path, [&](const Line& line) {
      if (line.isDefault) found = line.name;
    });
  }
  return found;
}

bool describesQueue(const QByteArray& option) {
  return std::ranges::any_of(description, [&](const char* each) { return option == each; });
}

void askForOptions(ipp_t* request) {
  askFor(request, description);
}

void addServersOptions(ipp_t* reply, cups_dest_t* destination) {
  for (ipp_attribute_t* each = ippFirstAttribute(reply); each != nullptr; each = ippNextAttribute(reply)) {
    if (ippGetGroupTag(each) != IPP_TAG_PRINTER) continue;
    const QByteArray option = optionOf(each);
    if (option.isEmpty()) continue;
    destination->num_options = cupsAddOption(option.constData(), textOf(each).constData(),
                                             destination->num_options, &destination->options);
  }
}

void addKeptOptions(const QueueName& name, cups_dest_t* destination) {
  for (const QString& path : files()) {
    forEachLine(path, [&](const Line& line) {
      if (!isSame(line.name, name)) return;
      destination->num_options =
          cupsParseOptions(line.options.constData(), destination->num_options, &destination->options);
    });
  }
}

}  // namespace kesto
