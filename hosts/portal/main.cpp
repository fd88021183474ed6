// kesto-portal: a backend of the desktop portal that prints with the Job Handling dialog.
#include <QtCore/QCoreApplication>
#include <QtDBus/QDBusConnection>
#include <cstdio>
#include <string>
#include <string_view>

#include "hosts/command/version.h"
#include "hosts/portal/service.h"

namespace {

constexpr char usage[] =
    "Usage: kesto-portal [--help] [--version]\nA service that D-Bus starts; see kesto-portal(8).";

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  if (argc > 1) {
    const std::string_view option = argc == 2 ? argv[1] : "";
    const bool isAsked = option == "--help" || option == "--version";
    const std::string text = option == "--version" ? kesto::versionOf("kesto-portal") : usage;
    std::fprintf(isAsked ? stdout : stderr, "%s\n", text.c_str());
    if (isAsked) return std::fflush(stdout) == 0 ? 0 : 1;
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
