// What a print server shows of a job to users whom it does not belong to.
#pragma once

#include <QtCore/QStringList>

#include "hosts/cups/print_server.h"

namespace kesto {

/// What other users see of a job on one queue.
struct JobPrivacy {
  QString policy;     ///< The name of the queue's policy; null when the server does not tell.
  QStringList shown;  ///< What of a job's options they see, in words; empty when nothing.
};

/// The lines of a CUPS policy that keep a job's options to its owner and to administrators.
inline constexpr char privatePolicyLines[] = "JobPrivateAccess @OWNER @SYSTEM\nJobPrivateValues all\n";

/// Finds out by trial, since no print server says what its policy is: creates a job that is held and has no
/// document, with settings that say nothing (those of Job Handling where the queue offers it), asks for it as
/// a user whom no account has, and cancels it. Fails when the queue takes no job, when the server wants to
/// know who asks, and when its answer holds no job.
Outcome findJobPrivacy(PrintServer& server, const QString& queue, JobPrivacy* privacy);

}  // namespace kesto
