#include "folders/folder_answer.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringDecoder>
#include <QtCore/QXmlStreamReader>
#include <algorithm>

#include "platform/text_encoding.h"

namespace kesto {
namespace {

enum Level : int { Envelope = 1, Body, Response, Item, Folder, FolderValue };

bool isBlank(QChar c) {
  return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r';
}

// Follows the document in one pass. Which child of a node is the last is known only at the node's end, so
// each new child of the envelope and of the body starts afresh what was read below its elder sibling.
class AnswerReader {
 public:
  explicit AnswerReader(QXmlStreamReader& xml) : m_xml(xml) {}

  std::optional<FolderAnswer> read() {
    while (!m_xml.atEnd())
      step(m_xml.readNext());
    if (m_xml.hasError()) return std::nullopt;
    FolderAnswer answer;
    answer.isList = m_response.hasFiles && m_response.isOk;
    if (answer.isList) answer.folders = std::move(m_response.folders);
    return answer;
  }

 private:
  struct ResponseState {
    bool isOk = true;  // also without a result-code
    bool hasFiles = false;
    std::vector<FolderEntry> folders;
  };

  void step(QXmlStreamReader::TokenType token) {
    switch (token) {
      case QXmlStreamReader::StartElement:
        startElement();
        break;
      case QXmlStreamReader::EndElement:
        endElement();
        break;
      case QXmlStreamReader::Characters:
        characters();
        break;
      case QXmlStreamReader::Comment:
      case QXmlStreamReader::ProcessingInstruction:
      case QXmlStreamReader::EntityReference:
        node(m_depth + 1);
        break;
      default:
        break;
    }
  }

  // A node begins at the level.
  void node(int level) {
    if (level == Body || level == Response) m_response = {};
  }

  bool isNamed(const char* name) const { return m_xml.qualifiedName() == QLatin1String(name); }

  void startElement() {
    ++m_depth;
    node(m_depth);
    if (m_depth == Item) startItem();
    if (m_depth == Folder && m_inFiles) m_folder = {};
    if (m_depth == FolderValue && m_inFiles) {
      m_isValue = isNamed("name") || isNamed("password") || isNamed("dir");
      m_text.clear();
    }
  }

  void startItem() {
    m_isValue = isNamed("result-code");
    m_text.clear();
    m_inFiles = isNamed("files");
    if (!m_inFiles) return;
    m_response.hasFiles = true;
    m_response.folders.clear();
  }

  void endElement() {
    if (m_depth == Item && m_isValue) m_response.isOk = m_text == u"ok";
    if (m_depth == FolderValue && m_isValue) endFolderValue();
    if (m_depth == Folder && m_inFiles && !m_folder.name.isEmpty())
      m_response.folders.push_back(std::move(m_folder));
    if (m_depth == Item) m_inFiles = false;
    if (m_depth == Item || m_depth == FolderValue) m_isValue = false;
    --m_depth;
  }

  void endFolderValue() {
    if (isNamed("name")) m_folder.name = m_text;
    if (isNamed("password") && m_text == u"true") m_folder.password = true;
    if (isNamed("dir") && m_text == u"true") m_folder.dir = true;
  }

  void characters() {
    if (m_isValue) m_text += m_xml.text();
    // The reader's own word on blanks does not hold for those that are written as references.
    if (m_xml.isCDATA() || !std::ranges::all_of(m_xml.text(), isBlank)) node(m_depth + 1);
  }

  QXmlStreamReader& m_xml;
  int m_depth = 0;
  bool m_inFiles = false;
  bool m_isValue = false;  // the text of the element that began at Item or FolderValue is wanted
  QString m_text;
  FolderEntry m_folder;
  ResponseState m_response;
};

// The encoding that the document declares in its first line; empty when it declares none, or not in ASCII.
QByteArray declaredEncoding(const QByteArray& xml) {
  static const QRegularExpression declaration(
      QStringLiteral("^<\\?xml[^>]*\\sencoding\\s*=\\s*[\"']([A-Za-z][-A-Za-z0-9._]*)[\"']"));
  return declaration.match(QString::fromLatin1(xml.left(200))).captured(1).toLatin1();
}

}  // namespace

std::optional<FolderAnswer> readFolderAnswer(const QByteArray& xml) {
  QXmlStreamReader reader;
  reader.setNamespaceProcessing(false);
  const QByteArray encoding = declaredEncoding(xml);
  if (encoding.isEmpty() || QStringDecoder::encodingForName(encoding.constData())) {
    reader.addData(xml);
  } else {
    // Of the encodings beyond Unicode and Latin-1 the reader knows none.
    const QString text = textOfBytesIn(xml, encoding);
    if (text.isNull()) return std::nullopt;
    reader.addData(text);
  }
  return AnswerReader(reader).read();
}

}  // namespace kesto
