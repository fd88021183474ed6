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

QJsonObject jsonOf(const FolderEntry& folder) {
  return {{QStringLiteral("name"), folder.name},
          {QStringLiteral("password"), folder.password},
          {QStringLiteral("dir"), folder.dir},
          {QStringLiteral("add"), folder.add}};
}

FolderEntry folderOf(const QJsonObject& entry) {
  return {.name = entry.value(QStringLiteral("name")).toString(),
          .password = entry.value(QStringLiteral("password")).toBool(),
          .dir = entry.value(QStringLiteral("dir")).toBool(),
          .add = entry.value(QStringLiteral("add")).toBool()};
}

struct Mask {
  int value = 0;
  bool exact = false;
};

// A number as a signed 32-bit integer; inexact when that loses something.
Mask maskOf(const QJsonValue& stored) {
  const double number = stored.toDouble();
  // Beyond these a double has no integer to speak of.
  constexpr double limit = 9.0e18;
  if (!(std::abs(number) < limit)) return {};
  const auto whole = static_cast<std::int64_t>(number);
  const auto value = static_cast<int>(static_cast<std::uint32_t>(whole));
  return {.value = value, .exact = static_cast<double>(value) == number};
}

}  // namespace

PreferenceStore::Access PreferenceStore::access() const {
  if (m_state.preferenceName.isNull()) return {};
  const Domain domain = m_state.platform->userDefaults().persistentDomainForName(m_state.preferenceName);
  Access access{.available = domain.available,
                .exists = false,
                .domain = domain.values.value_or(QJsonObject()),
                .record = {}};
  const QJsonValue record = access.domain.value(panelRecord);
  access.exists = record.isObject();
  access.record = record.toObject();
  return access;
}

bool PreferenceStore::write(Access access) {
  access.domain.insert(panelRecord, access.record);
  return static_cast<bool>(
      m_state.platform->userDefaults().setPersistentDomain(access.domain, m_state.preferenceName));
}

void PreferenceStore::CheckPreference() {
  Access now = access();
  if (!now.available) return;
  const bool isSameModel = stringOf(now.record, modelName) == m_state.modelStringRef &&
                           now.record.contains(modelName) != m_state.modelStringRef.isNull();
  if (!isSameModel || stringOf(now.record, releaseNumber) != release) {
    now.record = {{releaseNumber, release}};
    if (!m_state.modelStringRef.isNull()) now.record.insert(modelName, m_state.modelStringRef);
  }
  write(std::move(now));
}

void PreferenceStore::GetUserPreference() {
  m_state.prefHoldButtonFlag = 0;
  m_state.remembered = {};
  const Access now = access();
  const QJsonValue stored = now.record.value(holdButton);
  if (!now.available || !stored.isDouble()) return;
  const Mask mask = maskOf(stored);
  m_state.prefHoldButtonFlag = mask.value;
  if (!mask.exact) return;
  for (const HeldField& row : heldFields) {
    if ((mask.value & row.bit) == 0) continue;
    m_state.remembered.*row.remembered = stringOf(now.record, QLatin1String(row.recordKey));
  }
  const QJsonValue login = now.record.value(authentication);
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
    // The field shows bullets.
    text = m_state.loginNameStringRef;
    if (text.isEmpty()) return;
  }
  record->insert(QLatin1String(row.recordKey), sealedEntry(row, text));
}

bool PreferenceStore::SaveUserPreference() {
  Access now = access();
  if (!now.available) return false;
  for (const HeldField& row : heldFields)
    storeEntry(row, &now.record);
  const RadioCell* login = m_state.outlets.authenticationRadioButton;
  now.record.insert(authentication, login != nullptr && login->state() != 0);
  now.record.insert(holdButton, holdButtonMask(m_state.outlets));
  return write(std::move(now));
}

void PreferenceStore::GetFolderPreference() {
  const Access now = access();
  if (!now.available || !now.exists) return;
  m_state.addressStringRef = stringOf(now.record, address);
  std::vector<FolderEntry> folders;
  const QJsonArray list = now.record.value(files).toArray();
  for (const auto& entry : list) {
    FolderEntry folder = folderOf(entry.toObject());
    if (!folder.name.isEmpty()) folders.push_back(std::move(folder));
  }
  m_state.folderList = std::move(folders);
}

bool PreferenceStore::SaveFolderPreference() {
  Access now = access();
  if (!now.available) return false;
  if (m_state.outlets.printersAddressEditText != nullptr) {
    now.record.insert(address, m_state.outlets.printersAddressEditText->stringValue());
  }
  if (m_state.folderList) {
    QJsonArray list;
    for (const FolderEntry& folder : *m_state.folderList)
      list.append(jsonOf(folder));
    now.record.insert(files, list);
  }
  return write(std::move(now));
}

}  // namespace kesto
