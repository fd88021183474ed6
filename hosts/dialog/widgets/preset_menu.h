// The menu of presets.
#pragma once

#include <QtWidgets/QPushButton>

#include "platform/outcome.h"

namespace kesto {

class PanelSession;

/// Loads, saves and deletes presets; usable only while there is a queue. It shows the one that was loaded or
/// saved last, with a mark once something is chosen differently.
class PresetMenu : public QPushButton {
  Q_OBJECT

 public:
  /// `session` must outlive the menu.
  PresetMenu(PanelSession& session, QWidget* parent);
  /// With room around the text, which some styles do not count before the arrow of a menu.
  QSize sizeHint() const override { return QPushButton::sizeHint() + QSize(fontMetrics().height(), 0); }

  /// Call it whenever something may be chosen differently.
  void showActive();

 Q_SIGNALS:
  /// A preset was loaded; what does not fit the printer is named.
  void loaded(const QStringList& others);
  /// The button has another text, without a mnemonic.
  void renamed();

 private:
  QString activeText() const;
  QAction* addPreset(const QString& name);
  void fill();
  void load(const QString& name);
  void loadLastUsed();
  void take(const Outcome& loaded, const QStringList& others);
  void save();
  bool mayReplace(const QString& name);
  void remove(const QString& name);
  void warn(const Outcome& failure);

  PanelSession& m_session;
  QMenu* m_menu;
};

}  // namespace kesto
