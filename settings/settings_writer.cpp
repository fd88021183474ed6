#include "settings/settings_writer.h"

#include "panel/trace.h"
#include "platform/secret.h"
#include "settings/job_keys.h"
#include "settings/stored_forms.h"
#include "settings/value_helpers.h"

namespace kesto {
namespace {

constexpr qsizetype longestSpoolTimeHex = 126;
constexpr qsizetype digitsOffered = 8;
constexpr qsizetype folderNameBuffer = 1530;
constexpr int utf8PerCharacter = 6;
constexpr char substitute = ' ';
constexpr char standardFolder[] = "*standard";

constexpr int quickFileMode = 1;
constexpr int mainFolderMode = 2;
constexpr int customFolderMode = 3;

// A name's bytes with blanks for control characters and double quotes.
QByteArray scrubbed(QByteArray bytes) {
  ReplaceSpaceCode({reinterpret_cast<std::uint8_t*>(bytes.data()), static_cast<std::size_t>(bytes.size())});
  return bytes;
}

}  // namespace

void SettingsWriter::store(const char* key, const QByteArray& value) {
  MyPMPrintSetAsciiCStrValue(m_state.printSettings(), job_keys::whole(key), value.constData());
}

void SettingsWriter::storeInPieces(const char* key, const QByteArray& value) {
  const QByteArray whole = QByteArray(printSettingsPrefix) + key;
  MyMultiPMPrintSetAsciiCStrValue(m_state.printSettings(), whole.constData(), value.constData());
}

void SettingsWriter::writeNonPPDSettingsToPrintSettings() {
  _PDEProlog(m_state.controller, "--writeNonPPDSettingsToPrintSettings:");
  if (m_state.printSettings() != nullptr && m_state.hasInited) {
    const QByteArray spoolTime = writeSpoolTime();
    store(job_keys::folderPath2, {});
    store(job_keys::folderPath3, {});
    const int mode = writeFiling();
    if (writeRetention(mode)) writeDigitsDigest(Held::SuspendKey, job_keys::jobSuspendKey, spoolTime, false);
    const RadioCell* login = m_state.outlets.authenticationRadioButton;
    store(job_keys::authentication, login != nullptr && login->state() != 0 ? "1" : "0");
    writeNumber(Held::UserNumber, job_keys::userNumber);
    writeNumber(Held::AccountNumber, job_keys::accountNumber);
    writeName(Held::UserName, job_keys::userName2, job_keys::userName3);
    writeName(Held::JobName, job_keys::jobName2, job_keys::jobName3);
    writeDigitsDigest(Held::FolderPassword, job_keys::folderPassword, spoolTime, true);
    store(job_keys::holdButton, QByteArray::number(holdButtonMask(m_state.outlets)));
  }
  _PDEEpilog(m_state.controller, "--writeNonPPDSettingsToPrintSettings:");
}

// The spool time of the job's first write, as plain text.
QByteArray SettingsWriter::writeSpoolTime() {
  const std::optional<QString> stored = m_state.printSettings()->value(job_keys::whole(job_keys::spoolTime));
  // The length counts as it stands: a NUL hides nothing behind it.
  if (stored && stored->size() % 2 == 0 && stored->size() <= longestSpoolTimeHex) {
    const std::optional<QByteArray> hex = asciiOfText(*stored, longestSpoolTimeHex + 1);
    if (hex) return textOfHex(*hex);
  }
  std::array<char, 64> text{};
  GetSpoolTime(text, m_state.platform->now());
  store(job_keys::spoolTime, hexText(text.data()));
  return text.data();
}

int SettingsWriter::writeFiling() {
  if (!m_capabilities.CheckHardDisk() || !isOn(m_state.outlets.retentionCheckBox)) {
    store(job_keys::filing, "0");
    return 0;
  }
  const int mode = filingMode();
  store(job_keys::filing, QByteArray::number(mode));
  if (mode == mainFolderMode) store(job_keys::folderPath, hexText(standardFolder));
  if (mode == customFolderMode) writeFolderPath();
  return mode;
}

int SettingsWriter::filingMode() const {
  const Outlets& o = m_state.outlets;
  int mode = 0;
  if (o.folderSelectionPopup != nullptr) {
    mode = qMin(o.folderSelectionPopup->selectedIndex() + quickFileMode, customFolderMode);
  }
  if (o.folderSelectionMatrix != nullptr) mode = o.folderSelectionMatrix->selectedRow() + quickFileMode;
  return mode;
}

void SettingsWriter::writeFolderPath() {
  bool isStandard = false;
  const std::optional<QString> name = chosenFolderName(&isStandard);
  if (isStandard) store(job_keys::folderPath, hexText(standardFolder));
  if (name) writeFolderName(*name);
}

// A folder of the printer's list, else the typed name; the standard folder when the layout has no matrix.
std::optional<QString> SettingsWriter::chosenFolderName(bool* isStandard) const {
  const Outlets& o = m_state.outlets;
  const int item = o.folderSelectionPopup == nullptr ? -1 : o.folderSelectionPopup->selectedIndex();
  if (item >= firstFolderItem && m_state.folderList) {
    const auto folder = static_cast<std::size_t>(item - firstFolderItem);
    if (folder >= m_state.folderList->size()) return std::nullopt;
    return (*m_state.folderList)[folder].name;
  }
  if (o.folderSelectionMatrix != nullptr) return textOfField(o.folderNameEditText);
  *isStandard = true;
  return std::nullopt;
}

void SettingsWriter::writeFolderName(const QString& name) {
  const auto convert = [&](TextEncoding encoding) { return cStringOfText(name, encoding, folderNameBuffer); };
  const auto fits = [](const std::optional<QByteArray>& bytes) {
    return bytes && bytes->size() <= longestNameBytes;
  };
  std::optional<QByteArray> bytes = convert(m_state.systemEncoding);
  if (!bytes) bytes = convert(TextEncoding::MacJapanese);
  if (fits(bytes)) store(job_keys::folderPath, hexText(*bytes));
  if (encodingWindowsLatin1(m_state.systemEncoding)) bytes = convert(TextEncoding::WindowsLatin1);
  if (!bytes) bytes = convert(TextEncoding::MacJapanese);
  if (fits(bytes)) store(job_keys::folderPath2, hexText(*bytes));
  bytes = convert(TextEncoding::Utf8);
  if (fits(bytes)) storeInPieces(job_keys::folderPath3, hexText(*bytes));
}

// Whether a suspend key applies.
bool SettingsWriter::writeRetention(int filingMode) {
  const Outlets& o = m_state.outlets;
  const bool quickFileInstead = m_capabilities.isVelkoMorra() && filingMode == quickFileMode;
  const bool retention = isOn(o.retentionCheckBox) && !quickFileInstead;
  const int row = retention && o.suspendMatrix != nullptr ? o.suspendMatrix->selectedRow() : -1;
  // Hold only is 2, hold after print 1, sample print 3.
  constexpr std::array<char, 4> digitOfRow{'0', '2', '1', '3'};
  const char digit = row >= -1 && row <= 2 ? digitOfRow.at(static_cast<std::size_t>(row + 1)) : '0';
  store(job_keys::jobSuspend, QByteArray(1, digit));
  return digit != '0';
}

QByteArray SettingsWriter::digitsOf(Held field) const {
  const HeldField& row = rowOf(field);
  return bytesOfText(textOfField(m_state.outlets.*row.edit), m_state.systemEncoding, digitsOffered,
                     row.writtenBytes);
}

void SettingsWriter::writeDigitsDigest(Held field, const char* digestKey, const QByteArray& spoolTime,
                                       bool spoolTimeFirst) {
  const HeldField& row = rowOf(field);
  QByteArray digits = digitsOf(field);
  const WipedAtEnd wiped(digits);
  QByteArray digest;
  if (!digits.isEmpty()) {
    QByteArray padded = paddedDigits(digits);
    const WipedAtEnd wipedToo(padded);
    digest = spoolTimeFirst ? jobDigest(spoolTime, padded) : jobDigest(padded, spoolTime);
  }
  store(digestKey, digest);
  store(row.key, sealedHex(digits, row.cipherBytes));
}

void SettingsWriter::writeNumber(Held field, const char* plainKey) {
  const HeldField& row = rowOf(field);
  QByteArray digits = digitsOf(field);
  const WipedAtEnd wiped(digits);
  store(plainKey, digits.isEmpty() ? QByteArray() : paddedDigits(digits));
  store(row.key, sealedHex(digits, row.cipherBytes));
}

void SettingsWriter::writeName(Held field, const char* latin1Key, const char* utf8Key) {
  const HeldField& row = rowOf(field);
  const int limit = row.writtenBytes;
  // Under directory operation the printer knows the user; the panel sends no user name.
  const bool isUnknown = field == Held::UserName && m_state.active_directory;
  const QString name = isUnknown ? QString() : textOfField(m_state.outlets.*row.edit);
  QByteArray bytes = bytesOfText(name, m_state.systemEncoding, limit, limit);
  if (bytes.isEmpty()) bytes = bytesOfText(name, TextEncoding::MacJapanese, limit, limit, substitute);
  store(row.key, hexText(bytes));
  if (encodingWindowsLatin1(m_state.systemEncoding)) {
    bytes = bytesOfText(name, TextEncoding::WindowsLatin1, limit, limit, substitute);
  }
  store(latin1Key, hexText(scrubbed(bytes)));
  const int utf8Limit = limit * utf8PerCharacter;
  storeInPieces(utf8Key,
                hexText(scrubbed(bytesOfText(name, TextEncoding::Utf8, utf8Limit, utf8Limit, substitute))));
}

}  // namespace kesto
