// What a program does before anything else: the dynamic linker calls it ahead of every library's
// initialisation. Only the C library is initialised by then, so nothing else is used. Each program links this
// object.
#include <fcntl.h>
#include <unistd.h>

#include <cstring>

#include "hosts/command/secret_arguments.h"

namespace kesto {
namespace {

constexpr int exitFailed = 1;

// The first file to be opened would take the place of a closed stream and receive its output. So closed
// streams are opened in the wrong direction, in which they still cannot be read or written.
void fillClosedStreams() {
  for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
    if (::fcntl(stream, F_GETFD) >= 0) continue;
    if (::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY) != stream) ::_exit(exitFailed);
  }
}

// Blanks the secrets out in the list of processes, and leaves the program a copy.
void hideSecrets(int argc, char** argv) {
  forEachSecretArgument(argc, argv, [](char*& argument, std::size_t start) {
    char* copy = ::strdup(argument);  // Never freed, like the program's own arguments.
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
