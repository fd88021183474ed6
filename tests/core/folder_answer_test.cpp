#include "folders/folder_answer.h"

#include "folders/answer_limits.h"
#include "tests/support/folder_server.h"

namespace kesto::test {
namespace {

using namespace Qt::StringLiterals;

// The names of an answer; "-" for one that is no list, "malformed" for one that is no XML. A protected
// folder's name ends in "*", a directory's in "/".
QString summaryOf(const QByteArray& xml) {
  const std::optional<FolderAnswer> answer = readFolderAnswer(xml);
  if (!answer) return QStringLiteral("malformed");
  if (!answer->isList)
    return answer->folders.empty() ? QStringLiteral("-") : QStringLiteral("folders of no list");
  QStringList names;
  for (const FolderEntry& folder : answer->folders) {
    EXPECT_FALSE(folder.add);
    names.append(folder.name + (folder.password ? QStringLiteral("*") : QString()) +
                 (folder.dir ? QStringLiteral("/") : QString()));
  }
  return names.join(u'|');
}

struct Row {
  const char* name;
  QByteArray xml;
  QString expected;
};

void expectRows(const QList<Row>& rows) {
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(summaryOf(row.xml), row.expected);
  }
}

const QByteArray ok = "<result-code>ok</result-code>";
const QByteArray filesA = "<files><f><name>A</name></f></files>";
QByteArray ofFolder(const QByteArray& inside) {
  return envelope(ok + "<files><f>" + inside + "</f></files>");
}

TEST(FolderAnswer, ResultCode) {
  expectRows({
      {"ok", envelope(ok + filesA), u"A"_s},
      {"none", envelope(filesA), u"A"_s},
      {"another word", envelope("<result-code>unsupported-operation</result-code>" + filesA), u"-"_s},
      {"capitals", envelope("<result-code>OK</result-code>" + filesA), u"-"_s},
      {"blanks around", envelope("<result-code> ok </result-code>" + filesA), u"-"_s},
      {"in a CDATA section", envelope("<result-code><![CDATA[ok]]></result-code>" + filesA), u"A"_s},
      {"elements within it, good", envelope("<result-code><x>o<y/></x>k</result-code>" + filesA), u"A"_s},
      {"elements within it, bad", envelope("<result-code>no<x><y/></x></result-code>" + filesA), u"-"_s},
      {"elements of its own name within it",
       envelope("<result-code>o<r><result-code>k</result-code></r></result-code>" + filesA), u"A"_s},
      {"the last decides, good", envelope("<result-code>no</result-code>" + ok + filesA), u"A"_s},
      {"the last decides, bad", envelope(ok + filesA + "<result-code>no</result-code>"), u"-"_s},
      {"with a prefix it is another element", envelope("<r:result-code>no</r:result-code>" + filesA), u"A"_s},
      {"within the files it is none",
       envelope("<files><f><name>A</name><result-code>no</result-code></f></files>"), u"A"_s},
  });
}

TEST(FolderAnswer, FoldersByPositionAndName) {
  expectRows({
      {"no files", envelope(ok), u"-"_s},
      {"files without children", envelope(ok + "<files/>"), u""_s},
      {"the last files count", envelope("<files><f><name>X</name></f></files>" + filesA), u"A"_s},
      {"files of another prefix", envelope("<x:files><f><name>A</name></f></x:files>"), u"-"_s},
      {"elements of any name", envelope("<files><a><name>A</name></a><b><name>B</name></b></files>"),
       u"A|B"_s},
      {"comments and instructions between", envelope("<files><!--c--><f><name>A</name></f><?p i?></files>"),
       u"A"_s},
      {"flags", ofFolder("<name>A</name><password>true</password><dir>true</dir>"), u"A*/"_s},
      {"flags of other texts", ofFolder("<name>A</name><password>TRUE</password><dir>1</dir>"), u"A"_s},
      {"a flag once set stays", ofFolder("<name>A</name><password>true</password><password>false</password>"),
       u"A*"_s},
      {"the last name counts", ofFolder("<name>X</name><name>A</name>"), u"A"_s},
      {"text of all below", ofFolder("<name>A<b>B<c/>C</b><!-- - --><![CDATA[<D>]]>&amp;</name>"),
       u"ABC<D>&"_s},
      {"text of any depth", ofFolder("<name>A<b><c>B<name><d/></name></c></b>C<d/>D</name>"), u"ABCD"_s},
      {"flags of texts at any depth", ofFolder("<name>A</name><dir>t<x>r<y><z/></y></x>ue</dir>"), u"A/"_s},
      {"blanks stay", ofFolder("<name> A  b </name>"), u" A  b "_s},
      {"names deeper down are others", ofFolder("<x><name>Z</name></x><name>A</name>"), u"A"_s},
      {"without a name", envelope("<files><f><dir>true</dir></f><f><name/></f><f><name>A</name></f></files>"),
       u"A"_s},
      {"flags end with their folder",
       envelope("<files><f><name>A</name><password>true</password></f><f><name>B</name></f></files>"),
       u"A*|B"_s},
  });
}

TEST(FolderAnswer, TheLastChildIsBodyAndResponse) {
  const auto around = [](const QByteArray& before, const QByteArray& after) {
    return "<e>" + before + "<b><r>" + filesA + "</r></b>" + after + "</e>";
  };
  expectRows({
      {"header before", around("<h><r>" + filesA + "</r></h>", ""), u"A"_s},
      {"element after", around("", "<t/>"), u"-"_s},
      {"comment after", around("", "<!-- end -->"), u"-"_s},
      {"instruction after", around("", "<?p i?>"), u"-"_s},
      {"text after", around("", "tail"), u"-"_s},
      {"CDATA after", around("", "<![CDATA[ ]]>"), u"-"_s},
      {"blank text after", around("", " \n\t"), u"A"_s},
      {"blank text after, as references", around("", "&#32;&#9;&#xA;"), u"A"_s},
      {"comment within the body, after", "<e><b><r>" + filesA + "</r><!-- c --></b></e>", u"-"_s},
      {"two responses", "<e><b><r><files><f><name>X</name></f></files></r><r>" + filesA + "</r></b></e>",
       u"A"_s},
      {"an empty second response", "<e><b><r>" + filesA + "</r><r/></b></e>", u"-"_s},
      {"comment after the root", around("", "") + "<!-- end -->", u"A"_s},
      {"root alone", "<e/>", u"-"_s},
  });
}

TEST(FolderAnswer, EncodingsOfTheDocument) {
  const auto declared = [](const char* encoding, const QByteArray& name) {
    return QByteArray("<?xml version='1.0' encoding='") + encoding + "'?><e><b><r><files><f><name>" + name +
           "</name></f></files></r></b></e>";
  };
  const QString utf16 = QString::fromUtf8(declared("UTF-16", "Ä山"));
  const QByteArray bytes(reinterpret_cast<const char*>(utf16.utf16()), utf16.size() * 2);
  expectRows({
      {"UTF-8 with a mark", "\xEF\xBB\xBF" + declared("UTF-8", "Ä"), u"Ä"_s},
      {"UTF-16", "\xFF\xFE" + bytes, u"Ä山"_s},
      {"Latin-1", declared("ISO-8859-1", "\xC4"), u"Ä"_s},
      {"Shift JIS", declared("Shift_JIS", "\x8E\x52"), u"山"_s},
      {"EUC-KR that is not valid", declared("EUC-KR", "\xFF\xFF"), u"malformed"_s},
      {"an unknown encoding", declared("x-nobody-knows", "A"), u"malformed"_s},
      {"bytes that are not UTF-8", declared("UTF-8", "\xFF\xC3("), u"malformed"_s},
  });
}

TEST(FolderAnswer, HostileDocuments) {
  const QByteArray external = "]><e><b><r><files><f><name>A&x;</name></f></files></r></b></e>";
  const QByteArray answer = "<e><b><r>" + filesA + "</r></b></e>";
  expectRows({
      {"a file as an entity", "<!DOCTYPE e [<!ENTITY x SYSTEM 'file:///etc/hostname'>" + external, u"A"_s},
      {"a file through a parameter",
       "<!DOCTYPE e [<!ENTITY % p SYSTEM 'file:///etc/hostname'> %p;" + external, u"malformed"_s},
      {"a NUL", QByteArray("<e><b>\0</b></e>", 15), u"malformed"_s},
      {"a reference to NUL", ofFolder("<name>A&#0;</name>"), u"malformed"_s},
      {"cut in the middle", ofFolder("<name>A</name>").chopped(20), u"malformed"_s},
      {"nothing", "", u"malformed"_s},
      {"an attribute twice", "<e a='1' a='2'><b/></e>", u"malformed"_s},
      {"two roots", "<e/><e/>", u"malformed"_s},
      {"a document type after the root", answer + "<!DOCTYPE e>", u"malformed"_s},
      {"a document type within the root", "<e><!DOCTYPE e>" + answer.mid(3), u"malformed"_s},
      {"two document types", "<!DOCTYPE e><!DOCTYPE e>" + answer, u"malformed"_s},
      {"no XML", "<html><br></html>", u"malformed"_s},
  });
}

// Each bound, kept and not: an answer beyond it takes neither long nor much memory.
TEST(FolderAnswer, Bounds) {
  using namespace answer_limits;
  const auto declared = [](const QByteArray& declarations, const QByteArray& name = "A") {
    return "<!DOCTYPE e [" + declarations + "]><e><b><r><files><f><name>" + name +
           "</name></f></files></r></b></e>";
  };
  const auto attributesOf = [](int count, const QByteArray& between = "='") {
    QByteArray list;
    for (int i = 0; i < count; ++i)
      list += " a" + QByteArray::number(i) + between + "'";
    return list;
  };
  const auto within = [](qsizetype levels, const QByteArray& inside) {
    return QByteArray("<x>").repeated(levels) + inside + QByteArray("</x>").repeated(levels);
  };
  // Each stands for the one before, as often as the factor says.
  const auto entitiesThatGrow = [](int levels, int factor, const QByteArray& leaf,
                                   const QByteArray& sign = "&") {
    QByteArray list = "<!ENTITY a0 '" + leaf + "'>";
    for (int i = 1; i <= levels; ++i) {
      const QByteArray reference = sign + "a" + QByteArray::number(i - 1) + ";";
      list += "<!ENTITY a" + QByteArray::number(i) + " '" + reference.repeated(factor) + "'>";
    }
    return list;
  };
  const QByteArray longest(nameLength, 'n');
  const QByteArray full = "<f><name>A</name></f>";
  QByteArray many;
  for (qsizetype i = 0; i < entities; ++i)
    many += "<!ENTITY e" + QByteArray::number(i) + " 'A'>";
  expectRows({
      {"attributes", ofFolder("<name" + attributesOf(attributes) + ">A</name>"), u"A"_s},
      {"an attribute more", ofFolder("<name" + attributesOf(attributes + 1) + ">A</name>"), u"malformed"_s},
      {"after a tag in a comment that quotes",
       ofFolder("<!-- <a ' --><name" + attributesOf(100000, "\n=\t'") + ">A</name>"), u"malformed"_s},
      {"in an entity",
       declared("<!ENTITY a '&#60;b" + attributesOf(attributes + 1, "=\"\"").replace("'", "") + "/>'>",
                "A&a;"),
       u"malformed"_s},
      {"signs in a text", ofFolder("<name>" + QByteArray("=a'").repeated(200) + "</name>"),
       QString(u"=a'"_s).repeated(200)},
      {"levels", within(depth, ""), u"-"_s},
      {"levels in a folder", ofFolder("<name>A" + within(depth - 6, "") + "</name>"), u"A"_s},
      {"a level more", ofFolder("<name>A" + within(depth - 5, "") + "</name>"), u"malformed"_s},
      {"a million levels", within(1000000, ""), u"malformed"_s},
      {"a folder's name", ofFolder("<name>" + longest + "</name>"), QString::fromLatin1(longest)},
      {"a longer one", ofFolder("<name>" + longest + "n</name>"), u"malformed"_s},
      {"a folder's name of megabytes", ofFolder("<name>" + QByteArray(5000000, 'n') + "</name>"),
       u"malformed"_s},
      {"an element's name", ofFolder("<name>A</name><" + longest + "/>"), u"A"_s},
      {"an element's longer name", ofFolder("<name>A</name><" + longest + "n/>"), u"malformed"_s},
      {"an attribute's longer name", ofFolder("<name " + longest + "n=''>A</name>"), u"malformed"_s},
      {"a folder too many", envelope("<files>" + full.repeated(answer_limits::folders + 1) + "</files>"),
       u"malformed"_s},
      {"entities", declared(many, "&e0;&e255;"), u"AA"_s},
      {"an entity more", declared(many + "<!ENTITY x ''>"), u"malformed"_s},
      {"an entity's value", declared("<!ENTITY a '" + QByteArray(entityValue, ' ') + "'>"), u"A"_s},
      {"an entity's longer value", declared("<!ENTITY a '" + QByteArray(entityValue + 1, ' ') + "'>"),
       u"malformed"_s},
      {"entities within one another", declared("<!ENTITY a 'A'><!ENTITY b \"&a;&a;\">", "&b;&amp;&#66;"),
       u"AA&B"_s},
      {"an entity within itself", declared("<!ENTITY a '&b;'><!ENTITY b '&a;'>", "&a;"), u"malformed"_s},
      {"entities that grow", declared(entitiesThatGrow(11, 10, "ha"), "&a11;"), u"malformed"_s},
      {"entities of nothing that grow", declared(entitiesThatGrow(60, 2, ""), "A&a60;"), u"malformed"_s},
      {"the same by references to characters", declared(entitiesThatGrow(60, 2, "", "&#x026;"), "A&a60;"),
       u"malformed"_s},
      {"an entity often",
       declared("<!ENTITY a '" + QByteArray(4000, 'x') + "'>", QByteArray("&a;").repeated(100000)),
       u"malformed"_s},
      {"an entity of nothing often", declared("<!ENTITY a ''>", "A" + QByteArray("&a;").repeated(100000)),
       u"A"_s},
      {"attribute defaults", declared("<!ATTLIST f a CDATA 'v'>"), u"malformed"_s},
      {"a document type out of an entity", declared("<!ENTITY a '&#60;!DOCTYPE e>'>", "A&a;"),
       u"malformed"_s},
      {"a parameter entity", declared("<!ENTITY % p ''> %p;"), u"malformed"_s},
  });
}

TEST(FolderAnswer, AsManyFoldersAsThereMayBe) {
  QByteArray files;
  for (std::size_t i = 0; i < answer_limits::folders; ++i)
    files += "<f><name>F" + QByteArray::number(static_cast<qulonglong>(i)) + "</name></f>";
  const std::optional<FolderAnswer> answer = readFolderAnswer(envelope("<files>" + files + "</files>"));
  ASSERT_TRUE(answer && answer->isList);
  ASSERT_EQ(answer->folders.size(), answer_limits::folders);
  EXPECT_EQ(answer->folders.front().name, u"F0"_s);
  EXPECT_EQ(answer->folders.back().name, u"F99999"_s);
}

}  // namespace
}  // namespace kesto::test
