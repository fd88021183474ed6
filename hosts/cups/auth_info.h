// What a printer, rather than its print server, wants to know of the user who prints.
#pragma once

#include "hosts/cups/print_server.h"

namespace kesto {

/// Finds the values of the attribute "auth-info" for a job on a queue, whose attributes `printer` has: what
/// "auth-info-required" names, kept or asked from the user. Empty when nothing has to be asked. Fails when
/// the user gives no answer.
Outcome findAuthInfo(PrintServer& server, const QString& queue, ipp_t* printer, QStringList* authInfo);

/// Adds the values to a request, which must go out over a private connection.
void addAuthInfo(ipp_t* request, const QStringList& authInfo);

}  // namespace kesto
