// The importer of the demonstration, called as the demonstration calls it.
#include <gtest/gtest.h>
#include <velmohelp/resolve.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp {
namespace {

using Map = std::map<std::string, std::string>;

constexpr char kHome[] = "VX_HOME\ten-US/home.html\n";
constexpr char kRealTable[] = "/usr/share/libreoffice/help/hid2file.js";

class ImportHelpIds : public ::testing::Test {
 protected:
  /// Imports the table in a file. Returns the path of the help map.
  std::string Import(const std::string& table) {
    std::string map = folder_ / "helpmap.txt";
    const std::string command = "'" LXHOST "' '" IMPORTER
                                "' home.html en-US/ <'" +
                                table + "' >'" + map + "'";
    EXPECT_EQ(std::system(command.c_str()), 0);
    return map;
  }

  /// Imports a table. Returns the text of the help map.
  std::string ImportText(const std::string& table) {
    folder_.Write("table.js", table);
    Import(folder_ / "table.js");
    return testing::FileText(folder_ / "helpmap.txt");
  }

 private:
  testing::TemporaryDirectory folder_;
};

struct Row {
  std::string sentence;
  std::string line;
  std::string entry;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.sentence; }

class ImportRow : public ImportHelpIds,
                  public ::testing::WithParamInterface<Row> {};

TEST_P(ImportRow, GivesTheEntry) {
  EXPECT_EQ(ImportText(GetParam().line), kHome + GetParam().entry);
}

INSTANTIATE_TEST_SUITE_P(
    Accepted, ImportRow,
    ::testing::Values(
        Row{"a colon becomes an underscore", "'.uno:Save':'text/a.html#b',\n",
            ".uno_Save\ten-US/text/a.html#b\n"},
        Row{"letters digits and three other characters stay",
            "'aZ09_-.':'p',\n", "aZ09_-.\ten-US/p\n"},
        Row{"each byte of a non-ASCII letter becomes an underscore",
            "'my page/\xC3\xA4':'p',\n", "my_page___\ten-US/p\n"},
        Row{"a percent sign is a byte like any other", "'a%3Fb':'p',\n",
            "a_3Fb\ten-US/p\n"},
        Row{"a tab in an id becomes an underscore", "'a\tb':'p',\n",
            "a_b\ten-US/p\n"},
        Row{"a zero byte in an id becomes an underscore",
            std::string("'a\0b':'p',\n", 11), "a_b\ten-US/p\n"},
        Row{"an id with the page suffix is looked up without it",
            "'a b.html':'p',\n", "a b\ten-US/p\n"},
        Row{"an id with the short suffix loses five bytes all the same",
            "'page.htm':'p',\n", "pag\ten-US/p\n"},
        Row{"an id shorter than five bytes is looked up whole", "'.htm':'p',\n",
            ".htm\ten-US/p\n"},
        Row{"a scheme in capitals is not a URL", "'HTTP://x':'p',\n",
            "HTTP___x\ten-US/p\n"},
        Row{"a page that is a URL stays unchanged", "'a':'https://h/p#x',\n",
            "a\thttps://h/p#x\n"},
        Row{"a page may contain spaces and double quotes",
            "'a':'p \"q\".html',\n", "a\ten-US/p \"q\".html\n"},
        Row{"spaces around the parts do not matter", "  'a' : 'p' ,\n",
            "a\ten-US/p\n"},
        Row{"the last row needs no comma and no line end", "'a':'p'",
            "a\ten-US/p\n"},
        Row{"a line may end with CR LF", "'a':'p',\r\n", "a\ten-US/p\n"},
        Row{"the first of two ids with one key wins",
            "'a:b':'p',\n'a/b':'q',\n", "a_b\ten-US/p\n"}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Rejected, ImportRow,
    ::testing::Values(
        Row{"an empty table", "", ""}, Row{"the frame", "var m = {\n};\n", ""},
        Row{"a comment", "// 'a':'p',\n", ""},
        Row{"an id that is a URL", "'http://x/y':'p',\n", ""},
        Row{"an empty id", "'':'p',\n", ""},
        Row{"an id that is only the suffix", "'.html':'p',\n", ""},
        Row{"an empty page", "'a':'',\n", ""},
        Row{"a tab in a page", "'a':'p\tq',\n", ""},
        Row{"a line end in a page", "'a':'p\rq',\n", ""},
        Row{"a tab in an id that stays unchanged", "'a\tb.html':'p',\n", ""},
        Row{"an escaped quote in an id", R"('a\'b':'p',)", ""},
        Row{"an escaped quote in a page", R"('a':'p\'q',)", ""},
        Row{"other quotes", R"("a":"p",)", ""},
        Row{"a row with a third part", "'a':'p':'q',\n", ""},
        Row{"a row without a page", "'a',\n", ""},
        Row{"a second home page", "'VX_HOME':'p',\n", ""}),
    testing::SentenceOf());

/// The key that the client looks an id up by.
std::string KeyOf(std::string id) {
  NormalizePageID(id);
  return id.substr(0, id.size() - 5);
}

/// The real table as the client needs it. One row has an empty id.
Map ReadRealTable() {
  Map map = {{"VX_HOME", "en-US/home.html"}};
  std::ifstream table(kRealTable);
  for (std::string line; std::getline(table, line);) {
    std::istringstream stream(line);
    std::array<std::string, 4> parts;  // The page is the last.
    for (std::string& part : parts) std::getline(stream, part, '\'');
    const auto& [before, id, colon, page] = parts;
    if (!page.empty() && !id.empty()) map.emplace(KeyOf(id), "en-US/" + page);
  }
  return map;
}

TEST_F(ImportHelpIds, GivesTheClientEveryIdOfARealTable) {
  if (!std::filesystem::exists(kRealTable)) GTEST_SKIP();
  Map map;
  EXPECT_TRUE(ITEMInternal::LoadMapFile(Import(kRealTable), map));
  EXPECT_GT(map.size(), 8000U);
  const Map expected = ReadRealTable();
  EXPECT_EQ(map.size(), expected.size());
  for (const auto& [key, page] : expected) EXPECT_EQ(map[key], page) << key;
}

}  // namespace
}  // namespace velmohelp
