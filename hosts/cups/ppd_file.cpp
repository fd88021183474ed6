#include "hosts/cups/ppd_file.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace kesto {

void ClosePpd::operator()(ppd_file_t* ppd) const { ppdClose(ppd); }

Outcome openPpdFile(const QString& path, PpdFile* ppd) {
  ppd->reset();
  // libcups tells of a file that cannot be read only that it cannot.
  QFile file(path);
  if (QFileInfo(path).isDir()) return Outcome::failed(path + QStringLiteral(": is a folder, not a PPD file"));
  if (!file.open(QIODevice::ReadOnly)) return Outcome::failed(path + QStringLiteral(": ") + file.errorString());
  file.close();
  ppd->reset(ppdOpenFile(QFile::encodeName(path).constData()));
  if (*ppd) return Outcome::done();
  int line = 0;
  const ppd_status_t status = ppdLastError(&line);
  return Outcome::failed(
      QStringLiteral("%1: line %2: %3").arg(path).arg(line).arg(QString::fromUtf8(ppdErrorString(status))));
}

}  // namespace kesto
