// The whole table of routes: where help can be shown, times where content can
// be, times offline and online. Each row of the first is one test, which walks
// through the others.
#include "tests/system/routes.h"

namespace velmohelp::testing {
namespace {

enum class Goes { kToViewer, kToBrowser, kNowhere };

/// What is installed, and what the user prefers.
struct Place {
  const char* sentence;
  Changes changes;
  /// Where what was found goes, and what a display, an opening and a search
  /// then return.
  Goes goes;
  const char* display;
  const char* open;
  const char* search;
  /// What a display returns where neither the page nor a home page is: the
  /// viewer gets the page id, with "0", where it can be started at all.
  const char* last_resort;
  bool names_viewer = true;
};

void PrintTo(const Place& row, std::ostream* out) { *out << row.sentence; }

/// What there is of the page "intro": its URL when found, else "".
struct Content {
  const char* sentence;
  Changes changes;
  const char* offline;
  const char* online;
  /// The help map's entries afterwards.
  int entries = 0;
};

constexpr char kMap[] =
    "VX_HOME\thome.html\nintro\tstart.html#top\nweb\t{server}/page\n";
constexpr char kMapWithAUrl[] = "VX_HOME\thome.html\nintro\t{server}/page\n";
constexpr char kMapOfOthers[] = "VX_HOME\thome.html\nother\to.html\n";
constexpr char kMapWithoutHome[] = "intro\tstart.html\n";
constexpr char kAccessible[] = "<a accessibleMode=\"true\"/>";

Change Page() {
  return [](HelpWorld& world) {
    world.Serve("/page", Response("200 OK", "", ""));
  };
}

Change Preferring(const char* text) {
  return File("{store}/klh-pref.xml", text);
}

std::vector<Place> Places() {
  const Goes viewer = Goes::kToViewer;
  const Goes browser = Goes::kToBrowser;
  const Goes nowhere = Goes::kNowhere;
  return {
      {"a viewer and a browser", {}, viewer, "0", "0", "0", "0"},
      {"a viewer alone", {NoBrowser()}, viewer, "0", "0", "0", "0"},
      {"a viewer that the user allows",
       {Preferring("<a accessibleMode=\"false\"/>")},
       viewer,
       "0",
       "0",
       "0",
       "0"},
      {"a viewer and the setting for local help",
       {Preferring("<a localHelp=\"true\"/>")},
       viewer,
       "0",
       "0",
       "0",
       "0"},
      {"a viewer that is not a program",
       {Program("{viewer}", "no program")},
       nowhere,
       "1",
       "2",
       "1",
       "1"},
      {"a viewer in accessible mode",
       {Preferring(kAccessible)},
       browser,
       "0",
       "0",
       "0",
       "0"},
      {"a viewer in accessible mode without a browser",
       {Preferring(kAccessible), NoBrowser()},
       nowhere,
       "2",
       "1",
       "1",
       "0"},
      {"a viewer that is not named",
       {NoViewerNamed()},
       browser,
       "0",
       "0",
       "0",
       "0",
       false},
      {"a viewer without its runtime",
       {Tool(false, true)},
       browser,
       "0",
       "0",
       "0",
       "7"},
      {"a viewer that is not installed",
       {Tool(true, false)},
       browser,
       "0",
       "0",
       "0",
       "7"},
      {"a viewer that is gone", {NoViewer()}, browser, "0", "0", "0", "7"},
      {"a browser alone",
       {Without("{bin}/../Frameworks")},
       browser,
       "0",
       "0",
       "0",
       "7"},
      {"nothing", {NoViewer(), NoBrowser()}, nowhere, "2", "1", "1", "7"},
  };
}

std::vector<Content> Contents() {
  return {
      {"no content", {}, "", ""},
      {"an installed page",
       {File("{installed}/intro.html")},
       "{url:installed}/intro.html",
       ""},
      {"a downloaded page",
       {File("{downloaded}/intro.html")},
       "{url:downloaded}/intro.html",
       ""},
      {"a downloaded and an installed page",
       {File("{installed}/intro.html"), File("{downloaded}/intro.html")},
       "{url:downloaded}/intro.html",
       ""},
      {"a page of the server",
       {Served("intro.html")},
       "",
       "{server}/{folder}/intro.html"},
      {"a page everywhere",
       {File("{installed}/intro.html"), Served("intro.html")},
       "{url:installed}/intro.html",
       "{server}/{folder}/intro.html"},
      {"an installed map",
       {File("{installed}/helpmap.txt", kMap)},
       "{url:installed}/start.html?nameAnchor=top",
       "{server}/{folder}/start.html#top",
       3},
      {"a downloaded map",
       {File("{downloaded}/helpmap.txt", kMap)},
       "{url:downloaded}/start.html?nameAnchor=top",
       "{server}/{folder}/start.html#top",
       3},
      {"a map with a URL",
       {File("{installed}/helpmap.txt", kMapWithAUrl), Page()},
       "{url:installed}/home.html",
       "{server}/page",
       2},
      {"a map with a URL that cannot be fetched",
       {File("{installed}/helpmap.txt", kMapWithAUrl)},
       "{url:installed}/home.html",
       "{server}/{folder}/home.html",
       2},
      {"a map of other pages",
       {File("{installed}/helpmap.txt", kMapOfOthers),
        File("{installed}/intro.html")},
       "{url:installed}/home.html",
       "{server}/{folder}/home.html",
       2},
      {"a map without a home page",
       {File("{installed}/helpmap.txt", kMapWithoutHome),
        File("{installed}/intro.html")},
       "",
       "",
       1},
      {"an installed home page",
       {File("{installed}/VX_HOME.html")},
       "{url:installed}/VX_HOME.html",
       ""},
      {"a downloaded home page",
       {File("{downloaded}/VX_HOME.html")},
       "{url:downloaded}/VX_HOME.html",
       ""},
      {"a home page of the server",
       {Served("VX_HOME.html")},
       "",
       "{server}/{folder}/VX_HOME.html"},
  };
}

std::vector<Content> SearchPages() {
  const char* installed = "{url:installed}/search.html";
  const char* downloaded = "{url:downloaded}/search.html";
  const char* served = "{server}/{folder}/search.html";
  return {
      {"no search page", {}, "", ""},
      {"an installed one", {File("{installed}/search.html")}, installed, ""},
      {"a downloaded one", {File("{downloaded}/search.html")}, downloaded, ""},
      {"a downloaded and an installed one",
       {File("{installed}/search.html"), File("{downloaded}/search.html")},
       downloaded,
       ""},
      {"one of the server", {Served("search.html")}, "", served}};
}

class APlace : public ::testing::TestWithParam<Place> {
 protected:
  using Step = std::function<void(HelpWorld&, const Content&, bool is_online)>;

  /// Each with a client of its own, offline and then online.
  static void ForEach(const std::vector<Content>& contents, const Step& step) {
    for (const Content& content : contents) {
      HelpWorld world;
      Apply(GetParam().changes, world);
      Apply(content.changes, world);
      ASSERT_TRUE(world.Initialise());
      for (const bool is_online : {false, true}) {
        SCOPED_TRACE(std::string(content.sentence) +
                     (is_online ? ", online" : ", offline"));
        world.SetUserPreference(is_online ? "1" : "0");
        step(world, content, is_online);
      }
    }
  }

  static Words Shown(const std::string& verb, const std::string& request,
                     const std::string& url) {
    if (GetParam().goes == Goes::kToViewer) return Viewer(verb, request);
    return GetParam().goes == Goes::kToBrowser ? Browser(url) : Nothing();
  }

  static std::string IdsLeft() {
    return GetParam().names_viewer
               ? "reader.VELMO.1"
               : "klh.9C3A51F07B26D48E15A0C7F3B9D2E6418A75C0D2.1";
  }
};

std::string Quoted(const std::string& url) { return "\"" + url + "\""; }

TEST_P(APlace, ShowsPages) {
  ForEach(Contents(), [](HelpWorld& world, const Content& content,
                         bool is_online) {
    const std::string url = is_online ? content.online : content.offline;
    const Place& place = GetParam();
    const Words last_resort = place.last_resort == std::string("0")
                                  ? Viewer("HELP", "intro")
                                  : Nothing();
    const std::string code = url.empty() ? place.last_resort : place.display;
    const Words started =
        url.empty() ? last_resort : Shown("HELP", Quoted(url), url);
    ExpectExplained(world, Display("intro"), code, started);
    EXPECT_EQ(FindThenAsk(world, Display("intro"), started), code);
    EXPECT_EQ(world.Started(), world.Expanded(started));
    EXPECT_EQ(world.Ask({"state"}),
              IdsLeft() + " " + std::to_string(content.entries));
  });
}

TEST_P(APlace, OpensUrls) {
  const Content any{"any content", {}, "", ""};
  ForEach({any}, [](HelpWorld& world, const Content&, bool) {
    const Words request = Open("http://localhost/a b");
    const Words started =
        Shown("URL", Quoted("http://localhost/a b"), "http://localhost/a%20b");
    ExpectExplained(world, request, GetParam().open, started);
    EXPECT_EQ(FindThenAsk(world, request, started), GetParam().open);
    EXPECT_EQ(world.Started(), world.Expanded(started));
    EXPECT_EQ(world.Ask({"state"}), IdsLeft() + " 0");
  });
}

/// The viewer searches by itself; a browser needs a page for it.
TEST_P(APlace, Searches) {
  ForEach(SearchPages(), [](HelpWorld& world, const Content& content,
                            bool is_online) {
    const Place& place = GetParam();
    const std::string url = is_online ? content.online : content.offline;
    const bool in_viewer =
        place.goes == Goes::kToViewer || place.display == std::string("1");
    const bool is_found = in_viewer || !url.empty();
    const std::string code = is_found ? place.search : (is_online ? "7" : "6");
    const Words started =
        is_found ? Shown("SEARCH", "a%20b", url + "?q=a%20b") : Nothing();
    ExpectExplained(world, Search("a b"), code, started);
    EXPECT_EQ(FindThenAsk(world, Search("a b"), started), code);
    EXPECT_EQ(world.Started(), world.Expanded(started));
    EXPECT_EQ(world.Ask({"state"}), IdsLeft() + " 0");
  });
}

INSTANTIATE_TEST_SUITE_P(With, APlace, ::testing::ValuesIn(Places()),
                         SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
