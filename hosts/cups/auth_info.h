// What a printer, rather than its print server, wants to know of the user who prints.
#pragma once

#include "hosts/cups/print_server.h"
#include "hosts/cups/sent_job.h"

namespace kesto {

/// The attribute in which a printer names what it wants to know.
inline constexpr char authInfoRequired[] = "auth-info-required";

/// Finds the values of the attribute "auth-info" for a job on a queue, whose attributes `printer` has: what
/// "auth-info-required" names, kept or asked from the user. Empty when nothing has to be asked. Fails when
/// the user gives no answer.
Outcome findAuthInfo(PrintServer& server, const QString& queue, ipp_t* printer, QStringList* authInfo);

/// Gives the scheduler what it needs to go on with a job that it holds because the printer refused the
/// values, or had none: the user is asked again. Fails when the user gives no answer, which `*isDeclined`
/// says, and when the server fails.
Outcome authenticateJob(PrintServer& server, const SentJob& job, bool* isDeclined);

/// Adds the values to a request, which must go out over a private connection.
void addAuthInfo(ipp_t* request, const QStringList& authInfo);

}  // namespace kesto
