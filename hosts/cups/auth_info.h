// What a printer, rather than its print server, wants to know of the user who prints.
#pragma once

#include "hosts/cups/print_server.h"
#include "hosts/cups/sent_job.h"

namespace kesto {

/// Finds the values of the attribute "auth-info" for a job on a queue: what its attribute
/// "auth-info-required" names, kept or asked from the user. Empty when nothing has to be asked, or the server
/// refuses to say. Fails when the user gives no answer, and when the server gives none.
Outcome findAuthInfo(PrintServer& server, const QString& queue, QStringList* authInfo);

/// Gives the scheduler what it needs to go on with a job that it holds because the printer refused the
/// values, or had none: the user is asked again. Fails when the user gives no answer, which `*isDeclined`
/// says, and when the server fails.
Outcome authenticateJob(PrintServer& server, const SentJob& job, bool* isDeclined);

/// Adds the values to a request, which must go out over a private connection.
void addAuthInfo(ipp_t* request, const QStringList& authInfo);

}  // namespace kesto
