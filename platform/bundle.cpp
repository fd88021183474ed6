#include "platform/bundle.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QPluginLoader>

#include "platform/panel.h"

namespace kesto {

Bundle::Bundle(QString directory, const QLocale& locale) : m_directory(std::move(directory)) {
  // Without a translation for the language the table is empty, so every text is its own key. The keys are
  // English, for which Qt would look for two dozen files.
  if (locale.language() == QLocale::English) return;
  (void)m_translator.load(locale, QStringLiteral("Localizable"), QStringLiteral("_"),
                          m_directory + QStringLiteral("/Resources"));
}

QString Bundle::find(const QString& name) {
  const QString programs = QCoreApplication::applicationDirPath();
  for (const QString& folder : {programs, programs + QStringLiteral("/" KESTO_LIB_DIR "/pde")}) {
    const QFileInfo info(folder + u'/' + name);
    if (info.isDir()) return QDir::cleanPath(info.absoluteFilePath());
  }
  return {};
}

QString Bundle::pathForResource(const QString& name, const QString& ofType) const {
  const QString path = m_directory + QStringLiteral("/Resources/") + name + u'.' + ofType;
  return QFileInfo(path).isFile() ? path : QString();
}

std::optional<QByteArray> Bundle::resource(const QString& name, const QString& ofType) const {
  QFile file(pathForResource(name, ofType));
  if (file.fileName().isNull() || !file.open(QIODevice::ReadOnly)) return std::nullopt;
  QByteArray bytes = file.readAll();
  if (file.error() != QFile::NoError) return std::nullopt;
  return bytes;
}

QString Bundle::localizedStringForKey(const QString& key) const {
  const QString text = m_translator.translate("JobHandling", key.toUtf8().constData());
  return text.isEmpty() ? key : text;
}

Outcome Bundle::loadPrincipalObject(PrintDialogPlugIn** plugIn) const {
  *plugIn = nullptr;
  const QString code = m_directory + u'/' + QFileInfo(m_directory).completeBaseName() + QStringLiteral(".so");
  QPluginLoader loader(code);
  auto* principal = qobject_cast<PrintDialogPlugIn*>(loader.instance());
  if (principal == nullptr) {
    return Outcome::failed(
        code + QStringLiteral(": ") +
        (loader.isLoaded() ? QStringLiteral("not a print-dialog extension") : loader.errorString()));
  }
  if (!principal->initWithBundle(*this)) {
    return Outcome::failed(code + QStringLiteral(": the extension refused its bundle"));
  }
  *plugIn = principal;
  return Outcome::done();
}

}  // namespace kesto
