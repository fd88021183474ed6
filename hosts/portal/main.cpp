// kesto-portal: a backend of the desktop portal that prints with the Job Handling dialog.
#include <QtCore/QCoreApplication>
#include <QtDBus/QDBusConnection>
#include <cstdio>

#include "hosts/portal/service.h"

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  if (argc > 1) {
    std::fputs("Usage: kesto-portal\nA service that D-Bus starts; see kesto-portal(8).\n", stderr);
    return 2;
  }
  QDBusConnection bus = QDBusConnection::sessionBus();
  // When the session's bus ends, the session is over; nothing else reports it.
  bus.connect({}, QStringLiteral("/org/freedesktop/DBus/Local"), QStringLiteral("org.freedesktop.DBus.Local"),
              QStringLiteral("Disconnected"), &application, SLOT(quit()));
  kesto::PortalService service(bus, QCoreApplication::applicationDirPath() + QStringLiteral("/kesto-print"));
  if (const kesto::Outcome started = service.start(); !started) {
    std::fprintf(stderr, "kesto-portal: %s\n", started.reason().toUtf8().constData());
    return 1;
  }
  return QCoreApplication::exec();
}
