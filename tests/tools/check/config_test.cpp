// Configurations: each mistake at its line and column, and a file that just
// does not have it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"
#include "tests/tools/check/findings.h"
#include "tools/check/check_config.h"
#include "util/input_file.h"

namespace velmohelp::tool {
namespace {

using testing::Checked;
using testing::PlacesOf;
using testing::TemporaryDirectory;

constexpr char kBase[] = " baseUrl=\"https://h/\"";
constexpr char kFolder[] = "<c path=\"a\" contextSensitivity=\"yes\"/>\n";

/// A configuration of the product Foo in en_US, with the rest of its lines.
std::string With(const std::string& first_line,
                 const std::string& rest = kFolder) {
  return first_line + "\n" + rest;
}

/// Its element, with other attributes in the end.
std::string Root(const std::string& more = "") {
  return "<h id=\"en_US_Foo\" path=\"p\"" + std::string(kBase) + more + ">";
}

std::string Folders(int paths, int flags) {
  std::string text;
  for (int i = 0; i < paths; ++i) text += "<c path=\"a\"/>\n";
  for (int i = 0; i < flags; ++i) text += "<c contextSensitivity=\"no\"/>\n";
  return text;
}

class Config : public ::testing::TestWithParam<Checked> {};

TEST_P(Config, HasTheseFindings) {
  Findings findings;
  CheckConfigText({.path = "f",
                   .text = GetParam().text,
                   .product = "Foo",
                   .locale = "en_US"},
                  findings);
  EXPECT_THAT(PlacesOf(findings), ::testing::ContainerEq(GetParam().places));
}

INSTANTIATE_TEST_SUITE_P(
    Keys, Config,
    ::testing::Values(
        Checked{"a complete file is clean", With(Root()), {}},
        Checked{"a text without elements is clean",
                "id=\"en_US_Foo\" path=\"p\" baseUrl=\"https://h/\"\n"
                "path=\"a\" contextSensitivity=\"no\"\n",
                {}},
        Checked{"an empty file has no key",
                "",
                {"1:1 missing-key", "1:1 missing-key", "1:1 missing-key",
                 "1:1 missing-key"}},
        Checked{"the id is missing",
                With("<h path=\"p\" baseUrl=\"https://h/\">"),
                {"1:1 missing-key"}},
        Checked{"the path is empty",
                With("<h id=\"en_US_Foo\" path=\"\" baseUrl=\"https://h/\">"),
                {"1:25 missing-key"}},
        Checked{"the path is one character", With(Root()), {}},
        Checked{"the base URL has no quotes",
                "<h id=\"en_US_Foo\" path=\"p\"><c path=\"a\" "
                "contextSensitivity=\"yes\"/> <h baseUrl=x>",
                {"1:70 key-elsewhere", "1:70 missing-key"}},
        Checked{"letters of id in an earlier word",
                With("<h width=\"9\" id=\"en_US_Foo\" path=\"p\"" +
                     std::string(kBase) + ">"),
                {"1:5 key-elsewhere"}},
        Checked{
            "letters of id in a later word", With(Root(" width=\"9\"")), {}},
        Checked{"letters of id in a comment",
                With("<!-- id -->" + Root()),
                {"1:6 key-elsewhere"}},
        Checked{"a comment without such letters",
                With("<!-- Foo -->" + Root()),
                {}},
        Checked{"letters of a key in a value",
                With("<h t=\"appId\" id=\"en_US_Foo\" path=\"p\"" +
                     std::string(kBase) + " appId=\"x\">"),
                {"1:7 key-elsewhere"}},
        Checked{"single quotes",
                With("<h id='en_US_Foo' path=\"p\"" + std::string(kBase) + ">"),
                {"1:7 single-quotes"}},
        Checked{"an entity", With(Root(" appId=\"a&amp;b\"")), {"1:57 entity"}},
        Checked{"an ampersand without a semicolon",
                With(Root(" appId=\"a&amp b\"")),
                {}},
        Checked{"a column counts characters",
                With("<!-- \xC3\xA4\xC3\xB6 --><h path=\"p\"" +
                     std::string(kBase) + ">"),
                {"1:1 missing-key"}},
        Checked{"an entity after letters of two bytes",
                With(Root(" appId=\"\xC3\xA4&amp;\"")),
                {"1:57 entity"}}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Quotes, Config,
    ::testing::Values(
        Checked{"a backslash at the end of a value hangs the host",
                With(Root(" appId=\"x\\\"y\"")),
                {"1:57 escaped-quote"}},
        Checked{"a backslash inside a value does not",
                With(Root(" appId=\"\\x\"")),
                {}},
        Checked{
            "a backslash that ends the id",
            With("<h id=\"en_US_Foo\\\" path=\"p\"" + std::string(kBase) + ">"),
            {"1:17 escaped-quote"}},
        Checked{"a value without a closing quote",
                "<h baseUrl=\"https://h/\" path=\"p\">\n<c path=\"a\" "
                "contextSensitivity=\"yes\"/>\n<h id=\"en_US_Foo",
                {"3:7 no-closing-quote"}},
        Checked{"the same value with one",
                "<h baseUrl=\"https://h/\" path=\"p\">\n<c path=\"a\" "
                "contextSensitivity=\"yes\"/>\n<h id=\"en_US_Foo\"",
                {}}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Identity, Config,
    ::testing::Values(
        Checked{
            "an id of another letter case",
            With("<h id=\"en_US_foo\" path=\"p\"" + std::string(kBase) + ">"),
            {"1:8 id-mismatch"}},
        Checked{
            "an id of another locale",
            With("<h id=\"de_DE_Foo\" path=\"p\"" + std::string(kBase) + ">"),
            {"1:8 id-mismatch"}},
        Checked{"a base URL without a final slash",
                With("<h id=\"en_US_Foo\" path=\"p\" baseUrl=\"https://h\">"),
                {"1:46 base-url"}},
        Checked{"a base URL with a space",
                With("<h id=\"en_US_Foo\" path=\"p\" baseUrl=\"https://h /\">"),
                {"1:37 base-url"}},
        Checked{"a zero byte",
                With(Root() + std::string(1, '\0')),
                {"1:49 zero-byte"}}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Folders, Config,
    ::testing::Values(
        Checked{"no content folder", With(Root(), ""), {"1:1 missing-key"}},
        Checked{"an empty folder swallows what follows",
                With(Root(), "<c path=\"\" contextSensitivity=\"yes\"/>\n"),
                {"2:10 empty-folder"}},
        Checked{"a folder of one character", With(Root(), kFolder), {}},
        Checked{"a space before the equals sign",
                With(Root(), "<c path =\"a\" contextSensitivity=\"yes\"/>\n"),
                {"2:8 spaced-folder"}},
        Checked{"a space after the value",
                With(Root(), "<c path=\"a\"  contextSensitivity=\"yes\"/>\n"),
                {}},
        Checked{"more folders than flags",
                With(Root(), Folders(2, 1)),
                {"3:4 folder-count"}},
        Checked{"more flags than folders",
                With(Root(), Folders(1, 2)),
                {"4:4 folder-count"}},
        Checked{"as many folders as flags", With(Root(), Folders(2, 2)), {}},
        Checked{"a hundred and one folders",
                With(Root(), Folders(101, 101)),
                {"203:4 too-many-folders"}},
        Checked{"a hundred folders", With(Root(), Folders(100, 100)), {}},
        Checked{"a flag that is neither yes nor no",
                With(Root(), "<c path=\"a\" contextSensitivity=\"true\"/>\n"),
                {"2:33 flag-value"}},
        Checked{"a flag in any letter case",
                With(Root(), "<c path=\"a\" contextSensitivity=\"yEs\"/>\n"),
                {}},
        Checked{"path in the name of a folder",
                With(Root(),
                     "<c path=\"mypath\" contextSensitivity=\"no\"/>\n"
                     "<c path=\"b\" contextSensitivity=\"no\"/>\n"),
                {"2:12 key-elsewhere", "3:4 folder-count"}},
        Checked{"an escaped quote in a folder",
                With(Root(), "<c path=\"a\\\"b\" contextSensitivity=\"no\"/>"),
                {"2:11 escaped-quote"}},
        Checked{"a folder without a closing quote",
                With(Root(), "<c contextSensitivity=\"no\"/>\n<c path=\"a"),
                {"3:9 no-closing-quote"}}),
    testing::SentenceOf());

/// The file's place names its product and its locale.
struct Placed {
  std::string sentence;
  std::string file;
  std::string id;
  std::vector<std::string> places;
};

void PrintTo(const Placed& row, std::ostream* out) { *out << row.sentence; }

class PlacedConfig : public ::testing::TestWithParam<Placed> {};

TEST_P(PlacedConfig, HasTheseFindings) {
  const TemporaryDirectory folder;
  const std::string path = folder.Write(
      GetParam().file,
      With("<h id=\"" + GetParam().id + "\" path=\"p\"" + kBase + ">"));
  Findings findings;
  CheckConfig(path, findings);
  EXPECT_THAT(PlacesOf(findings), ::testing::ContainerEq(GetParam().places));
}

INSTANTIATE_TEST_SUITE_P(
    , PlacedConfig,
    ::testing::Values(Placed{"in the folder of its locale",
                             "help/en_US/Foo.helpcfg",
                             "en_US_Foo",
                             {}},
                      Placed{"in the folder of another locale",
                             "help/de_DE/Foo.helpcfg",
                             "en_US_Foo",
                             {"1:8 id-mismatch"}},
                      Placed{"in a folder that is no locale",
                             "x/en/Foo.helpcfg",
                             "en_US_Foo",
                             {}},
                      Placed{"a product of another name",
                             "x/en/Bar.helpcfg",
                             "en_US_Foo",
                             {"1:8 id-mismatch"}},
                      Placed{"a locale of two characters",
                             "help/en/Foo.helpcfg",
                             "en_Foo",
                             {"1:8 locale-length"}},
                      Placed{"a locale of two characters in any folder",
                             "Foo.helpcfg",
                             "en_Foo",
                             {"1:8 locale-length"}},
                      Placed{"an id of four bytes",
                             "help/e/Fo.helpcfg",
                             "e_Fo",
                             {"1:8 id-mismatch"}}),
    testing::SentenceOf());

Findings FindInConfigOfSize(std::size_t size) {
  const TemporaryDirectory folder;
  std::string text =
      "<h id=\"en_US_Foo\" path=\"p\" baseUrl=\"https://h/\" "
      "appId=\"klh\">\n<c path=\"d\" contextSensitivity=\"yes\"/></h>";
  text.resize(size, '\n');
  Findings findings;
  CheckConfig(folder.Write("help/en_US/Foo.helpcfg", text), findings);
  return findings;
}

TEST(ConfigFile, AboveTheLimitIsUnreadableAndOneOfItIsNot) {
  EXPECT_THAT(PlacesOf(FindInConfigOfSize(kSettingsFileLimit)),
              ::testing::IsEmpty());
  EXPECT_THAT(PlacesOf(FindInConfigOfSize(kSettingsFileLimit + 1)),
              ::testing::ElementsAre("1:1 unreadable"));
}

TEST(ConfigFile, ThatIsAFolderIsUnreadable) {
  const TemporaryDirectory folder;
  std::filesystem::create_directory(folder / "Foo.helpcfg");
  Findings findings;
  CheckConfig(folder / "Foo.helpcfg", findings);
  EXPECT_THAT(PlacesOf(findings), ::testing::ElementsAre("1:1 unreadable"));
}

}  // namespace
}  // namespace velmohelp::tool
