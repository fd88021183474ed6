// How the panel shows an alert to the user.
#pragma once

#include <QtCore/QString>

#include "platform/export.h"

namespace kesto {

/// Shows modal alerts on behalf of the panel. The host supplies it.
class KESTO_EXPORT AlertPresenter {
 public:
  virtual ~AlertPresenter() = default;
  /// Shows an informational alert with one button and returns when the user has dismissed it. Texts are
  /// localised.
  virtual void runInformationalAlert(const QString& title, const QString& message, const QString& button) = 0;
};

}  // namespace kesto
