// The result of an operation that can fail: done, or failed with a reason that a person can read.
#pragma once

#include <QtCore/QString>
#include <utility>

namespace kesto {

/// Done, or failed with a reason. It is a value to check, not a state that sticks to an object.
class [[nodiscard]] Outcome {
 public:
  /// The operation was carried out.
  static Outcome done() { return Outcome{}; }
  /// The operation was not carried out; `reason` is a clause without a full stop, without secrets.
  static Outcome failed(QString reason) {
    Outcome outcome;
    outcome.m_reason = reason.isNull() ? QString::fromLatin1("") : std::move(reason);
    return outcome;
  }

  explicit operator bool() const { return m_reason.isNull(); }
  /// Why it failed; null when it was done.
  const QString& reason() const { return m_reason; }

 private:
  Outcome() = default;
  QString m_reason;
};

}  // namespace kesto
