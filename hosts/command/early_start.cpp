// What a program does before all else: the dynamic linker calls it ahead of every library's initialisation.
// Nothing is initialised then but the C library, and nothing else is used. Each program links this object.
#include <fcntl.h>
#include <unistd.h>

#include <cstring>

#include "hosts/command/secret_arguments.h"

namespace kesto {
namespace {

constexpr int exitFailed = 1;

// Whatever is opened first would take a closed stream's place, and what is meant for a person would go there.
// Opened the wrong way round, a stream that was closed still cannot be read or written.
void fillClosedStreams() {
  for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
    if (::fcntl(stream, F_GETFD) >= 0) continue;
    if (::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY) != stream) ::_exit(exitFailed);
  }
}

// Leaves the program its values and the list of processes blanks.
void hideSecrets(int argc, char** argv) {
  forEachSecretArgument(argc, argv, [](char*& argument, std::size_t start) {
    char* copy = ::strdup(argument);  // Lives as long as the program's arguments.
    if (copy == nullptr) ::_exit(exitFailed);
    ::explicit_bzero(argument + start, std::strlen(argument + start));
    argument = copy;
  });
}

__attribute__((no_sanitize("address", "undefined"))) void startEarly(int argc, char** argv,
                                                                     char** /*environment*/) {
  fillClosedStreams();
  hideSecrets(argc, argv);
}

using EarlyStart = void (*)(int, char**, char**);
__attribute__((section(".preinit_array"), used)) const EarlyStart earlyStart = startEarly;

}  // namespace
}  // namespace kesto
