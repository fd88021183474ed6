// The messages of kesto-lp on standard error.
#pragma once

#include <QtCore/QString>

namespace kesto {

/// Lines for people, or with --json one object a line (docs/formats/kesto-lp.md).
class Messages {
 public:
  explicit Messages(bool json) : m_json(json) {}

  /// Why the program fails.
  void error(const QString& text) const { say("error", text, text); }
  /// What it ignores, or does differently than asked.
  void warning(const QString& text) const;
  /// What the panel says to its user, possibly in several lines.
  void alert(const QString& text) const;

 private:
  void say(const char* member, const QString& text, const QString& line) const;

  bool m_json;
};

}  // namespace kesto
