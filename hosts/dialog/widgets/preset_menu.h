// The menu of presets.
#pragma once

#include <QtWidgets/QPushButton>

namespace kesto {

class PanelSession;

/// Loads, saves and deletes presets of the queue's panel; usable only while there is one.
class PresetMenu : public QPushButton {
  Q_OBJECT

 public:
  /// `session` must outlive the menu.
  PresetMenu(PanelSession& session, QWidget* parent);
  /// With room around the text, which some styles do not count before the arrow of a menu.
  QSize sizeHint() const override { return QPushButton::sizeHint() + QSize(fontMetrics().height(), 0); }

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
