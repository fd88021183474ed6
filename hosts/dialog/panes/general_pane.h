// The pane of what every queue offers: copies, pages, and the usual few options of its PPD.
#pragma once

#include <QtCore/QMap>
#include <QtWidgets/QWidget>

#include "hosts/cups/ppd_choices.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QRadioButton;
class QSpinBox;

namespace kesto {

/// Copies and pages stay when the queue changes; the options of a PPD come and go with it.
class GeneralPane : public QWidget {
  Q_OBJECT

 public:
  explicit GeneralPane(QWidget* parent);

  /// Asks for these pages; for all of them when the text is empty.
  void setPages(const QString& pages);
  /// Offers pages that the application alone knows, such as the current one, and chooses them.
  void offerOwnPages(const QString& name);
  /// Whether these are chosen.
  bool hasOwnPages() const;
  /// How many pages the document has, 0 when that is not known. Only those are asked for.
  void setPageCount(int count);
  /// Offers the options of a queue; the PPD must outlive them. Null takes them away. What is kept for the
  /// queue, by the PPD's names, is chosen, and travels even when it is what the PPD does by itself.
  void setPpd(ppd_file_t* ppd, const QStringList& handledByPanel, const QMap<QString, QString>& kept = {});
  /// Chooses a value of an offered option of the PPD, or of "copies", "collate" or "page-ranges". Answers
  /// whether there is such a one, or it is a value of the user's own ("Custom.10x15cm"): the pane then has
  /// it, and `jobOptions` speaks for it.
  bool choose(const QString& option, const QString& choice);

  /// The value of an offered option, null for one that is not offered.
  QString chosen(const QString& option) const;
  /// The pages asked for as the option "page-ranges" takes them, null for all.
  QString pages() const;
  /// The job options that differ from what the queue does by itself.
  QMap<QString, QString> jobOptions() const;
  /// Why the job cannot be printed like this; null when it can.
  QString fault() const;
  /// Puts the focus where the fault is.
  void showFault();

 Q_SIGNALS:
  void changed();
  /// The user has chosen another value of an option of the PPD.
  void optionChosen(const QString& option, const QString& choice);

 private:
  struct Row {
    QString keyword;
    QComboBox* combo;
    int initial;
  };

  QWidget* makePages();
  void addOption(const PpdOption& option);
  void takeChoice(const Row& row);
  QString cutText() const;
  void update();

  QSpinBox* m_copies;
  QCheckBox* m_collate;
  QRadioButton* m_allPages = nullptr;
  QRadioButton* m_ownPages = nullptr;
  QRadioButton* m_somePages = nullptr;
  QLineEdit* m_pages = nullptr;
  QLabel* m_note;
  QFormLayout* m_form;
  ppd_file_t* m_ppd = nullptr;
  std::vector<Row> m_rows;
  QString m_conflict;
  int m_pageCount = 0;
};

}  // namespace kesto
