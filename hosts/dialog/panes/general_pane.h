// The pane of what every queue offers: copies, pages, and the usual few options of its PPD.
#pragma once

#include <QtWidgets/QWidget>

#include "hosts/session/job_options.h"

class QBoxLayout;
class QFormLayout;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace kesto {

/// Has a control for each option of the table's general group that the job or its queue has, and shows and
/// changes the job's options by them. Those of the job stay when the queue changes; the queue's come and go
/// with it.
class GeneralPane : public QWidget {
  Q_OBJECT

 public:
  /// `options` must outlive the pane.
  GeneralPane(JobOptions& options, QWidget* parent);

  /// Offers pages that the application alone knows, such as the current one.
  void offerApplicationsPages(const QString& name);
  /// Makes the controls of the queue that the options are open for, but for what its panel handles.
  void showQueue(const QStringList& handledByPanel);

  /// Why the job cannot be printed like this; null when it can.
  QString fault() const;
  /// Puts the focus where the fault is.
  void showFault();

 private:
  struct Control {
    const OptionRow* row;
    QWidget* widget;
  };

  void addRow(const OptionRow& row);
  QLabel* makeLabel(const OptionRow& row, QWidget& control);
  void addNumber(const OptionRow& row);
  void addSwitch(const OptionRow& row);
  void addChoice(const OptionRow& row);
  void addPages(const OptionRow& row);
  void take(const OptionRow& row, const QString& value);
  void takePages(const OptionRow& row);
  void show(const Control& control);
  void showPages(const QString& value);
  void update();
  QString note() const;

  JobOptions& m_options;
  std::vector<Control> m_controls;
  QRadioButton* m_allPages = nullptr;
  QRadioButton* m_applicationsPages = nullptr;
  QRadioButton* m_somePages = nullptr;
  QLineEdit* m_pages = nullptr;
  QLabel* m_note;
  QFormLayout* m_form;
  QBoxLayout* m_line = nullptr;  // of the last number
};

}  // namespace kesto
