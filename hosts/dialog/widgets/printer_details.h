// What there is to know of the chosen printer, beside its state.
#pragma once

#include <QtWidgets/QDialog>

#include "hosts/cups/print_server.h"

namespace kesto {

/// A popover with the printer's description, model, place and state, and its supplies as bars. Escape or a
/// click outside closes it.
class PrinterDetails : public QDialog {
  Q_OBJECT

 public:
  explicit PrinterDetails(QWidget* parent);

  /// Shows these details in place of others.
  void showQueue(const QueueSummary& queue);

 private:
  void addLine(const QString& label, const QString& text);
  void addSupply(const Supply& supply);
};

}  // namespace kesto
