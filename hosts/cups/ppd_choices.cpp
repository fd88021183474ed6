#include "hosts/cups/ppd_choices.h"

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

}  // namespace

void markDefaults(ppd_file_t& ppd, const cups_dest_t* destination) {
  ppdLocalize(&ppd);
  ppdMarkDefaults(&ppd);
  if (destination != nullptr) cupsMarkOptions(&ppd, destination->num_options, destination->options);
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

}  // namespace kesto
