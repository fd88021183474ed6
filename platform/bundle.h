// A plug-in bundle: a directory with the code, its resources and its localisation table.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QTranslator>
#include <optional>

#include "platform/export.h"
#include "platform/locale_name.h"
#include "platform/outcome.h"

namespace kesto {

class PrintDialogPlugIn;

/// The bundle directory contains `<base name>.so` and `Resources/` with the resources and the compiled
/// translations `Localizable_<language>.qm`.
class KESTO_EXPORT Bundle {
 public:
  /// `directory` is the path of the bundle; texts are looked up in the language of `locale`.
  explicit Bundle(QString directory, const QLocale& locale = userLanguage());
  Bundle(const Bundle&) = delete;
  Bundle& operator=(const Bundle&) = delete;

  /// The path of the bundle directory `name`: beside the running program, else in the library folder of the
  /// program's prefix; null when it is in neither.
  static QString find(const QString& name);

  /// The path of a resource file, null when it is missing.
  QString pathForResource(const QString& name, const QString& ofType) const;
  /// The bytes of a resource file, none when it is missing or cannot be read.
  std::optional<QByteArray> resource(const QString& name, const QString& ofType) const;
  /// The text of the default localisation table for `key`; the key itself when it has no entry.
  QString localizedStringForKey(const QString& key) const;
  /// Loads the bundle's code, creates its principal object and initialises it. The object lives as long as
  /// the process. On failure `*plugIn` is null and the outcome says why.
  Outcome loadPrincipalObject(PrintDialogPlugIn** plugIn) const;

 private:
  QString m_directory;
  QTranslator m_translator;
};

}  // namespace kesto
