// socket: a backend that carries a job to a raw TCP port, for a scheduler that has none.
#include <cups/backend.h>
#include <cups/cups.h>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <string>

namespace {

constexpr int connectLimitMs = 30'000;

// The socket that leads to the printer, negative when there is none.
int connectTo(const char* uri) {
  std::array<char, 32> scheme{};
  std::array<char, 256> user{};
  std::array<char, 256> host{};
  std::array<char, 1024> resource{};
  int port = 0;
  if (httpSeparateURI(HTTP_URI_CODING_ALL, uri, scheme.data(), scheme.size(), user.data(), user.size(),
                      host.data(), host.size(), &port, resource.data(),
                      resource.size()) < HTTP_URI_STATUS_OK) {
    return -1;
  }
  http_addrlist_t* addresses = httpAddrGetList(host.data(), AF_UNSPEC, std::to_string(port).c_str());
  int printer = -1;
  if (addresses != nullptr) httpAddrConnect2(addresses, &printer, connectLimitMs, nullptr);
  httpAddrFreeList(addresses);
  return printer;
}

bool copyAll(int from, int to) {
  std::array<char, 65536> bytes{};
  for (;;) {
    const ssize_t count = ::read(from, bytes.data(), bytes.size());
    if (count <= 0) return count == 0;
    for (ssize_t sent = 0; sent < count;) {
      const ssize_t now =
          ::send(to, bytes.data() + sent, static_cast<std::size_t>(count - sent), MSG_NOSIGNAL);
      if (now < 0) return false;
      sent += now;
    }
  }
}

int fail(const char* reason) {
  std::fprintf(stderr, "ERROR: %s\n", reason);
  return CUPS_BACKEND_FAILED;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 1) return CUPS_BACKEND_OK;  // Asked for the printers it sees: none.
  if (argc != 6 && argc != 7) return fail("usage: socket JOB USER TITLE COPIES OPTIONS [FILE]");
  const char* uri = cupsBackendDeviceURI(argv);
  const int printer = uri == nullptr ? -1 : connectTo(uri);
  if (printer < 0) return fail("the printer cannot be reached");
  const int document = argc == 7 ? ::open(argv[6], O_RDONLY | O_CLOEXEC) : STDIN_FILENO;
  if (document < 0 || !copyAll(document, printer)) return fail("the job does not go through");
  // The job is done when the printer has taken all of it: it then ends the connection. A reset is a refusal.
  ::shutdown(printer, SHUT_WR);
  char byte = 0;
  if (::read(printer, &byte, 1) != 0) return fail("the printer refuses the job");
  return CUPS_BACKEND_OK;
}
