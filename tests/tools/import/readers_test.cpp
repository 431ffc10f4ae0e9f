// Other help systems' tables: what each reader takes for a row.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"
#include "tools/files.h"
#include "tools/import/formats.h"

namespace velmohelp::tool {
namespace {

using testing::TemporaryDirectory;

struct Table {
  std::string sentence;
  std::string format;
  std::string text;
  /// "line id>target" for each row.
  std::vector<std::string> rows;
  std::size_t remarks = 0;
};

void PrintTo(const Table& row, std::ostream* out) { *out << row.sentence; }

IdTable Read(const std::string& format, const std::string& text) {
  const TemporaryDirectory folder;
  return ReadIdTable(format, folder.Write("table", text));
}

class Reader : public ::testing::TestWithParam<Table> {};

TEST_P(Reader, TakesTheseRows) {
  const IdTable table = Read(GetParam().format, GetParam().text);
  std::vector<std::string> rows;
  for (const IdRow& row : table.rows) {
    rows.push_back(std::to_string(row.line) + " " + row.id + ">" + row.target);
  }
  EXPECT_THAT(rows, ::testing::ContainerEq(GetParam().rows));
  EXPECT_EQ(table.remarks.size(), GetParam().remarks);
}

INSTANTIATE_TEST_SUITE_P(
    Separated, Reader,
    ::testing::Values(
        Table{"tab separated lines", "tsv", "a\tb\nc\td", {"1 a>b", "2 c>d"}},
        Table{"a line of three fields", "tsv", "a\tb\tc\r\n", {"1 a>b"}},
        Table{"an empty line", "tsv", "\na\tb\n", {"2 a>b"}},
        Table{"a line without a tab", "tsv", "a b\n", {}, 1},
        Table{"quotes in a tab separated line",
              "tsv",
              "\"a\"\tb\n",
              {"1 \"a\">b"}},
        Table{"comma separated lines",
              "csv",
              "a,b\r\nc,d\r\n",
              {"1 a>b", "2 c>d"}},
        Table{"a quoted field with a comma", "csv", "\"a,b\",c\n", {"1 a,b>c"}},
        Table{"a quoted field with a line end",
              "csv",
              "\"a\nb\",c\nd,e\n",
              {"1 a\nb>c", "3 d>e"}},
        Table{"a quoted field with a quote",
              "csv",
              "\"a\"\"b\",c\n",
              {"1 a\"b>c"}},
        Table{"a line without a comma", "csv", "a\n", {}, 1}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Xml, Reader,
    ::testing::Values(
        Table{"GIMP's items",
              "gimp",
              "<gimp-help>\n<help-item id=\"a\" ref=\"b#c\"/>\n</gimp-help>",
              {"2 a>b#c"}},
        Table{"an entity in an item",
              "gimp",
              "<gimp-help><help-item id=\"a&amp;b\" ref=\"c\"/></gimp-help>",
              {"1 a&b>c"}},
        Table{"an item without a page",
              "gimp",
              "<gimp-help><help-item id=\"a\"/></gimp-help>",
              {},
              1},
        Table{"another element",
              "gimp",
              "<gimp-help><help-missing locale=\"fr\"/></gimp-help>",
              {}},
        Table{"Qt's keywords",
              "qhp",
              "<QtHelpProject><filterSection><keywords>\n"
              "<keyword name=\"n\" id=\"a\" ref=\"b\"/>\n"
              "</keywords></filterSection></QtHelpProject>",
              {"2 a>b"}},
        Table{"a keyword without an id",
              "qhp",
              "<QtHelpProject><keyword name=\"n\" ref=\"b\"/></QtHelpProject>",
              {},
              1}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    HtmlHelp, Reader,
    ::testing::Values(
        Table{"an alias", "htmlhelp", "[ALIAS]\nA=b.htm\n", {"2 A>b.htm"}},
        Table{"an alias with a number",
              "htmlhelp",
              "[MAP]\n#define A 0x10\n[ALIAS]\nA = d\\b.htm ; text\n",
              {"4 A>d/b.htm", "4 16>d/b.htm"}},
        Table{"a section in another letter case",
              "htmlhelp",
              "[Alias]\nA=b\n",
              {"2 A>b"}},
        Table{"another section",
              "htmlhelp",
              "[FILES]\nx=y\n[ALIAS]\nA=b\n",
              {"4 A>b"}},
        Table{"an alias without a page",
              "htmlhelp",
              "[ALIAS]\nA\nB=c\n",
              {"3 B>c"},
              1},
        Table{"a file above the project",
              "htmlhelp",
              "[MAP]\n#include \"../x.h\"\n[ALIAS]\nA=b\n",
              {"4 A>b"},
              1}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Hid2File, Reader,
    ::testing::Values(
        Table{"a pair on each line",
              "hid2file",
              "var m = {\n'a':'b#c',\n'd':'e'\n};",
              {"2 a>b#c", "3 d>e"}},
        Table{"spaces around the parts", "hid2file", " 'a' : 'b' ,", {"1 a>b"}},
        Table{"double quotes", "hid2file", "{\"a\":\"b\"}", {"1 a>b"}},
        Table{"an escaped quote", "hid2file", R"({'a\'b':'c'})", {"1 a'b>c"}},
        Table{"an id without a page", "hid2file", "{'a','b':'c'}", {"1 b>c"}},
        Table{"a pair in a comment",
              "hid2file",
              "// 'a':'b'\n/* 'c':'d'\n*/'e':'f'",
              {"3 e>f"}},
        Table{"a page whose quote is never closed",
              "hid2file",
              "'a':'b','c':'d",
              {"1 a>b"}}),
    testing::SentenceOf());

struct Refused {
  std::string sentence;
  std::string format;
  std::string text;
};

void PrintTo(const Refused& row, std::ostream* out) { *out << row.sentence; }

class RefusingReader : public ::testing::TestWithParam<Refused> {};

TEST_P(RefusingReader, ThrowsForThis) {
  EXPECT_THROW(Read(GetParam().format, GetParam().text), ImportError);
}

std::string DeepXml() {
  std::string xml;
  for (int i = 0; i < 200'000; ++i) xml += "<a>";
  return xml;
}

INSTANTIATE_TEST_SUITE_P(
    , RefusingReader,
    ::testing::Values(
        Refused{"a quoted field without an end", "csv", "\"a,b\n"},
        Refused{"text after a closing quote", "csv", "\"a\"b,c\n"},
        Refused{"XML that is not well formed", "gimp", "<gimp-help>"},
        Refused{"XML that is nested deeply", "gimp", DeepXml()},
        Refused{"XML of another kind", "gimp", "<html/>"},
        Refused{"GIMP's table as Qt's", "qhp", "<gimp-help/>"},
        Refused{"text as a database", "qch", "SQLite format 3"},
        Refused{"an empty database", "qch", ""},
        Refused{"a project without aliases", "htmlhelp", "[MAP]\n"},
        Refused{"a table without pairs", "hid2file", "var m = {};"},
        Refused{"bytes", "gimp", std::string("\0\xFF\xFE<", 4)}),
    testing::SentenceOf());

TEST(HtmlHelpReader, FollowsIncludesAndStopsAtALoop) {
  const TemporaryDirectory folder;
  folder.Write("a.hhp", "[MAP]\n#include <ids.h>\n[ALIAS]\n#include x.ali\n");
  folder.Write("ids.h", "#define A 7\n#include \"ids.h\"\n");
  folder.Write("x.ali", "A=b.htm\n");
  const IdTable table = ReadIdTable("htmlhelp", folder / "a.hhp");
  ASSERT_EQ(table.rows.size(), 2U);
  EXPECT_EQ(table.rows[1].id, "7");
  EXPECT_EQ(table.remarks.size(), 0U);
}

TEST(QchReader, WritesNothingBesideTheFile) {
  const TemporaryDirectory folder;
  folder.Write("x.qch", "");
  EXPECT_THROW(ReadIdTable("qch", folder / "x.qch"), ImportError);
  const std::filesystem::directory_iterator files(folder.path());
  EXPECT_EQ(std::distance(begin(files), end(files)), 1);
}

}  // namespace
}  // namespace velmohelp::tool
