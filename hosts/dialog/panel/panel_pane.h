// The pane of a panel: its form as widgets, bound to its controls.
#pragma once

#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

#include "hosts/session/panel_entries.h"
#include "platform/outcome.h"

namespace kesto {

class Bundle;
class Control;
class FolderChoice;
class PanelView;
class PrintDialogPanel;
class TextField;

/// Shows one panel. The panel belongs to the host and may be destroyed before the pane, which then does
/// nothing.
class PanelPane : public QWidget {
  Q_OBJECT

 public:
  /// Loads the panel's form, with images from the bundle's resources. On failure `*pane` is null.
  static Outcome make(PanelView& view, const Bundle& bundle, std::unique_ptr<PanelPane>* pane);

  /// After a restore, brings choices in step that the form offers twice.
  void alignChoices();
  /// Says beside the choice of a folder that it has no effect on the job.
  void sayNothingIsFiled();
  /// Puts the focus on the entry that is missing in a refused job.
  void showEntry(Entry entry);

 Q_SIGNALS:
  /// Something in the panel has changed; emitted once for changes at the same time.
  void panelChanged();
  /// The user has asked for the printer's folders. The text says why the given address cannot be asked; null
  /// when the printer was asked.
  void addressJudged(const QString& fault);

 private:
  explicit PanelPane(PanelView& view);
  void bind();
  void describe(QWidget& widget);
  void describeHoldButton(QWidget& button, const QString& stem);
  void moveFocusAfter(const Control* operated);
  QWidget* nextEntryAfter(const Control& operated) const;
  void alignFirstResponder();
  QString addressFault() const;
  void refresh();
  QWidget* widgetOf(const QString& name) const;

  PanelView* m_view;
  FolderChoice* m_folderChoice;
  QTimer m_refresh;
};

}  // namespace kesto
