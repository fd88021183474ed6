// The scripted panel: commands in JSON, one object a line (docs/formats/scripted-panel.md).
#pragma once

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

#include "hosts/session/panel_host.h"
#include "panel/model/control.h"
#include "platform/alert_presenter.h"

namespace kesto {

/// Collects the alerts instead of showing them, and dismisses each at once.
class AlertRecorder : public AlertPresenter {
 public:
  void runInformationalAlert(const QString& title, const QString& message, const QString& button) override;
  /// The alerts since the last call.
  QJsonArray take();

 private:
  QJsonArray m_alerts;
};

/// Carries out commands on one panel.
class ScriptSession {
 public:
  /// `host` has its panel open; `plugIn` and `alerts` outlive the session.
  ScriptSession(PanelHost& host, PrintDialogPlugIn& plugIn, AlertRecorder& alerts)
      : m_host(host), m_plugIn(plugIn), m_alerts(alerts) {}

  /// Carries out one line and returns the answer: `{"error":...}` for a line that is not a command or cannot
  /// be carried out.
  QJsonObject answer(const QByteArray& line);
  /// Whether `quit` was asked for.
  bool isOver() const { return m_isOver; }

 private:
  struct CommandRow;
  static const CommandRow* commandNamed(const QString& name);

  QJsonObject panels(const QJsonObject& command);
  QJsonObject show(const QJsonObject& command);
  QJsonObject restore(const QJsonObject& command);
  QJsonObject save(const QJsonObject& command);
  QJsonObject shouldPrint(const QJsonObject& command);
  QJsonObject summary(const QJsonObject& command);
  QJsonObject click(const QJsonObject& command);
  QJsonObject select(const QJsonObject& command);
  QJsonObject type(const QJsonObject& command);
  QJsonObject paste(const QJsonObject& command);
  QJsonObject caret(const QJsonObject& command);
  QJsonObject backspace(const QJsonObject& command);
  QJsonObject controls(const QJsonObject& command);
  QJsonObject facts(const QJsonObject& command);
  QJsonObject settings(const QJsonObject& command);
  QJsonObject set(const QJsonObject& command);
  QJsonObject quit(const QJsonObject& command);

  template <class T>
  T* controlOf(const QJsonObject& command) const;

  PanelHost& m_host;
  PrintDialogPlugIn& m_plugIn;
  AlertRecorder& m_alerts;
  bool m_isOver = false;
};

}  // namespace kesto
