// The log in tests: a warning that no test expected fails the test that runs.
#pragma once

#include <vector>

#include "tests/support/printing.h"

namespace kesto::test {

/// While it exists, warnings that contain a text are expected; when it is destroyed, there must have been
/// one.
class ExpectedWarning {
 public:
  explicit ExpectedWarning(Text part) : m_part(std::move(part)) { all.push_back(this); }
  ~ExpectedWarning() {
    std::erase(all, this);
    EXPECT_GT(m_count, 0) << "no warning with: " << m_part;
  }
  ExpectedWarning(const ExpectedWarning&) = delete;
  ExpectedWarning& operator=(const ExpectedWarning&) = delete;

  /// Qt's message handler of every test program.
  static void handleMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
    if (type == QtDebugMsg || type == QtInfoMsg) return;
    for (ExpectedWarning* expected : all) {
      if (message.contains(expected->m_part)) return static_cast<void>(++expected->m_count);
    }
    ADD_FAILURE() << "unexpected warning: " << message;
  }

 private:
  static inline std::vector<ExpectedWarning*> all;
  Text m_part;
  int m_count = 0;
};

}  // namespace kesto::test
