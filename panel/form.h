// A layout resource (a Qt Designer form) as the panel needs it: widgets and their values, without layouts.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <vector>

#include "platform/outcome.h"

namespace kesto {

/// The value of a property or attribute of a widget.
struct FormValue {
  QString name;
  QString text;
  bool isLeftToPanel = false;  ///< The panel's initialisation translates it.
};

/// A widget of a form with the widgets in it, or an item of a pop-up, which has only properties.
struct FormWidget {
  QString type;
  QString name;
  qint64 line = 0;
  std::vector<FormValue> properties;
  std::vector<FormValue> attributes;
  std::vector<FormWidget> children;  ///< Its direct children, however many layouts are in between.
  std::vector<FormWidget> items;
};

/// Reads the text of a form. Fails with line and fault when it is not well-formed or no form.
Outcome readForm(const QByteArray& ui, FormWidget* root);

/// The compiled state of a form, which the build makes of each: the digest of its text, and what `readForm`
/// finds in that.
QByteArray compiledForm(const QByteArray& ui, const FormWidget& root);
/// Reads that state. False, with `*root` empty, when it is not that of this text, or damaged.
bool readCompiledForm(const QByteArray& compiled, const QByteArray& ui, FormWidget* root);

}  // namespace kesto
