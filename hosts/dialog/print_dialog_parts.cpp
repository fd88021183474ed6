// The parts of the print dialog, where they stand and what they call.
#include <QtGui/QShortcut>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QVBoxLayout>

#include "hosts/dialog/panel/panel_pane.h"
#include "hosts/dialog/panes/general_pane.h"
#include "hosts/dialog/preview/preview.h"
#include "hosts/dialog/print_dialog.h"
#include "hosts/dialog/widgets/help.h"
#include "hosts/dialog/widgets/plain_text.h"
#include "hosts/dialog/widgets/preset_menu.h"
#include "hosts/dialog/widgets/queue_chooser.h"
#include "hosts/dialog/widgets/tab_order.h"
#include "hosts/dialog/widgets/wrapped_label.h"

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
  m_preview = new Preview(this);
  auto* side = new QVBoxLayout;
  side->addWidget(makeHead());
  side->addWidget(makePanes(), 1);
  auto* body = new QHBoxLayout;
  body->addWidget(m_preview, 1);
  body->addLayout(side);
  auto* column = new QVBoxLayout(this);
  column->addLayout(body, 1);
  column->addWidget(makeFoot());
  // Room for the panel, so that the window need not grow when that comes.
  resize(fontMetrics().horizontalAdvance(u'0') * 110, fontMetrics().height() * 42);
  auto* help = new QShortcut(QKeySequence::HelpContents, this);
  connect(help, &QShortcut::activated, this, [this] { showHelp(*this); });
}

QWidget* PrintDialog::makeHead() {
  auto* head = new QWidget(this);
  m_presets = new PresetMenu(m_session, head);
  m_chooser = new QueueChooser(head);
  m_documentName = new WrappedLabel(head);
  m_documentName->setObjectName(QStringLiteral("documentName"));
  m_documentName->setTextFormat(Qt::PlainText);
  m_chooseDocument = new QPushButton(head);
  setPlainText(*m_chooseDocument, tr("Choose…"));
  m_chooseDocument->setAccessibleName(tr("Choose the document"));
  m_chooseDocument->setAutoDefault(false);
  auto* document = new QHBoxLayout;
  document->addWidget(m_documentName, 1);
  document->addWidget(m_chooseDocument);
  auto* presets = new QHBoxLayout;
  presets->addWidget(m_presets);
  presets->addStretch();
  auto* form = new QFormLayout(head);
  form->setContentsMargins({});
  form->setLabelAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
  form->addRow(QString(), presets);
  form->addRow(labelFor(m_chooser->field(), tr("Printer:")), m_chooser);
  form->addRow(new QLabel(tr("Document:")), document);
  return head;
}

QWidget* PrintDialog::makePanes() {
  m_panes = new QTabWidget(this);
  m_general = new GeneralPane(m_panes);
  setPlainText(*m_general, tr("General"));
  m_panes->addTab(m_general, tr("General"));
  return m_panes;
}

QWidget* PrintDialog::makeFoot() {
  auto* foot = new QWidget(this);
  m_message = new QLabel(foot);
  m_message->setTextFormat(Qt::PlainText);
  m_message->setWordWrap(true);
  m_message->setObjectName(QStringLiteral("message"));
  m_progress = new QProgressBar(foot);
  m_progress->setAccessibleName(tr("Sending the job"));
  m_progress->hide();
  m_buttons = new QDialogButtonBox(QDialogButtonBox::Help | QDialogButtonBox::Cancel, foot);
  m_print = m_buttons->addButton(QString(), QDialogButtonBox::AcceptRole);
  m_print->setObjectName(QStringLiteral("print"));
  m_print->setDefault(true);
  setPlainText(*m_print, tr("Print"));
  setPlainText(*m_buttons->button(QDialogButtonBox::Help), tr("Help"));
  setPlainText(*m_buttons->button(QDialogButtonBox::Cancel), tr("Cancel"));
  auto* column = new QVBoxLayout(foot);
  column->setContentsMargins({});
  column->addWidget(m_message);
  column->addWidget(m_progress);
  column->addWidget(m_buttons);
  return foot;
}

void PrintDialog::connectParts() {
  connectQueues();
  connect(m_buttons, &QDialogButtonBox::accepted, this, &PrintDialog::print);
  connect(m_buttons, &QDialogButtonBox::rejected, this, &PrintDialog::reject);
  connect(m_buttons, &QDialogButtonBox::helpRequested, this, [this] { showHelp(*this); });
  connect(m_chooseDocument, &QPushButton::clicked, this, &PrintDialog::chooseDocument);
  connect(m_presets, &PresetMenu::loaded, this, [this] {
    if (m_panelPane != nullptr) m_panelPane->alignChoices();
    updateSummary();
  });
  connect(m_general, &GeneralPane::changed, this, &PrintDialog::updateChoiceFault);
  connect(m_general, &GeneralPane::optionChosen, this, [this](const QString& option, const QString& choice) {
    if (m_session.panel() != nullptr) m_session.panel()->PPDOptionKeyValueDidChange(option, choice);
  });
  connect(m_preview, &Preview::examined, this, [this] {
    takePageCount();
    const bool isWaiting = m_phase == Phase::Waiting && m_document.state() == Document::State::Ready;
    if (isWaiting && m_session.queue()) sendExamined();
  });
  connect(&m_document, &Document::changed, this, &PrintDialog::showDocument);
  connect(&m_client, &QueueClient::progressed, this, [this](qint64 sent, qint64 total) {
    m_progress->setRange(0, total > 0 ? 1000 : 0);
    if (total > 0) m_progress->setValue(static_cast<int>(1000 * sent / total));
  });
  connect(&m_client, &QueueClient::sent, this, &PrintDialog::takeSent);
  connect(&m_client, &QueueClient::sendFailed, this, &PrintDialog::takeSendFailure);
}

// The list is brought up to date before the wanted queue is looked up in it.
void PrintDialog::connectQueues() {
  m_opening.emplace(m_watch, m_client, m_chooser->model());
  connect(&m_watch, &QueueWatch::listed, this, [this](const std::vector<QueueSummary>& queues) {
    m_chooser->setQueues(queues);
    m_opening->takeList();
    Q_EMIT listed();
  });
  connect(&m_watch, &QueueWatch::changed, this, [this](const QueueSummary& queue) {
    m_chooser->setQueue(queue);
    m_opening->takeChange();
  });
  connect(&m_watch, &QueueWatch::removed, this, [this](const QString& name) {
    m_chooser->removeQueue(name);
    m_opening->takeChange();
  });
  connect(&m_watch, &QueueWatch::failed, &*m_opening, &QueueOpening::takeListFault);
  connect(m_chooser, &QueueChooser::chosen, this, &PrintDialog::chooseQueue);
  connect(m_chooser, &QueueChooser::pendingChanged, this, &PrintDialog::updateControls);
  connect(m_chooser, &QueueChooser::retryAsked, &*m_opening, &QueueOpening::retry);
  connect(&*m_opening, &QueueOpening::left, this, [this] {
    leaveQueue();
    m_chooser->setCurrent(m_opening->wanted());
  });
  connect(&*m_opening, &QueueOpening::opened, this, &PrintDialog::openQueue);
  connect(&*m_opening, &QueueOpening::changed, this, &PrintDialog::showOpening);
  connect(&*m_opening, &QueueOpening::settled, this, &PrintDialog::settleQueue);
}

void PrintDialog::giveNames() {
  assignMnemonics(*this);
  // Enter prints, wherever the focus is.
  for (auto* button : findChildren<QPushButton*>())
    button->setAutoDefault(button == m_print);
  if (m_panelPane != nullptr) m_panelPane->alignLabels();
  orderTabStops(*this);
}

}  // namespace kesto
