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
#include "hosts/dialog/private_copy.h"
#include "platform/descriptor.h"

namespace kesto {

/// What is to be printed: files, which stay open from their choice on, and what pipes and other things that
/// can be read but once give, which is copied beside the event loop. Signals come in the thread of this
/// object.
class Document : public QObject {
  Q_OBJECT

 public:
  enum class State {
    None,
    Reading,
    Paused,  ///< As much is read as may be before the user has pressed Print.
    Ready,   ///< There is something to print, though perhaps not all that was asked for.
    Failed,
  };
  /// How much of what has no length is copied, in bytes.
  struct Bounds {
    qint64 beforePrint = qint64{256} << 20;  ///< Before the user has pressed Print.
    qint64 whole = qint64{2} << 30;          ///< At most.
  };

  Document() : Document(Bounds{}) {}
  explicit Document(Bounds bounds);
  ~Document() override;

  /// Takes files by their paths, "-" for standard input. Those that cannot be read are left out, and named by
  /// `faults`.
  void openFiles(const QByteArrayList& paths);
  /// Reads a descriptor, which the document owns, to its end.
  void readDescriptor(int descriptor, const QString& name);
  /// The same for one that another program writes. The end of a pipe is also what the other's death looks
  /// like: the document is ready only once `confirmEnd` is called after `ended`. A file is whole as it is.
  void readFromClient(int descriptor, const QString& name);
  void confirmEnd();
  /// The user has pressed Print: nothing pauses any more.
  void readOn();

  State state() const { return m_state; }
  /// Whether somebody else still writes it, or may have died while doing so.
  bool isOpenEnded() const { return m_isOpenEnded; }
  /// What cannot be printed, and why: a sentence each.
  const QStringList& faults() const { return m_faults; }
  /// What people call it: the file's name, or that of the first with the number of the others.
  QString name() const;
  /// The files to send. Their paths are good for this user's processes as long as the document stays as it
  /// is.
  std::vector<JobFile> files() const;

 Q_SIGNALS:
  void changed();
  /// What another program writes has come to an end.
  void ended();

 private:
  // One of the documents; without a file until it is read, and for good when that fails.
  struct Part {
    QString name;
    Descriptor file;
  };
  // What the reading thread owns of a part.
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
  int m_reading = 0;  // tells one reading from the next
  std::thread m_reader;
};

}  // namespace kesto
