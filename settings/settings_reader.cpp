#include "settings/settings_reader.h"

#include <algorithm>
#include <limits>

#include "panel/trace.h"
#include "platform/secret.h"
#include "settings/job_keys.h"
#include "settings/stored_forms.h"

namespace kesto {
namespace {

constexpr qsizetype textBuffer = 256;
constexpr qsizetype loginNameBuffer = 511;

using A = ControlActions;

// The leading decimal integer of a text, 0 when there is none; beyond 32 bits the nearest that fits.
int leadingInteger(const QString& text) {
  qsizetype i = 0;
  while (i < text.size() && text[i].isSpace())
    ++i;
  const bool negative = i < text.size() && text[i] == u'-';
  if (i < text.size() && (text[i] == u'-' || text[i] == u'+')) ++i;
  std::int64_t number = 0;
  constexpr std::int64_t beyond = std::int64_t{1} << 32;
  for (; i < text.size() && text[i] >= u'0' && text[i] <= u'9'; ++i) {
    number = qMin(number * 10 + (text[i].unicode() - u'0'), beyond);
  }
  if (negative) number = -number;
  using Limits = std::numeric_limits<int>;
  return static_cast<int>(std::clamp<std::int64_t>(number, Limits::min(), Limits::max()));
}

// The first character of a value, NUL when it has none.
QChar firstCharacter(const std::optional<QString>& value) {
  return value && !value->isEmpty() ? value->front() : QChar();
}

}  // namespace

std::optional<QString> SettingsReader::value(const char* key) const {
  return m_state.printSettings()->value(job_keys::whole(key));
}

QByteArray SettingsReader::asciiValue(const char* key, qsizetype bufferSize) const {
  return asciiOfText(value(key).value_or(QString()), bufferSize).value_or(QByteArray());
}

bool SettingsReader::takePreferenceBit(const HeldField& row) {
  const bool isSet = (m_state.prefHoldButtonFlag & row.bit) != 0;
  m_state.prefHoldButtonFlag &= ~row.bit;
  return isSet;
}

void SettingsReader::setText(const HeldField& row, const QString& text) {
  TextField* field = m_state.outlets.*row.edit;
  if (field != nullptr) field->setStringValue(text.isNull() ? QStringLiteral("") : text);
}

void SettingsReader::setSealed(const HeldField& row, QByteArray plaintext) {
  const WipedAtEnd wiped(plaintext);
  const bool isTooLong = row.longestPlaintext > 0 && plaintext.size() > row.longestPlaintext;
  QString text = isTooLong ? QString() : textOfBytes(plaintext, m_state.systemEncoding);
  setText(row, text);
  wipe(text);
}

void SettingsReader::setHold(const HeldField& row, bool hold, Action action) {
  Button* button = m_state.outlets.*row.button;
  if (button != nullptr) button->setState(hold ? 1 : 0);
  (m_actions.*action)(button);
}

void SettingsReader::getNonPPDSettingsFromPrintSettings() {
  _PDEProlog(m_state.controller, "--getNonPPDSettingsFromPrintSettings:");
  if (m_state.printSettings() != nullptr) {
    readHoldMask();
    readRetention();
    readSealed(Held::SuspendKey, &A::suspendKeyButtonProc);
    readFiling();
    readAuthentication();
    readLoginName();
    readSealed(Held::Password, &A::passwordButtonProc);
    readSealed(Held::UserNumber, &A::userNumberButtonProc);
    readSealed(Held::AccountNumber, &A::accountNumberButtonProc);
    m_actions.authenticationMatrixProc(m_state.outlets.authenticationMatrix);
    readName(Held::UserName, &A::userNameButtonProc);
    readName(Held::JobName, &A::jobNameButtonProc);
    readSealed(Held::FolderPassword, &A::folderPasswordButtonProc);
    m_actions.retentionCBoxProc(m_state.outlets.retentionCheckBox);
    m_actions.folderSelectionPopUpButtonProc(m_state.outlets.folderSelectionPopup);
  }
  _PDEEpilog(m_state.controller, "--getNonPPDSettingsFromPrintSettings:");
}

void SettingsReader::readHoldMask() {
  const std::optional<QString> mask = value(job_keys::holdButton);
  if (mask) m_state.presetHoldButtonFlag = leadingInteger(*mask);
}

void SettingsReader::readRetention() {
  // 0 off, else the row of the hold choice and one.
  int choice = 0;
  switch (firstCharacter(value(job_keys::jobSuspend)).unicode()) {
    case u'1':
      choice = 2;
      break;
    case u'2':
      choice = 1;
      break;
    case u'3':
      choice = 3;
      break;
    default:
      break;
  }
  if (m_state.active_directory) choice = 1;
  const Outlets& o = m_state.outlets;
  if (o.retentionCheckBox != nullptr) o.retentionCheckBox->setState(choice != 0 ? 1 : 0);
  m_actions.retentionCBoxProc(o.retentionCheckBox);
  if (o.suspendMatrix != nullptr) o.suspendMatrix->selectRow(qMax(0, choice - 1));
}

void SettingsReader::readSealed(Held field, Action action) {
  const HeldField& row = rowOf(field);
  bool hold = takePreferenceBit(row);
  const QString& remembered = m_state.remembered.*row.remembered;
  QByteArray stored;
  if (hold && !remembered.isNull()) {
    stored = asciiOfText(remembered, textBuffer).value_or(QByteArray());
  } else if (value(row.key)) {
    stored = asciiValue(row.key, textBuffer);
    hold = hold || isPresetHeld(row);
  }
  setSealed(row, plaintextOfSealedHex(stored, row.cipherBytes));
  setHold(row, hold, action);
}

void SettingsReader::selectFolder(int item, int row) {
  const Outlets& o = m_state.outlets;
  if (o.folderSelectionPopup != nullptr) o.folderSelectionPopup->selectItemAtIndex(item);
  if (o.folderSelectionMatrix != nullptr) o.folderSelectionMatrix->selectRow(row);
}

// Whether the keys chose a folder.
bool SettingsReader::readFilingKeys() {
  const QChar filing = firstCharacter(value(job_keys::filing));
  if (filing == u'1') {
    selectFolder(0, 0);
    return true;
  }
  if (filing != u'3') return false;
  const std::optional<QString> path = value(job_keys::folderPath);
  const std::optional<QByteArray> hex = path ? asciiOfText(*path, textBuffer) : std::nullopt;
  if (!hex) return false;
  m_state.folderNameStringRef = textOfBytes(textOfHex(*hex), m_state.systemEncoding);
  selectFolder(m_folderPopup.SearchSameFolderName(m_state.folderNameStringRef), 2);
  setText(rowOf(Held::FolderName), m_state.folderNameStringRef);
  return true;
}

void SettingsReader::readFiling() {
  const HeldField& row = rowOf(Held::FolderName);
  bool hold = isPresetHeld(row);
  // The remembered folders are offered without a fetch, and no choice may lie beyond the items.
  if (!m_folderPopup.offersAllFolders()) m_folderPopup.makeFolderPopup();
  bool selected = readFilingKeys();
  if (m_state.outlets.folderSelectionMatrix != nullptr && takePreferenceBit(row)) {
    const QString& remembered = m_state.remembered.*row.remembered;
    if (!remembered.isNull()) {
      setText(row, remembered);
      selected = true;
      hold = true;
    }
  }
  if (!selected) selectFolder(1, 1);
  setHold(row, hold, &A::folderNameButtonProc);
}

void SettingsReader::readAuthentication() {
  const int authenticationBits =
      rowOf(Held::LoginName).bit | rowOf(Held::Password).bit | rowOf(Held::UserNumber).bit;
  const std::optional<bool>& remembered = m_state.remembered.prefAuthenticationBooleanRef;
  bool isLogin = true;
  if ((m_state.prefHoldButtonFlag & authenticationBits) != 0 && remembered) {
    isLogin = *remembered;
  } else if (const std::optional<QString> stored = value(job_keys::authentication)) {
    isLogin = firstCharacter(stored) == u'1';
  }
  RadioMatrix* matrix = m_state.outlets.authenticationMatrix;
  if (matrix != nullptr) matrix->selectRow(isLogin ? 0 : 1);
}

// The sealed login name of the job; under directory operation the account's name stands in for an incomplete
// one.
QByteArray SettingsReader::storedLoginName(bool* useAccountName) const {
  QByteArray first = asciiValue(job_keys::loginName11, loginNameBuffer);
  const QByteArray second = asciiValue(job_keys::loginName12, loginNameBuffer);
  const bool isIncomplete = first.isEmpty() || second.isEmpty();
  *useAccountName = m_state.active_directory && isIncomplete;
  if (!isIncomplete) first = (first + second).left(loginNameBuffer - 1);
  return first;
}

void SettingsReader::readLoginName() {
  const HeldField& row = rowOf(Held::LoginName);
  Button* button = m_state.outlets.*row.button;
  setHold(row, false, &A::loginNameButtonProc);
  bool hold = takePreferenceBit(row);
  const QString& remembered = m_state.remembered.*row.remembered;
  QByteArray stored;
  bool useAccountName = false;
  if (hold && !remembered.isNull()) {
    stored = asciiOfText(remembered, loginNameBuffer).value_or(QByteArray());
  } else {
    stored = storedLoginName(&useAccountName);
    hold = hold || isPresetHeld(row);
  }
  if (useAccountName) {
    setText(row, m_state.platform->userName());
  } else {
    setSealed(row, plaintextOfSealedBase64(stored));
  }
  wipe(m_state.loginNameStringRef);
  m_state.loginNameLockFlag = false;
  if (hold || isOn(button)) setHold(row, hold, &A::loginNameButtonProc);
}

std::optional<QString> SettingsReader::fallbackName(Held field) const {
  if (field == Held::JobName) return m_state.printSettings()->jobName().value_or(QString());
  const QString name =
      m_state.active_directory ? m_state.platform->userName() : m_state.platform->fullUserName();
  return name.isNull() ? std::nullopt : std::optional(name);
}

void SettingsReader::readName(Held field, Action action) {
  const HeldField& row = rowOf(field);
  bool hold = takePreferenceBit(row);
  const QString& remembered = m_state.remembered.*row.remembered;
  if (hold && !remembered.isNull()) {
    setText(row, remembered);
  } else {
    const QString stored = textOfBytes(textOfHex(asciiValue(row.key, textBuffer)), m_state.systemEncoding);
    if (!stored.isEmpty()) {
      setText(row, stored);
      hold = hold || isPresetHeld(row);
    } else if (const std::optional<QString> fallback = fallbackName(field)) {
      setText(row, *fallback);
    }
  }
  setHold(row, hold, action);
}

}  // namespace kesto
