#include "hosts/cups/queue_client.h"

#include "hosts/cups/network_printers.h"

namespace kesto {

void QueueClient::open(const QString& name, const std::optional<QueueSummary>& announced) {
  const int request = ++m_request;
  m_thread.post(
      [this, mailbox = m_mailbox, watchdog = m_watchdog, server = m_server, name, announced, request] {
        Queue queue;
        std::unique_ptr<PrintServer> connection;
        Outcome opened = server.forQueue(name).connect(&connection, watchdog);
        if (opened && announced) opened = makeQueue(*connection, *announced);
        if (opened) opened = openQueue(*connection, name, &queue);
        mailbox->answer([this, request, queue = std::move(queue), opened]() mutable {
          if (request != m_request) return;
          if (opened) {
            Q_EMIT this->opened(queue);
          } else {
            Q_EMIT openFailed(opened.reason());
          }
        });
      });
}

void QueueClient::checkPrivacy(const QString& name) {
  m_thread.post([this, mailbox = m_mailbox, watchdog = m_watchdog, server = m_server, name] {
    JobPrivacy privacy;
    std::unique_ptr<PrintServer> connection;
    Outcome found = server.forQueue(name).connect(&connection, watchdog);
    if (found) found = findJobPrivacy(*connection, name, &privacy);
    mailbox->answer([this, found, privacy] { Q_EMIT privacyChecked(found, privacy); });
  });
}

void QueueClient::cancel(const SentJob& job) {
  m_thread.post([watchdog = m_watchdog, server = m_server, job] {
    std::unique_ptr<PrintServer> connection;
    if (server.forQueue(job.queue).connect(&connection, watchdog)) (void)cancelJob(*connection, job);
  });
}

void QueueClient::send(const QString& name, const PrintJob& job,
                       const std::optional<QueueSummary>& announced) {
  *m_isStopped = false;
  m_thread.post([this, mailbox = m_mailbox, watchdog = m_watchdog, isStopped = m_isStopped, server = m_server,
                 name, job, announced] {
    int id = 0;
    const auto progress = [&](int /*document*/, qint64 sent, qint64 total) {
      mailbox->answer([this, sent, total] { Q_EMIT progressed(sent, total); });
      return !*isStopped;
    };
    std::unique_ptr<PrintServer> connection;
    Outcome sent = server.forQueue(name).connect(&connection, watchdog);
    if (sent && announced) sent = makeQueue(*connection, *announced);
    if (sent) sent = sendJob(*connection, name, job, progress, &id);
    mailbox->answer([this, id, sent] {
      if (sent) {
        Q_EMIT this->sent(id);
      } else {
        Q_EMIT sendFailed(sent.reason());
      }
    });
  });
}

}  // namespace kesto
