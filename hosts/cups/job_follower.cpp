#include "hosts/cups/job_follower.h"

#include <QtCore/QDeadlineTimer>
#include <algorithm>

#include "hosts/cups/auth_info.h"
#include "hosts/cups/faults.h"
#include "hosts/cups/queue_events.h"

namespace kesto {
namespace {

constexpr std::chrono::milliseconds pause(500);
// What no event reports, such as a driver's words, is seen at every such question.
constexpr int questionsOfReport = 4;
constexpr const char* jobEvents[] = {"job-state-changed", "job-completed", "job-stopped", "job-progress",
                                     "printer-state-changed"};

}  // namespace

// What is done in the thread.
class JobFollower::Work {
 public:
  Work(ServerAddress server, std::shared_ptr<Watchdog> watchdog, SentJob job)
      : m_address(std::move(server)),
        m_watchdog(std::move(watchdog)),
        m_job(std::move(job)),
        m_patience(m_address.limit) {}

  // `*news` is what has changed. Fails when the job is lost.
  Outcome ask(std::optional<JobReport>* news) {
    bool isKnown = true;
    Outcome asked = askServer(news, &isKnown);
    if (!isKnown) return Outcome::failed(Faults::tr("the print server no longer knows the job"));
    if (asked) {
      m_patience.setRemainingTime(m_address.limit);
      return asked;
    }
    // A scheduler closes idle connections, and forgets subscriptions when it is started again.
    m_events.reset();
    m_server.reset();
    return m_patience.hasExpired() ? asked : Outcome::done();
  }
  Outcome cancel() {
    Outcome connected = connect();
    return connected ? cancelJob(*m_server, m_job) : connected;
  }
  void leave() {
    if (m_events) m_events->cancel();
    m_events.reset();
    m_server.reset();
  }

 private:
  Outcome connect() {
    if (m_server) return Outcome::done();
    if (Outcome connected = m_address.connect(&m_server, m_watchdog); !connected) return connected;
    m_questions = 0;
    m_events.emplace(*m_server);
    if (!m_events->subscribe(jobEvents)) m_events.reset();
    return Outcome::done();
  }
  Outcome askServer(std::optional<JobReport>* news, bool* isKnown) {
    if (Outcome connected = connect(); !connected) return connected;
    if (Outcome authenticated = authenticate(); !authenticated) return authenticated;
    std::vector<ServerEvent> events;
    if (m_events) {
      if (Outcome taken = m_events->take(&events); !taken) return taken;
    }
    for (const ServerEvent& event : events) {
      if (event.job == m_job.number) m_last = event;
    }
    if (m_questions++ % questionsOfReport != 0 && m_events && events.empty()) return Outcome::done();
    std::optional<JobReport> report;
    if (Outcome reported = reportJob(*m_server, m_job, &report); !reported) return reported;
    complete(&report);
    *isKnown = report.has_value();
    if (report && report != m_known) *news = report;
    m_known = report;
    return Outcome::done();
  }
  // Asks the user for what the printer wants to know; the next report shows what came of it.
  Outcome authenticate() {
    const QString isHeld = QStringLiteral("cups-held-for-authentication");
    if (m_isDeclined || !m_known || !m_known->reasons.contains(isHeld)) return Outcome::done();
    Outcome authenticated = authenticateJob(*m_server, m_job, &m_isDeclined);
    m_patience.setRemainingTime(m_address.limit);
    if (!authenticated && !m_isDeclined) return authenticated;
    m_known.reset();
    return Outcome::done();
  }
  // An event says who has canceled a job, and is all that is left of a finished one without a history.
  void complete(std::optional<JobReport>* report) const {
    if (!*report && m_last.jobState > IPP_JSTATE_STOPPED) {
      *report = m_known.value_or(JobReport());
      (*report)->state = m_last.jobState;
      (*report)->reasons = m_last.jobReasons;
    }
    if (*report && (*report)->state == m_last.jobState) (*report)->message = m_last.text;
  }

  ServerAddress m_address;
  std::shared_ptr<Watchdog> m_watchdog;
  SentJob m_job;
  QDeadlineTimer m_patience;  // with a server that does not answer
  std::unique_ptr<PrintServer> m_server;
  std::optional<QueueEvents> m_events;  // none without a subscription
  ServerEvent m_last;                   // about the job
  std::optional<JobReport> m_known;
  int m_questions = 0;  // on this connection
  bool m_isDeclined = false;
};

JobFollower::JobFollower(const ServerAddress& server, const SentJob& job)
    : m_work(std::make_shared<Work>(server.forQueue(job.queue), m_watchdog, job)),
      m_thread([watchdog = m_watchdog] { watchdog->interrupt(); }) {
  m_pause.setInterval(pause);
  m_pause.setSingleShot(true);
  connect(&m_pause, &QTimer::timeout, this, &JobFollower::ask);
  ask();
}

JobFollower::~JobFollower() {
  m_mailbox->close();
  m_thread.post([work = m_work] { work->leave(); });
}

void JobFollower::ask() {
  m_thread.post([this, mailbox = m_mailbox, work = m_work] {
    std::optional<JobReport> news;
    const Outcome asked = work->ask(&news);
    if (!asked || (news && news->isFinished())) work->leave();
    mailbox->answer([this, news, asked] {
      if (!asked) return Q_EMIT lost(asked.reason());
      if (!news || !news->isFinished()) m_pause.start();
      if (news) Q_EMIT reported(*news);
    });
  });
}

void JobFollower::cancel() {
  // The next report has what comes of it.
  const auto cancel = [this, mailbox = m_mailbox, work = m_work] {
    const Outcome canceled = work->cancel();
    if (!canceled) mailbox->answer([this, canceled] { Q_EMIT cancelFailed(canceled.reason()); });
  };
  m_thread.post(cancel);
}

}  // namespace kesto
