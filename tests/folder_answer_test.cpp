#include "folders/folder_answer.h"

#include "support/folder_server.h"

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
  QByteArray bomb = "<!DOCTYPE e [<!ENTITY a0 'ha'>";
  for (int i = 1; i < 12; ++i) {
    const QByteArray reference = "&a" + QByteArray::number(i - 1) + ";";
    bomb += "<!ENTITY a" + QByteArray::number(i) + " '" + reference.repeated(10) + "'>";
  }
  bomb += "]><e><b><r><files><f><name>&a11;</name></f></files></r></b></e>";
  constexpr int levels = 1000000;
  const QByteArray deep = QByteArray("<a>").repeated(levels) + QByteArray("</a>").repeated(levels);
  const QByteArray external = "]><e><b><r><files><f><name>A&x;</name></f></files></r></b></e>";
  expectRows({
      {"entities that grow", bomb, u"malformed"_s},
      {"a file as an entity", "<!DOCTYPE e [<!ENTITY x SYSTEM 'file:///etc/hostname'>" + external, u"A"_s},
      {"a file through a parameter",
       "<!DOCTYPE e [<!ENTITY % p SYSTEM 'file:///etc/hostname'> %p;" + external, u"A"_s},
      {"a million levels around", deep, u"-"_s},
      {"a million levels in a folder", ofFolder("<name>A</name>" + deep), u"A"_s},
      {"a NUL", QByteArray("<e><b>\0</b></e>", 15), u"malformed"_s},
      {"a reference to NUL", ofFolder("<name>A&#0;</name>"), u"malformed"_s},
      {"cut in the middle", ofFolder("<name>A</name>").chopped(20), u"malformed"_s},
      {"nothing", "", u"malformed"_s},
      {"an attribute twice", "<e a='1' a='2'><b/></e>", u"malformed"_s},
      {"two roots", "<e/><e/>", u"malformed"_s},
      {"no XML", "<html><br></html>", u"malformed"_s},
  });
}

TEST(FolderAnswer, ManyFolders) {
  QByteArray files;
  constexpr int count = 100000;
  for (int i = 0; i < count; ++i)
    files += "<f><name>F" + QByteArray::number(i) + "</name></f>";
  const std::optional<FolderAnswer> answer = readFolderAnswer(envelope("<files>" + files + "</files>"));
  ASSERT_TRUE(answer && answer->isList);
  ASSERT_EQ(answer->folders.size(), std::size_t{count});
  EXPECT_EQ(answer->folders.front().name, u"F0"_s);
  EXPECT_EQ(answer->folders.back().name, u"F99999"_s);
}

}  // namespace
}  // namespace kesto::test
