// The base of all controls: an observable object with a name, a kind and an action.
#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include "platform/export.h"

namespace kesto {

class PanelView;

/// A picture that a control shows. The model knows only its name, file and size in points.
struct Image {
  QString name;  ///< "ulck", "lock" or "space".
  QString path;  ///< The image file; null when the bundle has none.
  int points = 18;

  bool operator==(const Image&) const = default;
};

/// A control. Its properties are what a host shows, and `changed()` is emitted after a change of any of them.
/// Only the user's operations send the action; setting a property from code does not.
class KESTO_EXPORT Control : public QObject {
  Q_OBJECT
  Q_PROPERTY(QString kind READ kind CONSTANT)
  Q_PROPERTY(bool hidden READ isHidden NOTIFY changed)

 public:
  /// `name` becomes the object name; the view owns the control.
  Control(const QString& name, PanelView* view);

  /// What it is: "checkBox", "holdButton", "pushButton", "matrix", "radio", "popUp", "textField", "label",
  /// "box", "tabView" or "progress".
  virtual QString kind() const = 0;

  bool isHidden() const { return m_hidden; }
  void setHidden(bool hidden) { assign(m_hidden, hidden); }

  /// The name of the action that the user's operation sends; empty for none.
  const QString& action() const { return m_action; }
  void setAction(const QString& action) { m_action = action; }

  /// The view that holds the control.
  PanelView* view() const { return m_view; }

 Q_SIGNALS:
  /// A property has changed.
  void changed();
  /// The user has operated the control, and its action is to run.
  void actionSent(kesto::Control* sender);

 protected:
  template <class T>
  void assign(T& field, T value) {
    if (field == value) return;
    field = std::move(value);
    Q_EMIT changed();
  }

 private:
  PanelView* m_view;
  QString m_action;
  bool m_hidden = false;
};

}  // namespace kesto
