// The options of a queue: what its server keeps for it, then the machine and the user, in files named
// "lpoptions".
#pragma once

#include <cups/cups.h>

#include <QtCore/QByteArray>

namespace kesto {

/// A queue as those files name it.
struct QueueName {
  QByteArray queue;     ///< Null for none.
  QByteArray instance;  ///< A set of options of its own for the queue; null for the queue's only one.

  /// From "queue/instance" or "queue".
  static QueueName of(const QByteArray& text);
};

/// The queue that the environment (LPDEST, PRINTER) or else those files name as the default.
QueueName defaultQueueName();

/// Names what a request for a queue is to ask for.
void askForOptions(ipp_t* request);

/// Adds what the server says of a queue: its description, and the values that a job has when it says nothing.
void addServersOptions(ipp_t* reply, cups_dest_t* destination);

/// Adds the options that are kept for a queue, the user's over the machine's, over those that `destination`
/// has.
void addKeptOptions(const QueueName& name, cups_dest_t* destination);

}  // namespace kesto
