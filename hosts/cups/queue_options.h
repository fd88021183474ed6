// The options of a queue: those that its server keeps, then those of the machine and the user in files named
// "lpoptions".
#pragma once

#include <cups/cups.h>

#include <QtCore/QByteArray>

namespace kesto {

/// A queue as those files name it.
struct QueueName {
  QByteArray queue;     ///< Null for none.
  QByteArray instance;  ///< The name of a separate set of options for the queue; null for the main one.

  /// From "queue/instance" or "queue".
  static QueueName of(const QByteArray& text);
};

/// The default queue according to the environment (LPDEST, PRINTER) or else to those files.
QueueName defaultQueueName();

/// Whether an option of a queue describes the queue itself, and is not one of its jobs' options.
bool describesQueue(const QByteArray& option);

/// Adds the attributes to ask for to a request for a queue.
void askForOptions(ipp_t* request);

/// Adds what the server says about a queue: its description, and the defaults for its jobs.
void addServersOptions(ipp_t* reply, cups_dest_t* destination);

/// Adds the options that are kept for a queue. The user's override the machine's, and both override those of
/// `destination`.
void addKeptOptions(const QueueName& name, cups_dest_t* destination);

}  // namespace kesto
