#include "hosts/command/output.h"

#include <cstdio>
#include <iostream>

#include "hosts/command/command_texts.h"

namespace kesto {

Outcome flushOutput() {
  std::cout.flush();
  const bool isFlushed = std::fflush(stdout) == 0;
  return std::cout && isFlushed && std::ferror(stdout) == 0
             ? Outcome::done()
             : Outcome::failed(CommandTexts::tr("cannot write standard output"));
}

int endOfOutput(const char* program, int code) {
  const Outcome written = flushOutput();
  if (written || code != 0) return code;
  std::cerr << program << ": " << written.reason().toStdString() << '\n';
  return 1;
}

}  // namespace kesto
