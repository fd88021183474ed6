// The menu of presets.
#pragma once

#include <QtWidgets/QToolButton>

namespace kesto {

class PanelSession;

/// Loads, saves and deletes presets of the queue's panel; usable only while there is one.
class PresetMenu : public QToolButton {
  Q_OBJECT

 public:
  /// `session` must outlive the menu.
  PresetMenu(PanelSession& session, QWidget* parent);

 Q_SIGNALS:
  /// A preset was loaded into the panel.
  void loaded();

 private:
  void fill();
  void load(const QString& name);
  void save();
  void remove(const QString& name);

  PanelSession& m_session;
  QMenu* m_menu;
};

}  // namespace kesto
