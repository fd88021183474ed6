#include "demo/ticket_lines.h"

#include <cups/cups.h>

#include <string_view>

namespace kesto {
namespace {

// The same as in platform/print_settings.h, which a filter cannot include because it does not use Qt.
constexpr std::string_view settingPrefix = "kesto.print.PrintSettings.";
constexpr std::string_view hexDigits = "0123456789ABCDEF";

void addLine(std::string* lines, std::string_view name, std::string_view value) {
  lines->append("@KESTO ").append(name).push_back('=');
  for (const char character : value) {
    const auto byte = static_cast<unsigned char>(character);
    if (byte <= ' ' || byte >= 0x7F || byte == '%') {
      *lines += {'%', hexDigits[byte >> 4], hexDigits[byte & 15]};
    } else {
      *lines += character;
    }
  }
  *lines += '\n';
}

}  // namespace

std::string ticketLines(const char* job, const char* user, const char* title, const char* options) {
  std::string lines;
  addLine(&lines, "job", job);
  addLine(&lines, "user", user);
  addLine(&lines, "title", title);
  cups_option_t* all = nullptr;
  const int count = cupsParseOptions(options, 0, &all);
  for (int i = 0; i < count; ++i) {
    const std::string_view name = all[i].name;
    if (name.starts_with(settingPrefix)) addLine(&lines, name, all[i].value);
  }
  cupsFreeOptions(count, all);
  lines += '\n';
  return lines;
}

}  // namespace kesto
