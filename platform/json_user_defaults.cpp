#include "platform/json_user_defaults.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QLoggingCategory>
#include <QtCore/QStandardPaths>
#include <QtCore/QUrl>

#include "platform/private_file.h"

namespace kesto {
namespace {

Q_LOGGING_CATEGORY(store, "kesto.preferences")

constexpr QFile::Permissions ownerFile = QFile::ReadOwner | QFile::WriteOwner;
constexpr QFile::Permissions ownerFolder = ownerFile | QFile::ExeOwner;

// Makes the folder and what is missing above it, for the owner alone.
bool makePrivateFolder(const QString& path) {
  const QFileInfo info(path);
  if (info.isDir()) return isPrivate(path) || QFile::setPermissions(path, ownerFolder);
  const QString parent = info.absolutePath();
  if (!QFileInfo(parent).isDir() && parent != path && !makePrivateFolder(parent)) return false;
  // Another process may have made it meanwhile.
  return QDir().mkdir(path, ownerFolder) || QFileInfo(path).isDir();
}

// What cannot be read as a domain is the user's all the same: it goes on under another name.
bool keepAside(const QString& path) {
  for (int number = 1; number < 10000; ++number) {
    const QString aside = path + QStringLiteral(".damaged-%1").arg(number);
    if (QFile::exists(aside)) continue;
    if (!QFile::rename(path, aside)) return !QFile::exists(path);
    qCWarning(store, "%s was not readable and is kept as %s", qUtf8Printable(path), qUtf8Printable(aside));
    return true;
  }
  return false;
}

}  // namespace

JsonUserDefaults::JsonUserDefaults(QString directory) : m_directory(std::move(directory)) {}

QString JsonUserDefaults::defaultDirectory() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/kesto");
}

QString JsonUserDefaults::pathForName(const QString& name) const {
  return m_directory + u'/' + QString::fromLatin1(QUrl::toPercentEncoding(name, {}, "~")) +
         QStringLiteral(".json");
}

Domain JsonUserDefaults::persistentDomainForName(const QString& name) {
  const QString path = pathForName(name);
  const QFileInfo info(path);
  QFile file(path);
  if (info.exists() && !info.isFile()) return {};
  if (!file.open(QIODevice::ReadOnly)) return {.available = !QFile::exists(path), .values = {}};
  const QByteArray bytes = file.readAll();
  if (file.error() != QFile::NoError) return {};
  file.close();
  if (bytes.isEmpty()) return {.available = true, .values = {}};
  const QJsonDocument document = QJsonDocument::fromJson(bytes);
  if (document.isObject()) return {.available = true, .values = document.object()};
  return {.available = keepAside(path), .values = {}};
}

Outcome JsonUserDefaults::setPersistentDomain(const QJsonObject& values, const QString& name) {
  if (!makePrivateFolder(m_directory)) {
    return Outcome::failed(QStringLiteral("the folder %1 cannot be made private").arg(m_directory));
  }
  return writePrivateFile(pathForName(name), QJsonDocument(values).toJson());
}

}  // namespace kesto
