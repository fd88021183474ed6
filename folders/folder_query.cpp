#include "folders/folder_query.h"

#include "folders/folder_answer.h"
#include "platform/alert_presenter.h"
#include "platform/private_file.h"

namespace kesto {

FolderQuery::~FolderQuery() {
  *m_isAlive = false;
  if (m_running != nullptr) m_running->cancel();
}

void FolderQuery::showProgress(bool isRunning) {
  ProgressIndicator* arrow = m_state.outlets.chasingArrow;
  if (arrow != nullptr) arrow->setHidden(!isRunning);
}

void FolderQuery::fetch(const QString& printerAddress) {
  showProgress(true);
  const QString endpoint = QStringLiteral("http://") + printerAddress + QStringLiteral("/kesto-mfp-srv");
  const auto client = KestoPrintPdeVq250nJCSOAPClient::initWithServerName(endpoint, *m_state.platform, this);
  if (client) {
    m_lastFetch = FolderFetch::Failed;
    const std::shared_ptr<bool> isAlive = m_isAlive;
    m_running = client.get();
    client->sendMessage(m_state.requestData.value_or(QByteArray()));
    if (!*isAlive) return;
    m_running = nullptr;
    m_lastFault = client->fault();
    if (client->isAnswered()) m_lastFetch = client->isKept() ? FolderFetch::Listed : FolderFetch::NotKept;
  }
  showProgress(false);
}

void FolderQuery::getFolderNameButtonProc(Control* /*sender*/) {
  if (m_state.outlets.getFolderNameButton == nullptr || m_running != nullptr) return;
  const std::shared_ptr<bool> isAlive = m_isAlive;
  const QString printerAddress = textOfField(m_state.outlets.printersAddressEditText);
  m_lastFetch = FolderFetch::None;
  m_lastFault = FolderFault::None;
  if (!printerAddress.isEmpty()) fetch(printerAddress);
  if (!*isAlive) return;
  const bool isRead = parseXML(answerFilePath(*m_state.platform));
  if (m_lastFetch == FolderFetch::Listed && !isRead) m_lastFetch = FolderFetch::NotRead;
  m_saveFolders();
  m_folderPopup.makeFolderPopup();
}

bool FolderQuery::parseXML(const QString& path) {
  const std::optional<QByteArray> xml = readOwnFile(path, answer_limits::bytes);
  std::optional<FolderAnswer> answer = xml ? readFolderAnswer(*xml) : std::nullopt;
  if (!answer) return false;
  m_state.folderList = std::move(answer->folders);
  return answer->isList;
}

void FolderQuery::recieveEndCallback() {
  const Bundle& bundle = *m_state.pdeBundle;
  QString message = bundle.localizedStringForKey(QStringLiteral("Could not retrieve Folder Names.%@"));
  message.replace(QStringLiteral("%@"), QString());
  showProgress(false);
  m_state.platform->alertPresenter().runInformationalAlert(
      QStringLiteral(""), message, bundle.localizedStringForKey(QStringLiteral("OK")));
}

}  // namespace kesto
