// A program that loads the libraries of our programs and does nothing. No change of ours can save its time.
#include <cups/cups.h>

#include <QtCore/QCoreApplication>

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  return cupsLastError() == IPP_STATUS_ERROR_INTERNAL ? 1 : 0;
}
