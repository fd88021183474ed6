#include "hosts/dialog/widgets/help.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QScreen>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QVBoxLayout>
#include <array>

namespace kesto {
namespace {

struct Topic {
  const char* title;
  const char* text;
};

constexpr std::array topics{
    Topic{QT_TRANSLATE_NOOP("Help", "Choose a printer"),
          QT_TRANSLATE_NOOP(
              "Help",
              "Choose a printer from the list. When the list is long, type a part of the printer's name and "
              "press Enter. The line below the list says whether the printer is ready.")},
    Topic{QT_TRANSLATE_NOOP("Help", "Print some of the pages"),
          QT_TRANSLATE_NOOP("Help",
                            "Choose Selected pages and enter page numbers or ranges, for example 1-3, 5. A "
                            "range may be open: 5- prints page 5 and all pages after it.")},
    Topic{QT_TRANSLATE_NOOP("Help", "Print on both sides"),
          QT_TRANSLATE_NOOP("Help",
                            "Choose Long edge for pages that turn like those of a book, or Short edge for "
                            "pages that turn like those of a notepad.")},
    Topic{
        QT_TRANSLATE_NOOP("Help", "Print several pages on a sheet"),
        QT_TRANSLATE_NOOP("Help",
                          "Under Layout, choose the number of Pages per sheet, their order and a border. "
                          "Booklet, on a printer that makes booklets, arranges the pages so that the folded "
                          "sheets can be read like a book.")},
    Topic{QT_TRANSLATE_NOOP("Help", "Fit the pages to the paper"),
          QT_TRANSLATE_NOOP(
              "Help",
              "Under Layout, Scaling decides what happens to pages that are larger or smaller than "
              "the paper. Fit to paper shows them whole, Fill paper leaves no margin and may cut "
              "off edges, and Actual size leaves them as they are. The percentage of Custom counts "
              "for images.")},
    Topic{QT_TRANSLATE_NOOP("Help", "Choose when to print"),
          QT_TRANSLATE_NOOP(
              "Help",
              "Under Job, Print holds the job on the print server until a time, or, with On hold, "
              "until you release it in the system's list of print jobs. Of the jobs that wait, the "
              "one with the highest priority is printed first.")},
    Topic{
        QT_TRANSLATE_NOOP("Help", "Add cover sheets and billing information"),
        QT_TRANSLATE_NOOP("Help",
                          "Under Job, choose a cover sheet that is printed before or after the document. "
                          "Billing information, such as the number of a project, is kept with the job in the "
                          "records of the print server.")},
    Topic{
        QT_TRANSLATE_NOOP("Help", "Find another option of the printer"),
        QT_TRANSLATE_NOOP("Help",
                          "More options has all other options of the printer. Type a part of a name into the "
                          "filter to see only the options that have it.")},
    Topic{QT_TRANSLATE_NOOP("Help", "See what will be printed"),
          QT_TRANSLATE_NOOP("Help",
                            "The preview shows the sheets of paper as they will leave the printer. Turn the "
                            "pages with the arrows below it or with Page Up and Page Down, and enlarge them "
                            "with Ctrl and the mouse wheel.")},
    Topic{QT_TRANSLATE_NOOP("Help", "Save the pages as a PDF file"),
          QT_TRANSLATE_NOOP(
              "Help",
              "Choose Save as PDF in the list of printers, and press Save. The file has the "
              "pages that you selected. Only PDF documents can be saved, and only their pages and "
              "the order of the pages can be chosen.")},
    Topic{QT_TRANSLATE_NOOP("Help", "Print a document that is protected by a password"),
          QT_TRANSLATE_NOOP(
              "Help",
              "When you press Print, the dialog asks for the password of the document. It prints a "
              "copy without the password, which only you can read and which is deleted "
              "afterwards.")},
    Topic{QT_TRANSLATE_NOOP("Help", "Hold a job on the printer with a pass code"),
          QT_TRANSLATE_NOOP(
              "Help",
              "Under Job Handling, turn on Retention and enter a pass code of up to 8 digits. The job waits "
              "in the printer until someone enters the pass code there. Hold after printing keeps the job "
              "after it is printed. Sample print prints one copy and holds the others.")},
    Topic{QT_TRANSLATE_NOOP("Help", "Say who you are"),
          QT_TRANSLATE_NOOP("Help",
                            "Some printers ask who is printing. Under User and account, enter your user "
                            "number, or your login name and password.")},
    Topic{QT_TRANSLATE_NOOP("Help", "Use an entry again"),
          QT_TRANSLATE_NOOP("Help",
                            "Close the padlock next to an entry. The entry is then remembered for this "
                            "printer. To change it, open the padlock.")},
    Topic{
        QT_TRANSLATE_NOOP("Help", "Choose a folder on the printer"),
        QT_TRANSLATE_NOOP(
            "Help",
            "Under Job Handling, turn on Retention. Under Document filing, choose Custom folder and enter "
            "the "
            "name of a folder. Get folder names asks the printer for its folders, so that you can choose one "
            "from the list.")},
    Topic{QT_TRANSLATE_NOOP("Help", "Save your settings as a preset"),
          QT_TRANSLATE_NOOP("Help",
                            "Press Presets and choose Save as preset. To use the settings again, choose the "
                            "preset there. The pass codes are saved only if you include them.")},
    Topic{QT_TRANSLATE_NOOP("Help", "See what others can see of a job"),
          QT_TRANSLATE_NOOP("Help",
                            "In the Summary, press Who can see this job? The answer says which details of a "
                            "job the print server shows to other users, and how to hide them.")},
    Topic{QT_TRANSLATE_NOOP("Help", "Cancel a job"),
          QT_TRANSLATE_NOOP(
              "Help",
              "Press Cancel while the job is being sent. While the dialog follows the job, press "
              "Cancel job; Print again sends a job once more that has failed. After the dialog has "
              "closed, use the system's list of print jobs.")},
    Topic{QT_TRANSLATE_NOOP("Help", "Use the keyboard"),
          QT_TRANSLATE_NOOP("Help",
                            "Alt and an underlined letter go to a control; Alt, Shift and the letter go to "
                            "the padlock next to it. Enter prints, Escape cancels, and F1 opens this help. "
                            "Ctrl+R shows the digits of a pass code while the cursor is in it.")},
};

QString helpText() {
  QString html;
  for (const Topic& topic : topics) {
    html += QStringLiteral("<h3>%1</h3><p>%2</p>")
                .arg(QCoreApplication::translate("Help", topic.title).toHtmlEscaped(),
                     QCoreApplication::translate("Help", topic.text).toHtmlEscaped());
  }
  return html;
}

}  // namespace

void showHelp(QWidget& parent) {
  constexpr char name[] = "help";
  auto* dialog = parent.findChild<QDialog*>(QLatin1String(name));
  if (dialog == nullptr) {
    dialog = new QDialog(&parent);
    dialog->setObjectName(QLatin1String(name));
    dialog->setWindowTitle(QCoreApplication::translate("Help", "Help for printing"));
    auto* text = new QTextBrowser(dialog);
    text->setHtml(helpText());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, dialog);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    auto* column = new QVBoxLayout(dialog);
    column->addWidget(text);
    column->addWidget(buttons);
    const QSize whole(parent.fontMetrics().horizontalAdvance(u'0') * 80, parent.fontMetrics().height() * 40);
    dialog->resize(whole.boundedTo(parent.screen()->availableSize() * 0.9));
  }
  dialog->show();
  dialog->raise();
  dialog->activateWindow();
}

}  // namespace kesto
