#include "demo/printer_fault.h"

#include <algorithm>
#include <array>

namespace kesto {

std::span<const PrinterFault> printerFaults() {
  static constexpr std::array table{
      PrinterFault{"jam", "the paper is jammed", "media-jam-error", "Remove the paper from tray 1"},
      PrinterFault{"no-paper", "there is no paper", "media-empty-error", "Load A4 paper into tray 1"},
      PrinterFault{"paused", "the print server sends it no jobs", nullptr, "Paused for maintenance"},
  };
  return table;
}

const PrinterFault* printerFaultNamed(const QString& name) {
  const auto row = std::ranges::find_if(printerFaults(),
                                        [&](const auto& each) { return name == QLatin1String(each.name); });
  return row == printerFaults().end() ? nullptr : &*row;
}

}  // namespace kesto
