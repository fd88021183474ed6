#include "hosts/dialog/preview/document_conversion.h"

#include <QtCore/QStandardPaths>

namespace kesto {
namespace {

// The smallest PPD with a paper of its own.
QByteArray ppdOf(const SheetPaper& paper) {
  const auto points = [](double first, double second) {
    return QByteArray::number(first, 'f', 2) + ' ' + QByteArray::number(second, 'f', 2);
  };
  const QMarginsF& margins = paper.margins;
  return "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n*LanguageVersion: English\n"
         "*LanguageEncoding: ISOLatin1\n*PCFileName: \"PREVIEW.PPD\"\n*Manufacturer: \"Kesto\"\n"
         "*Product: \"(Preview)\"\n*ModelName: \"Preview\"\n*NickName: \"Preview\"\n"
         "*ShortNickName: \"Preview\"\n*PSVersion: \"(3010) 0\"\n*ColorDevice: True\n"
         "*OpenUI *PageSize: PickOne\n*DefaultPageSize: P\n*PageSize P: \"\"\n*CloseUI: *PageSize\n"
         "*OpenUI *PageRegion: PickOne\n*DefaultPageRegion: P\n*PageRegion P: \"\"\n*CloseUI: *PageRegion\n"
         "*DefaultImageableArea: P\n*ImageableArea P: \"" +
         points(margins.left(), margins.bottom()) + ' ' +
         points(paper.size.width() - margins.right(), paper.size.height() - margins.top()) +
         "\"\n*DefaultPaperDimension: P\n*PaperDimension P: \"" +
         points(paper.size.width(), paper.size.height()) + "\"\n";
}

}  // namespace

ConversionLayout::ConversionLayout(const SheetPaper& paper, const QMap<QString, QString>& given)
    : ppd(ppdOf(paper)) {
  for (const char* name : {"columns", "cpi", "lpi", "page-bottom", "page-left", "page-right", "page-top",
                           "prettyprint", "wrap", "orientation-requested", "sides"}) {
    const QString value = given.value(QLatin1String(name));
    if (!value.isNull()) options.append(QLatin1String(name) + u'=' + value);
  }
}

PageProgram::Work conversionOf(const QString& document, const QString& ppd, const ConversionLayout& layout) {
  const QString name = QStringLiteral("cupsfilter");
  QString program = QStandardPaths::findExecutable(name);
  // It is where users do not look for programs.
  if (program.isNull()) program = QStandardPaths::findExecutable(name, {QStringLiteral("/usr/sbin")});
  QStringList arguments{QStringLiteral("-p"), ppd, QStringLiteral("-m"), QStringLiteral("application/pdf")};
  for (const QString& option : layout.options)
    arguments << QStringLiteral("-o") << option;
  arguments << document;
  return {.program = program, .arguments = arguments};
}

}  // namespace kesto
