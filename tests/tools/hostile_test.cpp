// Input that means harm, or is only unkind: the tool ends, with a status that
// the document has, and changes no file that it was not told to write.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/stat.h>

#include <filesystem>
#include <functional>
#include <map>
#include <nlohmann/json.hpp>

#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"
#include "tests/tools/run_tool.h"
#include "tools/import/formats.h"
#include "util/input_file.h"

namespace velmohelp {
namespace {

namespace fs = std::filesystem;
using testing::FileText;
using testing::RunTool;
using testing::TemporaryDirectory;
using Words = std::vector<std::string>;
using Make = std::function<void(const TemporaryDirectory&)>;

struct Hostile {
  std::string sentence;
  Make make;
  /// "{}" stands for the folder.
  Words arguments;
  int status;
};

void PrintTo(const Hostile& row, std::ostream* out) { *out << row.sentence; }

constexpr std::size_t kMebibyte = 1U << 20U;

std::string Repeated(const std::string& text, std::size_t times) {
  std::string all;
  all.reserve(text.size() * times);
  for (std::size_t i = 0; i < times; ++i) all += text;
  return all;
}

/// Every byte but zero, which no argument has.
std::string Binary() {
  std::string bytes;
  for (int i = 1; i < 256; ++i) bytes += static_cast<char>(i);
  return bytes;
}

std::string BinaryWithZeros() { return Repeated(Binary() + '\0', 100); }

void Nothing(const TemporaryDirectory&) {}

Make Text(const std::string& name, const std::string& text) {
  return [=](const TemporaryDirectory& folder) { folder.Write(name, text); };
}

Make Folder(const std::string& name) {
  return [=](const TemporaryDirectory& folder) { folder.MakeDirectory(name); };
}

/// Nobody writes to it: to open it waits forever.
Make Pipe(const std::string& name) {
  return [=](const TemporaryDirectory& folder) {
    ASSERT_EQ(mkfifo((folder / name).c_str(), 0600), 0);
  };
}

Make Link(const std::string& name, const std::string& target) {
  return [=](const TemporaryDirectory& folder) {
    fs::create_directories(fs::path(folder / name).parent_path());
    fs::create_symlink(target, folder / name);
  };
}

/// A file whose every read fails.
Make Broken(const std::string& name) { return Link(name, "/proc/self/mem"); }

Make Huge(const std::string& name, std::size_t size) {
  return [=](const TemporaryDirectory& folder) {
    folder.Write(name, "");
    fs::resize_file(folder / name, size);
  };
}

Make All(const std::vector<Make>& makes) {
  return [=](const TemporaryDirectory& folder) {
    for (const Make& make : makes) make(folder);
  };
}

/// Each file and folder, with the text of what can be read to its end. Links
/// are not followed.
std::map<std::string, std::string> TreeBelow(const std::string& folder) {
  std::map<std::string, std::string> tree;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    const auto status = entry.symlink_status();
    const bool is_small =
        fs::is_regular_file(status) && entry.file_size() < 64 * kMebibyte;
    tree[entry.path().string()] =
        is_small ? FileText(entry.path().string()) : "";
  }
  return tree;
}

class HostileInput : public ::testing::TestWithParam<Hostile> {
 protected:
  Words Arguments() const {
    Words words = GetParam().arguments;
    for (std::string& word : words) {
      const std::size_t at = word.find("{}");
      if (at != std::string::npos) word.replace(at, 2, folder_.path());
    }
    return words;
  }

  const TemporaryDirectory folder_;
};

TEST_P(HostileInput, EndsAndChangesNothing) {
  GetParam().make(folder_);
  const auto before = TreeBelow(folder_.path());
  const auto run = RunTool(Arguments());
  EXPECT_EQ(run.status, GetParam().status) << run.out.substr(0, 1000) << "\n"
                                           << run.err.substr(0, 1000);
  EXPECT_EQ(run.err.empty(), run.status == 0);
  EXPECT_EQ(TreeBelow(folder_.path()), before);
}

std::vector<Hostile> Arguments() {
  const std::string long_text(kMebibyte, 'x');
  const std::string wrong = "\xC3(\xFF";
  std::vector<Hostile> rows;
  for (const auto& [name, text] : std::map<std::string, std::string>{
           {"1 MiB", long_text}, {"binary", Binary()}, {"not UTF-8", wrong}}) {
    rows.insert(
        rows.end(),
        {{"a command, " + name, Nothing, {text}, 64},
         {"an option, " + name, Nothing, {"check", "--" + text}, 64},
         {"a path, " + name, Nothing, {"check", "{}/" + text}, 74},
         {"a format, " + name, Nothing, {"import", text, "x", "-o", "y"}, 64},
         {"a table, " + name,
          Nothing,
          {"import", "tsv", "{}/" + text, "-o", "{}/o"},
          74}});
#ifdef VELMO_TOOL_HAS_A_MACHINE
    rows.insert(rows.end(),
                {{"a request, " + name, Nothing, {"explain", text}, 64},
                 {"a process, " + name, Nothing, {"status", "--pid", text}, 64},
                 {"a host, " + name, Nothing, {"status", "--host", text}, 64}});
#endif
  }
  rows.push_back(
      {"a product of 1 MiB", Nothing, {"new", long_text, "-o", "{}/o"}, 74});
  return rows;
}

INSTANTIATE_TEST_SUITE_P(Arguments, HostileInput,
                         ::testing::ValuesIn(Arguments()),
                         testing::SentenceOf());

constexpr char kMap[] = "{}/helpmap.txt";
constexpr char kConfig[] = "{}/Foo.helpcfg";

INSTANTIATE_TEST_SUITE_P(
    Checked, HostileInput,
    ::testing::Values(
        Hostile{"a binary map",
                Text("helpmap.txt", BinaryWithZeros()),
                {"check", kMap},
                1},
        Hostile{"a map above the limit",
                Huge("helpmap.txt", kHelpMapLimit + 1),
                {"check", kMap},
                1},
        Hostile{
            "a map that is a pipe", Pipe("helpmap.txt"), {"check", kMap}, 1},
        Hostile{"a map that is a folder",
                Folder("helpmap.txt"),
                {"check", kMap},
                74},
        Hostile{"a map that cannot be read",
                Broken("helpmap.txt"),
                {"check", kMap},
                1},
        Hostile{"a map that links to nothing",
                Link("helpmap.txt", "nothing"),
                {"check", kMap},
                74},
        Hostile{"a map that links to itself",
                Link("helpmap.txt", "helpmap.txt"),
                {"check", kMap},
                74},
        Hostile{"a binary configuration",
                Text("Foo.helpcfg", BinaryWithZeros()),
                {"check", kConfig},
                1},
        Hostile{"a configuration above the limit",
                Huge("Foo.helpcfg", kHelpMapLimit + 1),
                {"check", kConfig},
                1},
        Hostile{"a configuration that is a pipe",
                Pipe("Foo.helpcfg"),
                {"check", kConfig},
                1},
        Hostile{"a configuration that is a folder",
                Folder("Foo.helpcfg"),
                {"check", kConfig},
                74},
        Hostile{"a configuration that cannot be read",
                Broken("Foo.helpcfg"),
                {"check", kConfig},
                1},
        Hostile{"a page that is a pipe",
                All({Text("helpmap.txt", "VX_HOME\tb.html\n"), Pipe("b.html")}),
                {"check", kMap},
                1},
        Hostile{
            "a page that cannot be read",
            All({Text("helpmap.txt", "VX_HOME\tb.html\n"), Broken("b.html")}),
            {"check", kMap},
            1},
        Hostile{"a page of a million nested elements",
                All({Text("helpmap.txt", "VX_HOME\tb.html\n"),
                     Text("b.html", Repeated("<div>", 1'000'000))}),
                {"check", kMap},
                1},
        Hostile{"folders that link to each other",
                All({Link("a/b", ".."), Link("c", "a")}),
                {"check", "{}"},
                74},
        Hostile{"ids that are a pipe",
                All({Text("helpmap.txt", "VX_HOME\tb.html\n"), Pipe("ids")}),
                {"check", kMap, "--ids", "{}/ids"},
                74},
        Hostile{
            "a baseline that is a folder",
            All({Text("helpmap.txt", "VX_HOME\tb.html\n"), Folder("known")}),
            {"check", kMap, "--baseline", "{}/known"},
            74}),
    testing::SentenceOf());

Words Import(std::string_view format) {
  return {"import", std::string(format), "{}/table", "-o", "{}/o"};
}

/// Files that are no table of any format.
std::vector<Hostile> TablesOfEachFormat() {
  std::vector<Hostile> rows;
  for (const auto& format : tool::ImportFormats()) {
    const std::string of = " as " + std::string(format.name);
    const Words import = Import(format.name);
    rows.insert(
        rows.end(),
        {{"nothing" + of, Nothing, import, 74},
         {"an empty file" + of, Text("table", ""), import, 65},
         {"a folder" + of, Folder("table"), import, 74},
         {"a pipe" + of, Pipe("table"), import, 74},
         {"a file that cannot be read" + of, Broken("table"), import,
          format.name == "qch" ? 65 : 74},
         {"a link to nothing" + of, Link("table", "nothing"), import, 74},
         {"binary bytes" + of, Text("table", BinaryWithZeros()), import, 65},
         {"a mebibyte of one letter" + of,
          Text("table", std::string(kMebibyte, 'x')), import, 65}});
  }
  return rows;
}

INSTANTIATE_TEST_SUITE_P(EachFormat, HostileInput,
                         ::testing::ValuesIn(TablesOfEachFormat()),
                         testing::SentenceOf());

/// A database whose table of keywords is a view.
Make Database(const std::string& query) {
  return [=](const TemporaryDirectory& folder) {
    sqlite3* database = nullptr;
    sqlite3_open((folder / "table").c_str(), &database);
    const std::string text =
        "CREATE TABLE FileNameTable (Name, FileId); INSERT INTO FileNameTable "
        "VALUES ('a', 1); CREATE VIEW IndexTable AS " +
        query;
    EXPECT_EQ(sqlite3_exec(database, text.c_str(), nullptr, nullptr, nullptr),
              SQLITE_OK);
    sqlite3_close(database);
  };
}

constexpr char kLaughs[] =
    "<!DOCTYPE g [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;\">]>"
    "<gimp-help><help-item id=\"&b;\"/></gimp-help>";

INSTANTIATE_TEST_SUITE_P(
    Imported, HostileInput,
    ::testing::Values(
        Hostile{"a million nested elements",
                Text("table", Repeated("<a>", 1'000'000)), Import("gimp"), 65},
        Hostile{"a hundred thousand nested elements that end",
                Text("table", Repeated("<gimp-help>", 100'000) +
                                  Repeated("</gimp-help>", 100'000)),
                Import("gimp"), 65},
        Hostile{"entities of entities", Text("table", kLaughs), Import("gimp"),
                65},
        Hostile{"a quoted field without an end",
                Text("table", "\"" + std::string(kMebibyte, 'x')),
                Import("csv"), 65},
        Hostile{"a string without an end",
                Text("table", "'" + std::string(kMebibyte, 'x')),
                Import("hid2file"), 65},
        Hostile{"a project that includes itself",
                Text("table", "[MAP]\n#include \"table\"\n"),
                Import("htmlhelp"), 65},
        Hostile{"a project that includes itself a hundred times",
                Text("table", Repeated("[MAP]\n#include \"table\"\n", 100)),
                Import("htmlhelp"), 65},
        Hostile{
            "a project that includes a name that no file can have",
            Text("table", std::string("[MAP]\n#include ").append(5000, 'x')),
            Import("htmlhelp"), 65},
        Hostile{"a project that includes what is elsewhere",
                Text("table", "[MAP]\n#include \"../../etc/passwd\"\n"),
                Import("htmlhelp"), 65},
        Hostile{"a database that is cut",
                Text("table", std::string("SQLite format 3\0", 16)),
                Import("qch"), 65},
        Hostile{"a database whose rows have no end",
                Database("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT "
                         "i + 1 FROM n) SELECT i AS Id, i AS Identifier, 1 AS "
                         "FileId, i AS Anchor FROM n"),
                Import("qch"), 65},
        Hostile{
            "a product that is a path",
            Text("table", "a\tb\n"),
            {"import", "tsv", "{}/table", "-o", "{}/o", "--product", "../x"},
            64}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Written, HostileInput,
    ::testing::Values(
        Hostile{"a folder that is a file",
                All({Text("table", "a\tb\n"), Text("o", "mine")}),
                Import("tsv"), 74},
        Hostile{"a map that is there",
                All({Text("table", "a\tb\n"), Text("o/helpmap.txt", "mine")}),
                Import("tsv"), 74},
        Hostile{"a map that is a link",
                All({Text("table", "a\tb\n"), Text("mine", "mine"),
                     Link("o/helpmap.txt", "../mine")}),
                Import("tsv"), 74},
        Hostile{"a map that is a link to nothing",
                All({Text("table", "a\tb\n"), Link("o/helpmap.txt", "../x")}),
                Import("tsv"), 74},
        Hostile{"new help in a folder that links elsewhere",
                All({Folder("elsewhere"), Link("o/help", "../elsewhere")}),
                {"new", "Foo", "-o", "{}/o", "--force"},
                74},
        Hostile{"new help over a file",
                Text("o", "mine"),
                {"new", "Foo", "-o", "{}/o", "--force"},
                74}),
    testing::SentenceOf());

TEST(AForcedImport, ReplacesALinkAndLeavesItsTarget) {
  const TemporaryDirectory folder;
  const std::string mine = folder.Write("mine", "mine");
  folder.Write("table", "a\tb\n");
  Link("o/helpmap.txt", "../mine")(folder);
  EXPECT_EQ(RunTool({"import", "tsv", folder / "table", "-o", folder / "o",
                     "--force"})
                .status,
            0);
  EXPECT_EQ(FileText(mine), "mine");
  EXPECT_FALSE(fs::is_symlink(folder / "o/helpmap.txt"));
}

#ifdef VELMO_TOOL_HAS_A_MACHINE
TEST(ARequest, OfAnyBytesIsExplainedAsJson) {
  for (const std::string& text :
       {std::string(kMebibyte, 'x'), Binary(), std::string("\xC3(\xFF")}) {
    const auto run = RunTool({"explain", "display", text, "en_US", text,
                              "--host", "/bin/sh", "--json", "--offline"});
    EXPECT_EQ(run.status, 6);
    EXPECT_TRUE(nlohmann::json::accept(run.out));
  }
}
#endif

}  // namespace
}  // namespace velmohelp
