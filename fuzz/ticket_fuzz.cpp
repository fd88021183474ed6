// The first line is the job's title, the rest its options as a filter receives them.
#include <cstring>

#include "demo/job_ticket.h"
#include "demo/ticket_lines.h"
#include "fuzz/targets.h"

namespace kesto::fuzz {

void runTicket(const QByteArray& input) {
  const qsizetype end = qMax(qsizetype{0}, input.indexOf('\n'));
  // A program's arguments end at their NUL.
  const QByteArray title(input.left(end).constData());
  const QByteArray options(input.mid(end).constData());
  const QByteArray lines =
      QByteArray::fromStdString(ticketLines("17", "anna", title.constData(), options.constData()));
  require(lines.endsWith("\n\n"), "an empty line ends the ticket");
  JobTicket ticket;
  constexpr char mark[] = "@KESTO ";
  for (const QByteArray& line : lines.chopped(2).split('\n')) {
    require(line.startsWith(mark), "every line has its mark");
    require(ticket.addLine(line.mid(std::strlen(mark))), "every line is understood");
  }
  require(ticket.job == 17 && ticket.user == u"anna", "job and user arrive");
  require(ticket.title == QString::fromUtf8(title), "the title arrives");
  ticket.retention();
  ticket.name();
  ticket.account();
  require(ticket.hasPassCode() || !ticket.opensWith(QStringLiteral("1")), "without a code nothing opens");
}

}  // namespace kesto::fuzz
