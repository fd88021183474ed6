#include "demo/job_ticket.h"

#include <QtCore/QCryptographicHash>

#include "platform/job_keys.h"
#include "platform/text_encoding.h"

namespace kesto {
namespace {

constexpr int mostPieces = 10;
constexpr qsizetype shortestPassCode = 5;

}  // namespace

bool JobTicket::addLine(const QByteArray& line) {
  const qsizetype sign = line.indexOf('=');
  if (sign <= 0) return false;
  const QByteArray name = line.left(sign);
  const QByteArray value = QByteArray::fromPercentEncoding(line.mid(sign + 1));
  if (name == "job")
    job = value.toInt();
  else if (name == "user")
    user = QString::fromUtf8(value);
  else if (name == "title")
    title = QString::fromUtf8(value);
  else
    m_settings.insert(name, value);
  return true;
}

QByteArray JobTicket::setting(const char* key) const {
  return m_settings.value(QByteArray(printSettingsPrefix) + key);
}

Retention JobTicket::retention() const {
  const QByteArray digit = setting(job_keys::jobSuspend);
  if (digit == "1") return Retention::PrintAndHold;
  if (digit == "2") return Retention::HoldOnly;
  if (digit == "3") return Retention::PrintSampleAndHold;
  return Retention::PrintAtOnce;
}

QString JobTicket::name() const {
  QByteArray hex;
  for (int piece = 1; piece <= mostPieces; ++piece)
    hex += setting((job_keys::jobName3 + QByteArray::number(piece)).constData());
  QString name = QString::fromUtf8(QByteArray::fromHex(hex));
  if (name.isEmpty())
    name = textOfBytes(QByteArray::fromHex(setting(job_keys::jobName2)), TextEncoding::WindowsLatin1);
  return name.isEmpty() ? title : name;
}

std::optional<QString> JobTicket::account() const {
  const QByteArray number = setting(job_keys::accountNumber);
  return number.isEmpty() ? std::nullopt : std::optional(QString::fromUtf8(number));
}

bool JobTicket::hasPassCode() const {
  return !setting(job_keys::jobSuspendKey).isEmpty();
}

bool JobTicket::opensWith(const QString& passCode) const {
  const QByteArray padded = passCode.toUtf8().rightJustified(shortestPassCode, '0');
  const QByteArray spoolTime = QByteArray::fromHex(setting(job_keys::spoolTime));
  return QCryptographicHash::hash(padded + spoolTime, QCryptographicHash::Md5).toHex() ==
         setting(job_keys::jobSuspendKey);
}

}  // namespace kesto
