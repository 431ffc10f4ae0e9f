// Pages and anchors against the help map that names them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"
#include "tests/tools/check/findings.h"
#include "tools/check/check_pages.h"
#include "tools/check/html_page.h"

namespace velmohelp::tool {
namespace {

using testing::PlacesOf;
using testing::TemporaryDirectory;

constexpr char kPage[] = "<title>t</title>";

struct Content {
  std::string sentence;
  std::vector<std::pair<std::string, std::string>> files;
  std::string entries;
  std::vector<std::string> places;
};

void PrintTo(const Content& row, std::ostream* out) { *out << row.sentence; }

std::string Repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

/// A page with a title, of so many bytes.
std::string PageOfSize(std::size_t size) {
  std::string text = kPage;
  text.resize(size, 'x');
  return text;
}

/// A page with a title, nested so deeply.
std::string PageOfDepth(int depth) {
  std::string text = kPage;
  return text.append(Repeated("<div>", depth));
}

class Pages : public ::testing::TestWithParam<Content> {};

Findings FindIn(const TemporaryDirectory& folder) {
  const MapFile map(folder / "helpmap.txt");
  std::ostringstream unused;
  const Console console{.out = unused, .err = unused};
  Progress progress(console, Progress::Clock::now());
  Findings findings;
  CheckPages(map, progress, findings);
  return findings;
}

TEST_P(Pages, HaveTheseFindings) {
  const TemporaryDirectory folder;
  for (const auto& [name, text] : GetParam().files) folder.Write(name, text);
  folder.Write("helpmap.txt", GetParam().entries);
  EXPECT_THAT(PlacesOf(FindIn(folder)),
              ::testing::ContainerEq(GetParam().places));
}

INSTANTIATE_TEST_SUITE_P(
    , Pages,
    ::testing::Values(
        Content{"a page that exists", {{"b.html", kPage}}, "a\tb.html\n", {}},
        Content{
            "a page that does not", {}, "a\tb.html\n", {"1:3 missing-page"}},
        Content{"a missing page is reported once",
                {},
                "a\tb.html\nc\tb.html#x\n",
                {"1:3 missing-page"}},
        Content{"a page in a folder below",
                {{"d/b.html", kPage}},
                "a\td/b.html\n",
                {}},
        Content{"a page in another letter case",
                {{"B.html", kPage}},
                "a\tb.html\n",
                {"1:3 missing-page", "1:1 unreached-page"}},
        Content{
            "a page with a query", {{"b.html", kPage}}, "a\tb.html?x=1\n", {}},
        Content{"a page with an escape",
                {{"b c.html", kPage}},
                "a\tb%20c.html\n",
                {}},
        Content{"a folder is no page",
                {{"b.html/x", ""}},
                "a\tb.html\n",
                {"1:3 missing-page"}},
        Content{"a page of another kind", {{"b.pdf", "x"}}, "a\tb.pdf#p\n", {}},
        Content{"a URL is not looked for", {}, "a\thttps://h/b.html\n", {}},
        Content{"only the first entry of a key counts",
                {{"b.html", kPage}},
                "a\tb.html\na\tc.html\n",
                {}},
        Content{"an anchor by id",
                {{"b.html", "<title>t</title><p id=x>"}},
                "a\tb.html#x\n",
                {}},
        Content{"an anchor by name",
                {{"b.html", "<title>t</title><a name='x'>"}},
                "a\tb.html#x\n",
                {}},
        Content{"a name of another element is no anchor",
                {{"b.html", "<title>t</title><input name='x'>"}},
                "a\tb.html#x\n",
                {"1:9 missing-anchor"}},
        Content{"an anchor in a comment",
                {{"b.html", "<title>t</title><!-- <p id=x> -->"}},
                "a\tb.html#x\n",
                {"1:9 missing-anchor"}},
        Content{"an anchor in a script",
                {{"b.html", "<title>t</title><script>'<p id=x>'</script>"}},
                "a\tb.html#x\n",
                {"1:9 missing-anchor"}},
        Content{"an anchor in another letter case",
                {{"b.html", "<title>t</title><p id=X>"}},
                "a\tb.html#x\n",
                {"1:9 missing-anchor"}},
        Content{"an anchor with an escape",
                {{"b.html", "<title>t</title><p id='x y'>"}},
                "a\tb.html#x%20y\n",
                {}},
        Content{"an empty anchor", {{"b.html", kPage}}, "a\tb.html#\n", {}},
        Content{"a page without a title",
                {{"b.html", "<p>"}},
                "a\tb.html\n",
                {"1:1 no-title"}},
        Content{"a page with an empty title",
                {{"b.html", "<title> </title>"}},
                "a\tb.html\n",
                {"1:1 no-title"}},
        Content{"a picture's title is not the page's",
                {{"b.html", "<svg><title>t</title></svg>"}},
                "a\tb.html\n",
                {"1:1 no-title"}},
        Content{"a page as large as is checked",
                {{"b.html", PageOfSize(kHtmlPageLimit)}},
                "a\tb.html\n",
                {}},
        Content{"a page that is larger",
                {{"b.html", PageOfSize(kHtmlPageLimit + 1)}},
                "a\tb.html\n",
                {"1:1 unchecked-page"}},
        Content{"a page nested as deeply as is checked",
                {{"b.html", PageOfDepth(512)}},
                "a\tb.html\n",
                {}},
        Content{"a page that is nested deeper",
                {{"b.html", PageOfDepth(513)}},
                "a\tb.html\n",
                {"1:1 unchecked-page"}},
        Content{"a page that no entry reaches",
                {{"b.html", kPage}, {"c.htm", kPage}},
                "a\tb.html\n",
                {"1:1 unreached-page"}},
        Content{"the search page needs no entry",
                {{"b.html", kPage}, {"search.html", kPage}},
                "a\tb.html\n",
                {}},
        Content{"a folder with a map of its own is another one",
                {{"b.html", kPage}, {"d/c.html", kPage}, {"d/helpmap.txt", ""}},
                "a\tb.html\n",
                {}}),
    testing::SentenceOf());

TEST(ListedPages, OfALinkThatLeadsUpAreListedOnce) {
  const TemporaryDirectory folder;
  folder.Write("b.html", kPage);
  folder.Write("helpmap.txt", "a\tx.html\n");
  std::filesystem::create_directory(folder / "d");
  std::filesystem::create_directory_symlink(folder.path(), folder / "d/up");
  EXPECT_THAT(PlacesOf(FindIn(folder)),
              ::testing::ElementsAre("1:3 missing-page", "1:1 unreached-page"));
}

/// The link is there and leads to a file: each read of it fails.
TEST(APageThatCannotBeRead, IsFoundAndOneThatCanIsNot) {
  const TemporaryDirectory folder;
  folder.Write("helpmap.txt", "a\tb.html\n");
  std::filesystem::create_symlink("/proc/self/mem", folder / "b.html");
  EXPECT_THAT(PlacesOf(FindIn(folder)),
              ::testing::ElementsAre("1:1 unreadable"));
  std::filesystem::remove(folder / "b.html");
  std::filesystem::create_symlink(folder.Write("c", kPage), folder / "b.html");
  EXPECT_THAT(PlacesOf(FindIn(folder)), ::testing::IsEmpty());
}

TEST(HtmlPage, NestedDeeplyIsNotParsed) {
  EXPECT_TRUE(ParseHtmlPage(Repeated("<div>", 512)).has_value());
  EXPECT_FALSE(ParseHtmlPage(Repeated("<div>", 513)).has_value());
  EXPECT_FALSE(ParseHtmlPage(Repeated("<b>", 1'000'000)).has_value());
}

TEST(HtmlPage, WithManyTagsThatNeedNoEndIsParsed) {
  EXPECT_TRUE(ParseHtmlPage(Repeated("<p>x<br>", 2000)).has_value());
  EXPECT_TRUE(ParseHtmlPage(Repeated("<div></div>", 2000)).has_value());
}

TEST(HtmlPage, OfMoreThanItsLimitIsNotParsed) {
  EXPECT_TRUE(ParseHtmlPage(std::string(kHtmlPageLimit, 'x')).has_value());
  EXPECT_FALSE(ParseHtmlPage(std::string(kHtmlPageLimit + 1, 'x')).has_value());
}

TEST(HtmlPage, OfBinaryBytesHasNoAnchors) {
  std::string bytes;
  for (int i = 0; i < 65536; ++i) bytes += static_cast<char>(i * 7919 >> 5);
  const auto page = ParseHtmlPage(bytes);
  ASSERT_TRUE(page.has_value());
  EXPECT_THAT(page->anchors, ::testing::IsEmpty());
}

}  // namespace
}  // namespace velmohelp::tool
