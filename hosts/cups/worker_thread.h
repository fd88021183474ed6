// A thread for work that may have to wait for the print server.
#pragma once

#include <QtCore/QThread>
#include <functional>
#include <memory>
#include <mutex>

namespace kesto {

/// Does work in the order in which it is posted. The destructor waits for the current work and discards the
/// rest.
class WorkerThread {
 public:
  /// `interrupt` ends what the work waits for. With it, the destructor waits `patience` before and after
  /// calling it, and then abandons the work, which must therefore own everything that it uses.
  explicit WorkerThread(std::function<void()> interrupt = {}) : m_interrupt(std::move(interrupt)) {
    m_parts->context.moveToThread(&m_parts->thread);
    m_parts->thread.start();
  }
  ~WorkerThread() {
    QThread& thread = m_parts->thread;
    thread.quit();
    if (!m_interrupt) {
      thread.wait();
    } else if (!thread.wait(patience)) {
      m_interrupt();
      if (!thread.wait(patience)) (void)m_parts.release();  // its work still uses it
    }
  }
  WorkerThread(const WorkerThread&) = delete;
  WorkerThread& operator=(const WorkerThread&) = delete;

  template <class Work>
  void post(Work work) {
    QMetaObject::invokeMethod(&m_parts->context, std::move(work));
  }

 private:
  // A dialog has four such threads and must end within a second.
  static constexpr unsigned long patience = 150;  // in milliseconds

  struct Parts {
    QThread thread;
    QObject context;
  };
  std::function<void()> m_interrupt;
  std::unique_ptr<Parts> m_parts = std::make_unique<Parts>();
};

/// A way to report to an object that may be destroyed before the work is done.
class Mailbox {
 public:
  explicit Mailbox(QObject* receiver) : m_receiver(receiver) {}

  /// Does `work` in the receiver's thread, unless the receiver is destroyed by then. May be called in any
  /// thread.
  template <class Work>
  void answer(Work work) {
    const std::lock_guard lock(m_mutex);
    if (m_receiver != nullptr) QMetaObject::invokeMethod(m_receiver, std::move(work), Qt::QueuedConnection);
  }
  /// Call this when the receiver is about to be destroyed.
  void close() {
    const std::lock_guard lock(m_mutex);
    m_receiver = nullptr;
  }

 private:
  std::mutex m_mutex;
  QObject* m_receiver;
};

}  // namespace kesto
