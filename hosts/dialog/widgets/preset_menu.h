// The menu of presets.
#pragma once

#include <QtWidgets/QToolButton>

namespace kesto {

class JobSession;

/// Loads, saves and deletes presets of the queue's panel; of use only while there is one.
class PresetMenu : public QToolButton {
  Q_OBJECT

 public:
  /// `session` must outlive the menu.
  PresetMenu(JobSession& session, QWidget* parent);

 Q_SIGNALS:
  /// A preset has been read into the panel.
  void loaded();

 private:
  void fill();
  void load(const QString& name);
  void save();
  void remove(const QString& name);

  JobSession& m_session;
  QMenu* m_menu;
};

}  // namespace kesto
