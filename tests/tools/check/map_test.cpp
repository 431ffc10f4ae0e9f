// Help maps: each mistake at its line and column, and a map that just does not
// have it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"
#include "tests/tools/check/findings.h"
#include "tools/check/check_map.h"
#include "tools/files.h"

namespace velmohelp::tool {
namespace {

using testing::Checked;
using testing::PlacesOf;
using testing::TemporaryDirectory;

constexpr char kHome[] = "VX_HOME\ti.html\n";

class Map : public ::testing::TestWithParam<Checked> {};

TEST_P(Map, HasTheseFindings) {
  const TemporaryDirectory folder;
  const MapFile map(folder.Write("helpmap.txt", GetParam().text));
  Findings findings;
  CheckMap(map, findings);
  EXPECT_THAT(PlacesOf(findings), ::testing::ContainerEq(GetParam().places));
}

/// The home entry and more lines.
std::string With(const std::string& lines) { return kHome + lines; }

INSTANTIATE_TEST_SUITE_P(
    Lines, Map,
    ::testing::Values(
        Checked{"the home entry alone is clean", kHome, {}},
        Checked{"an empty map has no home", "", {"1:1 no-home"}},
        Checked{"a map without the home entry", "a\tb.html\n", {"1:1 no-home"}},
        Checked{"the home key in another letter case",
                "vx_home\ti.html\n",
                {"1:1 no-home"}},
        Checked{
            "a line without a tab", With("a b.html\n"), {"2:1 skipped-line"}},
        Checked{"a line with a tab", With("a\tb.html\n"), {}},
        Checked{"a line whose only tab is at its end",
                With("a\t\n"),
                {"2:1 skipped-line"}},
        Checked{"an empty line", With("\n"), {}},
        Checked{"lines that end with CR",
                "VX_HOME\ti.html\rx\ra\tb.html\r",
                {"2:1 skipped-line"}},
        Checked{"lines that end with CR LF",
                "VX_HOME\ti.html\r\nx\r\na\tb.html\r\n",
                {"2:1 skipped-line"}},
        Checked{"a key with two pages",
                With("a\tb.html\na\tc.html\n"),
                {"3:1 duplicate-key"}},
        Checked{"a key that differs in its letter case",
                With("a\tb.html\nA\tc.html\n"),
                {}},
        Checked{"an entry that is there twice",
                With("a\tb.html\na\tb.html\n"),
                {"3:1 repeated-entry"}},
        Checked{"two keys of one page", With("a\tb.html\nc\tb.html\n"), {}}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Keys, Map,
    ::testing::Values(
        Checked{"a key with a space",
                With("\tmy page\tb.html\n"),
                {"2:2 unreachable-key"}},
        Checked{
            "the same key as it is looked up", With("my_page\tb.html\n"), {}},
        Checked{"a key with a page's ending",
                With("lines.html\tb.html\n"),
                {"2:1 unreachable-key"}},
        Checked{"a key with another ending", With("lines.HTML\tb.html\n"), {}},
        Checked{"a key that is a URL",
                With("http://x/\tb.html\n"),
                {"2:1 unreachable-key"}},
        Checked{"a key that is almost a URL", With("http\tb.html\n"), {}},
        Checked{"two ids with one key",
                With("a:b\tc.html\na_b\td.html\n"),
                {"2:1 colliding-ids"}},
        Checked{"two ids with another key each",
                With("a_b\tc.html\na_c\td.html\n"),
                {}},
        Checked{"two ids that are both written otherwise",
                With("a:b\tc.html\na/b\td.html\n"),
                {"2:1 unreachable-key", "3:1 colliding-ids"}}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Urls, Map,
    ::testing::Values(
        Checked{"a URL", With("a\thttps://h/b#c\n"), {}},
        Checked{"a URL with a space",
                With("a\thttps://h/b c\n"),
                {"2:3 not-a-url"}},
        Checked{"a URL with an escape", With("a\thttps://h/b%20c\n"), {}},
        Checked{
            "a URL without a host", With("a\thttps:///b\n"), {"2:3 not-a-url"}},
        Checked{"a file URL without a host", With("a\tfile:///b\n"), {}},
        Checked{
            "a scheme in capitals", With("a\tHTTP://h/\n"), {"2:3 not-a-url"}},
        Checked{"another scheme", With("a\tftp://h/\n"), {"2:3 not-a-url"}},
        Checked{"a page with a colon", With("a\tb:c.html\n"), {}},
        Checked{"a scheme in an anchor", With("a\tb.html#http://x\n"), {}},
        Checked{"a host without a scheme",
                With("a\twww.h.com/b.html\n"),
                {"2:3 not-a-url"}}),
    testing::SentenceOf());

TEST(MapFile, NamesTheIdThatWouldBeFound) {
  const TemporaryDirectory folder;
  const MapFile map(folder.Write("helpmap.txt", With("my page\tb.html\n")));
  Findings findings;
  CheckMap(map, findings);
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings.front().text,
            "the id \"my page\" is looked up as \"my_page\"; only the id "
            "\"my page.html\" has this key");
}

TEST(MapFile, ThatIsMissingCannotBeOpened) {
  const TemporaryDirectory folder;
  EXPECT_THROW(MapFile{folder / "helpmap.txt"}, FileError);
}

}  // namespace
}  // namespace velmohelp::tool
