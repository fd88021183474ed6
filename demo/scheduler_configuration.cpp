#include "demo/scheduler_configuration.h"

namespace kesto {
namespace {

constexpr char serverConfiguration[] = R"(# Rewritten at every start of the demo printer.
LogLevel warn
# A failed job's history would hold its options, and its digest with them.
LogDebugHistory 0
MaxLogSize 0
@LISTEN@
Browsing No
WebInterface No
PreserveJobFiles No
ErrorPolicy abort-job
DefaultPolicy demo

<Location />
  Order allow,deny
  Allow from 127.0.0.1
</Location>
# Settings and logs. Each has a line of its own: a location that is not named follows the one above it.
<Location /admin>
  AuthType Default
  Require user @OWNERNAME@
  Order allow,deny
  Allow from 127.0.0.1
</Location>
<Location /admin/conf>
  AuthType Default
  Require user @OWNERNAME@
  Order allow,deny
  Allow from 127.0.0.1
</Location>
<Location /admin/log>
  AuthType Default
  Require user @OWNERNAME@
  Order allow,deny
  Allow from 127.0.0.1
</Location>

<Policy demo>
  # A job's name and options are visible only to its sender and to the printer's owner.
  JobPrivateAccess @OWNER @OWNERNAME@
  JobPrivateValues all
  SubscriptionPrivateAccess @OWNER @OWNERNAME@
  SubscriptionPrivateValues all

  # What a user needs to find the queue, and to send and follow their own jobs.
  <Limit Create-Job Print-Job Validate-Job Get-Jobs Get-Job-Attributes Get-Printer-Attributes CUPS-Get-Default CUPS-Get-Printers CUPS-Get-Classes CUPS-Get-PPD Create-Printer-Subscriptions Create-Job-Subscriptions>
    Order deny,allow
  </Limit>
  <Limit Send-Document Close-Job Cancel-Job Cancel-My-Jobs Hold-Job Release-Job CUPS-Authenticate-Job Set-Job-Attributes Get-Subscriptions Get-Subscription-Attributes Get-Notifications Renew-Subscription Cancel-Subscription>
    Require user @OWNER @OWNERNAME@
    Order deny,allow
  </Limit>
  # Everything else, and what later versions of cupsd can do. Where the two that are named have no rules,
  # they would take those of Send-Document and Pause-Printer.
  <Limit CUPS-Get-Document Cancel-Jobs All>
    AuthType Default
    Require user @OWNERNAME@
    Order deny,allow
  </Limit>
</Policy>
)";

constexpr char fileConfiguration[] = R"(# Rewritten at every start of the demo printer.
User @USER@
Group @GROUP@
SystemGroup root
ServerRoot @ROOT@
ServerBin @ROOT@/bin
RequestRoot @ROOT@/spool
TempDir @ROOT@/spool/tmp
CacheDir @ROOT@/cache
StateDir @ROOT@/state
Printcap @ROOT@/printcap
ErrorLog @ROOT@/error_log
AccessLog @ROOT@/access_log
PageLog @ROOT@/page_log
LogFilePerm 0600
FatalErrors config listen permissions
)";

constexpr char queueConfiguration[] = R"(# Rewritten at every start of the demo printer.
<DefaultPrinter @QUEUE@>
Info Kesto VQ-250n (demo)
MakeModel KESTO VQ-250n PS
DeviceURI @PRINTER@
State Idle
Accepting Yes
Shared No
ErrorPolicy abort-job
OpPolicy demo
@PASSWORD@</DefaultPrinter>
)";

// Further queues are like the first, except for their number.
QByteArray moreQueues(int queues) {
  QByteArray text;
  for (int number = 2; number <= queues; ++number) {
    QByteArray queue = QByteArray(queueConfiguration).replace("DefaultPrinter", "Printer");
    queue.remove(0, queue.indexOf('\n') + 1);
    queue.replace("@QUEUE@", demoQueueNumbered(number).toLatin1());
    text += queue.replace("(demo)", "(demo " + QByteArray::number(number) + ')');
  }
  return text;
}

}  // namespace

QString demoQueueNumbered(int number) {
  const QString name = QLatin1String(demoQueue);
  return number == 1 ? name : QStringLiteral("%1_%2").arg(name).arg(number, 4, 10, QLatin1Char('0'));
}

SchedulerFiles configurationOf(const SchedulerValues& values) {
  SchedulerFiles files{{{"cupsd.conf", serverConfiguration},
                        {"cups-files.conf", fileConfiguration},
                        {"printers.conf", queueConfiguration + moreQueues(values.queues)}}};
  for (auto& [name, text] : files) {
    text.replace("@QUEUE@", demoQueue);
    text.replace("@PASSWORD@", values.asksForPassword ? "AuthInfoRequired username,password\n" : "");
    text.replace("@USER@", values.user);
    text.replace("@GROUP@", values.group);
    text.replace("@OWNERNAME@", values.owner);
    text.replace("@PRINTER@", values.printer);
    // Replaced last, since a path may contain any of the other marks.
    text.replace("@LISTEN@", values.listen);
    text.replace("@ROOT@", values.root);
  }
  return files;
}

}  // namespace kesto
