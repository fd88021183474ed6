// Keeps a panel's folder pop-up and folder matrix in step, which offer the same choice twice.
#pragma once

#include <QtCore/QObject>

namespace kesto {

class PanelView;
class PopUp;
class RadioMatrix;

/// When the user operates one, operates the other as well: items 0 and 1 correspond to rows 0 and 1, a folder
/// to row 2; row 2 changes the item "quick file" to "main folder". The control that the user operated
/// decides. Does nothing in a panel without both. Exists as long as the view.
class FolderChoice : public QObject {
  Q_OBJECT

 public:
  explicit FolderChoice(PanelView& view);

  /// Brings the pop-up in step with the matrix, after a restore.
  void align();

 private:
  void followPopUp();
  void followMatrix();

  PopUp* m_popUp;
  RadioMatrix* m_matrix;
  bool m_isFollowing = false;
};

}  // namespace kesto
