#include "hosts/cups/ppd_file.h"

#include <cups/file.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryFile>
#include <span>

#include "hosts/cups/bounds.h"
#include "hosts/cups/faults.h"

namespace kesto {
namespace {

// libcups unpacks a compressed PPD while reading it.
bool isShortEnough(const QString& path) {
  const std::unique_ptr<cups_file_t, decltype(&cupsFileClose)> file(
      cupsFileOpen(QFile::encodeName(path).constData(), "r"), cupsFileClose);
  QByteArray block(65536, Qt::Uninitialized);
  qsizetype length = 0;
  for (ssize_t count = 1; file && count > 0 && length <= longestPpd; length += count)
    count = cupsFileRead(file.get(), block.data(), static_cast<std::size_t>(block.size()));
  return length <= longestPpd;
}

bool isSmallEnough(const ppd_file_t& ppd) {
  int choices = 0;
  for (const ppd_group_t& group : std::span(ppd.groups, static_cast<std::size_t>(ppd.num_groups))) {
    for (const ppd_option_t& option : std::span(group.options, static_cast<std::size_t>(group.num_options)))
      choices += 1 + option.num_choices;
  }
  return choices <= mostPpdChoices && ppd.num_consts <= mostPpdConstraints;
}

}  // namespace

void ClosePpd::operator()(ppd_file_t* ppd) const {
  ppdClose(ppd);
}

Outcome openPpdFile(const QString& path, PpdFile* ppd) {
  ppd->reset();
  // libcups does not say why a file cannot be read.
  QFile file(path);
  if (QFileInfo(path).isDir()) return Outcome::failed(Faults::tr("%1: a folder, not a PPD file").arg(path));
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

Outcome fetchPpdFile(PrintServer& server, const QString& queue, PpdFile* ppd) {
  ppd->reset();
  // libcups's own call asks the host that the queue names, on another connection. Through a tunnel that is
  // the wrong server, and it waits beyond the limit.
  QByteArray bytes;
  Outcome fetched = server.fetch("/printers/" + queue.toUtf8() + ".ppd", longestPpd, &bytes);
  if (!fetched)
    return Outcome::failed(Faults::tr("cannot get the PPD of %1: %2").arg(queue, fetched.reason()));
  if (bytes.isNull()) return Outcome::done();
  QTemporaryFile file;
  if (!file.open() || file.write(bytes) != bytes.size() || !file.flush())
    return Outcome::failed(Faults::tr("cannot store the PPD: %1").arg(file.errorString()));
  const bool isShort = isShortEnough(file.fileName());
  if (isShort) fetched = openPpdFile(file.fileName(), ppd);
  if (isShort && (!fetched || isSmallEnough(**ppd))) return fetched;
  ppd->reset();
  return Outcome::failed(Faults::tr("the PPD of %1 is too large").arg(queue));
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
