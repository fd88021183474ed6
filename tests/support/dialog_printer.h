// The dialog on the demo printer's scheduler, and its user.
#pragma once

#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QToolButton>

#include "hosts/dialog/preview/preview.h"
#include "hosts/dialog/print_dialog.h"
#include "hosts/dialog/user/dialog_user.h"
#include "hosts/dialog/widgets/queue_list_model.h"
#include "tests/support/demo_process.h"
#include "tests/support/dialog_support.h"

namespace kesto::test {

/// A widget by its accessible name.
template <class T = QWidget>
T* widgetNamed(const QWidget& window, const QString& accessibleName) {
  for (T* widget : window.findChildren<T*>()) {
    if (widget->accessibleName() == accessibleName) return widget;
  }
  ADD_FAILURE() << "nothing is named " << accessibleName;
  return nullptr;
}

/// Answers the next modal window as a user would.
inline void whenModal(const std::function<void(QWidget&)>& act) {
  QTimer::singleShot(20, qApp, [act] {
    QWidget* modal = QApplication::activeModalWidget();
    modal == nullptr ? whenModal(act) : act(*modal);
  });
}

inline void pressEnter(QWidget& window) {
  QTest::keyClick(&window, Qt::Key_Return);
}

/// The text of the alert that an action opens, and that Enter closes.
inline QString alertOn(const std::function<void()>& act) {
  QString alert;
  whenModal([&](QWidget& window) {
    alert = qobject_cast<QMessageBox*>(&window)->text();
    pressEnter(window);
  });
  act();
  return alert;
}

class DialogPrint : public testing::Test {
 protected:
  DialogPrint() {
    qputenv("XDG_CONFIG_HOME", m_folder.path(u"config"_s).toUtf8());
    qputenv("TMPDIR", m_folder.path(u""_s).toUtf8());
    m_folder.write(u"report.pdf"_s, pdfDocument());
    m_folder.write(u"pin"_s, "2468\n");
    m_options.server.address =
        u"127.0.0.1:9"_s;  // nobody listens there; keeps the test away from the system's server
    m_options.server.limit = std::chrono::seconds(20);
  }

  void startPrinter(const QStringList& arguments = {}) {
    m_printer.emplace(m_folder, arguments);
    m_options.server.address = m_printer->place(u"server"_s);
  }
  void changePpd(const QString& queue, const QByteArray& before, const QByteArray& after) const {
    const QString ppd = u"run/cups/ppd/%1.ppd"_s.arg(queue);
    m_folder.write(ppd, bytesOf(m_folder.path(ppd)).replace(before, after));
  }
  void signalScheduler(int number) const {
    ::kill(bytesOf(m_folder.path(u"run/cups/state/cupsd.pid"_s)).trimmed().toInt(), number);
  }
  void open(const QStringList& files) {
    QByteArrayList paths;
    for (const QString& file : files)
      paths.append(QFile::encodeName(file));
    m_document.openFiles(paths);
    m_dialog.emplace(m_options, m_document);
    m_dialog->show();
  }
  void open() { open({m_folder.path(u"report.pdf"_s)}); }
  void openReady(const QStringList& files) {
    if (!m_printer) startPrinter();
    open(files);
    await([this] { return m_dialog->isQueueReady() && m_dialog->queues().rowCount() > 0; }, u"the queue"_s);
    await([this] { return m_dialog->preview().isExamined(); }, u"the look at the document"_s);
  }
  void openReady() { openReady({m_folder.path(u"report.pdf"_s)}); }
  static void await(const std::function<bool()>& isSo, const QString& what) {
    const Outcome waited = DialogUser::waitUntil(isSo, what);
    ASSERT_TRUE(waited) << waited.reason();
  }
  /// Waits until a job is sent and at the printer.
  void awaitJob(int number) {
    await([this] { return m_dialog->job() > 0; }, u"the job"_s);
    m_printer->waitForLog("job " + QByteArray::number(number) + " from ");
  }
  void awaitMessage(const QString& message) {
    await([&] { return text(u"message"_s) == message; }, message);
  }
  QByteArray printout(int job, int document = 1) const {
    return bytesOf(m_printer->place(u"output"_s) + u"/job-%1-%2"_s.arg(job).arg(document));
  }
  void use(const Text& operations) { useWidgets(*m_dialog, operations); }
  void click(const QString& name) { use(name); }
  void type(const QString& name, const QString& text) {
    const Outcome typed = DialogUser(*m_dialog).replace(name, text);
    ASSERT_TRUE(typed) << typed.reason();
  }
  template <class T = QWidget>
  T* widget(const QString& name) const {
    T* found = m_dialog->findChild<T*>(name);
    EXPECT_NE(found, nullptr) << name;
    return found;
  }
  QString text(const QString& label) const { return widget<QLabel>(label)->text(); }

  ScratchFolder m_folder;
  std::optional<RunningPrinter> m_printer;
  PrintOptions m_options;
  Document m_document{{.beforePrint = 100'000, .whole = 1'000'000}};
  std::optional<PrintDialog> m_dialog;
};

}  // namespace kesto::test
