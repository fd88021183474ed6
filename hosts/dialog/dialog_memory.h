// What a print dialog remembers of its own looks.
#pragma once

#include <QtCore/QMap>
#include <QtCore/QSize>
#include <QtCore/QString>

namespace kesto {

/// Kept in `dialogDomain` of the user's preferences, so that the next dialog looks as the last one
/// was left.
struct DialogMemory {
  QSize size;                  ///< Of the window; empty when none is remembered.
  int sideWidth = 0;           ///< Of the column of sections; 0 when none is remembered.
  QMap<QString, bool> open{};  ///< By name, the sections that were left open or folded.

  /// What is remembered; nothing when it cannot be read.
  static DialogMemory load();
  /// A failure is logged, and loses no more than the looks.
  void save() const;

  bool operator==(const DialogMemory& other) const = default;
};

}  // namespace kesto
