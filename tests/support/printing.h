// How tests write Qt's values and files, and how failures show them.
#pragma once

#include <gtest/gtest.h>

#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QString>
#include <ostream>

inline std::ostream& operator<<(std::ostream& out, const QString& text) {
  return out << text.toStdString();
}
inline std::ostream& operator<<(std::ostream& out, const QByteArray& bytes) {
  return out << bytes.toStdString();
}
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << (text.isNull() ? "null" : '"' + text.toStdString() + '"');
}
inline void PrintTo(const QByteArray& bytes, std::ostream* out) {
  *out << '"' << bytes.toStdString() << '"';
}
inline void PrintTo(const QJsonObject& object, std::ostream* out) {
  *out << QJsonDocument(object).toJson().toStdString();
}

namespace kesto::test {

using namespace Qt::StringLiterals;

/// A text that tables can contain as a plain UTF-8 literal; null for a null pointer.
struct Text : QString {
  Text(const char* utf8) : QString(utf8 == nullptr ? QString() : QString::fromUtf8(utf8)) {}
  Text(const QString& text) : QString(text) {}
};

inline void PrintTo(const Text& text, std::ostream* out) {
  PrintTo(static_cast<const QString&>(text), out);
}

inline QJsonObject json(const char* text) {
  return QJsonDocument::fromJson(text).object();
}

/// The bytes of a file, which must be readable.
inline QByteArray bytesOf(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
  return file.readAll();
}
inline void writeFile(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) << path;
}

/// An input and what is expected of it.
using Pair = std::pair<Text, Text>;
using Cases = std::initializer_list<Pair>;

/// Calls `visit` with each key and value of "key=value key=value".
template <class Visit>
void forEachValue(const QString& notation, const Visit& visit) {
  for (const QString& part : notation.split(u' ', Qt::SkipEmptyParts)) {
    visit(part.section(u'=', 0, 0), part.section(u'=', 1));
  }
}

}  // namespace kesto::test
