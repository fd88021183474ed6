// The sections of the print dialog: what each holds, when it is made, and how the next dialog finds it.
#include <QtWidgets/QPushButton>
#include <algorithm>

#include "hosts/dialog/panel/panel_pane.h"
#include "hosts/dialog/panes/option_pane.h"
#include "hosts/dialog/panes/summary_pane.h"
#include "hosts/dialog/print_dialog.h"
#include "hosts/dialog/widgets/dialog_foot.h"
#include "hosts/dialog/widgets/folding_splitter.h"
#include "hosts/dialog/widgets/mnemonics.h"
#include "hosts/dialog/widgets/plain_text.h"
#include "hosts/dialog/widgets/section.h"
#include "hosts/dialog/widgets/section_column.h"
#include "hosts/dialog/widgets/tab_order.h"
#include "platform/shown_text.h"

namespace kesto {

QWidget* PrintDialog::makeSections() {
  m_sections = new SectionColumn(this);
  addOptions(OptionGroup::General);
  addOptions(OptionGroup::Layout);
  m_panelSection =
      addSection(QStringLiteral("job-handling"), {}, [this](QWidget* parent) { return makePanel(parent); });
  addOptions(OptionGroup::Job);
  addOptions(OptionGroup::More);
  m_summarySection = addSection(QStringLiteral("summary"), tr("Summary"),
                                [this](QWidget* parent) { return makeSummary(parent); });
  m_panelSection->hide();
  m_summarySection->hide();
  m_idle.setSingleShot(true);
  connect(&m_idle, &QTimer::timeout, this, &PrintDialog::buildNext);
  return m_sections;
}

Section* PrintDialog::addSection(const QString& name, const QString& title,
                                 const std::function<QWidget*(QWidget*)>& make) {
  auto* section = new Section(name, title, make, this);
  m_sections->add(section);
  connect(section, &Section::built, this, &PrintDialog::nameSoon);
  return section;
}

// The pane itself waits with its controls until it is shown.
void PrintDialog::addOptions(OptionGroup group) {
  auto* pane = new OptionPane(group, jobOptions(), this);
  connect(pane, &OptionPane::faultChanged, this, &PrintDialog::updateChoiceFault);
  connect(pane, &OptionPane::made, this, &PrintDialog::nameSoon);
  m_optionPanes.append(pane);
  addSection(OptionPane::nameOf(group), OptionPane::titleOf(group), [pane](QWidget* parent) {
    pane->setParent(parent);
    return pane;
  })->build();
}

// A section without anything to choose is not there.
void PrintDialog::showOffer() {
  for (OptionPane* pane : m_optionPanes) {
    pane->showQueue();
    pane->parentWidget()->setVisible(pane->hasChoices());
  }
}

QWidget* PrintDialog::makePanel(QWidget* parent) {
  if (m_session.view() == nullptr) return nullptr;
  std::unique_ptr<PanelPane> pane;
  if (Outcome made = PanelPane::make(*m_session.view(), m_session.bundle(), &pane); !made) {
    showFault(asSentence(made.reason()));
    return nullptr;
  }
  pane->setParent(parent);
  m_panelPane = pane.release();
  if (!m_session.panel()->filesDocuments()) m_panelPane->sayNothingIsFiled();
  connect(m_panelPane, &PanelPane::panelChanged, this, &PrintDialog::updateSummary);
  connect(m_panelPane, &PanelPane::addressJudged, this, [this](const QString& fault) {
    if (!fault.isNull()) return showFault(fault);
    const Outcome fetched = m_session.outcomeOfFetch();
    if (!fetched) return showFault(asSentence(fetched.reason()));
    showMessage(fetchText());
  });
  return m_panelPane;
}

// Null when no folders were fetched.
QString PrintDialog::fetchText() const {
  const PrintDialogPanel* panel = m_session.panel();
  if (panel == nullptr || panel->lastFolderFetch() != FolderFetch::Listed) return {};
  const std::size_t count = panel->folders().value_or(std::vector<FolderEntry>()).size();
  const QString printer = shownText(m_opening.wanted());
  return count == 1 ? tr("1 folder from %1").arg(printer)
                    : tr("%n folders from %1", nullptr, static_cast<int>(count)).arg(printer);
}

QWidget* PrintDialog::makeSummary(QWidget* parent) {
  m_summary = new SummaryPane(parent);
  connect(m_summary, &SummaryPane::privacyAsked, this, [this] { m_client.checkPrivacy(m_opening.wanted()); });
  connect(&m_client, &QueueClient::privacyChecked, m_summary, &SummaryPane::showPrivacy);
  connect(m_summary, &SummaryPane::filled, m_sections, &SectionColumn::takeContents);
  updateSummary();
  return m_summary;
}

// An open section is there with its queue, a folded one soon.
void PrintDialog::showSections() {
  if (m_session.view() != nullptr) {
    rememberEnglish(m_session.panel()->panelName(), QStringLiteral("Job Handling"));
    m_panelSection->setTitle(m_session.panel()->panelName());
  }
  m_panelSection->setVisible(m_session.view() != nullptr);
  m_summarySection->show();
  for (Section* section : m_sections->sections()) {
    if (section->objectName() == m_options.pane) section->setOpen(true);
    if (section->isOpen() && !section->isHidden()) section->build();
  }
  updateSummary();
  auto* asked = m_options.pane.isEmpty() ? nullptr : m_sections->findChild<Section*>(m_options.pane);
  if (asked != nullptr && !asked->isHidden()) m_sections->reveal(asked);
  m_idle.start(0);
}

// One in each pass of the event loop, so that keys and clicks come in between.
void PrintDialog::buildNext() {
  const auto isMissing = [](const Section* section) {
    return !section->isHidden() && section->content() == nullptr;
  };
  const auto missing = std::ranges::find_if(m_sections->sections(), isMissing);
  if (missing == m_sections->sections().end()) return;
  (*missing)->build();
  if ((*missing)->content() != nullptr) m_idle.start(0);
}

QMap<QString, QString> PrintDialog::panelSummary() {
  return m_session.panel() == nullptr ? QMap<QString, QString>() : summaryOf(*m_session.panel());
}

void PrintDialog::showHeadlines() {
  for (const OptionPane* pane : m_optionPanes) {
    const Headline headline = pane->headline();
    m_sections->findChild<Section*>(OptionPane::nameOf(pane->group()))
        ->header()
        .setHeadline(headline.text, headline.differs);
  }
  if (m_session.view() == nullptr) return;
  const QString held = holdMode(*m_session.view());
  m_panelSection->header().setHeadline(held.isNull() ? tr("Not held") : held, !held.isNull());
}

void PrintDialog::restoreLooks() {
  m_memory = DialogMemory::load();
  for (Section* section : m_sections->sections())
    section->setOpen(m_memory.open.value(
        section->objectName(), section == m_panelSection || section == m_sections->sections().front()));
  showOffer();
  // Room for the panel, so that the window need not grow when that comes.
  resize(m_memory.size.isEmpty()
             ? QSize(fontMetrics().horizontalAdvance(u'0') * 130, fontMetrics().height() * 46)
             : m_memory.size);
  const int side = qMax(m_memory.sideWidth, fontMetrics().horizontalAdvance(u'0') * 62);
  m_body->setSizes({width() - side, side});
}

void PrintDialog::keepLooks() {
  DialogMemory memory = m_memory;
  memory.size = size();
  memory.sideWidth = m_body->widget(1)->width();
  for (const Section* section : m_sections->sections())
    memory.open.insert(section->objectName(), section->isOpen());
  if (memory == std::exchange(m_memory, memory)) return;
  m_memory.save();
}

// Once for all that is made in one pass of the event loop, before it is painted. Until the window has been
// painted, that comes first.
void PrintDialog::nameSoon() {
  if (!m_isStarted || std::exchange(m_isNaming, true)) return;
  QMetaObject::invokeMethod(this, &PrintDialog::giveNames, Qt::QueuedConnection);
}

void PrintDialog::giveNames() {
  m_isNaming = false;
  assignMnemonics(*this);
  // Enter prints, wherever the focus is.
  for (auto* button : findChildren<QPushButton*>())
    button->setAutoDefault(button == &m_foot->printButton());
  m_sections->takeContents();
  m_body->makeRoom();
  orderTabStops(*this);
}

}  // namespace kesto
