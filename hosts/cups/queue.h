// One queue, opened for a job.
#pragma once

#include "hosts/cups/ppd_file.h"
#include "hosts/cups/print_server.h"
#include "hosts/cups/queue_choices.h"

namespace kesto {

/// All that a host needs of a queue to print on it. It has one owner at a time, who alone uses and changes
/// it.
struct Queue {
  QString id{};         ///< The queue's name.
  QString deviceUri{};  ///< Where it sends its jobs; null when the server does not say.
  PpdFile ppd{};        ///< Null for a queue without a PPD.
  Ipp attributes{};     ///< What the printer offers, for a queue without a PPD.
  Destination destination{};
  bool isFile = false;  ///< No queue at all: the pages are saved in a file.
};

/// Fetches the queue `name`, or the user's default queue when it is null, and its PPD. The name may be the
/// URI of a printer that is its own server.
Outcome openQueue(PrintServer& server, const QString& name, Queue* queue);

/// What the queue offers for the options of a job; it must outlive the answer.
std::unique_ptr<QueueChoices> choicesOf(const Queue& queue);

}  // namespace kesto
