// Sends one job to a queue.
#pragma once

#include <QtCore/QMap>
#include <functional>
#include <vector>

#include "hosts/cups/option_array.h"
#include "hosts/cups/print_server.h"

namespace kesto {

/// One document of a job.
struct JobFile {
  QByteArray path;  ///< As the file system has it, in whatever encoding; "-" for standard input.
  QString name{};   ///< Its name for the user; null for the file's own name.
};

/// A job as it is to be sent.
struct PrintJob {
  QString title;
  std::vector<JobFile> files;      ///< Empty for standard input alone.
  QMap<QString, QString> options;  ///< All by name: the job's, those kept for the queue, the print settings.
  bool isRaw = false;              ///< The printer receives the documents unchanged.
};

/// Called after each part of a document that was sent, with the document's number from 1, the bytes so far
/// and in all (-1 when unknown), and regularly while the document's writer is silent. Returns whether to go
/// on.
using UploadProgress = std::function<bool(int document, qint64 sent, qint64 total)>;

/// Opens every file, creates the job, sends its documents; `*jobId` is its number. On failure the outcome has
/// the reason, and the job is removed from a server that still answers. The exception is an empty job that
/// the server created but reported in a reply that libcups cannot read.
Outcome sendJob(PrintServer& server, const QString& queue, const PrintJob& job,
                const UploadProgress& progress, int* jobId);

}  // namespace kesto
