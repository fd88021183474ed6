#include "panel/form.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDataStream>
#include <QtCore/QXmlStreamReader>

namespace kesto {
namespace {

// A form nests about two dozen elements. What nests far more is not a form.
constexpr int deepestElement = 100;

// Reads the elements of a form up to the first fault.
class FormReader {
 public:
  explicit FormReader(const QByteArray& ui) : m_xml(ui) {}

  Outcome read(FormWidget* root) {
    const bool isForm = m_xml.readNextStartElement() && m_xml.name() == u"ui";
    bool hasRoot = false;
    while (isForm && m_xml.readNextStartElement()) {
      if (m_xml.name() == u"widget" && !hasRoot) {
        readWidget(*root, 0);
        hasRoot = true;
      } else {
        m_xml.skipCurrentElement();
      }
    }
    // What follows the form must be well-formed as well.
    while (!m_xml.atEnd())
      m_xml.readNext();
    if (m_xml.hasError()) {
      return Outcome::failed(QStringLiteral("line %1: %2").arg(m_xml.lineNumber()).arg(m_xml.errorString()));
    }
    return hasRoot ? Outcome::done() : Outcome::failed(QStringLiteral("not a form"));
  }

 private:
  void readWidget(FormWidget& widget, int depth) {
    widget.type = m_xml.attributes().value(QLatin1String("class")).toString();
    widget.name = m_xml.attributes().value(QLatin1String("name")).toString();
    widget.line = m_xml.lineNumber();
    readContents(widget, depth, true);
  }

  // `isDirect`: the elements belong to the widget itself, not to a layout in it.
  void readContents(FormWidget& widget, int depth, bool isDirect) {
    if (depth > deepestElement) return m_xml.raiseError(QStringLiteral("elements nested too deep"));
    while (m_xml.readNextStartElement()) {
      const QStringView element = m_xml.name();
      if (element == u"widget") {
        readWidget(widget.children.emplace_back(), depth + 1);
      } else if (element == u"layout" || (element == u"item" && !isDirect)) {
        readContents(widget, depth + 1, false);
      } else if (element == u"item") {
        readContents(widget.items.emplace_back(), depth + 1, true);
      } else if (element == u"property" && isDirect) {
        widget.properties.push_back(readValue());
      } else if (element == u"attribute" && isDirect) {
        widget.attributes.push_back(readValue());
      } else {
        m_xml.skipCurrentElement();
      }
    }
  }

  FormValue readValue() {
    FormValue value{.name = m_xml.attributes().value(QLatin1String("name")).toString(), .text = {}};
    while (m_xml.readNextStartElement()) {
      value.isLeftToPanel = m_xml.attributes().value(QLatin1String("notr")) == u"true";
      value.text = m_xml.readElementText(QXmlStreamReader::IncludeChildElements);
    }
    return value;
  }

  QXmlStreamReader m_xml;
};

QByteArray digestOf(const QByteArray& ui) {
  return QCryptographicHash::hash(ui, QCryptographicHash::Md5);
}

QDataStream& operator<<(QDataStream& stream, const FormValue& value) {
  return stream << value.name << value.text << value.isLeftToPanel;
}

QDataStream& operator>>(QDataStream& stream, FormValue& value) {
  return stream >> value.name >> value.text >> value.isLeftToPanel;
}

QDataStream& operator<<(QDataStream& stream, const FormWidget& widget);
QDataStream& operator>>(QDataStream& stream, FormWidget& widget);

template <class Part>
void writeAll(QDataStream& stream, const std::vector<Part>& parts) {
  stream << static_cast<quint32>(parts.size());
  for (const Part& part : parts)
    stream << part;
}

// Ends with the stream, whatever the number says.
template <class Part>
void readAll(QDataStream& stream, std::vector<Part>* parts) {
  quint32 count = 0;
  stream >> count;
  while (count-- > 0 && stream.status() == QDataStream::Ok)
    stream >> parts->emplace_back();
}

QDataStream& operator<<(QDataStream& stream, const FormWidget& widget) {
  stream << widget.type << widget.name << widget.line;
  writeAll(stream, widget.properties);
  writeAll(stream, widget.attributes);
  writeAll(stream, widget.children);
  writeAll(stream, widget.items);
  return stream;
}

QDataStream& operator>>(QDataStream& stream, FormWidget& widget) {
  stream >> widget.type >> widget.name >> widget.line;
  readAll(stream, &widget.properties);
  readAll(stream, &widget.attributes);
  readAll(stream, &widget.children);
  readAll(stream, &widget.items);
  return stream;
}

}  // namespace

Outcome readForm(const QByteArray& ui, FormWidget* root) {
  *root = {};
  return FormReader(ui).read(root);
}

QByteArray compiledForm(const QByteArray& ui, const FormWidget& root) {
  QByteArray compiled;
  QDataStream stream(&compiled, QIODevice::WriteOnly);
  stream.setVersion(QDataStream::Qt_6_4);
  stream << digestOf(ui) << root;
  return compiled;
}

bool readCompiledForm(const QByteArray& compiled, const QByteArray& ui, FormWidget* root) {
  *root = {};
  QDataStream stream(compiled);
  stream.setVersion(QDataStream::Qt_6_4);
  QByteArray digest;
  stream >> digest;
  if (digest != digestOf(ui)) return false;
  stream >> *root;
  if (stream.status() == QDataStream::Ok && stream.atEnd()) return true;
  *root = {};
  return false;
}

}  // namespace kesto
