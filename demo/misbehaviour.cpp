#include "demo/misbehaviour.h"

#include <array>

namespace kesto {
namespace {

constexpr int manyFolders = 100'000;
constexpr int manyLevels = 1'000'000;
constexpr int manyAttributes = 80'000;
constexpr int manyReferences = 100'000;
constexpr int longEntity = 4000;

// The list with a document type and the name of one more folder, as raw bytes.
QByteArray listWith(const DemoFolders& folders, const QByteArray& documentType, const QByteArray& name) {
  QByteArray list = listOf(folders);
  list.replace("</files>", "<folder><name>" + name + "</name></folder>\n</files>");
  return list.replace("?>\n", "?>\n" + documentType);
}

QByteArray entityBomb(const DemoFolders& folders) {
  QByteArray entities = "<!ENTITY e0 \"Folder\">";
  for (int level = 1; level < 12; ++level) {
    const QByteArray below = "&e" + QByteArray::number(level - 1) + ";";
    entities += "<!ENTITY e" + QByteArray::number(level) + " \"" + below.repeated(10) + "\">";
  }
  return listWith(folders, "<!DOCTYPE bomb [" + entities + "]>\n", "&e11;");
}

QByteArray externalEntity(const DemoFolders& folders) {
  return listWith(folders, "<!DOCTYPE outside [<!ENTITY outside SYSTEM \"file:///etc/passwd\">]>\n",
                  "&outside;");
}

QByteArray deepNesting(const DemoFolders& folders) {
  return listWith(folders, "",
                  QByteArray("<n>").repeated(manyLevels) + QByteArray("</n>").repeated(manyLevels));
}

QByteArray oneElementOfManyAttributes(const DemoFolders& folders) {
  QByteArray element = "<n";
  for (int i = 0; i < manyAttributes; ++i)
    element += " a" + QByteArray::number(i) + "=\"\"";
  return listWith(folders, "", element + "/>");
}

QByteArray manyReferencesToOneEntity(const DemoFolders& folders) {
  return listWith(folders, "<!DOCTYPE many [<!ENTITY e \"" + QByteArray(longEntity, 'e') + "\">]>\n",
                  QByteArray("&e;").repeated(manyReferences));
}

QByteArray hundredThousandFolders(const DemoFolders& /*folders*/) {
  DemoFolders many;
  many.reserve(manyFolders);
  for (int i = 1; i <= manyFolders; ++i)
    many.push_back({QStringLiteral("Folder %1").arg(i), false});
  return listOf(many);
}

QByteArray listWithoutEnd(const DemoFolders& folders) {
  const QByteArray list = listOf(folders);
  return list.left(list.indexOf("</files>"));
}

QByteArray invalidUtf8(const DemoFolders& folders) {
  return listWith(folders, "", "Inv\xC3\x28oices\xFF");
}

QByteArray nulInName(const DemoFolders& folders) {
  return listWith(folders, "", QByteArray("In\0voices", 9));
}

QByteArray failedResult(const DemoFolders& folders) {
  return listOf(folders).replace(">ok<", ">unsupported-operation<");
}

QByteArray notXml(const DemoFolders& /*folders*/) {
  return "Kesto VQ-250n: the service is being updated & restarted.\n";
}

QByteArray nothing(const DemoFolders& /*folders*/) {
  return {};
}

}  // namespace

std::span<const Misbehaviour> misbehaviours() {
  static constexpr std::array table{
      Misbehaviour{"entity-bomb",
                   "a folder's name is an entity that grows to a hundred billion times its size", entityBomb},
      Misbehaviour{"external-entity", "a folder's name is the content of a file on the reader's machine",
                   externalEntity},
      Misbehaviour{"deep-nesting", "a million elements are nested", deepNesting},
      Misbehaviour{"many-attributes", "an element has eighty thousand attributes",
                   oneElementOfManyAttributes},
      Misbehaviour{"many-references",
                   "a name refers a hundred thousand times to an entity of four thousand letters",
                   manyReferencesToOneEntity},
      Misbehaviour{"many-folders", "the list holds a hundred thousand folders", hundredThousandFolders},
      Misbehaviour{"endless", "the body never ends", listWithoutEnd, Delivery::Endless},
      Misbehaviour{"trickle", "the answer comes at one byte a second", listOf, Delivery::Trickle},
      Misbehaviour{"reset", "the connection is reset in the middle of the answer", listOf, Delivery::Reset},
      Misbehaviour{"redirect", "the service sends the client elsewhere", nothing, Delivery::Whole,
                   "307 Temporary Redirect", "Location: /elsewhere\r\n"},
      Misbehaviour{"invalid-utf8", "a folder's name is not UTF-8", invalidUtf8},
      Misbehaviour{"nul-in-name", "a folder's name has a NUL", nulInName},
      Misbehaviour{"never", "there is no answer, and the connection stays open", nothing, Delivery::Never},
      Misbehaviour{"close", "the connection is closed at once", nothing, Delivery::CloseAtOnce},
      Misbehaviour{"error-status", "the list comes with an HTTP error", listOf, Delivery::Whole,
                   "500 Internal Server Error"},
      Misbehaviour{"failed-result", "the result code reports a failure, but the list is there", failedResult},
      Misbehaviour{"not-xml", "the answer is plain text", notXml},
      Misbehaviour{"empty", "the body is empty", nothing},
  };
  return table;
}

const Misbehaviour* misbehaviourNamed(const QString& name) {
  for (const Misbehaviour& row : misbehaviours()) {
    if (name == QLatin1String(row.name)) return &row;
  }
  return nullptr;
}

}  // namespace kesto
