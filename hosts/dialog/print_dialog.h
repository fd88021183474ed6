// The print dialog.
#pragma once

#include <QtWidgets/QDialog>
#include <functional>
#include <memory>

#include "hosts/cups/network_watch.h"
#include "hosts/dialog/desktop_notice.h"
#include "hosts/dialog/dialog_memory.h"
#include "hosts/dialog/document.h"
#include "hosts/dialog/document_unlocking.h"
#include "hosts/dialog/job_sending.h"
#include "hosts/dialog/options.h"
#include "hosts/dialog/password_asking.h"
#include "hosts/dialog/queue_opening.h"
#include "hosts/dialog/widgets/dialog_alerts.h"
#include "hosts/dialog/widgets/message_bar.h"
#include "hosts/session/option_conflict.h"
#include "hosts/session/panel_session.h"

class QLabel;

namespace kesto {

class DialogFoot;
class DocumentLine;
class FoldingSplitter;
class OptionPane;
class PanelPane;
class PresetMenu;
class Preview;
class QueueChooser;
class Section;
class SectionColumn;
class SummaryPane;

/// The dialog for one document: choose a queue, its options and the panel's entries, and print. It asks the
/// print server from its first painting on, follows the job, and is accepted when that is printed, or when
/// the user leaves it alone.
class PrintDialog : public QDialog {
  Q_OBJECT

 public:
  /// `document` must outlive the dialog.
  PrintDialog(const PrintOptions& options, Document& document);
  ~PrintDialog() override;

  /// Whether the chosen queue's options and panel are known, or known not to be had.
  bool isSettled() const { return m_opening.isSettled(); }
  /// Whether the chosen queue is open, with its options and its panel to choose from.
  bool isQueueReady() const {
    return m_opening.isSettled() && m_opening.isOpen() && m_sending.phase() == JobSending::Phase::Choosing;
  }
  const Preview& preview() const { return *m_preview; }
  /// The job's number once it is sent, else 0.
  int job() const { return m_sending.job(); }
  const QueueListModel& queues() const;
  /// The print settings that travel with the job, as the panel last wrote them.
  QMap<QString, QString> jobSettings() const { return m_session.settings(); }
  QString queueName() const { return m_opening.wanted(); }
  /// Whether a file is chosen in place of a printer.
  bool savesPdf() const { return m_opening.isPdf(); }
  /// What is chosen of copies, pages and the queue's options.
  JobOptions& jobOptions() { return m_session.options(); }
  /// The pane of copies and pages.
  OptionPane& general() { return *m_optionPanes.front(); }

  /// Goes over to a queue that is open.
  void takeQueue(Queue queue) { m_opening.take(std::move(queue)); }
  void reject() override;
  void done(int result) override;

 Q_SIGNALS:
  /// The queues are listed.
  void listed();
  /// The chosen queue can be printed on, or cannot be opened.
  void settled();
  /// The user has pressed Print and the panel agrees. With a document the job is on its way; without one the
  /// dialog is hidden, and sends the job when the document is ready.
  void chosen();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void start();
  void build();
  QWidget* makeHead();
  QWidget* makeSections();
  Section* addSection(const QString& name, const QString& title,
                      const std::function<QWidget*(QWidget*)>& make);
  void addOptions(OptionGroup group);
  QWidget* makePanel(QWidget* parent);
  QWidget* makeSummary(QWidget* parent);
  void buildNext();
  void restoreLooks();
  void keepLooks();
  void connectParts();
  void connectQueues();
  void offerPdf();
  void chooseQueue(const QString& name);
  void openQueue(Queue& queue);
  void settleQueue();
  void showOpening();
  QString fetchText() const;
  QString jobName() const;
  void takePageCount();
  void showSections();
  void showHeadlines();
  QMap<QString, QString> panelSummary();
  void leaveQueue();
  void showDocument();
  void chooseDocument();
  void print();
  bool chooseTarget();
  void send();
  void takeSent(int job);
  void takeSendFailure(const QString& reason);
  void takeLeave();
  void showFate();
  void offer(const QString& button, const QString& text, MessageBar::Kind kind, std::function<void()> act);
  void offerCancel(const QString& text, MessageBar::Kind kind);
  void announce(const QString& text);
  void comeForward();
  void takeDismissal();
  void showPhase();
  void showMessage(const QString& message, MessageBar::Kind kind = MessageBar::Kind::Note);
  void showFault(const QString& fault) { showMessage(fault, MessageBar::Kind::Fault); }
  OptionPane* faultyPane() const;
  void showChoiceFault(const OptionConflict& fault);
  void updateChoiceFault();
  void showOffer();
  QMap<QString, QString> ofDocument(QMap<QString, QString> options) const;
  void updatePreview();
  void updateControls();
  void updateSummary();
  void nameSoon();
  void giveNames();

  PrintOptions m_options;
  Document& m_document;
  DialogAlerts m_alerts;
  PanelSession m_session{m_alerts};
  bool m_isStarted = false;
  bool m_isNaming = false;       // soon
  bool m_isSuggested = false;    // the queue, by what was printed before
  QString m_target;              // the file, where none is printed
  OptionConflict m_choiceFault;  // or a pane's fault without a remedy, while the message shows it
  bool m_isRemembered = true;    // what the last job had
  Preview* m_preview;
  QueueChooser* m_chooser;
  PresetMenu* m_presets = nullptr;
  QLabel* m_printerLabel = nullptr;
  DocumentLine* m_documentLine = nullptr;
  FoldingSplitter* m_body = nullptr;
  SectionColumn* m_sections = nullptr;
  Section* m_panelSection = nullptr;
  Section* m_summarySection = nullptr;
  QTimer m_idle;  // runs while sections are left to make
  DialogMemory m_memory;
  QList<OptionPane*> m_optionPanes;  // general first
  PanelPane* m_panelPane = nullptr;
  SummaryPane* m_summary = nullptr;
  DialogFoot* m_foot = nullptr;
  PasswordAsking m_passwords;
  QueueWatch m_watch;
  NetworkWatch m_network;
  QueueClient m_client;
  QueueOpening m_opening;
  JobSending m_sending;
  DocumentUnlocking m_unlocking;
  DesktopNotice m_notice;
};

}  // namespace kesto
