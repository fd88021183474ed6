#include "hosts/channel/portal_settings.h"

#include <QtCore/QStringList>
#include <algorithm>
#include <array>
#include <limits>
#include <optional>

namespace kesto {
namespace {

// The words of an enumeration in GTK's settings, in the order of its values.
constexpr std::array pagesWords{"all", "current", "selection", "ranges"};
constexpr std::array pageSetWords{"all", "even", "odd"};
constexpr std::array duplexWords{"simplex", "horizontal", "vertical"};
constexpr std::array layoutWords{"lrtb", "lrbt", "rltb", "rlbt", "tblr", "tbrl", "btlr", "btrl"};

template <std::size_t count>
bool isOneOf(QStringView word, const std::array<const char*, count>& words) {
  return std::any_of(words.begin(), words.end(), [&](const char* known) {
    return word.compare(QLatin1String(known), Qt::CaseInsensitive) == 0;
  });
}

template <typename Enumeration, std::size_t count>
Enumeration valueOf(const QString& word, const std::array<const char*, count>& words) {
  for (std::size_t i = 0; i < count; ++i) {
    if (word == QLatin1String(words[i])) return static_cast<Enumeration>(i);
  }
  return {};
}

template <typename Enumeration, std::size_t count>
QString wordOf(Enumeration value, const std::array<const char*, count>& words) {
  return QLatin1String(words[static_cast<std::size_t>(value)]);
}

// What the client keeps for the next time, apart from the keys that it would carry out.
constexpr char numberUpKey[] = "dialog-number-up";
constexpr char layoutKey[] = "dialog-number-up-layout";

QString text(const QJsonObject& object, const char* key) {
  return object.value(QLatin1String(key)).toString();
}

void put(QJsonObject* object, const char* key, const QJsonValue& value) {
  object->insert(QLatin1String(key), value);
}

// A whole number from 1 to 9999, or 1 for anything else.
int count(const QJsonObject& settings, const char* key) {
  const int number = text(settings, key).toInt();
  return number >= 1 && number <= 9999 ? number : 1;
}

// "true" is what GTK writes.
bool flag(const QJsonObject& settings, const char* key, bool isMissing) {
  const QString value = text(settings, key);
  return value.isEmpty() ? isMissing : value == u"true";
}

// A number too large for a page means "to the end".
constexpr int lastPage = std::numeric_limits<int>::max() - 1;

struct PageRange {
  int first;
  int last;
};

// The parts of a list of ranges whose pages count from `origin`; none when a part is not a range.
std::optional<QList<PageRange>> parseRanges(const QString& ranges, int origin) {
  QList<PageRange> parsed;
  for (const QString& part : ranges.split(u',', Qt::SkipEmptyParts)) {
    const QString first = part.section(u'-', 0, 0).trimmed();
    const QString last = part.section(u'-', 1).trimmed();
    bool isFirst = false;
    bool isLast = true;
    PageRange range{first.toInt(&isFirst), lastPage};
    if (first.isEmpty() && !last.isEmpty()) {
      isFirst = true;
      range.first = origin;
    }
    if (!part.contains(u'-')) {
      range.last = range.first;
    } else if (!last.isEmpty() && last != u"-1") {  // in GTK, -1 means "to the end"
      range.last = last.toInt(&isLast);
    }
    if (!isFirst || !isLast || range.first < origin || range.last < range.first) return std::nullopt;
    parsed.append(range);
  }
  return parsed;
}

// The ranges as text, each page moved by `shift`.
QString formatRanges(const QList<PageRange>& ranges, int shift, const QString& end) {
  QStringList parts;
  for (const PageRange& range : ranges) {
    QString part = QString::number(range.first + shift);
    if (range.last >= lastPage) {
      part += u'-' + end;
    } else if (range.last != range.first) {
      part += u'-' + QString::number(range.last + shift);
    }
    parts.append(part);
  }
  return parts.join(u',');
}

// The ranges of a choice as GTK counts them, from 0; none unless the choice consists of ranges.
std::optional<QString> rangesToDraw(const PortalChoice& choice) {
  if (choice.pages != PortalPages::Ranges) return std::nullopt;
  const auto ranges = parseRanges(choice.pageRanges, 1);
  if (!ranges || ranges->isEmpty()) return std::nullopt;
  return formatRanges(*ranges, -1, QString::number(lastPage));
}

QString shownName(const PortalPaper& paper) {
  return paper.displayName.isEmpty() ? paper.ppdName : paper.displayName;
}

// One row for each length of a page setup.
struct Length {
  const char* key;
  double PortalPaper::*member;
};
constexpr std::array lengths{
    Length{"Width", &PortalPaper::width},           Length{"Height", &PortalPaper::height},
    Length{"MarginTop", &PortalPaper::marginTop},   Length{"MarginBottom", &PortalPaper::marginBottom},
    Length{"MarginLeft", &PortalPaper::marginLeft}, Length{"MarginRight", &PortalPaper::marginRight},
};

// The paper of a page setup, or else the one that the settings name.
PortalPaper paperAskedFor(const QJsonObject& settings, const QJsonObject& pageSetup) {
  PortalPaper paper;
  paper.ppdName = text(pageSetup, "PPDName");
  paper.name = text(pageSetup, "Name");
  paper.displayName = text(pageSetup, "DisplayName");
  for (const Length& length : lengths)
    paper.*length.member = pageSetup.value(QLatin1String(length.key)).toDouble();
  if (paper.name.isEmpty()) paper.name = text(settings, "paper-format");
  if (paper.width <= 0 || paper.height <= 0) {
    paper.width = text(settings, "paper-width").toDouble();
    paper.height = text(settings, "paper-height").toDouble();
  }
  return paper;
}

// An orientation from a page setup or from settings, which separate its words differently.
bool isLandscapeWord(const QString& word) {
  return word.endsWith(u"landscape");
}

bool isPrivateKey(const QString& key) {
  static constexpr std::array names{"job-password",   "job-password-encryption", "auth-info",
                                    "job-account-id", "job-accounting-user-id",  "requesting-user-name"};
  QStringView name = key;
  // GTK's prefix for options of a queue.
  if (name.startsWith(u"cups-", Qt::CaseInsensitive)) name = name.mid(5);
  if (name.startsWith(u"kesto.", Qt::CaseInsensitive)) return true;
  return isOneOf(name, names);
}

}  // namespace

PortalChoice choiceAskedFor(const QJsonObject& settings, const QJsonObject& pageSetup) {
  PortalChoice choice;
  choice.paper = paperAskedFor(settings, pageSetup);
  const QString orientation = text(pageSetup, "Orientation");
  choice.isLandscape = isLandscapeWord(orientation.isEmpty() ? text(settings, "orientation") : orientation);
  choice.pages = valueOf<PortalPages>(text(settings, "print-pages"), pagesWords);
  if (const auto ranges = parseRanges(text(settings, "page-ranges"), 0))
    choice.pageRanges = formatRanges(*ranges, 1, {});
  if (choice.pages == PortalPages::Ranges && choice.pageRanges.isEmpty()) choice.pages = PortalPages::All;
  choice.copies = count(settings, "n-copies");
  choice.isCollated = flag(settings, "collate", true);
  choice.isReversed = flag(settings, "reverse", false);
  const bool isOwn = count(settings, "number-up") == 1;
  choice.numberUp = count(settings, isOwn ? numberUpKey : "number-up");
  if (const QString layout = text(settings, isOwn ? layoutKey : "number-up-layout");
      isOneOf(layout, layoutWords))
    choice.numberUpLayout = layout;
  if (const double scale = text(settings, "scale").toDouble(); scale > 0) choice.scale = scale;
  choice.pageSet = valueOf<PortalPageSet>(text(settings, "page-set"), pageSetWords);
  choice.duplex = valueOf<PortalDuplex>(text(settings, "duplex"), duplexWords);
  choice.printer = text(settings, "printer");
  return choice;
}

QJsonObject settingsToReturn(const QJsonObject& settings, const PortalChoice& choice) {
  QJsonObject returned = withoutPrivateKeys(settings);
  for (const char* key : {"output-uri", "output-dir", "output-basename", "page-ranges"})
    returned.remove(QLatin1String(key));
  // What the print system does for the client. With these values the client does nothing itself.
  static constexpr std::array<std::array<const char*, 2>, 7> neutral{{
      {"n-copies", "1"},
      {"collate", "true"},
      {"reverse", "false"},
      {"number-up", "1"},
      {"number-up-layout", "lrtb"},
      {"scale", "100"},
      {"page-set", "all"},
  }};
  for (const auto& [key, value] : neutral)
    put(&returned, key, QLatin1String(value));
  put(&returned, "output-file-format", QStringLiteral("pdf"));
  put(&returned, numberUpKey, QString::number(choice.numberUp));
  put(&returned, layoutKey, choice.numberUpLayout);
  put(&returned, "orientation", QLatin1String(choice.isLandscape ? "landscape" : "portrait"));
  put(&returned, "duplex", wordOf(choice.duplex, duplexWords));
  if (!choice.printer.isEmpty()) put(&returned, "printer", choice.printer);

  const std::optional<QString> ranges = rangesToDraw(choice);
  if (ranges) put(&returned, "page-ranges", *ranges);
  const bool isOfNoRange = choice.pages == PortalPages::Ranges && !ranges;
  put(&returned, "print-pages", wordOf(isOfNoRange ? PortalPages::All : choice.pages, pagesWords));

  const PortalPaper& paper = choice.paper;
  if (paper.width > 0 && paper.height > 0) {
    put(&returned, "paper-format", paper.name.isEmpty() ? paper.ppdName : paper.name);
    put(&returned, "paper-width", QString::number(paper.width, 'f', 6));
    put(&returned, "paper-height", QString::number(paper.height, 'f', 6));
  }
  return returned;
}

QJsonObject pageSetupToReturn(const QJsonObject& pageSetup, const PortalChoice& choice) {
  QJsonObject returned = pageSetup;
  put(&returned, "Orientation", QLatin1String(choice.isLandscape ? "landscape" : "portrait"));
  const PortalPaper& paper = choice.paper;
  if (paper.width <= 0 || paper.height <= 0) return returned;
  // GTK would look a name up before it considers the lengths.
  const auto putName = [&](const char* key, const QString& value) {
    returned.remove(QLatin1String(key));
    if (!value.isEmpty()) put(&returned, key, value);
  };
  putName("PPDName", paper.ppdName);
  putName("Name", paper.name);
  putName("DisplayName", shownName(paper));
  for (const Length& length : lengths)
    put(&returned, length.key, paper.*length.member);
  return returned;
}

QJsonObject withoutPrivateKeys(const QJsonObject& settings) {
  QJsonObject open;
  for (auto it = settings.begin(); it != settings.end(); ++it) {
    if (!isPrivateKey(it.key())) open.insert(it.key(), it.value());
  }
  return open;
}

}  // namespace kesto
