#include "platform/json_user_defaults.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QLoggingCategory>
#include <QtCore/QUrl>

#include "platform/environment.h"
#include "platform/folder_lock.h"
#include "platform/private_file.h"

namespace kesto {
namespace {

Q_LOGGING_CATEGORY(store, "kesto.preferences")
// A category of its own, so that programs which report failures themselves can switch it off.
Q_LOGGING_CATEGORY(changes, "kesto.preferences.changes")

constexpr QFile::Permissions ownerFile = QFile::ReadOwner | QFile::WriteOwner;
constexpr QFile::Permissions ownerFolder = ownerFile | QFile::ExeOwner;

constexpr qsizetype digestDigits = 16;

// Creates the folder, and missing folders above it, for the owner alone.
bool makePrivateFolder(const QString& path) {
  const QFileInfo info(path);
  if (info.isDir()) return isPrivate(path) || QFile::setPermissions(path, ownerFolder);
  const QString parent = info.absolutePath();
  if (!QFileInfo(parent).isDir() && parent != path && !makePrivateFolder(parent)) return false;
  // Another process may have created it meanwhile.
  return QDir().mkdir(path, ownerFolder) || QFileInfo(path).isDir();
}

// A file that cannot be read as a domain may still be of use to the user, so it is renamed, not deleted.
bool keepAside(const QString& path) {
  for (int number = 1; number < 10000; ++number) {
    const QString aside = pathBeside(path, QStringLiteral(".damaged-%1").arg(number));
    if (QFile::exists(aside)) continue;
    if (!QFile::rename(path, aside)) return !QFile::exists(path);
    QFile::setPermissions(aside, ownerFile);
    qCWarning(store, "%s was not readable and is kept as %s", qUtf8Printable(path), qUtf8Printable(aside));
    return true;
  }
  return false;
}

Domain unavailable(const QString& path, const QString& reason) {
  return {.available = false, .values = {}, .reason = path + QStringLiteral(": ") + reason};
}

QString tooLarge() {
  return QStringLiteral("the preferences would be larger than %1 MiB").arg(largestDomain / 1024 / 1024);
}

struct Reading {
  Domain domain;
  bool isDamaged = false;
};

Reading readDomain(const QString& path) {
  const QFileInfo info(path);
  QFile file(path);
  if (info.exists() && !info.isFile()) return {unavailable(path, QStringLiteral("not a file"))};
  if (!file.open(QIODevice::ReadOnly)) {
    if (!QFile::exists(path)) return {{.available = true, .values = {}}};
    return {unavailable(path, file.errorString())};
  }
  // For a larger number Qt would allocate that much twice.
  const QByteArray bytes = file.read(qMin(file.size(), qint64{largestDomain}) + 1);
  if (file.error() != QFile::NoError) return {unavailable(path, file.errorString())};
  if (bytes.size() > largestDomain) return {unavailable(path, tooLarge())};
  if (bytes.isEmpty()) return {{.available = true, .values = {}}};
  const QJsonDocument document = QJsonDocument::fromJson(bytes);
  if (document.isObject()) return {{.available = true, .values = document.object()}};
  return {unavailable(path, QStringLiteral("not a preference file")), true};
}

// Needs the lock, because another process may be replacing the damaged file at this moment.
Domain readOrKeepAside(const QString& path) {
  const Reading reading = readDomain(path);
  if (reading.isDamaged && keepAside(path)) return {.available = true, .values = {}};
  return reading.domain;
}

// The domain's file after the change.
Outcome changedBytes(const Domain& domain, const DomainChange& change, QByteArray* bytes) {
  if (!domain.available) return Outcome::failed(domain.reason);
  QJsonObject values = domain.values.value_or(QJsonObject());
  if (Outcome changed = change(&values); !changed) return changed;
  *bytes = QJsonDocument(values).toJson();
  return bytes->size() > largestDomain ? Outcome::failed(tooLarge()) : Outcome::done();
}

}  // namespace

JsonUserDefaults::JsonUserDefaults(QString directory, std::chrono::milliseconds limit)
    : m_directory(std::move(directory)), m_limit(limit) {}

QString JsonUserDefaults::defaultDirectory() {
  return userConfigurationDirectory() + QStringLiteral("kesto");
}

QString JsonUserDefaults::pathForName(const QString& name) const {
  const QString extension = QStringLiteral(".json");
  QByteArray encoded = QUrl::toPercentEncoding(name, {}, "~");
  if (encoded.size() + extension.size() > longestFileName) {
    const QByteArray digest = QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha256).toHex();
    encoded.truncate(longestFileName - extension.size() - 1 - digestDigits);
    encoded += '-' + digest.first(digestDigits);
  }
  return m_directory + u'/' + QString::fromLatin1(encoded) + extension;
}

Domain JsonUserDefaults::persistentDomainForName(const QString& name) {
  const QString path = pathForName(name);
  const Reading reading = readDomain(path);
  if (!reading.isDamaged) return reading.domain;
  FolderLock held;
  if (const Outcome locked = held.take(m_directory, m_limit); !locked)
    return {.available = false, .values = {}, .reason = locked.reason()};
  return readOrKeepAside(path);
}

Outcome JsonUserDefaults::changeFile(const QString& path, const DomainChange& change) {
  // Most changes change nothing; those need not wait for the lock.
  QByteArray bytes;
  const Reading reading = readDomain(path);
  if (!reading.isDamaged) {
    if (Outcome changed = changedBytes(reading.domain, change, &bytes); !changed) return changed;
    if (isPrivate(m_directory) && holdsPrivately(path, bytes)) return Outcome::done();
  }
  if (!makePrivateFolder(m_directory)) {
    return Outcome::failed(QStringLiteral("cannot make the folder %1 private").arg(m_directory));
  }
  FolderLock held;
  if (Outcome locked = held.take(m_directory, m_limit); !locked) return locked;
  if (Outcome changed = changedBytes(readOrKeepAside(path), change, &bytes); !changed) return changed;
  return writePrivateFile(path, bytes);
}

Outcome JsonUserDefaults::changePersistentDomain(const QString& name, const DomainChange& change) {
  bool isRefused = false;
  Outcome changed = changeFile(pathForName(name), [&](QJsonObject* values) {
    Outcome made = change(values);
    isRefused = !made;
    return made;
  });
  if (!changed && !isRefused) qCWarning(changes, "not kept: %s", qUtf8Printable(changed.reason()));
  return changed;
}

}  // namespace kesto
