// A program that loads what each of ours on a print server loads, and does nothing: no change of ours can
// save that time.
#include <cups/cups.h>

#include <QtCore/QCoreApplication>

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  return cupsLastError() == IPP_STATUS_ERROR_INTERNAL ? 1 : 0;
}
