// The real panel of the demo queue, in widgets.
#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QVBoxLayout>

#include "hosts/dialog/panel/panel_pane.h"
#include "hosts/dialog/user/dialog_user.h"
#include "hosts/dialog/widgets/mnemonics.h"
#include "hosts/dialog/widgets/plain_text.h"
#include "hosts/session/panel_host.h"
#include "hosts/session/preset_store.h"
#include "panel/model/panel_view.h"
#include "platform/alert_presenter.h"
#include "platform/bundle.h"
#include "tests/support/warnings.h"

namespace kesto::test {

inline QString demoPpd() {
  return QCoreApplication::applicationDirPath() + u"/../share/kesto/kesto-vq250n.ppd"_s;
}

struct NoAlerts : AlertPresenter {
  void runInformationalAlert(const QString& /*title*/, const QString& message,
                             const QString& /*button*/) override {
    ADD_FAILURE() << "an alert: " << message;
  }
};

/// What a user does, in order: "name" clicks, "name=text" types over what is there.
inline void useWidgets(QWidget& window, const Text& operations) {
  DialogUser user(window);
  for (const QString& operation : operations.split(u' ')) {
    const QString name = operation.section(u'=', 0, 0);
    const Outcome done =
        name == operation ? user.click(name) : user.replace(name, operation.section(u'=', 1));
    ASSERT_TRUE(done) << done.reason();
  }
}

/// A window with the pane of a panel, operated by a simulated user.
class PaneWindow : public QWidget {
 public:
  PaneWindow() {
    qputenv("XDG_CONFIG_HOME", m_home.path().toUtf8());
    PrintDialogPlugIn* plugIn = nullptr;
    EXPECT_TRUE(loadJobHandlingBundle(&m_bundle, &plugIn));
    m_platform = std::make_unique<SystemPlatform>(m_bundle, m_alerts);
    host.emplace(*m_platform);
    host->session.currentPrinter = Printer{.id = u"Office_MFP"_s, .deviceUri = u"socket://192.0.2.1"_s};
    host->settings.emplace().setJobName(u"report.pdf"_s);
    EXPECT_TRUE(openPpdFile(demoPpd(), &m_ppd));
    host->ppd = m_ppd.get();
    EXPECT_TRUE(host->openPanel(*plugIn));
    view = host->panel()->panelView();
    restorePanel(*host, {});
    std::unique_ptr<PanelPane> made;
    EXPECT_TRUE(PanelPane::make(*view, *m_bundle, &made));
    pane = made.release();
    (new QVBoxLayout(this))->addWidget(pane);
    assignMnemonics(*this);
    show();
    activateWindow();
    EXPECT_TRUE(DialogUser::waitUntil([this] { return isActiveWindow(); }, u"the window"_s));
  }

  template <class T = QWidget>
  T* widget(const QString& name) const {
    T* found = findChild<T*>(name);
    EXPECT_NE(found, nullptr) << name;
    return found;
  }
  template <class T>
  T* control(const QString& name) const {
    T* found = view->control<T>(name);
    EXPECT_NE(found, nullptr) << name;
    return found;
  }
  /// The value of a print setting that the panel writes, by the key without its prefix; null when it is
  /// absent.
  QString setting(const QString& name) {
    host->panel()->saveValuesAndReturnError(nullptr);
    return host->settings->value(u"kesto.print.PrintSettings."_s + name).value_or(QString());
  }

 private:
  QTemporaryDir m_home;
  PpdFile m_ppd;
  NoAlerts m_alerts;
  std::shared_ptr<const Bundle> m_bundle;
  std::unique_ptr<SystemPlatform> m_platform;

 public:
  std::optional<PanelHost> host;
  PanelView* view = nullptr;
  PanelPane* pane = nullptr;
  DialogUser user{*this};
};

}  // namespace kesto::test
