// The root of a panel's controls, and the keyboard focus among them.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QObject>

#include "platform/export.h"

namespace kesto {

class Control;
class TextField;

/// Owns the controls of one panel and knows which of its fields has keyboard focus.
class KESTO_EXPORT PanelView : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  /// All controls, in the order of their creation.
  QList<Control*> controls() const;
  /// The control of that name and type; null when there is none.
  template <class T = Control>
  T* control(const QString& name) const {
    return findChild<T*>(name, Qt::FindDirectChildrenOnly);
  }

  /// The Qt Designer form in UTF-8 from which the controls were created. A host with a window shows it and
  /// binds each widget to the control of the same name.
  const QByteArray& form() const { return m_form; }
  void setForm(const QByteArray& form) { m_form = form; }

  /// The field that has keyboard focus, null for none.
  TextField* firstResponder() const { return m_firstResponder; }
  /// Gives the keyboard focus to a field, or to none (null).
  void makeFirstResponder(TextField* field);

 Q_SIGNALS:
  void firstResponderChanged();

 private:
  QByteArray m_form;
  TextField* m_firstResponder = nullptr;
};

}  // namespace kesto
