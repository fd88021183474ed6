#include "hosts/dialog/print_dialog.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <algorithm>
#include <utility>

#include "hosts/dialog/panel/panel_pane.h"
#include "hosts/dialog/panes/option_pane.h"
#include "hosts/dialog/panes/summary_pane.h"
#include "hosts/dialog/preview/preview.h"
#include "hosts/dialog/widgets/dialog_foot.h"
#include "hosts/dialog/widgets/document_line.h"
#include "hosts/dialog/widgets/plain_text.h"
#include "hosts/dialog/widgets/preset_menu.h"
#include "hosts/dialog/widgets/queue_chooser.h"
#include "hosts/dialog/widgets/section.h"
#include "hosts/dialog/widgets/section_column.h"
#include "hosts/session/last_printer.h"
#include "platform/shown_text.h"

namespace kesto {

PrintDialog::PrintDialog(const PrintOptions& options, Document& document)
    : m_options(options),
      m_document(document),
      m_preview(new Preview(this)),
      m_chooser(new QueueChooser(this)),
      m_passwords(*this),
      m_watch(m_passwords.with(options.server)),
      m_client(m_passwords.with(options.server)),
      m_opening(m_watch, m_client, m_chooser->model()),
      m_sending(m_client, document, *m_preview),
      m_unlocking(document, *m_preview, *this) {
  m_alerts.setWindow(this);
  build();
  connectParts();
  jobOptions().set(JobOptions::Source::Given, options.jobOptions);
  if (m_options.queue.isNull()) {
    m_options.queue = printerToBeginWith();
    m_isSuggested = true;
  }
  m_chooser->setCurrent(m_options.queue);
  showDocument();
  updateControls();
}

PrintDialog::~PrintDialog() {
  m_passwords.close();
  m_sending.stop();
  m_session.release();
}

// What the servers answer is shown once the window is.
void PrintDialog::paintEvent(QPaintEvent* event) {
  QDialog::paintEvent(event);
  if (std::exchange(m_isStarted, true)) return;
  QMetaObject::invokeMethod(this, &PrintDialog::start, Qt::QueuedConnection);
}

void PrintDialog::start() {
  m_options.documentLater || m_isSuggested ? m_opening.suggest(m_options.queue)
                                           : m_opening.start(m_options.queue);
  nameSoon();
  m_network.start();
}

const QueueListModel& PrintDialog::queues() const {
  return m_chooser->model();
}

// What there is to say of the queue, beside its choice.
void PrintDialog::showOpening() {
  using Kind = StateIcon::Kind;
  QString text = m_opening.fault();
  Kind kind = text.isNull() ? Kind::None : Kind::Fault;
  if (m_opening.state() == QueueOpening::State::Asked && text.isNull())
    text = tr("Connecting to the printer…");
  if (m_opening.isPdf()) {
    text = m_preview->saveFault();
    if (!text.isNull()) kind = Kind::Attention;
    if (text.isNull()) text = tr("Saves the selected pages in a file.");
  } else if (m_opening.state() == QueueOpening::State::Open) {
    text = QueueListModel::stateText(m_opening.summary());
    kind = QueueListModel::stateKind(m_opening.summary());
  } else if (m_opening.state() == QueueOpening::State::Gone) {
    text = tr("The print server no longer has this printer. It may have been removed.");
    kind = Kind::Attention;
  }
  m_chooser->showState(text, kind);
  m_chooser->showDetails(m_opening.summary());
  updateControls();
}

void PrintDialog::chooseQueue(const QString& name) {
  m_passwords.allowAgain();
  if (m_sending.phase() == JobSending::Phase::Choosing) return m_opening.want(name);
  m_chooser->setCurrent(m_opening.wanted());
}

void PrintDialog::leaveQueue() {
  setWindowTitle(tr("Print"));
  showMessage({});  // it was about this queue
  m_idle.stop();
  m_panelPane = nullptr;
  m_summary = nullptr;
  for (Section* section : {m_panelSection, m_summarySection}) {
    section->hide();
    section->clear();  // it may be waiting inside one of its own events
  }
  m_session.release();
  showOffer();
  updateControls();
}

// What the portal's client calls the document when it comes is the last word.
QString PrintDialog::jobName() const {
  const bool isLast = m_options.channel >= 0 && !m_document.name().isEmpty();
  return m_options.title.isNull() || isLast ? m_document.name() : m_options.title;
}

void PrintDialog::openQueue(Queue& queue) {
  const Outcome opened = m_session.open(std::move(queue), {.jobName = jobName()});
  // In a pass of its own, before the one that makes the queue ready.
  QMetaObject::invokeMethod(this, &PrintDialog::showOffer, Qt::QueuedConnection);
  m_chooser->takeCurrent(m_opening.wanted());
  if (const QStringList& refused = jobOptions().refused(); !refused.isEmpty())
    showMessage(
        tr("This printer does not support %1. The job will be printed without it.").arg(refused.join(u", ")));
  if (!opened) showFault(asSentence(opened.reason()));
}

void PrintDialog::settleQueue() {
  if (m_opening.isOpen()) {
    showSections();
    setWindowTitle(m_opening.isPdf() ? tr("Save as PDF")
                                     : tr("Print on %1").arg(shownText(m_opening.wanted())));
    updateControls();
  }
  nameSoon();
  Q_EMIT settled();
}

void PrintDialog::updateSummary() {
  m_presets->showActive();
  showHeadlines();
  if (m_summary == nullptr) return;
  QList<SummaryLine> lines{
      {withoutColon(tr("Printer:")), m_opening.isPdf() ? tr("Save as PDF") : m_opening.wanted()}};
  lines += summaryOf(jobOptions());
  const QMap<QString, QString> ofPanel = panelSummary();
  if (!ofPanel.isEmpty()) lines.append({m_panelSection->title(), QString()});
  for (auto it = ofPanel.begin(); it != ofPanel.end(); ++it)
    lines.append({it.key(), it.value() + QLatin1String("")});
  m_summary->show(lines);
}

void PrintDialog::showDocument() {
  using State = Document::State;
  const State state = m_document.state();
  const std::vector<JobFile> files = state == State::Ready ? m_document.files() : std::vector<JobFile>();
  QString text = m_document.name();
  if (state == State::None)
    text = m_options.documentLater ? shownText(m_options.title) : tr("No document selected");
  m_documentLine->show(text, m_document.faults());
  m_preview->show(
      files, state == State::Reading  ? tr("Reading the document…")
             : state == State::Paused ? tr("The document is long. The rest of it is read when you print.")
             : m_options.documentLater
                 ? tr("No preview is available. The application prepares the pages after you press Print.")
                 : tr("No document"));
  takePageCount();
  m_documentLine->offerChoice(m_options.channel < 0 && !m_options.documentLater &&
                              (state == State::Failed || state == State::None));
  m_session.renameJob(jobName());
  m_sending.takeDocument();
  updateControls();
}

// Of several documents each has pages of its own, and of one that was drawn as chosen all pages are meant.
void PrintDialog::takePageCount() {
  const bool isOne = m_document.files().size() == 1 && !m_options.documentLater;
  jobOptions().setPageCount(isOne ? m_preview->pageCount() : 0);
}

void PrintDialog::chooseDocument() {
  QByteArrayList files;
  for (const QString& file : QFileDialog::getOpenFileNames(this, tr("Choose a document")))
    files.append(QFile::encodeName(file));
  if (!files.isEmpty()) m_document.openFiles(files);
}

void PrintDialog::print() {
  if (!m_foot->printButton().isEnabled()) return;
  showMessage({});
  if (OptionPane* faulty = faultyPane()) {
    m_sections->reveal(faulty);
    faulty->showFault();
    return showChoiceFault({.text = faulty->fault()});
  }
  if (conflictOf(jobOptions())) return;  // the message shows it
  if (!m_preview->fault().isNull()) {
    showFault(m_preview->fault());
    return m_unlocking.ask();
  }
  if (const std::optional<Entry> missing = m_session.confirm()) {
    m_panelSection->setOpen(true);
    if (m_panelPane != nullptr) m_panelPane->showEntry(*missing);
    return;
  }
  if (m_opening.isPdf() && !chooseTarget()) return;
  const Document::State state = m_document.state();
  m_passwords.allowAgain();
  m_sending.begin();
  if (state != Document::State::Ready && state != Document::State::Paused) hide();
  Q_EMIT chosen();
}

// Whether there is a file to save the pages in. The file dialog asks before it takes one that exists.
bool PrintDialog::chooseTarget() {
  QFileDialog dialog(this, tr("Save as PDF"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setNameFilter(tr("PDF documents (*.pdf)"));
  dialog.setDefaultSuffix(QStringLiteral("pdf"));
  const QString name = QFileInfo(jobName()).completeBaseName();
  dialog.selectFile(name + QStringLiteral(".pdf"));
  if (dialog.exec() != QDialog::Accepted) return false;
  m_target = dialog.selectedFiles().value(0);
  return true;
}

// Whoever drew the document as it was chosen has left out the other pages.
QMap<QString, QString> PrintDialog::ofDocument(QMap<QString, QString> options) const {
  if (m_options.documentLater) options.remove(QStringLiteral("page-ranges"));
  return options;
}

void PrintDialog::updatePreview() {
  if (m_opening.isPdf()) return m_preview->setJob({.isFile = true}, ofDocument(jobOptions().inForce()));
  m_preview->setJob(sheetPaperOf(jobOptions().paper()), ofDocument(jobOptions().inForce()));
}

void PrintDialog::send() {
  if (m_session.queue() == nullptr) return;  // the user has gone in the meantime
  // The document's pages may have been counted since.
  if (const OptionPane* faulty = faultyPane()) return m_sending.fail(faulty->fault());
  if (const auto conflict = conflictOf(jobOptions())) return m_sending.fail(conflict->text);
  if (m_opening.isPdf()) {
    const QString fault = m_preview->saveFault();
    return fault.isNull() ? m_sending.save(m_preview->pages(), m_target) : m_sending.fail(fault);
  }
  PrintJob job{
      .title = jobName(), .files = m_document.files(), .options = ofDocument(jobOptions().travelling())};
  job.options.insert(m_session.settings());
  // The server may have removed the queue of a printer on the network since.
  const QueueSummary& known = m_opening.summary();
  m_sending.send(m_session.queue()->id, job, known.isOnNetwork ? std::optional(known) : std::nullopt);
}

// Null for none.
OptionPane* PrintDialog::faultyPane() const {
  const auto found =
      std::ranges::find_if(m_optionPanes, [](const OptionPane* pane) { return !pane->fault().isNull(); });
  return found == m_optionPanes.end() ? nullptr : *found;
}

// A conflict stands there as long as it lasts. A pane marks its faults itself, and only Print shows them
// here.
void PrintDialog::updateChoiceFault() {
  OptionConflict fault = conflictOf(jobOptions()).value_or(OptionConflict());
  const bool isShown = !m_choiceFault.text.isNull();
  if (const OptionPane* faulty = faultyPane(); fault.text.isNull() && isShown && faulty != nullptr)
    fault.text = faulty->fault();
  if (fault != m_choiceFault) showChoiceFault(fault);
}

void PrintDialog::showChoiceFault(const OptionConflict& fault) {
  m_foot->bar().show(fault.text, MessageBar::Kind::Fault, fault.remedy, [this, changes = fault.changes] {
    jobOptions().set(JobOptions::Source::Chosen, changes);
  });
  m_choiceFault = fault;
}

void PrintDialog::showMessage(const QString& message, MessageBar::Kind kind) {
  m_choiceFault = {};
  m_foot->bar().show(message, kind);
  if (message.isEmpty()) updateChoiceFault();
}

void PrintDialog::updateControls() {
  const bool isChoosing = m_sending.phase() == JobSending::Phase::Choosing;
  m_chooser->setChoosable(isChoosing);
  for (QWidget* part : std::initializer_list<QWidget*>{m_printerLabel, m_documentLine, m_sections})
    part->setEnabled(isChoosing);
  m_presets->setEnabled(isChoosing && m_session.shelf() != nullptr);
  m_presets->showActive();
  using State = Document::State;
  const State state = m_document.state();
  const bool isMissing =
      state != State::Ready && state != State::Paused && (!m_options.documentLater || state == State::Failed);
  const bool isTaker = m_opening.summary().isAccepting && !m_chooser->isPending();
  const QString saveFault = m_opening.isPdf() ? m_preview->saveFault() : QString();
  const QString print = m_options.acceptLabel.isEmpty() ? tr("Print") : m_options.acceptLabel;
  setPlainText(m_foot->printButton(), m_opening.isPdf() ? tr("Save…") : print);
  m_foot->printButton().setEnabled(isQueueReady() && isTaker && !isMissing && saveFault.isNull());
  m_foot->printButton().setToolTip(isMissing ? tr("Choose a document to print.") : saveFault);
}

void PrintDialog::done(int result) {
  keepLooks();
  QDialog::done(result);
}

}  // namespace kesto
