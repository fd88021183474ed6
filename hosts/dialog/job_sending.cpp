#include "hosts/dialog/job_sending.h"

#include "hosts/dialog/preview/preview.h"
#include "hosts/dialog/widgets/plain_text.h"

namespace kesto {

JobSending::JobSending(QueueClient& client, Document& document, const Preview& preview)
    : m_client(client), m_document(document), m_preview(preview) {
  connect(&client, &QueueClient::sendFailed, this,
          [this](const QString& reason) { fail(asSentence(reason)); });
  connect(&client, &QueueClient::sent, this, &JobSending::takeSent);
  connect(&m_saving, &PdfSaving::failed, this, &JobSending::fail);
  connect(&m_saving, &PdfSaving::saved, this, [this] { takeSent(0); });
}

void JobSending::takeSent(int job) {
  m_job = job;
  setPhase(Phase::Sent);
  Q_EMIT sent(job);
}

void JobSending::setPhase(Phase phase) {
  m_phase = phase;
  Q_EMIT phaseChanged();
}

void JobSending::begin() {
  // A job that somebody could release must not be printed as well.
  if (m_watch && fate().state == JobFate::State::Stopped) m_client.cancel(m_watch->job());
  m_faultsShown = m_document.faults().size();
  if (m_document.state() == Document::State::Ready) {
    examine();
  } else {
    setPhase(Phase::Waiting);
  }
  m_document.readOn();
}

// A document of which less came than the user has seen is not printed without another word.
void JobSending::takeDocument() {
  if (m_phase != Phase::Waiting) return;
  const Document::State state = m_document.state();
  const bool isAsShown = m_document.faults().size() == m_faultsShown;
  if (state == Document::State::Ready && isAsShown) return examine();
  if (state == Document::State::Ready || state == Document::State::Failed)
    fail(m_document.faults().join(u' '));
}

void JobSending::takeExamination() {
  if (m_phase == Phase::Waiting && m_document.state() == Document::State::Ready) examine();
}

// A document that is not yet looked at may be one that cannot be printed.
void JobSending::examine() {
  if (!m_preview.isExamined()) return setPhase(Phase::Waiting);
  if (!m_preview.fault().isNull()) return fail(m_preview.fault());
  Q_EMIT ready();
}

void JobSending::send(const QString& queue, const PrintJob& job,
                      const std::optional<QueueSummary>& announced) {
  setPhase(Phase::Sending);
  m_client.send(queue, job, announced);
}

void JobSending::save(const PageSequence& pages, const QString& target) {
  setPhase(Phase::Sending);
  m_saving.save(pages, target);
}

void JobSending::follow(const ServerAddress& server, const QString& queue, const PrinterHold& hold) {
  m_watch = std::make_unique<JobWatch>(server, SentJob{.queue = queue, .number = m_job}, hold);
  connect(m_watch.get(), &JobWatch::changed, this, [this] {
    if (m_phase != Phase::Sent) return;
    if (fate().isEnd && !fate().isSuccess()) setPhase(Phase::Choosing);
    Q_EMIT fateChanged();
  });
  connect(m_watch.get(), &JobWatch::cancelFailed, this,
          [this](const QString& reason) { Q_EMIT cancelFailed(asSentence(reason)); });
}

void JobSending::cancelJob() {
  if (m_watch) m_watch->cancel();
}

void JobSending::stop() {
  m_client.stopSending();
  m_saving.stop();
}

void JobSending::fail(const QString& reason) {
  setPhase(Phase::Choosing);
  Q_EMIT failed(reason);
}

}  // namespace kesto
