// The way of a print dialog's job from the press of Print to its end.
#pragma once

#include "hosts/cups/queue_client.h"
#include "hosts/dialog/document.h"
#include "hosts/dialog/pdf_saving.h"
#include "hosts/session/job_watch.h"

namespace kesto {

class Preview;

/// Waits for a document that is still read or looked at, has the job sent, and follows it. One job at a time.
/// After one that is not printed there can be another.
class JobSending : public QObject {
  Q_OBJECT

 public:
  enum class Phase {
    Choosing,  ///< No job is under way.
    Waiting,   ///< Print is pressed, and the document is not ready yet.
    Sending,
    Sent,  ///< And followed.
  };

  /// `preview` shows `document`. All three must outlive this object.
  JobSending(QueueClient& client, Document& document, const Preview& preview);

  Phase phase() const { return m_phase; }
  /// The job's number once it is sent, else 0.
  int job() const { return m_job; }
  /// What has become of the job that is followed.
  const JobFate& fate() const { return m_watch->fate(); }

  /// Print is pressed: an earlier job that is stopped is canceled, and the document is read to its end.
  /// `ready` or `failed` follows, at once where that is possible.
  void begin();
  /// The document has changed, or has been looked at.
  void takeDocument();
  void takeExamination();
  /// Sends the job, as the answer to `ready`. For a printer on the network the server first makes the queue.
  void send(const QString& queue, const PrintJob& job, const std::optional<QueueSummary>& announced);
  /// Saves pages in its place, under a path; `sent` follows without a number, or `failed`.
  void save(const PageSequence& pages, const QString& target);
  /// Follows the job that was sent to the queue, held at the printer as its settings say.
  void follow(const ServerAddress& server, const QString& queue, const PrinterHold& hold);
  /// Cancels the job that is followed.
  void cancelJob();
  /// The job does not go out.
  void fail(const QString& reason);
  /// Stops a job that is being sent; it then fails.
  void stop();

 Q_SIGNALS:
  void phaseChanged();
  /// The document can be printed, as far as is known.
  void ready();
  void sent(int job);
  void failed(const QString& reason);
  /// Something has become of the job that is followed; nothing more is said of it after its end.
  void fateChanged();
  void cancelFailed(const QString& reason);

 private:
  void setPhase(Phase phase);
  void takeSent(int job);
  void examine();

  QueueClient& m_client;
  Document& m_document;
  const Preview& m_preview;
  PdfSaving m_saving;
  Phase m_phase = Phase::Choosing;
  qsizetype m_faultsShown = 0;  // of the document, when Print was pressed
  int m_job = 0;
  std::unique_ptr<JobWatch> m_watch;
};

}  // namespace kesto
