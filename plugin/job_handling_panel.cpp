#include "plugin/job_handling_panel.h"

#include <QtCore/QLoggingCategory>

#include "folders/endpoint.h"
#include "panel/initialize_ui.h"
#include "panel/layout_loader.h"
#include "panel/localized.h"
#include "panel/trace.h"
#include "plugin/action_table.h"
#include "plugin/confirmation.h"
#include "plugin/ppd_facts.h"

namespace kesto {
namespace {

Q_LOGGING_CATEGORY(layout, "kesto.layout")

QVariant orNull(const QString& text) {
  return text.isNull() ? QVariant::fromValue(nullptr) : QVariant(text);
}

QString layoutOfMode(int mode) {
  switch (mode) {
    case 4:
      return QStringLiteral("JobControl4");
    case 5:
      return QStringLiteral("JobControl5");
    case 6:
      return QStringLiteral("JobControl6");
    default:
      return {};
  }
}

}  // namespace

std::unique_ptr<KestoPrintPdeVq250nJC> KestoPrintPdeVq250nJC::initWithCallback(
    KestoPrintPdeVq250nJCPDEPluginCallback* host) {
  return host == nullptr ? nullptr : std::make_unique<KestoPrintPdeVq250nJC>(*host);
}

KestoPrintPdeVq250nJC::KestoPrintPdeVq250nJC(KestoPrintPdeVq250nJCPDEPluginCallback& host) : m_state(host) {
  m_state.controller = this;
  _PDEProlog(this, "initWithCallback:(%@, %p)", QStringLiteral("HostCallback"), &host);
  m_state.useConstraintHandling = host.answersWillChangePPDOptionKeyValue();
  _PDELog(this, "Constraint Handling Available: %s", m_state.useConstraintHandling ? "YES" : "NO");
  if (m_state.useConstraintHandling) m_ppd = host.ppdFile();
  if (m_ppd != nullptr) gatherPrinterFacts();
  m_state.spaceImage = imageOfResource(*m_state.pdeBundle, QStringLiteral("space"));
  _PDEEpilog(this, "initWithCallback:=id(self)");
}

void KestoPrintPdeVq250nJC::gatherPrinterFacts() {
  m_state.ppdEncoding = getEncodingFromPPD(m_ppd);
  m_state.modelStringRef = modelNameOfPPD(m_ppd, *m_state.ppdEncoding);
  const std::optional<Printer>& printer = m_state.pdePluginCallbackObject->printSession().currentPrinter;
  if (printer) {
    keepPrinterAddress(printer->deviceUri);
    m_state.preferenceName = QStringLiteral("kesto.mfp.") + printer->id;
    m_preferences.CheckPreference();
    m_preferences.GetUserPreference();
    m_preferences.GetFolderPreference();
  }
  m_state.requestData = m_state.pdeBundle->resource(QStringLiteral("listfiles2"), QStringLiteral("xml"));
  // Read only now, because the preferences are loaded as if the printer had no features.
  m_state.kesto_print_system = declaresKestoPrintSystem(m_ppd);
  m_state.active_directory = declaresActiveDirectory(m_ppd);
}

// The host is copied as it is written. A URL class would change its letter case, so it is cut from the text.
void KestoPrintPdeVq250nJC::keepPrinterAddress(const QString& deviceUri) {
  const QString scheme = deviceUri.section(u':', 0, 0);
  if (scheme != u"ipp" && scheme != u"lpd" && scheme != u"socket") return;
  const QString rest = deviceUri.mid(scheme.size() + 1);
  if (!rest.startsWith(QLatin1String("//"))) return;
  QStringView authority = QStringView(rest).sliced(2);
  for (const QChar end : {u'/', u'?', u'#'}) {
    const qsizetype at = authority.indexOf(end);
    if (at >= 0) authority = authority.first(at);
  }
  const auto written = hostAndPortOf(authority.sliced(authority.lastIndexOf(u'@') + 1).toString());
  if (written) m_state.mfpURL = written->host;
}

void KestoPrintPdeVq250nJC::loadView() {
  const QString name = layoutOfMode(getUIMode());
  if (name.isNull()) return;
  const Bundle& bundle = *m_state.pdeBundle;
  const std::optional<QByteArray> form = bundle.resource(name, QStringLiteral("ui"));
  const QByteArray compiled = bundle.resource(name, QStringLiteral("form")).value_or(QByteArray());
  const Outcome loaded = form ? loadLayout(*form, bundle, &m_panelView, compiled)
                              : Outcome::failed(QStringLiteral("no such resource"));
  if (!loaded) {
    qCWarning(layout, "%s.ui: %s", qUtf8Printable(name), qUtf8Printable(loaded.reason()));
    return;
  }
  m_state.outlets = outletsOfView(m_panelView.get());
  bindActions(*m_panelView, {.rules = m_rules, .actions = m_actions, .folderQuery = m_folderQuery});
}

PanelView* KestoPrintPdeVq250nJC::panelView() {
  _PDEProlog(this, "panelView:");
  if (!m_panelView) loadView();
  initializeUI(m_state);
  _PDEEpilog(this, "panelView:=NSView(%@, %p)", QStringLiteral("PanelView"), m_panelView.get());
  return m_panelView.get();
}

QString KestoPrintPdeVq250nJC::panelName() {
  _PDEProlog(this, "panelName:");
  if (m_thePDEName.isNull())
    m_thePDEName = m_state.pdeBundle->localizedStringForKey(QStringLiteral("Job Handling"));
  _PDEEpilog(this, "panelName:=NSString(%@)", m_thePDEName);
  return m_thePDEName;
}

QString KestoPrintPdeVq250nJC::panelKind() {
  _PDEProlog(this, "panelKind:");
  QString kind = QStringLiteral("kesto.print.pde.vq250n.JobControlKind");
  _PDEEpilog(this, "panelKind:=NSString(%@)", kind);
  return kind;
}

QStringList KestoPrintPdeVq250nJC::supportedPPDOptionKeys() {
  _PDEProlog(this, "supportedPPDOptionKeys:");
  QStringList keys{QStringLiteral("ARPrintRelease"),    QStringLiteral("ARRetention"),
                   QStringLiteral("ARDocFiling"),       QStringLiteral("ARHoldKey"),
                   QStringLiteral("ARDocumentFiling"),  QStringLiteral("ARCustomFolderName"),
                   QStringLiteral("ARCustomFolderPIN"), QStringLiteral("ARAccountLogin"),
                   QStringLiteral("ARAccountPassword"), QStringLiteral("ARUserNumber"),
                   QStringLiteral("ARUserName"),        QStringLiteral("ARJobName")};
  _PDEEpilog(this, "supportedPPDOptionKeys:=NSArray(%@)", keys.join(u' '));
  return keys;
}

void KestoPrintPdeVq250nJC::willShow() {
  _PDEProlog(this, "willShow:");
  initializeUI(m_state);
  updateUI(m_state);
  _PDEEpilog(this, "willShow:=void");
}

bool KestoPrintPdeVq250nJC::shouldHide() {
  _PDEProlog(this, "shouldHide:");
  _PDEEpilog(this, "shouldHide:=BOOL(YES)");
  return true;
}

bool KestoPrintPdeVq250nJC::shouldShowHelp() {
  _PDEProlog(this, "shouldShowHelp:");
  _PDEEpilog(this, "shouldShowHelp:=BOOL(YES)");
  return true;
}

void KestoPrintPdeVq250nJC::PPDOptionKeyValueDidChange([[maybe_unused]] const QString& optionKey,
                                                       [[maybe_unused]] const QString& ppdChoice) {
  _PDEProlog(this, "PPDOptionKeyValueDidChange:(%@) ppdChoice:(%@)", optionKey, ppdChoice);
  _PDEEpilog(this, "PPDOptionKeyValueDidChange:ppdChoice:=void");
}

bool KestoPrintPdeVq250nJC::restoreValuesAndReturnError([[maybe_unused]] QString* error) {
  _PDEProlog(this, "restoreValuesAndReturnError:(%p)", error);
  if (!m_panelView) {
    panelView();
    m_isPanelViewRetain = true;
  }
  initializeUI(m_state);
  m_reader.getNonPPDSettingsFromPrintSettings();
  updateUI(m_state);
  m_state.callRestoreValuesFunction = true;
  _PDEEpilog(this, "restoreValuesAndReturnError:=BOOL(YES)");
  return true;
}

bool KestoPrintPdeVq250nJC::saveValuesAndReturnError([[maybe_unused]] QString* error) {
  _PDEProlog(this, "saveValuesAndReturnError:(%p)", error);
  m_writer.writeNonPPDSettingsToPrintSettings();
  m_state.callSaveValuesFunction = true;
  _PDEEpilog(this, "saveValuesAndReturnError:=BOOL(YES)");
  return true;
}

bool KestoPrintPdeVq250nJC::shouldPrint() {
  _PDEProlog(this, "shouldPrint:");
  const bool hasSettings = m_state.printSettings() != nullptr;
  if (!m_state.callRestoreValuesFunction) restoreValuesAndReturnError(nullptr);
  if (!m_state.callSaveValuesFunction) saveValuesAndReturnError(nullptr);
  if (m_state.kesto_print_system && !isAuthenticationEntered(m_state)) {
    alertAuthenticationMissing(m_state);
    _PDEEpilog(this, "shouldPrint:=BOOL(NO)");
    return false;
  }
  if (hasSettings && m_state.hasInited) {
    m_preferences.SaveUserPreference();
    m_preferences.GetUserPreference();
  }
  _PDEEpilog(this, "shouldPrint:=BOOL(YES)");
  return true;
}

QMap<QString, QString> KestoPrintPdeVq250nJC::summaryInfo() {
  _PDEProlog(this, "summaryInfo:");
  QMap<QString, QString> summary = summaryOf(m_state);
  _PDEEpilog(this, "summaryInfo:");
  return summary;
}

QVariant KestoPrintPdeVq250nJC::ppdEncoding() const {
  return m_state.ppdEncoding ? QVariant(stringEncodingCode(*m_state.ppdEncoding))
                             : QVariant::fromValue(nullptr);
}

QVariant KestoPrintPdeVq250nJC::modelStringRef() const {
  return orNull(m_state.modelStringRef);
}
QVariant KestoPrintPdeVq250nJC::mfpURL() const {
  return orNull(m_state.mfpURL);
}
QVariant KestoPrintPdeVq250nJC::preferenceName() const {
  return orNull(m_state.preferenceName);
}
QVariant KestoPrintPdeVq250nJC::addressStringRef() const {
  return orNull(m_state.addressStringRef);
}

QVariant KestoPrintPdeVq250nJC::folderList() const {
  if (!m_state.folderList) return QVariant::fromValue(nullptr);
  QVariantList list;
  for (const FolderEntry& folder : *m_state.folderList)
    list.append(jsonOf(folder).toVariantMap());
  return list;
}

}  // namespace kesto
