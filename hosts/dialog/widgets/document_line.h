// The line of a print dialog that names its document.
#pragma once

#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

class QPushButton;

namespace kesto {

class WrappedLabel;

/// The document's name, what is missing of it, and a button to choose another.
class DocumentLine : public QWidget {
  Q_OBJECT

 public:
  explicit DocumentLine(QWidget* parent);

  /// Shows a name and below it faults, one sentence each, which are announced; the tool tip has those that do
  /// not fit.
  void show(const QString& name, const QStringList& faults);
  void offerChoice(bool isOffered);

 Q_SIGNALS:
  /// The user wants to choose a document.
  void choiceAsked();

 private:
  QStringList m_faults;
  WrappedLabel* m_text;
  QPushButton* m_choose;
};

}  // namespace kesto
