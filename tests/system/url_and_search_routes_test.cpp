// Every way from a URL and from a search text to the screen.
#include "tests/system/routes.h"

namespace velmohelp::testing {
namespace {

constexpr char kAccessible[] = "<a accessibleMode=\"TRUE\"/>";
constexpr char kNamesFile[] =
    VELMO_TEST_SYSCONF "/com.velmo.{folder}.Office.conf";

const Change kInstalled = File("{installed}/search.html");
const Change kDownloaded = File("{downloaded}/search.html");

class UrlRoute : public ::testing::TestWithParam<Route> {};

TEST_P(UrlRoute, LeadsThere) { Follow(GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Rows, UrlRoute,
    ::testing::Values(Route{"a URL goes to the viewer between quotes",
                            {},
                            Open("http://localhost/a b?\"c\""),
                            "0",
                            Viewer("URL", "\"http://localhost/a b?\"c\"\"")},
                      Route{"a URL is opened offline and online alike",
                            {Online()},
                            Open("https://localhost/"),
                            "0",
                            Viewer("URL", "\"https://localhost/\"")},
                      Route{"a URL goes to the browser escaped",
                            {NoViewer()},
                            Open("http://localhost/a b?\"c\""),
                            "0",
                            Browser("http://localhost/a%20b?%22c%22")},
                      Route{"a file URL keeps its query",
                            {NoViewer()},
                            Open("{url:installed}/a.html?x=y#z"),
                            "0",
                            Browser("{url:installed}/a.html?x=y#z")},
                      Route{"no viewer is named",
                            {NoViewerNamed()},
                            Open("http://localhost/"),
                            "0",
                            Browser("http://localhost/")},
                      Route{"accessible mode means the browser",
                            {File("{store}/klh-pref.xml", kAccessible)},
                            Open("http://localhost/"),
                            "0",
                            Browser("http://localhost/")},
                      Route{"a missing runtime means the browser",
                            {Tool(false, true)},
                            Open("http://localhost/"),
                            "0",
                            Browser("http://localhost/")},
                      Route{"a viewer that is not a program",
                            {Program("{viewer}", "no program")},
                            Open("http://localhost/"),
                            "2",
                            Nothing()},
                      Route{"neither viewer nor browser",
                            {NoViewer(), NoBrowser()},
                            Open("http://localhost/"),
                            "1",
                            Nothing()},
                      Route{"a page id", {}, Open("intro"), "3", Nothing()},
                      Route{"an empty URL", {}, Open(""), "3", Nothing()}),
    SentenceOf());

class SearchRoute : public ::testing::TestWithParam<Route> {};

TEST_P(SearchRoute, LeadsThere) { Follow(GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Rows, SearchRoute,
    ::testing::Values(
        Route{"a text goes to the viewer encoded",
              {},
              Search("a b&c"),
              "0",
              Viewer("SEARCH", "a%20b%26c")},
        Route{"an installed search page gets the text",
              {NoViewer(), kInstalled},
              Search("a b&c"),
              "0",
              Browser("{url:installed}/search.html?q=a%20b%26c")},
        Route{"a downloaded search page comes first",
              {NoViewer(), kInstalled, kDownloaded},
              Search("x"),
              "0",
              Browser("{url:downloaded}/search.html?q=x")},
        Route{"the server's search page gets the text",
              {Online(), NoViewer(), Served("search.html")},
              Search("a b&c"),
              "0",
              Browser("{server}/{folder}/search.html?q=a%20b%26c")},
        Route{"no viewer is named",
              {NoViewerNamed(), kInstalled},
              Search("x"),
              "0",
              Browser("{url:installed}/search.html?q=x")},
        Route{"accessible mode means the browser",
              {File("{store}/klh-pref.xml", kAccessible), kInstalled},
              Search("x"),
              "0",
              Browser("{url:installed}/search.html?q=x")},
        Route{"a viewer that is not a program",
              {Program("{viewer}", "no program")},
              Search("x"),
              "1",
              Nothing()},
        Route{"no browser",
              {NoViewer(), NoBrowser(), kInstalled},
              Search("x"),
              "1",
              Nothing()},
        Route{"no search page", {NoViewer()}, Search("x"), "6", Nothing()},
        Route{"no search page on the server",
              {Online(), NoViewer(), kInstalled},
              Search("x"),
              "7",
              Nothing()},
        Route{"a text of spaces", {}, Search("  "), "3", Nothing()}),
    SentenceOf());

/// The host's own name for its configuration, set by the administrator.
class NamedSearch : public ::testing::Test {
 protected:
  ~NamedSearch() override { world_.Remove(kNamesFile); }

  HelpWorld world_;
};

TEST_F(NamedSearch, PassesTheTextOnAsItStands) {
  world_.Write(kNamesFile, "[Preferences]\nHelpcfgName=Foo\n");
  EXPECT_EQ(
      world_.Ask({"search by name", "{folder}", "Office", "en_US", "a b&c"}),
      "0");
  EXPECT_EQ(world_.Started(), world_.Expanded(Viewer("SEARCH", "a b&c")));
}

TEST_F(NamedSearch, RefusesANameThatNobodySet) {
  EXPECT_EQ(world_.Ask({"search by name", "{folder}", "Office", "en_US", "x"}),
            "8");
  EXPECT_EQ(world_.Started(), Nothing());
}

TEST(ASearch, InitialisesTheClient) {
  HelpWorld world;
  EXPECT_EQ(world.Ask(Display("intro")), "6");
  EXPECT_EQ(world.Ask(Search("x")), "0");
  EXPECT_EQ(world.Started(), world.Expanded(Viewer("SEARCH", "x")));
  EXPECT_EQ(world.Ask(Display("intro")), "0");
}

TEST(ARequest, RefusesToGoOnWithoutItsConfiguration) {
  HelpWorld world;
  ASSERT_TRUE(world.Initialise());
  world.Remove("{config}");
  EXPECT_EQ(world.Ask(Display("intro")), "4");
  EXPECT_EQ(world.Ask(Display("intro")), "6");
  EXPECT_EQ(world.Ask(Open("http://localhost/")), "6");
  EXPECT_EQ(world.Ask(Search("x")), "4");
  world.Configure();
  EXPECT_EQ(world.Ask(Search("x")), "0");
}

TEST(ARequest, TakesUpAChangedConfiguration) {
  HelpWorld world;
  ASSERT_TRUE(world.Initialise());
  world.Write("{store}//Foo/Cfg/Foo.helpcfg", "nonsense");
  EXPECT_EQ(world.Ask(Display("intro")), "0");
  EXPECT_EQ(world.Started(), world.Expanded(Viewer("HELP", "intro")));
  world.config().id = "en_US_Bar";
  world.Configure();
  EXPECT_EQ(world.Ask(Display("intro")), "5");
  EXPECT_EQ(world.Ask(Display("intro")), "6");
}

}  // namespace
}  // namespace velmohelp::testing
