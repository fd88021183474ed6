// A pane of a job's options.
#pragma once

#include <QtCore/QTimer>

#include "hosts/dialog/panes/option_control.h"

class QFormLayout;
class QHBoxLayout;
class QLabel;

namespace kesto {

/// Has a control for each option of one group that the job or its queue has, and shows and changes the job's
/// options by them. They are made when the pane is first shown. Those of the job stay when the queue changes;
/// the queue's come and go with it.
class OptionPane : public QWidget {
  Q_OBJECT

 public:
  /// `options` must outlive the pane.
  OptionPane(OptionGroup group, JobOptions& options, QWidget* parent);

  OptionGroup group() const { return m_group; }
  /// The group's name, for people.
  static QString titleOf(OptionGroup group);
  /// The name of its object: "general", "layout", "job" or "more".
  static QString nameOf(OptionGroup group);

  /// Offers pages that the application alone knows: `JobOptions::currentPage` or `selection`.
  void offerPages(const QString& pages);
  /// Offers what the queue has that the options are open for; call it whenever they go over to another.
  void showQueue();

  void setVisible(bool isVisible) override;
  /// Whether there is anything to choose; a pane without is not to be shown.
  bool hasChoices() const { return !offeredOptions(m_options, m_group).empty(); }
  /// What is chosen here. It may change with each `JobOptions::changed`.
  Headline headline() const { return headlineOf(m_options, m_group); }
  /// Why the job cannot be printed like this, and what would do; null when it can.
  QString fault() const;
  /// Puts the focus where the fault is.
  void showFault();

 Q_SIGNALS:
  /// The controls are there, without mnemonics.
  void made();
  /// What is typed is a fault now, or is none any more.
  void faultChanged();

 private:
  struct Line {
    OptionControl* control;
    QLabel* label;  // null for a control that stands beside another
  };

  void make();
  void removeQueuesLines();
  int rowOf(QLabel& label) const;
  void addSome();
  void addOption(const OfferedOption& option);
  void addControl(OptionControl& control);
  void addSection(const QString& text);
  void addFilter();
  void filter(const QString& text);
  void showLine(const Line& line);
  void showOptions();
  void updateNote();
  QString note() const;

  OptionGroup m_group;
  JobOptions& m_options;
  bool m_isMade = false;
  QStringList m_applicationsPages;
  std::vector<Line> m_lines;
  std::vector<OfferedOption> m_missing;  // what is still to be added
  QTimer m_idle;                         // runs as long as there are any
  QHBoxLayout* m_line = nullptr;         // of a number
  QString m_section;                     // the last with a heading
  QFormLayout* m_form;
  QLabel* m_note;
};

}  // namespace kesto
