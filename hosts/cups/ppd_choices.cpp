#include "hosts/cups/ppd_choices.h"

#include <cups/pwg.h>

#include <array>

namespace kesto {
namespace {

constexpr std::array usual{"PageSize",   "InputSlot",  "MediaType", "Duplex",
                           "ColorModel", "Resolution", "OutputBin", "StapleLocation"};

PpdOption optionOfPpd(const ppd_option_t& option) {
  PpdOption made{
      .keyword = QString::fromUtf8(option.keyword), .text = QString::fromUtf8(option.text), .choices = {}};
  for (int i = 0; i < option.num_choices; ++i) {
    const ppd_choice_t& choice = option.choices[i];
    if (choice.marked != 0) made.marked = i;
    made.choices.push_back({QString::fromUtf8(choice.choice), QString::fromUtf8(choice.text)});
  }
  return made;
}

// The standard's values of "sides", and those of the PPD's Duplex.
struct Sides {
  const char* standard;
  const char* duplex;
};

constexpr std::array allSides{Sides{"one-sided", "None"}, Sides{"two-sided-long-edge", "DuplexNoTumble"},
                              Sides{"two-sided-short-edge", "DuplexTumble"}};

}  // namespace

PpdChoiceName ppdNameOf(const QString& option, const QString& choice) {
  if (option == u"sides") {
    for (const Sides& sides : allSides) {
      if (choice == QLatin1String(sides.standard))
        return {QStringLiteral("Duplex"), QLatin1String(sides.duplex)};
    }
  }
  const pwg_media_t* media = option == u"media" ? pwgMediaForPWG(choice.toUtf8().constData()) : nullptr;
  if (media != nullptr && media->ppd != nullptr)
    return {QStringLiteral("PageSize"), QString::fromUtf8(media->ppd)};
  return {option, choice};
}

// libcups's own call for a destination's options loses memory each time.
void markDefaults(ppd_file_t& ppd, const cups_dest_t* destination) {
  ppdLocalize(&ppd);
  ppdMarkDefaults(&ppd);
  if (destination == nullptr) return;
  for (int i = 0; i < destination->num_options; ++i) {
    const cups_option_t& kept = destination->options[i];
    const PpdChoiceName name = ppdNameOf(QString::fromUtf8(kept.name), QString::fromUtf8(kept.value));
    ppdMarkOption(&ppd, name.option.toUtf8().constData(), name.choice.toUtf8().constData());
  }
}

std::vector<PpdOption> usualOptions(ppd_file_t& ppd, const QStringList& handledByPanel) {
  std::vector<PpdOption> options;
  for (const char* keyword : usual) {
    const ppd_option_t* option = ppdFindOption(&ppd, keyword);
    if (option == nullptr || option->num_choices < 2) continue;
    if (!handledByPanel.contains(QLatin1String(keyword))) options.push_back(optionOfPpd(*option));
  }
  return options;
}

QStringList markChoice(ppd_file_t& ppd, const QString& option, const QString& choice) {
  ppdMarkOption(&ppd, option.toUtf8().constData(), choice.toUtf8().constData());
  QStringList conflicts;
  if (ppdConflicts(&ppd) == 0) return conflicts;
  for (ppd_option_t* each = ppdFirstOption(&ppd); each != nullptr; each = ppdNextOption(&ppd)) {
    if (each->conflicted != 0) conflicts.append(QString::fromUtf8(each->text));
  }
  return conflicts;
}

std::optional<PpdPaper> markedPaper(ppd_file_t& ppd) {
  const ppd_choice_t* choice = ppdFindMarkedChoice(&ppd, "PageSize");
  const ppd_size_t* size = choice == nullptr ? nullptr : ppdPageSize(&ppd, choice->choice);
  if (size == nullptr) return {};
  constexpr double perPoint = 25.4 / 72;
  const pwg_media_t* media = pwgMediaForPPD(size->name);
  return PpdPaper{
      .keyword = QString::fromUtf8(size->name),
      .text = QString::fromUtf8(choice->text),
      .standardName = media == nullptr ? QString() : QString::fromUtf8(media->pwg).section(u'_', 0, -2),
      .width = size->width * perPoint,
      .height = size->length * perPoint,
      .left = size->left * perPoint,
      .right = (size->width - size->right) * perPoint,
      .top = (size->length - size->top) * perPoint,
      .bottom = size->bottom * perPoint};
}

}  // namespace kesto
