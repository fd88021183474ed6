// The backend "socket": carries a job to the printer's own socket. The path of the device URI is that of the
// socket; its host is for clients that look for the printer's services.
#include <cups/backend.h>
#include <cups/cups.h>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include "platform/descriptor.h"

namespace {

using kesto::Descriptor;

// A socket that is connected to the printer; none on failure.
Descriptor connectTo(const char* uri) {
  std::array<char, 32> scheme{};
  std::array<char, 256> user{};
  std::array<char, 256> host{};
  std::array<char, 1024> path{};
  int port = 0;
  if (httpSeparateURI(HTTP_URI_CODING_ALL, uri, scheme.data(), scheme.size(), user.data(), user.size(),
                      host.data(), host.size(), &port, path.data(), path.size()) < HTTP_URI_STATUS_OK) {
    return {};
  }
  sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
  const std::string_view name = path.data();
  if (name.size() >= sizeof address.sun_path) return {};
  name.copy(address.sun_path, name.size());
  Descriptor printer(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  if (!printer) return {};
  const auto* place = reinterpret_cast<const sockaddr*>(&address);
  return ::connect(printer.get(), place, sizeof address) == 0 ? std::move(printer) : Descriptor();
}

bool sendAll(int to, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::send(to, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (count < 0 && errno != EINTR) return false;
    if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

bool copyAll(int from, int to) {
  std::array<char, 65536> bytes{};
  for (;;) {
    const ssize_t count = ::read(from, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return count == 0;
    if (!sendAll(to, {bytes.data(), static_cast<std::size_t>(count)})) return false;
  }
}

// Whether the line is about the printer's state, in the form in which the scheduler takes it.
bool isOfState(std::string_view line) {
  return line.starts_with("STATE: ") || line.starts_with("INFO: ");
}

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

// The printer's answer about the job, a line without its end; empty without an answer. The scheduler learns
// what the printer says about its state meanwhile.
std::string answerOf(int printer) {
  const std::unique_ptr<std::FILE, CloseFile> lines(::fdopen(::dup(printer), "r"));
  std::array<char, 256> line{};
  std::string answer;
  while (lines && std::fgets(line.data(), line.size(), lines.get()) != nullptr) {
    if (isOfState(line.data())) {
      std::fputs(line.data(), stderr);
    } else {
      answer = line.data();
    }
  }
  return answer.ends_with('\n') ? answer.substr(0, answer.find('\n')) : "";
}

// The user's password for the printer as its line, empty without one.
std::string passwordLine() {
  const char* password = std::getenv("AUTH_PASSWORD");
  if (password == nullptr) return {};
  std::string line = "@PASSWORD ";
  for (const char c : std::string_view(password)) {
    std::array<char, 4> encoded{};
    std::snprintf(encoded.data(), encoded.size(), "%%%02X", static_cast<unsigned char>(c));
    line += encoded.data();
  }
  return line + '\n';
}

int fail(const char* reason) {
  std::fprintf(stderr, "ERROR: %s\n", reason);
  return CUPS_BACKEND_FAILED;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 1) return CUPS_BACKEND_OK;  // Asked to list devices: there are none.
  if (argc != 6 && argc != 7) return fail("usage: socket JOB USER TITLE COPIES OPTIONS [FILE]");
  // The backend of a job that was canceled did not see the end of its printer's fault.
  std::fputs("STATE: -media-empty-error,media-jam-error\n", stderr);
  const char* uri = cupsBackendDeviceURI(argv);
  const Descriptor printer = uri == nullptr ? Descriptor() : connectTo(uri);
  if (!printer) return fail("cannot reach the printer");
  const Descriptor document(argc == 7 ? ::open(argv[6], O_RDONLY | O_CLOEXEC) : STDIN_FILENO);
  if (!document) return fail("cannot open the document");
  // A job counts as printed only when the printer says so; the end of the connection proves nothing.
  const bool isSent = sendAll(printer.get(), passwordLine()) && copyAll(document.get(), printer.get()) &&
                      sendAll(printer.get(), "@END\n");
  const std::string answer = answerOf(printer.get());
  if (isSent && answer == "taken") return CUPS_BACKEND_OK;
  if (answer == "refused: wrong password") return CUPS_BACKEND_AUTH_REQUIRED;
  return fail(answer.empty() ? "the printer did not accept the job" : answer.c_str());
}
