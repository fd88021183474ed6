// A thread for what can wait on the print server.
#pragma once

#include <QtCore/QThread>
#include <functional>

namespace kesto {

/// Does work in the order in which it is posted. The destructor waits for the work under way, and drops the
/// rest.
class WorkerThread {
 public:
  WorkerThread() {
    m_context.moveToThread(&m_thread);
    m_thread.start();
  }
  ~WorkerThread() {
    m_thread.quit();
    m_thread.wait();
  }
  WorkerThread(const WorkerThread&) = delete;
  WorkerThread& operator=(const WorkerThread&) = delete;

  void post(const std::function<void()>& work) { QMetaObject::invokeMethod(&m_context, work); }

 private:
  QThread m_thread;
  QObject m_context;
};

/// Does `work` in the thread of `receiver`, unless that is gone by then.
inline void answer(QObject* receiver, const std::function<void()>& work) {
  QMetaObject::invokeMethod(receiver, work, Qt::QueuedConnection);
}

}  // namespace kesto
