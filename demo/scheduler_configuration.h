// The configuration files of the demo printer's scheduler.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <array>
#include <utility>

namespace kesto {

/// The name of the scheduler's first and default queue.
inline constexpr char demoQueue[] = "Office_MFP";
/// The names of its queues, counted from 1: "Office_MFP", "Office_MFP_0002" and so on.
QString demoQueueNumbered(int number);

/// What differs from start to start. Texts are in the form that the files have them in.
struct SchedulerValues {
  QByteArray listen;             ///< Lines that say where it listens.
  QByteArray root;               ///< The folder of all its files, without "/" at the end.
  QByteArray user;               ///< The number of the account that runs its jobs.
  QByteArray group;              ///< And that of its group.
  QByteArray owner;              ///< The name of the only account that administers it.
  QByteArray printer;            ///< The device URI of its queues.
  int queues = 1;                ///< How many there are.
  bool asksForPassword = false;  ///< Whether their jobs need a user name and a password.
};

/// Texts by the names of their files.
using SchedulerFiles = std::array<std::pair<const char*, QByteArray>, 3>;

SchedulerFiles configurationOf(const SchedulerValues& values);

}  // namespace kesto
