// The first line is the device URI, the second the queue's identifier, and each further line an attribute of
// the PPD, "attribute: value".
#include <sys/mman.h>
#include <unistd.h>

#include <QtCore/QMetaProperty>

#include "fuzz/targets.h"
#include "hosts/cups/ppd_file.h"
#include "plugin/job_handling_panel.h"
#include "tests/support/bench_host.h"

namespace kesto::fuzz {
namespace {

// A PPD with the attributes, read by libcups; null when libcups rejects it.
PpdFile ppdOf(const QList<QByteArray>& lines) {
  QByteArray text = "*PPD-Adobe: \"4.3\"\n";
  for (const QByteArray& line : lines)
    text += '*' + line + '\n';
  const int descriptor = ::memfd_create("ppd", MFD_CLOEXEC);
  require(descriptor >= 0 && ::write(descriptor, text.constData(), static_cast<std::size_t>(text.size())) ==
                                 static_cast<ssize_t>(text.size()),
          "the PPD can be written");
  PpdFile ppd;
  const Outcome opened = openPpdFile(QStringLiteral("/proc/self/fd/%1").arg(descriptor), &ppd);
  ::close(descriptor);
  require(static_cast<bool>(opened) == (ppd != nullptr), "an opened PPD is there");
  return ppd;
}

}  // namespace

void runPpd(const QByteArray& input) {
  QList<QByteArray> lines = input.split('\n');
  const QString uri = QString::fromUtf8(lines.takeFirst());
  const QString queue = lines.isEmpty() ? QString() : QString::fromUtf8(lines.takeFirst());
  const PpdFile ppd = ppdOf(lines);
  if (ppd) offersJobHandling(*ppd);

  bench::BenchHost host;
  host.ppd = ppd.get();
  host.session.currentPrinter = {.id = queue, .deviceUri = uri};
  KestoPrintPdeVq250nJC panel(host);
  const QString address = panel.mfpURL().toString();
  require(uri.contains(address), "the address is cut from the URI");
  for (const QChar end : {u'/', u'?', u'#', u'@'})
    require(!address.contains(end), "the address is a host alone");
  const QMetaObject* facts = panel.metaObject();
  for (int i = 0; i < facts->propertyCount(); ++i)
    facts->property(i).read(&panel);
  panel.restoreValuesAndReturnError(nullptr);
  panel.shouldPrint();
}

}  // namespace kesto::fuzz
