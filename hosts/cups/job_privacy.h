// What a print server shows of a job to other users.
#pragma once

#include <QtCore/QStringList>

#include "hosts/cups/print_server.h"

namespace kesto {

/// What other users see of a job on one queue.
struct JobPrivacy {
  QString policy;     ///< The name of the printer's policy; null when the server does not say.
  QStringList shown;  ///< What they see of a job's options, in words; empty when they see nothing.
};

/// The lines of a CUPS policy that keep a job's options to its owner and to administrators.
inline constexpr char privatePolicyLines[] = "JobPrivateAccess @OWNER @SYSTEM\nJobPrivateValues all\n";

/// Finds out by trial, because print servers do not reveal what their policies allow. Creates a held job
/// without a document and with meaningless settings (those of Job Handling where the queue offers it), asks
/// for it as a user without an account, and cancels it. Fails when the queue accepts no job, when the server
/// demands authentication, and when its answer contains no job.
Outcome findJobPrivacy(PrintServer& server, const QString& queue, JobPrivacy* privacy);

}  // namespace kesto
