// What becomes of the print dialog's job, and of the dialog with it.
#include "hosts/dialog/desktop_notice.h"
#include "hosts/dialog/print_dialog.h"
#include "hosts/dialog/widgets/dialog_foot.h"
#include "hosts/dialog/widgets/plain_text.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

constexpr std::chrono::milliseconds farewell(2500);  // the last message stays that long

}  // namespace

void PrintDialog::takeSent(int job) {
  m_isRemembered = bool(m_session.remember());
  if (m_opening.isPdf()) {
    showMessage(tr("Saved as %1.").arg(shownText(m_target)));
    return takeLeave();
  }
  (void)m_session.keepChoice();  // a convenience
  const QString queue = m_session.queue()->id;
  showMessage(tr("Job %1 was sent to %2.").arg(job).arg(queue));
  m_sending.follow(m_passwords.with(m_options.server), queue, PrinterHold::of(m_session.settings()));
}

void PrintDialog::takeLeave() {
  if (!isVisible()) return accept();
  QTimer::singleShot(farewell, this, &QDialog::accept);
}

void PrintDialog::showFate() {
  const JobFate& fate = m_sending.fate();
  QString text = tr("Job %1: %2.").arg(m_sending.job()).arg(fate.line());
  if (!m_isRemembered) text += u' ' + tr("Its entries could not be remembered.");
  if (fate.isSuccess()) {
    showMessage(text);
    return takeLeave();
  }
  const bool isCause =
      fate.state == JobFate::State::Stopped || (fate.isEnd && fate.state != JobFate::State::Canceled);
  const auto kind = isCause ? MessageBar::Kind::Fault : MessageBar::Kind::Note;
  if (fate.isEnd) {
    offer(tr("Print again"), text, kind, [this] { print(); });
  } else {
    offerCancel(text, kind);
  }
  isCause || fate.isEnd ? announce(text) : m_notice.close();
}

void PrintDialog::offer(const QString& button, const QString& text, MessageBar::Kind kind,
                        std::function<void()> act) {
  m_choiceFault = {};
  m_foot->bar().show(text, kind, button, std::move(act));
}

void PrintDialog::offerCancel(const QString& text, MessageBar::Kind kind) {
  offer(tr("Cancel job"), text, kind, [this] {
    showMessage(tr("Canceling the job…"));
    m_sending.cancelJob();
  });
}

// Whoever does not see the dialog may believe that the job is printed.
void PrintDialog::announce(const QString& text) {
  if (!isVisible()) m_notice.show(windowTitle(), text, tr("Show"));
}

void PrintDialog::comeForward() {
  show();
  raise();
  activateWindow();
  if (m_sending.phase() == JobSending::Phase::Choosing) m_unlocking.ask();
}

// The user has seen what has failed. A job that may still be printed is followed.
void PrintDialog::takeDismissal() {
  if (!isVisible() && m_sending.phase() == JobSending::Phase::Choosing) reject();
}

void PrintDialog::takeSendFailure(const QString& reason) {
  const QString text = m_opening.isPdf() ? reason : tr("The job was not printed. %1").arg(reason);
  showFault(text);
  isVisible() ? m_unlocking.ask() : announce(text);
}

void PrintDialog::showPhase() {
  const JobSending::Phase phase = m_sending.phase();
  m_foot->showProgress(phase == JobSending::Phase::Sending);
  m_foot->offerClose(phase == JobSending::Phase::Sent);
  updateControls();
}

void PrintDialog::reject() {
  if (m_sending.phase() == JobSending::Phase::Sending) {
    showMessage(tr("Canceling the job…"));
    return m_sending.stop();  // which may say at once what came of it
  }
  if (m_sending.phase() == JobSending::Phase::Sent) return accept();
  m_opening.leave();
  QDialog::reject();
}

}  // namespace kesto
