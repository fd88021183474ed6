#include "panel/model/radio_matrix.h"

namespace kesto {

RadioCell::RadioCell(const QString& name, RadioMatrix* matrix, int row)
    : Control(name, matrix->view()), m_matrix(matrix), m_row(row) {
  connect(matrix, &Control::changed, this, &Control::changed);
}

int RadioCell::state() const {
  return m_matrix->selectedRow() == m_row ? 1 : 0;
}

bool RadioCell::isEnabled() const {
  return m_matrix->isEnabled();
}

RadioCell* RadioMatrix::addCell(const QString& name, const QString& title) {
  auto* cell = new RadioCell(name, this, static_cast<int>(m_cells.size()));  // owned by the view
  cell->setTitle(title);
  m_cells.push_back(cell);
  return cell;
}

const RadioCell* RadioMatrix::selectedCell() const {
  return m_selectedRow < 0 ? nullptr : m_cells[static_cast<std::size_t>(m_selectedRow)];
}

void RadioMatrix::setEnabled(bool enabled) {
  assign(m_enabled, enabled);
}

void RadioMatrix::selectRow(int row) {
  if (row < 0 || row >= static_cast<int>(m_cells.size()) || row == m_selectedRow) return;
  assign(m_selectedRow, row);
  Q_EMIT selectedRowChanged(this);
}

Outcome RadioMatrix::choose(int row) {
  if (!m_enabled) return Outcome::failed(objectName() + QStringLiteral(" is disabled"));
  if (row < 0 || row >= static_cast<int>(m_cells.size())) {
    return Outcome::failed(QStringLiteral("%1 has no row %2").arg(objectName()).arg(row));
  }
  selectRow(row);
  Q_EMIT actionSent(this);
  return Outcome::done();
}

}  // namespace kesto
