// Documents that only the print system's own filters can read.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QStringList>

#include "hosts/dialog/preview/page_program.h"
#include "hosts/session/sheet_plan.h"

namespace kesto {

/// What decides how a filter lays out a text or a PostScript document, before pages are put on sheets.
struct ConversionLayout {
  /// `options` as `SheetPlan` takes them.
  ConversionLayout(const SheetPaper& paper, const QMap<QString, QString>& options);

  bool operator==(const ConversionLayout&) const = default;

  QByteArray ppd;       ///< Describes the paper.
  QStringList options;  ///< "name=value", of those that such filters know.
};

/// The print system's program for this, which writes the document as PDF to its standard output; `ppd` and
/// `document` are paths. It runs the filters that are installed. Its name is null when it is missing.
PageProgram::Work conversionOf(const QString& document, const QString& ppd, const ConversionLayout& layout);

}  // namespace kesto
