#include "hosts/dialog/panel/folder_choice.h"

#include <QtCore/QScopedValueRollback>

#include "hosts/session/panel_entries.h"
#include "panel/model/panel_view.h"
#include "panel/model/pop_up.h"
#include "panel/model/radio_matrix.h"

namespace kesto {

FolderChoice::FolderChoice(PanelView& view)
    : QObject(&view),
      m_popUp(view.control<PopUp>(QStringLiteral("folderSelectionPopup"))),
      m_matrix(view.control<RadioMatrix>(QStringLiteral("folderSelectionMatrix"))) {
  if (m_popUp == nullptr || m_matrix == nullptr) return;
  // The panel's own actions were connected earlier, so they have already run.
  connect(m_popUp, &Control::actionSent, this, &FolderChoice::followPopUp);
  connect(m_matrix, &Control::actionSent, this, &FolderChoice::followMatrix);
}

// Only a disabled control refuses a choice; then there is nothing to keep in step.
void FolderChoice::followPopUp() {
  if (m_isFollowing) return;
  const QScopedValueRollback following(m_isFollowing, true);
  const int index = m_popUp->selectedIndex();
  const int row = qMin(index, int{CustomFolder});
  if (row < 0 || m_matrix->selectedRow() == row) return;
  (void)m_matrix->choose(row);
  (void)m_popUp->choose(index);
}

void FolderChoice::followMatrix() {
  if (m_isFollowing) return;
  const QScopedValueRollback following(m_isFollowing, true);
  const int row = m_matrix->selectedRow();
  const int index = m_popUp->selectedIndex();
  const int wanted = row < CustomFolder ? row : qMax(index, int{MainFolder});
  if (wanted < 0 || index == wanted) return;
  (void)m_popUp->choose(wanted);
  (void)m_matrix->choose(row);
}

void FolderChoice::align() {
  if (m_popUp != nullptr && m_matrix != nullptr) followMatrix();
}

}  // namespace kesto
