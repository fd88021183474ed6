#include "folders/folder_answer.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringDecoder>
#include <QtCore/QXmlStreamReader>
#include <algorithm>

#include "folders/answer_limits.h"
#include "platform/text_encoding.h"

namespace kesto {
namespace {

enum Level : int { Envelope = 1, Body, Response, Item, Folder, FolderValue };

bool isBlank(QChar c) {
  return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r';
}

// Reads the document in one pass. Which child of a node is the last is known only at the node's end, so each
// new child of the envelope and of the body discards what was read below the previous child.
class AnswerReader {
 public:
  explicit AnswerReader(QXmlStreamReader& xml) : m_xml(xml) {}

  std::optional<FolderAnswer> read() {
    while (!m_xml.atEnd() && !m_isBeyond)
      step(m_xml.readNext());
    if (m_xml.hasError() || m_isBeyond) return std::nullopt;
    FolderAnswer answer;
    answer.isList = m_response.hasFiles && m_response.isOk;
    if (answer.isList) answer.folders = std::move(m_response.folders);
    return answer;
  }

 private:
  struct ResponseState {
    bool isOk = true;  // true without a result-code
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
        MyGetChild(m_depth + 1);
        break;
      case QXmlStreamReader::DTD:
        // The reader accepts several document types, anywhere.
        m_isBeyond = m_isBeyond || m_isPastProlog;
        m_isPastProlog = true;
        break;
      default:
        break;
    }
  }

  // A child begins at the level and is the last one so far. What was read below the previous child was
  // therefore not the body or the response.
  void MyGetChild(int level) {
    if (level == Body || level == Response) m_response = {};
  }

  bool isNamed(const char* name) const { return m_xml.qualifiedName() == QLatin1String(name); }

  void startElement() {
    m_isPastProlog = true;
    ++m_depth;
    m_isBeyond = m_isBeyond || m_depth > answer_limits::depth || hasLongName();
    MyGetChild(m_depth);
    if (m_depth == Item) startItem();
    if (m_depth == Folder && m_inFiles) m_folder = {};
    if (m_depth == FolderValue && m_inFiles && (isNamed("name") || isNamed("password") || isNamed("dir"))) {
      startValue();
    }
  }

  bool hasLongName() const {
    const QXmlStreamAttributes attributes = m_xml.attributes();
    return m_xml.qualifiedName().size() > answer_limits::nameLength ||
           std::ranges::any_of(attributes, [](const QXmlStreamAttribute& attribute) {
             return attribute.qualifiedName().size() > answer_limits::nameLength;
           });
  }

  void startItem() {
    if (isNamed("result-code")) startValue();
    m_inFiles = isNamed("files");
    if (!m_inFiles) return;
    m_response.hasFiles = true;
    m_response.folders.clear();
  }

  void startValue() {
    m_valueLevel = m_depth;
    m_text.clear();
  }

  void endElement() {
    if (m_depth == m_valueLevel) {
      m_valueLevel = 0;
      if (m_depth == Item) m_response.isOk = m_text == u"ok";
      if (m_depth == FolderValue) endFolderValue();
    }
    if (m_depth == Folder && m_inFiles && !m_folder.name.isEmpty()) endFolder();
    if (m_depth == Item) m_inFiles = false;
    --m_depth;
  }

  void endFolderValue() {
    if (isNamed("name")) {
      m_isBeyond = m_isBeyond || m_text.size() > answer_limits::nameLength;
      m_folder.name = m_text;
    }
    if (isNamed("password") && m_text == u"true") m_folder.password = true;
    if (isNamed("dir") && m_text == u"true") m_folder.dir = true;
  }

  void endFolder() {
    m_isBeyond = m_isBeyond || m_response.folders.size() == answer_limits::folders;
    m_response.folders.push_back(std::move(m_folder));
  }

  void characters() {
    if (m_valueLevel != 0) m_text += m_xml.text();
    // The reader's own test for blanks fails for blanks that are written as references.
    if (m_xml.isCDATA() || !std::ranges::all_of(m_xml.text(), isBlank)) MyGetChild(m_depth + 1);
  }

  QXmlStreamReader& m_xml;
  int m_depth = 0;
  bool m_inFiles = false;
  bool m_isPastProlog = false;
  bool m_isBeyond = false;  // a limit is exceeded
  int m_valueLevel = 0;     // of the element whose whole text is being collected; 0 for none
  QString m_text;
  FolderEntry m_folder;
  ResponseState m_response;
};

// The encoding that the document declares in its first line; empty when it declares none or the line is not
// ASCII.
QByteArray declaredEncoding(const QByteArray& xml) {
  static const QRegularExpression declaration(
      QStringLiteral("^<\\?xml[^>]*\\sencoding\\s*=\\s*[\"']([A-Za-z][-A-Za-z0-9._]*)[\"']"));
  return declaration.match(QString::fromLatin1(xml.left(200))).captured(1).toLatin1();
}

// The document's text; null when its bytes are not valid in its encoding.
QString decoded(const QByteArray& xml) {
  const QByteArray declared = declaredEncoding(xml);
  auto encoding = QStringConverter::encodingForData(xml, u'<');
  if (!encoding)
    encoding =
        declared.isEmpty() ? QStringConverter::Utf8 : QStringConverter::encodingForName(declared.constData());
  // Qt's decoder knows only Unicode and Latin-1.
  if (!encoding) return textOfBytesIn(xml, declared);
  QStringDecoder decoder(*encoding, QStringConverter::Flag::Stateless);
  QString text = decoder(xml);
  return decoder.hasError() ? QString() : text;
}

}  // namespace

std::optional<FolderAnswer> readFolderAnswer(const QByteArray& xml) {
  QString text = decoded(xml);
  if (text.isNull() || !answer_limits::areKeptBy(text)) return std::nullopt;
  QXmlStreamReader reader;
  reader.setNamespaceProcessing(false);
  reader.setEntityExpansionLimit(static_cast<int>(answer_limits::entityValue));
  reader.addData(std::exchange(text, {}));
  return AnswerReader(reader).read();
}

}  // namespace kesto
