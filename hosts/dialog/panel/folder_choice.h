// The folder pop-up and the folder matrix of a panel, which offer the same choice twice, kept in step.
#pragma once

#include <QtCore/QObject>

namespace kesto {

class PanelView;
class PopUp;
class RadioMatrix;

/// Operates the one as a user would who has operated the other: items 0 and 1 go with rows 0 and 1, a folder
/// with row 2; row 2 moves an item "quick file" to "main folder". What the user operated has the last word.
/// Does nothing in a panel that lacks one of the two. Lives as long as the view.
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
