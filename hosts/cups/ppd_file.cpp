#include "hosts/cups/ppd_file.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryFile>

#include "hosts/cups/faults.h"

namespace kesto {

void ClosePpd::operator()(ppd_file_t* ppd) const {
  ppdClose(ppd);
}

Outcome openPpdFile(const QString& path, PpdFile* ppd) {
  ppd->reset();
  // libcups tells of a file that cannot be read only that it cannot.
  QFile file(path);
  if (QFileInfo(path).isDir()) return Outcome::failed(path + QStringLiteral(": is a folder, not a PPD file"));
  if (!file.open(QIODevice::ReadOnly))
    return Outcome::failed(path + QStringLiteral(": ") + file.errorString());
  file.close();
  ppd->reset(ppdOpenFile(QFile::encodeName(path).constData()));
  if (*ppd) return Outcome::done();
  int line = 0;
  const ppd_status_t status = ppdLastError(&line);
  return Outcome::failed(
      Faults::tr("%1: line %2: %3").arg(path).arg(line).arg(QString::fromUtf8(ppdErrorString(status))));
}

Outcome fetchPpdFile(http_t* http, const QString& queue, PpdFile* ppd) {
  ppd->reset();
  QTemporaryFile file;
  if (!file.open()) return Outcome::failed(Faults::tr("the PPD cannot be kept: %1").arg(file.errorString()));
  // libcups's own call for it asks the host that the queue names, on another connection: through a tunnel
  // that is another server, and else it takes its time.
  const QByteArray resource = "/printers/" + queue.toUtf8() + ".ppd";
  const http_status_t status = cupsGetFd(http, resource.constData(), file.handle());
  if (status == HTTP_STATUS_NOT_FOUND) return Outcome::done();
  if (status != HTTP_STATUS_OK) {
    return Outcome::failed(
        Faults::tr("the PPD of %1 cannot be had: %2").arg(queue, QString::fromUtf8(cupsLastErrorString())));
  }
  return openPpdFile(file.fileName(), ppd);
}

bool offersJobHandling(ppd_file_t& ppd) {
  for (const ppd_attr_t* attribute = ppdFindAttr(&ppd, "APDialogExtension", nullptr); attribute != nullptr;
       attribute = ppdFindNextAttr(&ppd, "APDialogExtension", nullptr)) {
    if (attribute->value != nullptr && QByteArrayView(attribute->value).contains("JobHandling.pde"))
      return true;
  }
  return false;
}

}  // namespace kesto
