// kesto-demo-filter: the demo queue's filter. Writes the job's settings in front of its document, in the form
// that printer.h describes.
#include <array>
#include <cstdio>
#include <string>

#include "demo/ticket_lines.h"

namespace {

constexpr std::size_t pieceSize = 65536;

// A document without its last line counts as broken off, so the line is left out when the document could not
// be read to its end.
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
    std::fprintf(stderr, "ERROR: cannot open the document\n");
    return 1;
  }
  const std::string ticket = kesto::ticketLines(argv[1], argv[2], argv[3], argv[5]);
  std::fwrite(ticket.data(), 1, ticket.size(), stdout);
  if (printDocument(document)) return 0;
  std::fprintf(stderr, "ERROR: the document does not go through\n");
  return 1;
}
