#include "hosts/dialog/widgets/help.h"

#include <QtCore/QCoreApplication>
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
    Topic{QT_TRANSLATE_NOOP("Help", "Hold a job on the printer"),
          QT_TRANSLATE_NOOP(
              "Help",
              "Turn on Retention on the pane Job Handling and give a pass code of up to 8 digits. The "
              "job waits in the printer until you enter the code there.")},
    Topic{QT_TRANSLATE_NOOP("Help", "Say who you are"),
          QT_TRANSLATE_NOOP(
              "Help",
              "Where the printer counts pages, give your user number or your login name on the page "
              "User and Account.")},
    Topic{
        QT_TRANSLATE_NOOP("Help", "Have an entry remembered"),
        QT_TRANSLATE_NOOP("Help",
                          "Close the padlock beside an entry. It is offered again for this printer; open the "
                          "padlock to change it.")},
    Topic{
        QT_TRANSLATE_NOOP("Help", "Choose a folder of the printer"),
        QT_TRANSLATE_NOOP("Help", "Get Folder Names asks the printer at the address above for its folders.")},
    Topic{QT_TRANSLATE_NOOP("Help", "Keys"),
          QT_TRANSLATE_NOOP(
              "Help",
              "Alt and the underlined letter go to an entry, with Shift to its padlock. Enter prints, "
              "Escape cancels, Ctrl+R shows a pass code while the cursor is in it.")},
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
    dialog->resize(parent.fontMetrics().horizontalAdvance(u'0') * 55, parent.fontMetrics().height() * 22);
  }
  dialog->show();
  dialog->raise();
  dialog->activateWindow();
}

}  // namespace kesto
