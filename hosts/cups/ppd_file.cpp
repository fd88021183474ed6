#include "hosts/cups/ppd_file.h"

#include <cups/file.h>
#include <fcntl.h>
#include <sys/mman.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <span>

#include "hosts/cups/bounds.h"
#include "hosts/cups/faults.h"
#include "platform/descriptor.h"

namespace kesto {
namespace {

// For libcups, which reads from where the descriptor is and closes it. A pipe is read as it comes.
int atStart(int descriptor) {
  ::lseek(descriptor, 0, SEEK_SET);
  return ::fcntl(descriptor, F_DUPFD_CLOEXEC, 0);
}

// libcups unpacks a compressed PPD while reading it.
bool isShortEnough(int descriptor) {
  const std::unique_ptr<cups_file_t, decltype(&cupsFileClose)> file(cupsFileOpenFd(atStart(descriptor), "r"),
                                                                    cupsFileClose);
  QByteArray block(65536, Qt::Uninitialized);
  qsizetype length = 0;
  for (ssize_t count = 1; file && count > 0 && length <= longestPpd; length += count)
    count = cupsFileRead(file.get(), block.data(), static_cast<std::size_t>(block.size()));
  return length <= longestPpd;
}

// `name` stands for the file in messages.
Outcome readPpd(int descriptor, const QString& name, PpdFile* ppd) {
  ppd->reset(ppdOpenFd(atStart(descriptor)));
  if (*ppd) return Outcome::done();
  int line = 0;
  const ppd_status_t status = ppdLastError(&line);
  return Outcome::failed(
      Faults::tr("%1: line %2: %3").arg(name).arg(line).arg(QString::fromUtf8(ppdErrorString(status))));
}

// A file in memory, without a name; none when there is no room, and errno says so.
Descriptor storeInMemory(const QByteArray& bytes) {
  Descriptor memory(::memfd_create("ppd", MFD_CLOEXEC));
  QFile file;
  const bool isStored = memory && file.open(memory.get(), QIODevice::WriteOnly) &&
                        file.write(bytes) == bytes.size() && file.flush();
  if (!isStored) memory.reset();
  return memory;
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
  return readPpd(file.handle(), path, ppd);
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
  const Descriptor file = storeInMemory(bytes);
  if (!file) return Outcome::failed(Faults::tr("cannot store the PPD: %1").arg(qt_error_string()));
  const bool isShort = isShortEnough(file.get());
  if (isShort) fetched = readPpd(file.get(), queue + QStringLiteral(".ppd"), ppd);
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
