// What the operating system provides to a panel, behind one interface. Tests implement it with a double.
#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <memory>

#include "platform/export.h"
#include "platform/text_encoding.h"

namespace kesto {

class AlertPresenter;
class Bundle;
class UserDefaults;

/// The services of the operating system. The host owns the platform, which outlives every panel created with
/// it.
class KESTO_EXPORT Platform {
 public:
  virtual ~Platform() = default;
  /// The bundle that holds the panel's code and resources; never null.
  virtual std::shared_ptr<const Bundle> bundle() = 0;
  /// The store of the user's preferences.
  virtual UserDefaults& userDefaults() = 0;
  /// The presenter of the panel's alerts.
  virtual AlertPresenter& alertPresenter() = 0;
  /// The current time, in the local time zone.
  virtual QDateTime now() = 0;
  /// The user's temporary directory, ending in "/"; null when there is none.
  virtual QString temporaryDirectory() = 0;
  /// The account's short name; null when it is not known.
  virtual QString userName() = 0;
  /// The account's full name; null when it is not known.
  virtual QString fullUserName() = 0;
  /// The default encoding of byte strings.
  virtual TextEncoding systemEncoding() = 0;
};

}  // namespace kesto
