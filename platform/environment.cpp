#include "platform/environment.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <vector>

#include "platform/locale_name.h"

namespace kesto {
namespace {

// One field of the account's entry in the password file.
QString accountField(char* passwd::*field) {
  std::vector<char> buffer(16384);
  passwd entry{};
  passwd* found = nullptr;
  if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr) return {};
  return QString::fromLocal8Bit(found->*field);
}

// The folder that a variable names, without a "/" at its end; null unless the path is absolute.
QString folderOfVariable(const char* variable) {
  const QString path = QFile::decodeName(qgetenv(variable));
  return path.startsWith(u'/') ? QDir::cleanPath(path) : QString();
}

// Whether the path is a folder of this user that nobody else may enter; creates it when it is missing.
bool isPrivateFolder(const QByteArray& path) {
  if (::mkdir(path.constData(), 0700) != 0 && errno != EEXIST) return false;
  struct stat info {};
  return ::lstat(path.constData(), &info) == 0 && S_ISDIR(info.st_mode) && info.st_uid == getuid() &&
         (info.st_mode & 0077) == 0;
}

}  // namespace

QString accountShortName() {
  const QString name = accountField(&passwd::pw_name);
  return name.isEmpty() ? QString() : name;
}

QString accountFullName() {
  // The field holds the full name before its first comma; "&" stands for the short name, capitalised.
  QString name = accountField(&passwd::pw_gecos).section(u',', 0, 0);
  if (name.contains(u'&')) {
    QString shortName = accountShortName();
    if (!shortName.isEmpty()) shortName[0] = shortName[0].toUpper();
    name.replace(u'&', shortName);
  }
  return name.isEmpty() ? QString() : name;
}

QString userConfigurationDirectory() {
  const QString named = folderOfVariable("XDG_CONFIG_HOME");
  if (!named.isNull()) return named + u'/';
  const QString home = folderOfVariable("HOME");
  return (home.isNull() ? accountField(&passwd::pw_dir) : home) + QStringLiteral("/.config/");
}

QString userRuntimeDirectory() {
  return folderOfVariable("XDG_RUNTIME_DIR");
}

QString userTemporaryDirectory() {
  const QByteArray named = qgetenv("TMPDIR");
  if (!named.isEmpty()) return QFile::decodeName(named.endsWith('/') ? named : named + '/');
  const QString runtime = userRuntimeDirectory();
  const QString folder = runtime + QStringLiteral("/kesto");
  if (runtime.isNull() || !isPrivateFolder(QFile::encodeName(folder))) return {};
  return folder + u'/';
}

TextEncoding systemEncodingOfEnvironment() {
  return systemEncodingForLocale(localeOfEnvironment("LC_CTYPE"));
}

}  // namespace kesto
