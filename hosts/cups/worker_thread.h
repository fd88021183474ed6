// A thread for what can wait on the print server.
#pragma once

#include <QtCore/QThread>
#include <functional>
#include <memory>
#include <mutex>

namespace kesto {

/// Does work in the order in which it is posted. The destructor waits for the work under way, and drops the
/// rest.
class WorkerThread {
 public:
  /// `interrupt` ends what the work waits for. With it the destructor waits `patience` before and after it is
  /// called, and then leaves the work to itself: it must own all that it uses.
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
  // A dialog has two threads, and is to be gone within a second.
  static constexpr unsigned long patience = 200;  // in milliseconds

  struct Parts {
    QThread thread;
    QObject context;
  };
  std::function<void()> m_interrupt;
  std::unique_ptr<Parts> m_parts = std::make_unique<Parts>();
};

/// The way back to an object that may be gone before the work that answers it.
class Mailbox {
 public:
  explicit Mailbox(QObject* receiver) : m_receiver(receiver) {}

  /// Does `work` in the receiver's thread, unless that is gone by then. For any thread.
  template <class Work>
  void answer(Work work) {
    const std::lock_guard lock(m_mutex);
    if (m_receiver != nullptr) QMetaObject::invokeMethod(m_receiver, std::move(work), Qt::QueuedConnection);
  }
  /// The receiver is about to go.
  void close() {
    const std::lock_guard lock(m_mutex);
    m_receiver = nullptr;
  }

 private:
  std::mutex m_mutex;
  QObject* m_receiver;
};

/// Does `work` in the thread of `receiver`, unless that is gone by then.
inline void answer(QObject* receiver, const std::function<void()>& work) {
  QMetaObject::invokeMethod(receiver, work, Qt::QueuedConnection);
}

}  // namespace kesto
