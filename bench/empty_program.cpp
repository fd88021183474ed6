// A program that loads the libraries of our programs and does nothing, or only asks for a queue and its PPD.
// No change of ours can save its time.
#include <cups/cups.h>
#include <cups/ppd.h>
#include <unistd.h>

#include <QtCore/QCoreApplication>

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  if (argc < 2) return cupsLastError() == IPP_STATUS_ERROR_INTERNAL ? 1 : 0;
  cups_dest_t* queue = cupsGetNamedDest(CUPS_HTTP_DEFAULT, argv[1], nullptr);
  const char* ppd = cupsGetPPD(argv[1]);
  if (queue == nullptr || ppd == nullptr) return 1;
  cupsFreeDests(1, queue);
  return ::unlink(ppd);
}
