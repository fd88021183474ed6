// The document of a print dialog.
#pragma once

#include <QtCore/QByteArrayList>
#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

#include "hosts/cups/print_job.h"
#include "hosts/session/private_copy.h"
#include "platform/descriptor.h"

namespace kesto {

/// The document to print: files, which stay open after they are chosen, and the contents of pipes and other
/// sources that can be read only once, which a thread copies. Signals are emitted in the thread of this
/// object.
class Document : public QObject {
  Q_OBJECT

 public:
  enum class State {
    None,
    Reading,
    Paused,  ///< As much is read as is allowed before the user has pressed Print.
    Ready,   ///< There is something to print, though perhaps not everything that was chosen.
    Failed,
  };
  /// How much is copied of a source without a length, in bytes.
  struct Bounds {
    qint64 beforePrint = qint64{256} << 20;  ///< Before the user has pressed Print.
    qint64 whole = qint64{2} << 30;          ///< At most.
  };

  Document() : Document(Bounds{}) {}
  explicit Document(Bounds bounds);
  ~Document() override;

  /// Takes files by their paths, "-" for standard input. Files that cannot be read are left out and named by
  /// `faults`.
  void openFiles(const QByteArrayList& paths);
  /// Reads a descriptor to which another program writes to its end. A pipe also ends when that program dies,
  /// so the document is ready only when `confirmEnd` is called after `ended`. A file is complete at once.
  void readFromClient(Descriptor descriptor, const QString& name);
  void confirmEnd();
  /// Call this when the user has pressed Print: the reading no longer pauses.
  void readOn();

  State state() const { return m_state; }
  /// Whether another program is still writing it, or may have died meanwhile.
  bool isOpenEnded() const { return m_isOpenEnded; }
  /// What cannot be printed and why, one sentence each.
  const QStringList& faults() const { return m_faults; }
  /// Its name for the user: the file's name, or that of the first file with the number of others.
  QString name() const;
  /// Puts another file in the place of one of `files`, which keeps its name.
  void replace(int file, Descriptor other);
  /// The files to send. Their paths are valid for this user's processes until the document changes.
  std::vector<JobFile> files() const;

 Q_SIGNALS:
  void changed();
  /// What another program writes has ended.
  void ended();

 private:
  // One of the documents. It has no file until it is read, and none at all when that fails.
  struct Part {
    QString name;
    Descriptor file;
  };
  // The data that the reading thread owns for a part.
  struct Source {
    std::size_t part;
    Descriptor descriptor;
  };
  struct Copied;

  void begin();
  void add(const QByteArray& path);
  void read();
  void readSources(const std::vector<Source>& sources, int reading);
  Copied copy(int descriptor, qint64* read, int reading);
  bool wait(int descriptor, bool isPaused);
  void takeCopy(std::size_t part, const std::shared_ptr<Copied>& copied);
  void finish();
  void post(int reading, const std::function<void()>& action);
  void addFault(const QString& fault) { m_faults.append(fault); }
  void set(State state);
  void stopReading();
  void wake() const;

  const Bounds m_bounds;
  State m_state = State::None;
  bool m_isOpenEnded = false;
  QStringList m_faults;
  std::vector<Part> m_parts;
  std::vector<Source> m_sources;  // to be read
  const Descriptor m_wake;        // an eventfd: the reading thread looks at the two flags
  std::atomic<bool> m_isStopped = false;
  std::atomic<bool> m_isWanted = false;
  int m_reading = 0;  // the number of the current reading, to recognise late results
  std::thread m_reader;
};

}  // namespace kesto
