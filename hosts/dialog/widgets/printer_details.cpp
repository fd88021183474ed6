#include "hosts/dialog/widgets/printer_details.h"

#include <QtGui/QColor>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>

#include "hosts/dialog/widgets/plain_text.h"
#include "hosts/dialog/widgets/queue_list_model.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

constexpr int fullSupply = 100;

// Printers name their supplies as they like.
QLabel* titleOf(const QString& text) {
  auto* title = new QLabel;
  setPlainText(*title, text);
  return title;
}

}  // namespace

PrinterDetails::PrinterDetails(QWidget* parent) : QDialog(parent, Qt::Popup) {
  setAccessibleName(tr("Printer"));
  setObjectName(QStringLiteral("printerDetails"));
}

void PrinterDetails::showQueue(const QueueSummary& queue) {
  qDeleteAll(findChildren<QWidget*>(Qt::FindDirectChildrenOnly));
  delete layout();
  auto* form = new QFormLayout(this);
  form->setLabelAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
  addLine(tr("Name:"), queue.name);
  addLine(tr("Description:"), queue.info);
  addLine(tr("Model:"), queue.model);
  addLine(tr("Location:"), queue.location);
  addLine(tr("State:"), QueueListModel::stateText(queue));
  addLine(tr("Message:"), queue.stateMessage);
  for (const Supply& supply : queue.supplies)
    addSupply(supply);
}

void PrinterDetails::addLine(const QString& label, const QString& text) {
  if (text.isEmpty()) return;
  auto* line = new QLabel(this);
  line->setTextFormat(Qt::PlainText);
  line->setWordWrap(true);
  line->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  line->setText(shownText(text));
  line->setAccessibleName(label);
  static_cast<QFormLayout*>(layout())->addRow(titleOf(label), line);
}

// A level that the printer does not know has no bar.
void PrinterDetails::addSupply(const Supply& supply) {
  if (supply.level < 0) return addLine(shownText(supply.name), tr("Level unknown"));
  auto* bar = new QProgressBar(this);
  bar->setRange(0, fullSupply);
  bar->setValue(supply.level);
  bar->setAccessibleName(shownText(supply.name));
  bar->setFocusPolicy(Qt::TabFocus);
  if (const QColor color(supply.color); color.isValid()) {
    QPalette palette = bar->palette();
    palette.setColor(QPalette::Highlight, color);
    bar->setPalette(palette);
  }
  static_cast<QFormLayout*>(layout())->addRow(titleOf(supply.name), bar);
}

}  // namespace kesto
