#include "settings/settings_writer.h"

#include "panel/trace.h"
#include "platform/job_keys.h"
#include "platform/secret.h"
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

constexpr int noFiling = -1;  // in place of a row of the folder choice

// A name's bytes with blanks for control characters and double quotes.
QByteArray scrubbed(QByteArray bytes) {
  ReplaceSpaceCode({reinterpret_cast<std::uint8_t*>(bytes.data()), static_cast<std::size_t>(bytes.size())});
  return bytes;
}

// The companion of sealed digits: their digest, bound to the job by its spool time, or the digits themselves.
QByteArray besideSealed(JobForm form, const QByteArray& digits, const QByteArray& spoolTime) {
  if (digits.isEmpty()) return {};
  if (form == JobForm::Number) return paddedDigits(digits);
  QByteArray padded = paddedDigits(digits);
  const WipedAtEnd wiped(padded);
  return form == JobForm::DigitsFirst ? jobDigest(padded, spoolTime) : jobDigest(spoolTime, padded);
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
    store(rowOf(Held::FolderName).second, {});
    store(rowOf(Held::FolderName).utf8, {});
    const int filing = writeFiling();
    if (writeRetention(filing)) writeField(Held::SuspendKey, spoolTime);
    const RadioCell* login = m_state.outlets.authenticationRadioButton;
    store(job_keys::authentication, login != nullptr && login->state() != 0 ? "1" : "0");
    for (const Held field :
         {Held::UserNumber, Held::AccountNumber, Held::UserName, Held::JobName, Held::FolderPassword}) {
      writeField(field, spoolTime);
    }
    store(job_keys::holdButton, QByteArray::number(holdButtonMask(m_state.outlets)));
  }
  _PDEEpilog(m_state.controller, "--writeNonPPDSettingsToPrintSettings:");
}

// The spool time of the job's first write, as plain text.
QByteArray SettingsWriter::writeSpoolTime() {
  const std::optional<QString> stored = m_state.printSettings()->value(job_keys::whole(job_keys::spoolTime));
  // The whole stored length counts, even beyond a NUL.
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
  const bool isFiled = m_capabilities.CheckHardDisk() && isOn(m_state.outlets.retentionCheckBox);
  const int row = isFiled ? folderChoice() : noFiling;
  store(job_keys::filing, QByteArray(1, job_keys::filingDigit(row)));
  if (row == MainFolder) store(job_keys::folderPath, hexText(standardFolder));
  if (row == CustomFolder) writeFolderPath();
  return row;
}

// The row of the folder choice, taken from the pop-up when the layout has no matrix.
int SettingsWriter::folderChoice() const {
  const Outlets& o = m_state.outlets;
  if (o.folderSelectionMatrix != nullptr) return o.folderSelectionMatrix->selectedRow();
  return o.folderSelectionPopup == nullptr ? noFiling
                                           : qMin(o.folderSelectionPopup->selectedIndex(), int{CustomFolder});
}

// A folder of the printer's list or the typed name; the standard folder when the layout has no matrix.
void SettingsWriter::writeFolderPath() {
  const Outlets& o = m_state.outlets;
  const int item = o.folderSelectionPopup == nullptr ? -1 : o.folderSelectionPopup->selectedIndex();
  if (item >= firstFolderItem && m_state.folderList) {
    if (const FolderEntry* folder = m_state.folderOfItem(item)) writeFolderName(folder->name);
  } else if (o.folderSelectionMatrix != nullptr) {
    writeFolderName(textOfField(o.folderNameEditText));
  } else {
    store(job_keys::folderPath, hexText(standardFolder));
  }
}

void SettingsWriter::writeFolderName(const QString& name) {
  const HeldField& row = rowOf(Held::FolderName);
  const auto convert = [&](TextEncoding encoding) { return cStringOfText(name, encoding, folderNameBuffer); };
  const auto fits = [](const std::optional<QByteArray>& bytes) {
    return bytes && bytes->size() <= longestNameBytes;
  };
  std::optional<QByteArray> bytes = convert(m_state.systemEncoding);
  if (!bytes) bytes = convert(TextEncoding::MacJapanese);
  if (fits(bytes)) store(row.key, hexText(*bytes));
  if (encodingWindowsLatin1(m_state.systemEncoding)) bytes = convert(TextEncoding::WindowsLatin1);
  if (!bytes) bytes = convert(TextEncoding::MacJapanese);
  if (fits(bytes)) store(row.second, hexText(*bytes));
  bytes = convert(TextEncoding::Utf8);
  if (fits(bytes)) storeInPieces(row.utf8, hexText(*bytes));
}

// Returns whether the job is held, in which case it has a pass code.
bool SettingsWriter::writeRetention(int filing) {
  const Outlets& o = m_state.outlets;
  const bool quickFileInstead = m_capabilities.isVelkoMorra() && filing == QuickFile;
  const bool retention = isOn(o.retentionCheckBox) && !quickFileInstead;
  const int row = retention && o.suspendMatrix != nullptr ? o.suspendMatrix->selectedRow() : -1;
  const bool isHeld = row >= HoldOnly && row <= SamplePrint;
  store(job_keys::jobSuspend,
        QByteArray(1, isHeld ? job_keys::holdDigits.at(static_cast<std::size_t>(row)) : '0'));
  return isHeld;
}

void SettingsWriter::writeField(Held field, const QByteArray& spoolTime) {
  const HeldField& row = rowOf(field);
  if (row.jobForm == JobForm::Name) return writeName(row);
  writeDigits(row, spoolTime);
}

void SettingsWriter::writeDigits(const HeldField& row, const QByteArray& spoolTime) {
  QByteArray digits = bytesOfText(textOfField(m_state.outlets.*row.edit), m_state.systemEncoding,
                                  digitsOffered, row.writtenBytes);
  const WipedAtEnd wiped(digits);
  store(row.second, besideSealed(row.jobForm, digits, spoolTime));
  store(row.key, sealedHex(digits, row.cipherBytes));
}

void SettingsWriter::writeName(const HeldField& row) {
  const int limit = row.writtenBytes;
  // Under directory operation the printer knows the user, so the panel sends no user name.
  const bool isUnknown = row.field == Held::UserName && m_state.active_directory;
  const QString name = isUnknown ? QString() : textOfField(m_state.outlets.*row.edit);
  QByteArray bytes = bytesOfText(name, m_state.systemEncoding, limit, limit);
  if (bytes.isEmpty()) bytes = bytesOfText(name, TextEncoding::MacJapanese, limit, limit, substitute);
  store(row.key, hexText(bytes));
  if (encodingWindowsLatin1(m_state.systemEncoding)) {
    bytes = bytesOfText(name, TextEncoding::WindowsLatin1, limit, limit, substitute);
  }
  store(row.second, hexText(scrubbed(bytes)));
  const int utf8Limit = limit * utf8PerCharacter;
  storeInPieces(row.utf8,
                hexText(scrubbed(bytesOfText(name, TextEncoding::Utf8, utf8Limit, utf8Limit, substitute))));
}

}  // namespace kesto
