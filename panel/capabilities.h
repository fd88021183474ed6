// What this model of printer can do.
#pragma once

namespace kesto {

/// The capability queries. Their answers are constants of the model; none asks the printer.
class CapabilityQueries {
 public:
  virtual ~CapabilityQueries() = default;
  /// The layout mode: 4, 5 or 6.
  virtual int getUIMode() const = 0;
  /// Whether the printer has a hard disk to file documents on.
  virtual bool CheckHardDisk() const = 0;
  /// Whether quick file takes the place of retention.
  virtual bool isVelkoMorra() const = 0;
};

}  // namespace kesto
