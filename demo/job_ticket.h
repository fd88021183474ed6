// What the printer knows about a job: the lines in front of its document.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <cstdint>
#include <optional>

namespace kesto {

/// What the printer does with a job when it arrives.
enum class Retention : std::uint8_t { PrintAtOnce, PrintAndHold, HoldOnly, PrintSampleAndHold };

/// The settings of one job, as the printer reads them.
class JobTicket {
 public:
  int job = 0;   ///< The scheduler's number.
  QString user;  ///< The scheduler's name for the user.
  QString title;

  /// Takes one line "name=value" with a percent-encoded value. False when it is malformed.
  bool addLine(const QByteArray& line);

  Retention retention() const;
  /// The name chosen in the panel, else the title.
  QString name() const;
  std::optional<QString> account() const;
  bool hasPassCode() const;
  /// Whether the job was sent with this pass code.
  bool opensWith(const QString& passCode) const;

  bool operator==(const JobTicket&) const = default;

 private:
  QByteArray setting(const char* key) const;

  QMap<QByteArray, QByteArray> m_settings;
};

}  // namespace kesto
