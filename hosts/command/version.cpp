#include "hosts/command/version.h"

namespace kesto {

std::string versionOf(const std::string& program) {
  return program + " " KESTO_VERSION;
}

}  // namespace kesto
