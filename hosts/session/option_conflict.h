// Options that the printer cannot do together.
#pragma once

#include <optional>

#include "hosts/session/job_options.h"

namespace kesto {

/// A conflict in words, and the change that ends it.
struct OptionConflict {
  QString text;      ///< What is not possible: "Two-sided printing is not possible on Transparency."
  QString remedy{};  ///< The change, for a button: "Turn off two-sided".
  QMap<QString, QString> changes{};  ///< To be set as chosen; empty when none is known.

  friend bool operator==(const OptionConflict&, const OptionConflict&) = default;
};

/// The first conflict of the job's options; none when the printer can do them. The option that was set last
/// keeps its value where the PPD allows that.
std::optional<OptionConflict> conflictOf(const JobOptions& options);

}  // namespace kesto
