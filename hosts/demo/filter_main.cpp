// kesto-demo-filter: the demo queue's filter. Puts what the printer is to know of the job in front of its
// document, in the form that printer.h tells.
#include <cups/cups.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <string>

namespace {

constexpr std::size_t pieceSize = 65536;
constexpr char settingPrefix[] = "kesto.print.PrintSettings.";

void printLine(const char* name, const char* value) {
  std::printf("@KESTO %s=", name);
  for (const char* c = value; *c != '\0'; ++c) {
    const auto byte = static_cast<unsigned char>(*c);
    if (byte <= ' ' || byte >= 0x7F || byte == '%') {
      std::printf("%%%02X", static_cast<unsigned>(byte));
    } else {
      std::putchar(byte);
    }
  }
  std::putchar('\n');
}

void printTicket(const char* job, const char* user, const char* title, const char* options) {
  printLine("job", job);
  printLine("user", user);
  printLine("title", title);
  cups_option_t* all = nullptr;
  const int count = cupsParseOptions(options, 0, &all);
  for (int i = 0; i < count; ++i) {
    const cups_option_t& option = all[i];
    if (std::strncmp(option.name, settingPrefix, sizeof settingPrefix - 1) == 0)
      printLine(option.name, option.value);
  }
  cupsFreeOptions(count, all);
  std::putchar('\n');
}

// Without its last line the document counts as broken off, so that is left out when it could not be read to
// its end.
bool printDocument(std::FILE* document) {
  std::array<char, pieceSize> piece{};
  while (const std::size_t size = std::fread(piece.data(), 1, piece.size(), document)) {
    std::printf("%zu\n", size);
    std::fwrite(piece.data(), 1, size, stdout);
  }
  if (std::ferror(document) != 0) return false;
  std::printf("0\n");
  return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 6 && argc != 7) {
    std::fprintf(stderr, "ERROR: usage: kesto-demo-filter JOB USER TITLE COPIES OPTIONS [FILE]\n");
    return 1;
  }
  std::FILE* document = argc == 7 ? std::fopen(argv[6], "rb") : stdin;
  if (document == nullptr) {
    std::fprintf(stderr, "ERROR: the document cannot be opened\n");
    return 1;
  }
  printTicket(argv[1], argv[2], argv[3], argv[5]);
  if (printDocument(document)) return 0;
  std::fprintf(stderr, "ERROR: the document does not go through\n");
  return 1;
}
