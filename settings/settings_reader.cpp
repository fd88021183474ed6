#include "settings/settings_reader.h"

#include <algorithm>
#include <limits>

#include "panel/trace.h"
#include "platform/job_keys.h"
#include "platform/secret.h"
#include "settings/stored_forms.h"

namespace kesto {
namespace {

constexpr qsizetype textBuffer = 256;
constexpr qsizetype loginNameBuffer = 511;

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

void SettingsReader::setHold(const HeldField& row, bool hold) {
  Button* button = m_state.outlets.*row.button;
  if (button != nullptr) button->setState(hold ? 1 : 0);
  m_actions.holdButtonProc(row.field);
}

void SettingsReader::getNonPPDSettingsFromPrintSettings() {
  _PDEProlog(m_state.controller, "--getNonPPDSettingsFromPrintSettings:");
  if (m_state.printSettings() != nullptr) {
    readHoldMask();
    readRetention();
    readSealed(Held::SuspendKey);
    readFiling();
    readAuthentication();
    readLoginName();
    readSealed(Held::Password);
    readSealed(Held::UserNumber);
    readSealed(Held::AccountNumber);
    m_actions.authenticationMatrixProc(m_state.outlets.authenticationMatrix);
    readName(Held::UserName);
    readName(Held::JobName);
    readSealed(Held::FolderPassword);
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
  const auto digit = firstCharacter(value(job_keys::jobSuspend)).unicode();
  const auto* found = std::ranges::find(job_keys::holdDigits, digit);
  int row = found == job_keys::holdDigits.end() ? -1 : static_cast<int>(found - job_keys::holdDigits.begin());
  if (m_state.active_directory) row = HoldOnly;
  const Outlets& o = m_state.outlets;
  if (o.retentionCheckBox != nullptr) o.retentionCheckBox->setState(row >= 0 ? 1 : 0);
  m_actions.retentionCBoxProc(o.retentionCheckBox);
  if (o.suspendMatrix != nullptr) o.suspendMatrix->selectRow(qMax(int{HoldOnly}, row));
}

void SettingsReader::readSealed(Held field) {
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
  setHold(row, hold);
}

void SettingsReader::selectFolder(int item, int row) {
  const Outlets& o = m_state.outlets;
  if (o.folderSelectionPopup != nullptr) o.folderSelectionPopup->selectItemAtIndex(item);
  if (o.folderSelectionMatrix != nullptr) o.folderSelectionMatrix->selectRow(row);
}

// Whether the keys choose a folder.
bool SettingsReader::readFilingKeys() {
  const QChar filing = firstCharacter(value(job_keys::filing));
  if (filing == QLatin1Char(job_keys::filingDigit(QuickFile))) {
    selectFolder(QuickFile, QuickFile);
    return true;
  }
  if (filing != QLatin1Char(job_keys::filingDigit(CustomFolder))) return false;
  const std::optional<QString> path = value(job_keys::folderPath);
  const std::optional<QByteArray> hex = path ? asciiOfText(*path, textBuffer) : std::nullopt;
  if (!hex) return false;
  m_state.folderNameStringRef = textOfBytes(textOfHex(*hex), m_state.systemEncoding);
  selectFolder(m_folderPopup.SearchSameFolderName(m_state.folderNameStringRef), CustomFolder);
  setText(rowOf(Held::FolderName), m_state.folderNameStringRef);
  return true;
}

void SettingsReader::readFiling() {
  const HeldField& row = rowOf(Held::FolderName);
  bool hold = isPresetHeld(row);
  // Remembered folders are offered without a fetch, so that no stored choice lies beyond the pop-up's items.
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
  if (!selected) selectFolder(MainFolder, MainFolder);
  setHold(row, hold);
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
  if (matrix != nullptr) matrix->selectRow(isLogin ? ByLogin : ByUserNumber);
}

SettingsReader::StoredLoginName SettingsReader::storedLoginName() const {
  const HeldField& row = rowOf(Held::LoginName);
  const QByteArray first = asciiValue(row.key, loginNameBuffer);
  const QByteArray second = asciiValue(row.second, loginNameBuffer);
  if (first.isEmpty() || second.isEmpty()) return {.sealed = first, .isWhole = false};
  return {.sealed = (first + second).left(loginNameBuffer - 1), .isWhole = true};
}

void SettingsReader::readLoginName() {
  const HeldField& row = rowOf(Held::LoginName);
  Button* button = m_state.outlets.*row.button;
  setHold(row, false);
  bool hold = takePreferenceBit(row);
  const QString& remembered = m_state.remembered.*row.remembered;
  QByteArray stored;
  bool useAccountName = false;
  if (hold && !remembered.isNull()) {
    stored = asciiOfText(remembered, loginNameBuffer).value_or(QByteArray());
  } else {
    const StoredLoginName ofJob = storedLoginName();
    stored = ofJob.sealed;
    // Under directory operation the account's name replaces an incomplete one.
    useAccountName = m_state.active_directory && !ofJob.isWhole;
    hold = hold || isPresetHeld(row);
  }
  if (useAccountName) {
    setText(row, m_state.platform->userName());
  } else {
    setSealed(row, plaintextOfSealedBase64(stored));
  }
  wipe(m_state.loginNameStringRef);
  m_state.loginNameLockFlag = false;
  if (hold || isOn(button)) setHold(row, hold);
}

std::optional<QString> SettingsReader::fallbackName(Held field) const {
  if (field == Held::JobName) return m_state.printSettings()->jobName().value_or(QString());
  const QString name =
      m_state.active_directory ? m_state.platform->userName() : m_state.platform->fullUserName();
  return name.isNull() ? std::nullopt : std::optional(name);
}

void SettingsReader::readName(Held field) {
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
  setHold(row, hold);
}

}  // namespace kesto
