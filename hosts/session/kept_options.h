// The options that are kept for a queue, by its user or on the server.
#pragma once

#include "hosts/cups/queue.h"
#include "hosts/session/job_option_table.h"

namespace kesto {

/// Takes those that have a choice to show out of a queue's destination: they travel only as part of a job's
/// own options. They become the choices that the queue's PPD starts with.
JobChoices takeKeptOptions(Queue& queue);

}  // namespace kesto
