#include "demo/folder_list.h"

#include <QtCore/QFile>
#include <QtCore/QStringDecoder>
#include <QtCore/QStringList>
#include <algorithm>

namespace kesto {
namespace {

// The folder of one line; on failure `fault` says why.
DemoFolder folderOfLine(const QString& line, QString* fault) {
  const QStringList columns = line.split(QLatin1Char('\t'));
  DemoFolder folder{.name = columns.front(), .isLocked = columns.size() == 2 && columns.back() == u"locked"};
  const auto isControl = [](QChar c) { return c.category() == QChar::Other_Control; };
  if (folder.name.isEmpty()) {
    *fault = QStringLiteral("the folder has no name");
  } else if (std::any_of(folder.name.begin(), folder.name.end(), isControl)) {
    *fault = QStringLiteral("the folder's name has a control character");
  } else if (columns.size() > 1 && !folder.isLocked) {
    *fault = QStringLiteral("only \"locked\" may follow the tab");
  }
  return folder;
}

}  // namespace

DemoFolders sampleFolders() {
  return {{QStringLiteral("Invoices"), false},
          {QStringLiteral("Personnel"), true},
          {QStringLiteral("Übersetzungen"), false},
          {QStringLiteral("Research & Development"), true}};
}

Outcome readFolders(const QString& path, DemoFolders* folders) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    return Outcome::failed(path + QStringLiteral(": ") + file.errorString());
  QStringDecoder decoder(QStringDecoder::Utf8);
  const QString text = decoder(file.readAll());
  if (decoder.hasError()) return Outcome::failed(path + QStringLiteral(": not a text file in UTF-8"));
  folders->clear();
  int number = 0;
  for (const QString& line : text.split(QLatin1Char('\n'))) {
    ++number;
    if (line.isEmpty() || line.startsWith(QLatin1Char('#'))) continue;
    QString fault;
    folders->push_back(folderOfLine(line, &fault));
    if (!fault.isEmpty())
      return Outcome::failed(QStringLiteral("%1: line %2: %3").arg(path).arg(number).arg(fault));
  }
  return Outcome::done();
}

QByteArray envelopeOf(const QByteArray& responseChildren) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<soapenv:Envelope xmlns:soapenv=\"http://schemas.xmlsoap.org/soap/envelope/\">\n"
         "<soapenv:Body>\n<list-files-response xmlns=\"urn:kesto:document-filing\">\n" +
         responseChildren + "</list-files-response>\n</soapenv:Body>\n</soapenv:Envelope>\n";
}

QByteArray elementOf(const DemoFolder& folder) {
  return "<folder><name>" + folder.name.toHtmlEscaped().toUtf8() + "</name><password>" +
         (folder.isLocked ? "true" : "false") + "</password><dir>true</dir></folder>\n";
}

QByteArray listOf(const DemoFolders& folders) {
  QByteArray elements;
  for (const DemoFolder& folder : folders)
    elements += elementOf(folder);
  return envelopeOf("<result-code>ok</result-code>\n<files>\n" + elements + "</files>\n");
}

}  // namespace kesto
