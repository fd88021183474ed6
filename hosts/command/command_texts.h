// The texts that command lines share, in the user's language if the program installs a translator.
#pragma once

#include <QtCore/QCoreApplication>

namespace kesto {

/// The translation context of these texts.
struct CommandTexts {
  Q_DECLARE_TR_FUNCTIONS(CommandTexts)

 public:
  /// That an option is of no use without another one.
  static QString lack(const QString& option, const QString& other) {
    return tr("%1 requires %2").arg(option, other);
  }
};

}  // namespace kesto
