#include "hosts/dialog/portal_print.h"

#include <QtCore/QRegularExpression>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>

#include "hosts/dialog/panes/option_pane.h"
#include "hosts/dialog/portal_options.h"
#include "hosts/session/job_option_values.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

const QString pagesKey = QStringLiteral("page-ranges");
const QString pageSize = QStringLiteral("PageSize");
const QString duplex = QStringLiteral("Duplex");

struct DuplexChoice {
  PortalDuplex side = PortalDuplex::Simplex;
  QLatin1String sides;
};

constexpr std::array duplexChoices{
    DuplexChoice{PortalDuplex::Simplex, QLatin1String("one-sided")},
    DuplexChoice{PortalDuplex::LongEdge, QLatin1String("two-sided-long-edge")},
    DuplexChoice{PortalDuplex::ShortEdge, QLatin1String("two-sided-short-edge")},
};

bool isOfApplication(PortalPages pages) {
  return pages == PortalPages::Current || pages == PortalPages::Selection;
}

// The job's pages that the application alone knows.
QString valueOf(PortalPages pages) {
  return pages == PortalPages::Current ? JobOptions::currentPage : JobOptions::selection;
}

// What the client asks for of the job itself. Of what it leaves out, what the user keeps for the queue
// counts.
QMap<QString, QString> jobOptionsOf(const PortalChoice& asked, const QJsonObject& settings) {
  QMap<QString, QString> options;
  if (settings.contains(u"n-copies")) options.insert(QStringLiteral("copies"), QString::number(asked.copies));
  if (settings.contains(u"collate"))
    options.insert(QStringLiteral("collate"), QLatin1String(asked.isCollated ? "true" : "false"));
  if (asked.pages == PortalPages::Ranges) options.insert(pagesKey, asked.pageRanges);
  if (isOfApplication(asked.pages)) options.insert(pagesKey, valueOf(asked.pages));
  if (asked.numberUp > 1 || settings.contains(u"dialog-number-up")) {
    options.insert(QStringLiteral("number-up"), QString::number(asked.numberUp));
    options.insert(QStringLiteral("number-up-layout"), asked.numberUpLayout);
  }
  if (settings.contains(u"reverse"))
    options.insert(QStringLiteral("outputorder"), QLatin1String(asked.isReversed ? "reverse" : "normal"));
  if (asked.scale != 100) options.insert(QStringLiteral("scaling"), QString::number(asked.scale));
  if (settings.contains(u"page-set")) {
    options.insert(QStringLiteral("page-set"), QLatin1String(asked.pageSet == PortalPageSet::All    ? "all"
                                                             : asked.pageSet == PortalPageSet::Even ? "even"
                                                                                                    : "odd"));
  }
  return options;
}

// A label without GTK's marks of mnemonics: "_Print" is "Print", and "__" is "_".
QString labelOf(const QString& text) {
  static constexpr int longestLabel = 40;
  static const QRegularExpression mark(QStringLiteral("_(.?)"));
  return shownText(QString(text).replace(mark, QStringLiteral("\\1"))).left(longestLabel);
}

PortalPaper portalPaperOf(const PpdPaper& paper) {
  return {.ppdName = paper.keyword,
          .name = paper.standardName,
          .displayName = paper.text,
          .width = paper.width,
          .height = paper.height,
          .marginTop = paper.top,
          .marginBottom = paper.bottom,
          .marginLeft = paper.left,
          .marginRight = paper.right};
}

}  // namespace

PortalPrint::PortalPrint(const PrintOptions& options)
    : m_options(options), m_channel(Descriptor(options.channel)) {
  connect(&m_channel, &PrintChannel::received, this, &PortalPrint::take);
  connect(&m_channel, &PrintChannel::closed, this, &PortalPrint::withdraw);
  connect(&m_document, &Document::changed, this, &PortalPrint::takeDocument);
  connect(&m_document, &Document::ended, this, [this] { answer(QStringLiteral("read")); });
}

void PortalPrint::take(const QJsonObject& message, Descriptor& attached) {
  const QString what = message.value(u"do").toString();
  if (what == u"open" && !m_dialog) open(message);
  if (what == u"close") withdraw();
  if (what == u"whole") m_document.confirmEnd();
  if (what == u"print" && m_dialog && attached && m_document.state() == Document::State::None)
    m_document.readFromClient(std::move(attached), message.value(u"title").toString());
}

void PortalPrint::open(const QJsonObject& message) {
  m_settings = message.value(u"settings").toObject();
  m_pageSetup = message.value(u"pageSetup").toObject();
  m_choice = choiceAskedFor(m_settings, m_pageSetup);
  m_options.documentLater = !message.value(u"document").toBool();
  m_options.title = message.value(u"title").toString();
  m_options.acceptLabel = labelOf(message.value(u"acceptLabel").toString());
  m_options.offersPdf = message.value(u"canWritePdf").toBool();
  m_options.jobOptions.insert(jobOptionsOf(m_choice, m_settings));
  // A program in a sandbox must not make the dialog connect to an address of its choice.
  if (m_options.queue.isNull() && isQueueName(m_choice.printer)) m_options.queue = m_choice.printer;
  m_dialog = std::make_unique<PrintDialog>(m_options, m_document);
  connect(m_dialog.get(), &PrintDialog::settled, this, &PortalPrint::preset);
  connect(m_dialog.get(), &PrintDialog::chosen, this, &PortalPrint::takeChoice);
  connect(m_dialog.get(), &QDialog::finished, this, &PortalPrint::finish);
  offerPages(message);
  const bool isModal = message.value(u"modal").toBool();
  m_dialog->setWindowModality(isModal ? Qt::WindowModal : Qt::NonModal);
  attachTo(message.value(u"parentWindow").toString());
  m_dialog->show();
}

// An older front end does not say which pages the client knows, but the client may ask for them.
void PortalPrint::offerPages(const QJsonObject& message) {
  for (const auto& [pages, key] :
       {std::pair(PortalPages::Current, u"hasCurrentPage"), {PortalPages::Selection, u"hasSelection"}}) {
    if (message.value(key).toBool() || m_choice.pages == pages)
      m_dialog->general().offerPages(valueOf(pages));
  }
}

// What the client asks for of the queue's own options is chosen once these are known; it passes over paper
// that the printer does not have.
void PortalPrint::preset() {
  JobOptions& options = m_dialog->jobOptions();
  const PortalPaper& paper = m_choice.paper;
  for (const QString& name : {paper.ppdName, customChoice(paper.width, paper.height)}) {
    const QString choice = options.choiceFor(pageSize, name);
    if (choice.isNull()) continue;
    options.choose(pageSize, choice);
    break;
  }
  for (const DuplexChoice& each : duplexChoices) {
    const QString choice = options.choiceFor(duplex, each.sides);
    const bool isAsked = each.side != PortalDuplex::Simplex || m_settings.contains(u"duplex");
    if (each.side == m_choice.duplex && isAsked && !choice.isNull()) options.choose(duplex, choice);
  }
  chooseOptions(m_settings, options);
}

// Other platforms give no way to a window of another process.
void PortalPrint::attachTo(const QString& parentWindow) {
  const QString prefix = QStringLiteral("x11:");
  if (QGuiApplication::platformName() != u"xcb" || !parentWindow.startsWith(prefix)) return;
  bool isNumber = false;
  const WId number = parentWindow.sliced(prefix.size()).toULongLong(&isNumber, 16);
  if (!isNumber || number == 0) return;
  QWindow* parent = QWindow::fromWinId(number);
  if (parent == nullptr) return;
  m_dialog->winId();  // now it has a window to speak of
  m_dialog->windowHandle()->setTransientParent(parent);
  connect(m_dialog.get(), &QObject::destroyed, parent, &QObject::deleteLater);
}

void PortalPrint::takeChoice() {
  if (std::exchange(m_isChosen, true)) return;
  if (!m_options.documentLater) return takeDocument();
  const JobOptions& options = m_dialog->jobOptions();
  if (!m_dialog->savesPdf()) m_choice.printer = m_dialog->queueName();
  takePages(options);
  m_choice.numberUp = options.value(QStringLiteral("number-up")).toInt();
  m_choice.numberUpLayout = options.value(QStringLiteral("number-up-layout"));
  for (const DuplexChoice& each : duplexChoices) {
    if (standardValueOf(duplex, options.value(duplex)) == each.sides) m_choice.duplex = each.side;
  }
  const std::optional<PpdPaper> paper = options.paper();
  if (paper) m_choice.paper = portalPaperOf(*paper);
  const QJsonObject settings = withOptions(settingsToReturn(m_settings, m_choice), options);
  answer(QStringLiteral("chosen"), {{QStringLiteral("settings"), settings},
                                    {QStringLiteral("pageSetup"), pageSetupToReturn(m_pageSetup, m_choice)}});
}

void PortalPrint::takePages(const JobOptions& options) {
  m_choice.pageRanges = options.pages();
  m_choice.pages = options.pages().isNull() ? PortalPages::All : PortalPages::Ranges;
  for (const PortalPages pages : {PortalPages::Current, PortalPages::Selection}) {
    if (options.value(pagesKey) == valueOf(pages)) m_choice.pages = pages;
  }
}

void PortalPrint::takeDocument() {
  if (m_document.state() == Document::State::Failed && !std::exchange(m_hasFailed, true))
    answer(QStringLiteral("failed"));
  if (m_document.state() != Document::State::Ready || !m_isChosen || std::exchange(m_isTaken, true)) return;
  answer(QStringLiteral("taken"));
}

void PortalPrint::answer(const QString& word, QJsonObject message) {
  message.insert(QStringLiteral("answer"), word);
  // A service that is gone needs no answer; a job that is taken is printed all the same.
  (void)m_channel.send(message);
}

void PortalPrint::withdraw() {
  // The user reads what has failed.
  if (m_isTaken || m_hasFailed) return;
  // A document that is there whole after the choice is the user's wish already; nobody will end another one.
  if (m_isChosen && m_document.state() == Document::State::Reading && !m_document.isOpenEnded()) return;
  if (m_dialog) m_dialog->disconnect(this);
  QCoreApplication::quit();
}

void PortalPrint::finish(int result) {
  if (result != QDialog::Accepted && !m_isTaken) answer(QStringLiteral("cancelled"));
  QCoreApplication::quit();
}

}  // namespace kesto
