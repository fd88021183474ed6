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
/// has a time limit and 1 GiB of address space, and ends with this process, however that ends.
class PageProgram : public QObject {
  Q_OBJECT

 public:
  enum class End { Done, Failed, Missing, Late };

  explicit PageProgram(std::chrono::milliseconds limit = std::chrono::seconds(20));
  ~PageProgram() override;

  /// Stops a running program, and runs another with the document's file as its standard input.
  void start(const QString& program, const QStringList& arguments, const QString& document);
  /// Ends the program and discards its output.
  void stop();

  /// The output of the program that has ended.
  const QByteArray& output() const { return m_output; }
  const QByteArray& errors() const { return m_errors; }

 Q_SIGNALS:
  void ended(kesto::PageProgram::End end);

 private:
  void finish(End end);

  std::unique_ptr<QProcess> m_process;
  QTimer m_limit;
  QByteArray m_output;
  QByteArray m_errors;
};

}  // namespace kesto
