#include "folders/folder_answer.h"

#include "folders/answer_limits.h"
#include "tests/support/folder_server.h"

namespace kesto::test {
namespace {

using namespace Qt::StringLiterals;

// The names of an answer; "-" for one that is not a list, "malformed" for one that is not XML. A protected
// folder's name ends in "*", a directory's in "/".
QString summaryOf(const QByteArray& xml) {
  const std::optional<FolderAnswer> answer = readFolderAnswer(xml);
  if (!answer) return u"malformed"_s;
  if (!answer->isList) return answer->folders.empty() ? u"-"_s : u"folders of no list"_s;
  QStringList names;
  for (const FolderEntry& folder : answer->folders) {
    EXPECT_FALSE(folder.add);
    names.append(folder.name + (folder.password ? QStringLiteral("*") : QString()) +
                 (folder.dir ? QStringLiteral("/") : QString()));
  }
  return names.join(u'|');
}

using Row = std::pair<QByteArray, Text>;

void expectRows(std::initializer_list<Row> rows) {
  for (const auto& [xml, expected] : rows)
    EXPECT_EQ(summaryOf(xml), expected) << xml.left(400);
}

const QByteArray ok = "<result-code>ok</result-code>";
const QByteArray filesA = "<files><f><name>A</name></f></files>";
QByteArray ofFolder(const QByteArray& inside) {
  return envelope(ok + "<files><f>" + inside + "</f></files>");
}

TEST(FolderAnswer, ResultCode) {
  expectRows({Row{envelope(filesA), "A"}, Row{envelope("<result-code>no</result-code>" + ok + filesA), "A"},
              Row{envelope(ok + filesA + "<result-code>no</result-code>"), "-"},
              Row{envelope("<r:result-code>no</r:result-code>" + filesA), "A"},
              Row{envelope("<files><f><name>A</name><result-code>no</result-code></f></files>"), "A"}});
  for (const auto& [code, expected] :
       {Pair{"ok", "A"}, Pair{"unsupported-operation", "-"}, Pair{"OK", "-"}, Pair{" ok ", "-"},
        Pair{"<![CDATA[ok]]>", "A"}, Pair{"<x>o<y/></x>k", "A"}, Pair{"no<x><y/></x>", "-"},
        Pair{"o<r><result-code>k</result-code></r>", "A"}})
    expectRows({{envelope("<result-code>" + code.toUtf8() + "</result-code>" + filesA), expected}});
}

TEST(FolderAnswer, FoldersByPositionAndName) {
  expectRows({{envelope(ok), "-"},
              {envelope(ok + "<files/>"), ""},
              {envelope("<files><f><name>X</name></f></files>" + filesA), "A"},
              {envelope("<x:files><f><name>A</name></f></x:files>"), "-"},
              {envelope("<files><a><name>A</name></a><b><name>B</name></b></files>"), "A|B"},
              {envelope("<files><!--c--><f><name>A</name></f><?p i?></files>"), "A"},
              {envelope("<files><f><dir>true</dir></f><f><name/></f><f><name>A</name></f></files>"), "A"},
              {envelope("<files><f><name>A</name><password>true</password></f><f><name>B</name></f></files>"),
               "A*|B"}});
  for (const auto& [inside, expected] :
       Cases{{"<name>A</name><password>true</password><dir>true</dir>", "A*/"},
             {"<name>A</name><password>TRUE</password><dir>1</dir>", "A"},
             {"<name>A</name><password>true</password><password>false</password>", "A*"},
             {"<name>A</name><dir>t<x>r<y><z/></y></x>ue</dir>", "A/"},
             {"<name>X</name><name>A</name>", "A"},
             {"<name>A<b>B<c/>C</b><!-- - --><![CDATA[<D>]]>&amp;</name>", "ABC<D>&"},
             {"<name>A<b><c>B<name><d/></name></c></b>C<d/>D</name>", "ABCD"},
             {"<name> A  b </name>", " A  b "},
             {"<x><name>Z</name></x><name>A</name>", "A"}})
    expectRows({{ofFolder(inside.toUtf8()), expected}});
}

TEST(FolderAnswer, TheLastChildIsBodyAndResponse) {
  for (const auto& [after, expected] :
       {Pair{"<t/>", "-"}, Pair{"<!-- end -->", "-"}, Pair{"<?p i?>", "-"}, Pair{"tail", "-"},
        Pair{"<![CDATA[ ]]>", "-"}, Pair{" \n\t", "A"}, Pair{"&#32;&#9;&#xA;", "A"}})
    expectRows({{"<e><b><r>" + filesA + "</r></b>" + after.toUtf8() + "</e>", expected}});
  const QByteArray others = "<r><files><f><name>X</name></f></files></r>";
  expectRows({Row{"<e><h>" + others + "</h><b><r>" + filesA + "</r></b></e>", "A"},
              Row{"<e><b><r>" + filesA + "</r><!-- c --></b></e>", "-"},
              Row{"<e><b>" + others + "<r>" + filesA + "</r></b></e>", "A"},
              Row{"<e><b><r>" + filesA + "</r><r/></b></e>", "-"},
              Row{"<e><b><r>" + filesA + "</r></b></e><!-- end -->", "A"}, Row{"<e/>", "-"}});
}

TEST(FolderAnswer, EncodingsOfTheDocument) {
  const auto declared = [](const char* encoding, const QByteArray& name) {
    return QByteArray("<?xml version='1.0' encoding='") + encoding + "'?><e><b><r><files><f><name>" + name +
           "</name></f></files></r></b></e>";
  };
  const QString utf16 = QString::fromUtf8(declared("UTF-16", "Ä山"));
  const QByteArray bytes(reinterpret_cast<const char*>(utf16.utf16()), utf16.size() * 2);
  expectRows({Row{"\xEF\xBB\xBF" + declared("UTF-8", "Ä"), "Ä"}, Row{"\xFF\xFE" + bytes, "Ä山"},
              Row{declared("ISO-8859-1", "\xC4"), "Ä"}, Row{declared("Shift_JIS", "\x8E\x52"), "山"},
              Row{declared("EUC-KR", "\xFF\xFF"), "malformed"},
              Row{declared("x-nobody-knows", "A"), "malformed"},
              Row{declared("UTF-8", "\xFF\xC3("), "malformed"}});
}

TEST(FolderAnswer, HostileDocuments) {
  const QByteArray external = "]><e><b><r><files><f><name>A&x;</name></f></files></r></b></e>";
  const QByteArray answer = "<e><b><r>" + filesA + "</r></b></e>";
  expectRows({
      {"<!DOCTYPE e [<!ENTITY x SYSTEM 'file:///etc/hostname'>" + external, "A"},
      {"<!DOCTYPE e [<!ENTITY % p SYSTEM 'file:///etc/hostname'> %p;" + external, "malformed"},
      {QByteArray("<e><b>\0</b></e>", 15), "malformed"},
      {ofFolder("<name>A&#0;</name>"), "malformed"},
      {ofFolder("<name>A</name>").chopped(20), "malformed"},
      {"", "malformed"},
      {"<e a='1' a='2'><b/></e>", "malformed"},
      {"<e/><e/>", "malformed"},
      {answer + "<!DOCTYPE e>", "malformed"},
      {"<e><!DOCTYPE e>" + answer.mid(3), "malformed"},
      {"<!DOCTYPE e><!DOCTYPE e>" + answer, "malformed"},
      {"<html><br></html>", "malformed"},
  });
}

// Each limit, just met and just exceeded. An answer beyond a limit takes neither long nor much memory.
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
  // Each entity repeats the one before it as often as the factor says.
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
  expectRows(
      {Row{ofFolder("<name" + attributesOf(attributes) + ">A</name>"), "A"},
       Row{ofFolder("<name" + attributesOf(attributes + 1) + ">A</name>"), "malformed"},
       Row{ofFolder("<!-- <a ' --><name" + attributesOf(100000, "\n=\t'") + ">A</name>"), "malformed"},
       Row{declared("<!ENTITY a '&#60;b" + attributesOf(attributes + 1, "=\"\"").replace("'", "") + "/>'>",
                    "A&a;"),
           "malformed"},
       Row{ofFolder("<name>" + QByteArray("=a'").repeated(200) + "</name>"), u"=a'"_s.repeated(200)},
       Row{within(depth, ""), "-"},
       Row{ofFolder("<name>A" + within(depth - 6, "") + "</name>"), "A"},
       Row{ofFolder("<name>A" + within(depth - 5, "") + "</name>"), "malformed"},
       Row{within(1000000, ""), "malformed"},
       Row{ofFolder("<name>" + longest + "</name>"), QString::fromLatin1(longest)},
       Row{ofFolder("<name>" + longest + "n</name>"), "malformed"},
       Row{ofFolder("<name>" + QByteArray(5000000, 'n') + "</name>"), "malformed"},
       Row{ofFolder("<name>A</name><" + longest + "/>"), "A"},
       Row{ofFolder("<name>A</name><" + longest + "n/>"), "malformed"},
       Row{ofFolder("<name " + longest + "n=''>A</name>"), "malformed"},
       Row{envelope("<files>" + full.repeated(answer_limits::folders) + "</files>"),
           u"A|"_s.repeated(answer_limits::folders).chopped(1)},
       Row{envelope("<files>" + full.repeated(answer_limits::folders + 1) + "</files>"), "malformed"},
       Row{declared(many, "&e0;&e255;"), "AA"},
       Row{declared(many + "<!ENTITY x ''>"), "malformed"},
       Row{declared("<!ENTITY a '" + QByteArray(entityValue, ' ') + "'>"), "A"},
       Row{declared("<!ENTITY a '" + QByteArray(entityValue + 1, ' ') + "'>"), "malformed"},
       Row{declared("<!ENTITY a 'A'><!ENTITY b \"&a;&a;\">", "&b;&amp;&#66;"), "AA&B"},
       Row{declared("<!ENTITY a '&b;'><!ENTITY b '&a;'>", "&a;"), "malformed"},
       Row{declared(entitiesThatGrow(11, 10, "ha"), "&a11;"), "malformed"},
       Row{declared(entitiesThatGrow(60, 2, ""), "A&a60;"), "malformed"},
       Row{declared(entitiesThatGrow(60, 2, "", "&#x026;"), "A&a60;"), "malformed"},
       Row{declared("<!ENTITY a '" + QByteArray(4000, 'x') + "'>", QByteArray("&a;").repeated(100000)),
           "malformed"},
       Row{declared("<!ENTITY a ''>", "A" + QByteArray("&a;").repeated(100000)), "A"},
       Row{declared("<!ATTLIST f a CDATA 'v'>"), "malformed"},
       Row{declared("<!ENTITY a '&#60;!DOCTYPE e>'>", "A&a;"), "malformed"},
       Row{declared("<!ENTITY % p ''> %p;"), "malformed"}});
}

}  // namespace
}  // namespace kesto::test
