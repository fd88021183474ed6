// Runs a fuzz target on files, for presets without libFuzzer.
#include <QtCore/QFile>
#include <cstdint>

#include "fuzz/targets.h"

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
  LLVMFuzzerInitialize(&argc, &argv);
  kesto::fuzz::require(argc > 1, "there are inputs");
  for (int i = 1; i < argc; ++i) {
    QFile file(QFile::decodeName(argv[i]));
    kesto::fuzz::require(file.open(QIODevice::ReadOnly), argv[i]);
    const QByteArray bytes = file.readAll();
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                           static_cast<std::size_t>(bytes.size()));
  }
  return 0;
}
