// A program that reads a document for the preview.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QTimer>
#include <chrono>
#include <memory>

class QProcess;

namespace kesto {

/// One program at a time, in a separate process, because a document may be damaged or hostile. The program
/// has a time limit, 1 GiB of address space and limits on what it writes, and ends with this process, however
/// that ends. Of its errors the first 64 KiB are kept.
class PageProgram : public QObject {
  Q_OBJECT

 public:
  enum class End { Done, Failed, Missing, Late };

  struct Work {
    QString program;
    QStringList arguments;
    QString input = {};   ///< The file that is its standard input; null for none.
    QString output = {};  ///< The file that takes its standard output; null to keep that for `output`.
  };

  explicit PageProgram(std::chrono::milliseconds limit = std::chrono::seconds(20));
  ~PageProgram() override;

  /// Stops a running program, and runs another.
  void start(const Work& work);
  /// Ends the program and discards its output.
  void stop();
  bool isRunning() const { return m_process != nullptr; }

  /// The output of the program that has ended.
  const QByteArray& output() const { return m_output; }
  const QByteArray& errors() const { return m_errors; }

 Q_SIGNALS:
  void ended(kesto::PageProgram::End end);

 private:
  void finish(End end);
  void takeOutput();
  void takeErrors();

  std::unique_ptr<QProcess> m_process;
  QTimer m_limit;
  QByteArray m_output;
  QByteArray m_errors;
};

}  // namespace kesto
