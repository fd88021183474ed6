// Radio buttons in rows, of which one is chosen.
#pragma once

#include <vector>

#include "panel/model/control.h"
#include "platform/export.h"
#include "platform/outcome.h"

namespace kesto {

class RadioMatrix;

/// One row of a matrix. Its state is 1 exactly while its row is selected.
class KESTO_EXPORT RadioCell : public Control {
  Q_OBJECT
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(bool enabled READ isEnabled NOTIFY changed)
  Q_PROPERTY(int state READ state NOTIFY changed)

 public:
  /// Called by RadioMatrix::addCell.
  RadioCell(const QString& name, RadioMatrix* matrix, int row);

  QString kind() const override { return QStringLiteral("radio"); }
  const QString& title() const { return m_title; }
  void setTitle(const QString& title) { assign(m_title, title); }
  int state() const;
  /// Like the matrix.
  bool isEnabled() const;
  RadioMatrix* matrix() const { return m_matrix; }
  int row() const { return m_row; }

 private:
  RadioMatrix* m_matrix;
  int m_row;
  QString m_title;
};

/// A column of radio cells; row -1 when none is selected.
class KESTO_EXPORT RadioMatrix : public Control {
  Q_OBJECT
  Q_PROPERTY(bool enabled READ isEnabled NOTIFY changed)
  Q_PROPERTY(int selectedRow READ selectedRow NOTIFY changed)

 public:
  using Control::Control;

  QString kind() const override { return QStringLiteral("matrix"); }

  /// Appends a row; the view owns the cell.
  RadioCell* addCell(const QString& name, const QString& title);
  /// The cell of the selected row, null when none is selected.
  const RadioCell* selectedCell() const;

  bool isEnabled() const { return m_enabled; }
  void setEnabled(bool enabled);

  int selectedRow() const { return m_selectedRow; }
  /// Selects a row that exists; another number changes nothing.
  void selectRow(int row);

  /// The names of the enabling rules that run whenever the selected row changes, before any action is sent.
  const QStringList& rules() const { return m_rules; }
  void setRules(const QStringList& rules) { m_rules = rules; }

  /// The user chooses a row, possibly the selected one: sends the action. Fails when disabled or out of
  /// range.
  Outcome choose(int row);

 Q_SIGNALS:
  /// Emitted when another row is selected, by the user or from code.
  void selectedRowChanged(kesto::RadioMatrix* matrix);

 private:
  std::vector<RadioCell*> m_cells;
  QStringList m_rules;
  int m_selectedRow = -1;
  bool m_enabled = true;
};

}  // namespace kesto
