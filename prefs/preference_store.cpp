#include "prefs/preference_store.h"

#include <QtCore/QJsonArray>
#include <cmath>

#include "platform/secret.h"
#include "platform/user_defaults.h"
#include "settings/stored_forms.h"

namespace kesto {
namespace {

const QString panelRecord = QStringLiteral("Job Handling");
const QString modelName = QStringLiteral("Model Name");
const QString releaseNumber = QStringLiteral("Release Number");
const QString release = QStringLiteral("2.00");
const QString holdButton = QStringLiteral("hold button");
const QString authentication = QStringLiteral("authentication");
const QString address = QStringLiteral("address");
const QString files = QStringLiteral("files");

constexpr qsizetype loginNameUnits = 255;
constexpr qsizetype asciiBuffer = 256;

// A stored string; null when the record has none under the key.
QString stringOf(const QJsonObject& record, const QString& key) {
  const QJsonValue value = record.value(key);
  if (!value.isString()) return {};
  const QString text = value.toString();
  return text.isNull() ? QStringLiteral("") : text;
}

struct Mask {
  int value = 0;
  bool exact = false;
};

// A number as a signed 32-bit integer; not exact when a part is lost.
Mask maskOf(const QJsonValue& stored) {
  const double number = stored.toDouble();
  // Beyond these limits a double is not converted to an integer.
  constexpr double limit = 9.0e18;
  if (!(std::abs(number) < limit)) return {};
  const auto whole = static_cast<std::int64_t>(number);
  const auto value = static_cast<int>(static_cast<std::uint32_t>(whole));
  return {.value = value, .exact = static_cast<double>(value) == number};
}

}  // namespace

QJsonObject PreferenceStore::recordOf(const QJsonObject& domain) const {
  QJsonObject record = domain.value(panelRecord).toObject();
  const bool isSameModel = stringOf(record, modelName) == m_state.modelStringRef &&
                           record.contains(modelName) != m_state.modelStringRef.isNull();
  if (m_isTrusted || (isSameModel && stringOf(record, releaseNumber) == release)) return record;
  record = {{releaseNumber, release}};
  if (!m_state.modelStringRef.isNull()) record.insert(modelName, m_state.modelStringRef);
  return record;
}

std::optional<QJsonObject> PreferenceStore::record() const {
  if (m_state.preferenceName.isNull()) return {};
  const Domain domain = m_state.platform->userDefaults().persistentDomainForName(m_state.preferenceName);
  const QJsonObject values = domain.values.value_or(QJsonObject());
  if (!domain.available || !values.value(panelRecord).isObject()) return {};
  return recordOf(values);
}

bool PreferenceStore::change(const std::function<void(QJsonObject* record)>& edit) {
  if (m_state.preferenceName.isNull()) return false;
  const auto replaceRecord = [&](QJsonObject* domain) {
    QJsonObject record = recordOf(*domain);
    edit(&record);
    domain->insert(panelRecord, record);
    return Outcome::done();
  };
  const Outcome changed =
      m_state.platform->userDefaults().changePersistentDomain(m_state.preferenceName, replaceRecord);
  if (changed) m_isTrusted = true;
  return static_cast<bool>(changed);
}

void PreferenceStore::CheckPreference() {
  m_isTrusted = false;
  change([](QJsonObject* /*record*/) {});
}

void PreferenceStore::GetUserPreference() {
  m_state.prefHoldButtonFlag = 0;
  m_state.remembered = {};
  const std::optional<QJsonObject> now = record();
  if (!now || !now->value(holdButton).isDouble()) return;
  const Mask mask = maskOf(now->value(holdButton));
  m_state.prefHoldButtonFlag = mask.value;
  if (!mask.exact) return;
  for (const HeldField& row : heldFields) {
    if ((mask.value & row.bit) == 0) continue;
    m_state.remembered.*row.remembered = stringOf(*now, QLatin1String(row.recordKey));
  }
  const QJsonValue login = now->value(authentication);
  if (login.isBool()) m_state.remembered.prefAuthenticationBooleanRef = login.toBool();
}

QString PreferenceStore::sealedEntry(const HeldField& row, const QString& text) const {
  QByteArray plaintext;
  const WipedAtEnd wiped(plaintext);
  QByteArray sealed;
  switch (row.form) {
    case RememberedForm::Clear:
      return text;
    case RememberedForm::SealedHex:
      plaintext = bytesOfText(text, m_state.systemEncoding, row.cipherBytes, row.cipherBytes);
      sealed = sealedHex(plaintext, row.cipherBytes);
      break;
    case RememberedForm::SealedBase64:
      plaintext = bytesOfText(text, m_state.systemEncoding, loginNameUnits, loginNameUnits);
      sealed = sealedBase64(plaintext);
      break;
    case RememberedForm::SealedAsciiHex:
      plaintext = asciiOfText(text, asciiBuffer).value_or(QByteArray());
      sealed = sealedHex(plaintext, row.cipherBytes);
      break;
  }
  return QString::fromLatin1(sealed);
}

void PreferenceStore::storeEntry(const HeldField& row, QJsonObject* record) const {
  const TextField* field = m_state.outlets.*row.edit;
  if (field == nullptr) return;
  QString text = field->stringValue();
  if (row.field == Held::LoginName && isExactlyOn(m_state.outlets.*row.button)) {
    // The field itself shows bullets.
    text = m_state.loginNameStringRef;
    if (text.isEmpty()) return;
  }
  record->insert(QLatin1String(row.recordKey), sealedEntry(row, text));
}

bool PreferenceStore::SaveUserPreference() {
  return change([this](QJsonObject* record) {
    for (const HeldField& row : heldFields)
      storeEntry(row, record);
    const RadioCell* login = m_state.outlets.authenticationRadioButton;
    record->insert(authentication, login != nullptr && login->state() != 0);
    record->insert(holdButton, holdButtonMask(m_state.outlets));
  });
}

void PreferenceStore::GetFolderPreference() {
  const std::optional<QJsonObject> now = record();
  if (!now) return;
  m_state.addressStringRef = stringOf(*now, address);
  std::vector<FolderEntry> folders;
  const QJsonArray list = now->value(files).toArray();
  for (const auto& entry : list) {
    FolderEntry folder = folderOf(entry.toObject());
    if (!folder.name.isEmpty()) folders.push_back(std::move(folder));
  }
  m_state.folderList = std::move(folders);
}

bool PreferenceStore::SaveFolderPreference() {
  return change([this](QJsonObject* record) {
    if (m_state.outlets.printersAddressEditText != nullptr) {
      record->insert(address, m_state.outlets.printersAddressEditText->stringValue());
    }
    if (!m_state.folderList) return;
    QJsonArray list;
    for (const FolderEntry& folder : *m_state.folderList)
      list.append(jsonOf(folder));
    record->insert(files, list);
  });
}

}  // namespace kesto
