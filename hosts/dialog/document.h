// The document of a print dialog.
#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryFile>
#include <atomic>
#include <memory>
#include <thread>

namespace kesto {

/// Files to print, or what a descriptor gives, which is read whole into a private file first. Signals come in
/// the thread of this object.
class Document : public QObject {
  Q_OBJECT

 public:
  enum class State { None, Reading, Ready, Failed };

  Document() = default;
  ~Document() override;

  /// Takes files as they are; fails when one cannot be read.
  void openFiles(const QStringList& paths);
  /// Reads a descriptor to its end, beside the event loop. The document owns the descriptor.
  void readDescriptor(int descriptor, const QString& name);

  State state() const { return m_state; }
  /// Why there is no document; null unless it failed.
  const QString& fault() const { return m_fault; }
  /// What people call it: the file's name, or that of the first with the number of the others.
  QString name() const;
  /// The files to send.
  const QStringList& files() const { return m_files; }

 Q_SIGNALS:
  void changed();

 private:
  void set(State state, const QString& fault = {});
  void copy(int descriptor, int reading);
  void stopReading();

  State m_state = State::None;
  QString m_fault;
  QString m_name;
  QStringList m_files;
  std::unique_ptr<QTemporaryFile> m_copy;
  std::atomic<bool> m_isStopped = false;
  int m_reading = 0;  // tells one reading from the next
  std::thread m_reader;
};

}  // namespace kesto
