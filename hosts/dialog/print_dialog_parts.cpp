// The parts of the print dialog, where they stand and what they call.
#include <QtCore/QEvent>
#include <QtGui/QShortcut>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include "hosts/dialog/panel/panel_pane.h"
#include "hosts/dialog/preview/preview.h"
#include "hosts/dialog/print_dialog.h"
#include "hosts/dialog/widgets/accent_color.h"
#include "hosts/dialog/widgets/accessible.h"
#include "hosts/dialog/widgets/dialog_foot.h"
#include "hosts/dialog/widgets/document_line.h"
#include "hosts/dialog/widgets/folding_splitter.h"
#include "hosts/dialog/widgets/help.h"
#include "hosts/dialog/widgets/plain_text.h"
#include "hosts/dialog/widgets/preset_menu.h"
#include "hosts/dialog/widgets/queue_chooser.h"
#include "hosts/dialog/widgets/section_column.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

QLabel* labelFor(QWidget* field, const QString& text) {
  auto* label = new QLabel;
  label->setBuddy(field);
  setPlainText(*label, text);
  return label;
}

}  // namespace

void PrintDialog::build() {
  setWindowTitle(tr("Print"));
  chooseSelectedItems();
  auto* sideBox = new QWidget(this);
  auto* side = new QVBoxLayout(sideBox);
  side->setContentsMargins({});
  auto* head = makeHead();
  side->addWidget(head);
  side->addWidget(makeSections(), 1);
  m_sections->alignWith(qobject_cast<QFormLayout*>(head->layout()));
  m_body = new FoldingSplitter(m_preview, sideBox, this);
  m_foot = new DialogFoot(this);
  m_presets = new PresetMenu(m_session, m_foot);
  m_foot->addLeading(m_presets);
  m_foot->addLeading(m_preview->total());
  auto* column = new QVBoxLayout(this);
  column->addWidget(m_body, 1);
  column->addWidget(m_foot);
  restoreLooks();
  m_chooser->field()->setFocus();
  auto* help = new QShortcut(QKeySequence::HelpContents, this);
  connect(help, &QShortcut::activated, this, [this] { showHelp(*this); });
}

void PrintDialog::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::ApplicationPaletteChange) makeTextsLegible();  // a second time changes nothing
}

QWidget* PrintDialog::makeHead() {
  auto* head = new QWidget(this);
  m_chooser->setParent(head);
  m_documentLine = new DocumentLine(head);
  auto* form = new QFormLayout(head);
  form->setLabelAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
  m_printerLabel = labelFor(m_chooser->field(), tr("Printer:"));
  form->addRow(m_printerLabel, m_chooser);
  form->addRow(new QLabel(tr("Document:")), m_documentLine);
  return head;
}

void PrintDialog::connectParts() {
  connectQueues();
  connect(m_foot, &DialogFoot::printPressed, this, &PrintDialog::print);
  connect(m_foot, &DialogFoot::cancelPressed, this, &PrintDialog::reject);
  connect(m_foot, &DialogFoot::helpPressed, this, [this] { showHelp(*this); });
  connect(m_documentLine, &DocumentLine::choiceAsked, this, &PrintDialog::chooseDocument);
  connect(m_presets, &PresetMenu::renamed, this, &PrintDialog::giveNames);
  connect(m_presets, &PresetMenu::loaded, this, [this](const QStringList& others) {
    if (m_panelPane != nullptr) m_panelPane->alignChoices();
    updateSummary();
    showMessage(others.isEmpty() ? QString()
                                 : tr("This printer does not support %1 of the preset. The rest is set.")
                                       .arg(shownText(others.join(QStringLiteral(", ")))));
  });
  connect(&jobOptions(), &JobOptions::changed, this, [this] {
    updateChoiceFault();
    updateSummary();
    updatePreview();
  });
  connect(&jobOptions(), &JobOptions::choiceChanged, this,
          [this](const QString& option, const QString& choice) {
            if (m_session.panel() != nullptr) m_session.panel()->PPDOptionKeyValueDidChange(option, choice);
          });
  connect(m_preview, &Preview::examined, this, [this] {
    takePageCount();
    showOpening();
    m_sending.takeExamination();
  });
  connect(&m_document, &Document::changed, this, &PrintDialog::showDocument);
  connect(&m_client, &QueueClient::progressed, m_foot, &DialogFoot::setProgress);
  connect(&m_sending, &JobSending::phaseChanged, this, &PrintDialog::showPhase);
  connect(&m_sending, &JobSending::ready, this, &PrintDialog::send);
  connect(&m_sending, &JobSending::sent, this, &PrintDialog::takeSent);
  connect(&m_sending, &JobSending::failed, this, &PrintDialog::takeSendFailure);
  connect(&m_sending, &JobSending::fateChanged, this, &PrintDialog::showFate);
  connect(&m_sending, &JobSending::cancelFailed, this,
          [this](const QString& reason) { offerCancel(reason, MessageBar::Kind::Fault); });
  connect(&m_notice, &DesktopNotice::actionPressed, this, &PrintDialog::comeForward);
  connect(&m_notice, &DesktopNotice::dismissed, this, &PrintDialog::takeDismissal);
  connect(&m_notice, &DesktopNotice::unavailable, this, &PrintDialog::comeForward);
}

// The list is brought up to date before the wanted queue is looked up in it.
void PrintDialog::connectQueues() {
  connect(&m_watch, &QueueWatch::listed, this, [this](const std::vector<QueueSummary>& queues) {
    m_chooser->setQueues(queues);
    offerPdf();
    m_opening.takeList();
    Q_EMIT listed();
  });
  connect(&m_watch, &QueueWatch::changed, this, [this](const QueueSummary& queue) {
    m_chooser->setQueue(queue);
    m_opening.takeChange();
  });
  connect(&m_watch, &QueueWatch::removed, this, [this](const QString& name) {
    m_chooser->removeQueue(name);
    m_opening.takeChange();
  });
  connect(&m_network, &NetworkWatch::changed, m_chooser, &QueueChooser::setNetwork);
  connect(&m_watch, &QueueWatch::failed, this, &PrintDialog::offerPdf);
  connect(&m_watch, &QueueWatch::failed, &m_opening, &QueueOpening::takeListFault);
  connect(m_chooser, &QueueChooser::chosen, this, &PrintDialog::chooseQueue);
  connect(m_chooser, &QueueChooser::pendingChanged, this, &PrintDialog::updateControls);
  connect(m_chooser, &QueueChooser::retryAsked, &m_passwords, &PasswordAsking::allowAgain);
  connect(m_chooser, &QueueChooser::retryAsked, &m_opening, &QueueOpening::retry);
  connect(&m_opening, &QueueOpening::left, this, [this] {
    leaveQueue();
    m_chooser->setCurrent(m_opening.wanted());
  });
  connect(&m_opening, &QueueOpening::opened, this, &PrintDialog::openQueue);
  connect(&m_opening, &QueueOpening::changed, this, &PrintDialog::showOpening);
  connect(&m_opening, &QueueOpening::settled, this, &PrintDialog::settleQueue);
}

void PrintDialog::offerPdf() {
  if (m_options.offersPdf) m_chooser->offerPdf();
}

}  // namespace kesto
