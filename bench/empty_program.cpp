// A program that loads what every program of ours on a print server loads, and does nothing: what is below its
// time cannot be had.
#include <cups/cups.h>

#include <QtCore/QCoreApplication>

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  return cupsLastError() == IPP_STATUS_ERROR_INTERNAL ? 1 : 0;
}
