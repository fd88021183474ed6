// The functions that libFuzzer calls.
#include "fuzz/targets.h"

#include <QtCore/QLoggingCategory>
#include <array>
#include <cstdint>
#include <cstring>

#include "tests/support/bench_host.h"

namespace {

using namespace kesto::fuzz;

struct Row {
  const char* name;
  void (*run)(const QByteArray&);
};

constexpr std::array targets{
    Row{"answer", runAnswer},           Row{"head", runHead},
    Row{"layout", runLayout},           Row{"ppd", runPpd},
    Row{"preferences", runPreferences}, Row{"reply", runReply},
    Row{"response", runResponse},       Row{"script", runScript},
    Row{"settings", runSettings},       Row{"ticket", runTicket},
    Row{"values", runValues},
};

const Row* chosen = nullptr;

void beSilent(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*text*/) {}

}  // namespace

// Removes the first argument, the target's name, from the command line.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  for (const Row& row : targets) {
    if (*argc > 1 && std::strcmp((*argv)[1], row.name) == 0) chosen = &row;
  }
  require(chosen != nullptr, "the first argument names a target");
  (*argv)[1] = (*argv)[0];
  ++*argv;
  --*argc;
  // Reports of bad input in the log are expected.
  qInstallMessageHandler(beSilent);
  kesto::bench::application();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  chosen->run(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
  return 0;
}
