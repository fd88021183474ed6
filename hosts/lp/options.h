// The command line of kesto-lp.
#pragma once

#include <QtCore/QByteArrayList>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <array>
#include <optional>

#include "hosts/cups/sent_job.h"
#include "hosts/cups/server_address.h"
#include "hosts/lp/entries.h"
#include "hosts/lp/messages.h"

namespace kesto {

enum ExitCode { ExitDone = 0, ExitFailed = 1, ExitUsage = 2, ExitRefused = 3, ExitWaiting = 4 };

/// Where a secret comes from if not from the command line.
struct SecretSource {
  std::optional<QString> file;  ///< "-" is standard input.
  bool ask = false;             ///< At the terminal.

  bool isGiven() const { return file || ask; }
};

/// The tasks of kesto-lp.
enum class Task { Print, Change, DryRun, ListQueues, ListFolders, ListPresets, DeletePreset, Check };

/// What the command line asks for.
struct Options {
  Task task = Task::Print;
  ServerAddress server;
  std::optional<QString> serverPassword;  ///< The file with the password for `server`; "-" is standard input.
  std::optional<QString> ppd;             ///< A PPD file in place of a queue; no server is asked.
  std::optional<QString> deviceUri;       ///< The device URI that goes with `ppd`.
  std::optional<QString> queue;  ///< Its name; none for the default queue, or for that of the PPD's file.

  QByteArrayList files;                           ///< Paths; "-" is standard input, and none means it alone.
  std::optional<QString> title;                   ///< The job's own name.
  QMap<QString, QString> jobOptions;              ///< By name.
  std::optional<SentJob> job;                     ///< The job to change.
  bool restart = false;                           ///< Print that job again.
  bool mail = false;                              ///< To the user, when the job has been printed.
  bool wait = false;                              ///< For the end of the job.
  std::optional<std::chrono::seconds> waitLimit;  ///< No longer than this.
  QStringList warnings;                           ///< Messages about options without effect.
  bool json = false;
  bool silent = false;
  bool summary = false;
  bool jobHandlingOnly = false;    ///< Of the queues to list.
  bool network = false;            ///< List the printers on the network as well.
  std::optional<QString> address;  ///< The printer's, for its folders.
  std::optional<QString> deletedPreset;

  std::optional<QString> preset;
  std::optional<QString> savePreset;
  bool withCodes = false;
  Entries entries;
  std::array<SecretSource, entryCount> secrets;

  Messages messages() const { return Messages(json); }
  /// Whether anything is given for the Job Handling panel.
  bool wantsPanel() const;
};

/// Whether the command line asks for JSON, wherever a fault in it is.
bool wantsJson(int argc, const char* const* argv);

/// Reads the command line and wipes the secrets in it. None when there is something to do; otherwise the exit
/// status, after the help or a fault has been printed. A fault never repeats what may be a secret.
std::optional<ExitCode> parseOptions(int argc, char** argv, Options* options);

}  // namespace kesto
