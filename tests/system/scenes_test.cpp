// Real trouble: of each, velmo-help names the cause in its first three lines.
#include <gmock/gmock.h>

#include <filesystem>
#include <map>

#include "tests/system/certificates.h"
#include "tests/system/routes.h"
#include "tests/system/scene.h"
#include "tests/system/tunnels.h"

#ifdef VELMO_TEST_TOOL
#include <nlohmann/json.hpp>

namespace velmohelp::testing {
namespace {

Words DisplayPageNamed(const std::string& id) {
  return {"display", "Foo", "en_US", id};
}

constexpr char kMap[] = "VX_HOME\thome.html\nintro\tstart.html\n";

const Change kPage = File("{installed}/intro.html");
const Change kMapWithIntro = File("{installed}/helpmap.txt", kMap);

Change MapOf(const std::string& url) {
  return File("{installed}/helpmap.txt",
              "VX_HOME\th.html\nintro\t" + url + "\n");
}

Change Environment(const std::string& entry) {
  return [=](HelpWorld& world) {
    std::erase(world.start().environment, "no_proxy=*");
    world.start().environment.push_back(entry);
  };
}

/// The entry says what the browser is packed as.
Change BrowserPackedAs(const std::string& line) {
  return [=](HelpWorld& world) {
    world.InstallBrowser("\"{browser}\" %u\n" + line);
  };
}

std::vector<Scene> OfTheConfiguration() {
  return {
      {"no configuration",
       {Without("{config}")},
       DisplayIntro(),
       6,
       "no-config",
       {"there is no {config}"}},
      {"another locale",
       {},
       {"display", "Foo", "de_DE", "intro"},
       6,
       "wrong-locale",
       {"help/de_DE/Foo.helpcfg", "has Foo in: en_US"}},
      {"another product",
       {},
       {"display", "foo", "en_US", "intro"},
       6,
       "wrong-product",
       {"help/en_US/foo.helpcfg", "has: Foo"}},
      {"a host without resources",
       {Without("{bin}/host.resources")},
       DisplayIntro(),
       6,
       "no-resources",
       {"{bin}/host has no resources directory"}},
      {"a configuration that is a folder",
       {Without("{config}"), File("{config}/file")},
       DisplayIntro(),
       6,
       "unreadable-config",
       {"{config} cannot be read (not a file)"}},
      {"an id of another product",
       {Config([](HelpConfig& config) { config.id = "en_US_Bar"; })},
       DisplayIntro(),
       7,
       "wrong-id",
       {"id is \"en_US_Bar\"", "must be \"en_US_Foo\""}},
      {"an empty base URL",
       {Config([](HelpConfig& config) { config.base_url = ""; })},
       DisplayIntro(),
       7,
       "missing-value",
       {"{config}:1:", "\"baseUrl\" is empty"}},
      {"a key's letters in another word",
       {File("{config}",
             "<a guide=\"Foo\" id=\"en_US_Foo\" path=\"p\" baseUrl=\"u\"/>")},
       DisplayIntro(),
       7,
       "missing-value",
       {"{config}:1:6", "\"id\" come first in another word"}},
      {"a configuration without a path",
       {File("{config}", "<a id=\"en_US_Foo\"/>")},
       DisplayIntro(),
       7,
       "missing-value",
       {"has no \"path\""}},
      {"an escaped quote",
       {File("{config}", "<a path=\"p\" appId=\"a\\\"b\" id=\"en_US_Foo\"/>")},
       DisplayIntro(),
       65,
       "endless-scan",
       {"{config}:1:", "the host would hang"}},
      {"a locale that is cut",
       {File("{bin}/host.resources/help/en/Foo.helpcfg",
             "<a id=\"en_Foo\" path=\"p\" baseUrl=\"u\"/>")},
       {"display", "Foo", "en", "intro"},
       6,
       "locale-cut",
       {"\"en\" has not five characters", "\"en_Fo\""}},
      {"no content folder",
       {Config([](HelpConfig& config) { config.folders.clear(); })},
       DisplayIntro(),
       5,
       "no-folders",
       {"{config} names no content folder"}},
      {"a stale download",
       {File("{store}//Foo/Cfg/Foo.helpcfg", "nonsense"), kPage},
       DisplayIntro(),
       0,
       "stale-download",
       {"{store}//Foo/Cfg/Foo.helpcfg is refused"}},
      {"no product",
       {},
       {"display", " ", "en_US", "intro"},
       1,
       "no-product",
       {"the product id or the locale is empty"}},
  };
}

std::vector<Scene> OfThePage() {
  return {
      {"an id in capitals",
       {kMapWithIntro},
       DisplayPageNamed("Intro"),
       0,
       "id-case",
       {"{installed}/", "has no id \"Intro\"", "capitals: \"intro\""}},
      {"an id with a typing mistake",
       {kMapWithIntro},
       DisplayPageNamed("intor"),
       0,
       "id-not-in-map",
       {"has no id \"intor\"", "the nearest: \"intro\""}},
      {"an id that nothing is like",
       {kMapWithIntro},
       DisplayPageNamed("zoom-tool"),
       0,
       "id-not-in-map",
       {"has no id \"zoom-tool\" among its 2", "none like it"}},
      {"a map without the home entry",
       {File("{installed}/helpmap.txt", "intro\tstart.html\n")},
       DisplayIntro(),
       0,
       "map-without-home",
       {"helpmap.txt has no entry VX_HOME"}},
      {"a map that is a folder",
       {File("{installed}/helpmap.txt/file")},
       DisplayIntro(),
       11,
       "broken-file",
       {"a file broke while it was read"}},
      {"a mapped URL while offline",
       {MapOf("{server}/page")},
       DisplayIntro(),
       0,
       "url-not-loaded",
       {"{server}/page", "offline"}},
      {"a mapped URL that the server lacks",
       {Online(), MapOf("{server}/page")},
       DisplayIntro(),
       0,
       "url-not-loaded",
       {"{server}/page: HTTP status 404"}},
      {"a proxy that is not there",
       {Online(), MapOf("{server}/page"),
        Environment("http_proxy=http://127.0.0.1:1")},
       DisplayIntro(),
       0,
       "url-not-loaded",
       {"{server}/page: Couldn't connect"}},
      {"a picture in place of a page",
       {Online(), Served("intro.html", Response("200 OK", "", "\xFF\xD8\xFF"))},
       DisplayIntro(),
       0,
       "page-not-loaded",
       {"{server}/{folder}/intro.html: not a text"}},
      {"a page that the server lacks",
       {Online(), kPage},
       DisplayIntro(),
       0,
       "page-not-loaded",
       {"{folder}/intro.html: HTTP status 404", "local pages are not looked"}},
      {"no local content while offline",
       {NoViewer()},
       DisplayIntro(),
       7,
       "no-local-content",
       {"the user has switched online help off", "{settings}/velmo/com.velmo"}},
      {"an administrator s lock",
       {NoViewer()},
       {"display", "Foo", "en_US", "intro", "--pref", "VelmoOnlineDefault=0"},
       7,
       "no-local-content",
       {"the administrator has switched online help off"}},
      {"a server out of reach",
       {NoViewer(), Online()},
       {"display", "Foo", "en_US", "intro", "--offline"},
       7,
       "no-local-content",
       {"offline: localhost is unreachable"}},
      {"a file name in capitals",
       {File("{installed}/Intro.html")},
       DisplayIntro(),
       0,
       "page-case",
       {"but \"Intro.html\" with other capitals"}},
      {"a page that is not installed",
       {File("{installed}/other.html")},
       DisplayIntro(),
       0,
       "page-missing",
       {"there is no page {installed}/intro.html"}},
      {"a mapped page that is not installed",
       {kMapWithIntro},
       DisplayIntro(),
       0,
       "page-unreadable",
       {"{installed}/start.html cannot be read (No such file"}},
      {"a folder that takes no part",
       {Config([](HelpConfig& config) { config.folders[0].flag = "no"; }),
        kPage},
       DisplayIntro(),
       0,
       "folder-flag",
       {"no content folder takes part", "\"NO\""}},
      {"no search page",
       {NoViewer(), File("{installed}/other.html")},
       {"search", "Foo", "en_US", "x"},
       6,
       "page-missing",
       {"there is no page {installed}/search.html"}},
      {"an empty page id",
       {},
       DisplayPageNamed(""),
       3,
       "empty-request",
       {"empty or only spaces"}},
      {"a page id in place of a URL",
       {},
       {"open", "Foo", "en_US", "intro"},
       3,
       "not-a-url",
       {"\"intro\" does not begin with http://"}},
  };
}

std::vector<Scene> OfThePrograms() {
  return {
      {"no viewer is named",
       {NoViewerNamed(), kPage},
       DisplayIntro(),
       0,
       "viewer-not-named",
       {"appId is NULL"}},
      {"accessible mode",
       {File("{store}/klh-pref.xml", "<a accessibleMode=\"true\"/>"), kPage},
       DisplayIntro(),
       0,
       "accessible-mode",
       {"accessibleMode is on in {store}/klh-pref.xml"}},
      {"no framework",
       {Without("{bin}/../Frameworks"), kPage},
       DisplayIntro(),
       0,
       "no-framework",
       {"com.velmo.vxclientframework is not there"}},
      {"a framework without its tool",
       {Without("{tool}"), kPage},
       DisplayIntro(),
       0,
       "no-tool",
       {"has no QTV tool"}},
      {"a viewer that is not installed",
       {Tool(true, false), kPage},
       DisplayIntro(),
       0,
       "viewer-not-installed",
       {"\"reader\" is not installed: 1"}},
      {"a tool that does not run",
       {Program("{tool}", "no program"), kPage},
       DisplayIntro(),
       0,
       "viewer-not-installed",
       {"did not run (not a program)"}},
      {"a viewer that is gone",
       {NoViewer(), kPage},
       DisplayIntro(),
       0,
       "viewer-not-found",
       {"Viewer.app", "no program is there"}},
      {"a viewer without its runtime",
       {Tool(false, true), kPage},
       DisplayIntro(),
       0,
       "no-runtime",
       {"runtime is not installed: the QTV tool says 1"}},
      {"a viewer that is not a program",
       {Program("{viewer}", "no program"), kPage},
       DisplayIntro(),
       1,
       "viewer-does-not-start",
       {"{viewer} does not start (not a program)"}},
      {"no browser",
       {NoViewer(), NoBrowser(), kPage},
       DisplayIntro(),
       2,
       "no-browser",
       {"no program opens https or http links"}},
      {"a browser that is not a program",
       {NoViewer(), Program("{browser}", "no program"), kPage},
       DisplayIntro(),
       2,
       "browser-does-not-start",
       {"{browser}: not a program"}},
      {"a browser that is a Snap",
       {NoViewer(), BrowserPackedAs("X-SnapInstanceName=bird"), kPage},
       DisplayIntro(),
       0,
       "confined-browser",
       {"Browser is a Snap", "cannot show {installed}/intro.html",
        "\"File not found\""}},
      {"a browser that is a Flatpak",
       {NoViewer(), BrowserPackedAs("X-Flatpak=org.example.Bird"), kPage},
       DisplayIntro(),
       0,
       "confined-browser",
       {"Browser is a Flatpak", "\"File not found\""}},
      {"all is well",
       {kPage},
       DisplayIntro(),
       0,
       "viewer",
       {"the viewer \"reader\" and its runtime are installed"}},
  };
}

Words WithHost(Words arguments) {
  arguments.insert(arguments.begin(), "explain");
  arguments.insert(arguments.end(), {"--host", "{bin}/host"});
  return arguments;
}

class AScene : public ::testing::TestWithParam<Scene> {};

TEST_P(AScene, HasItsCauseInTheFirstLines) {
  HelpWorld world;
  Apply(GetParam().changes, world);
  ExpectCause(GetParam(), world, [&](const Words& options) {
    Words arguments = WithHost(GetParam().arguments);
    arguments.insert(arguments.end(), options.begin(), options.end());
    return RunToolIn(world, arguments);
  });
}

INSTANTIATE_TEST_SUITE_P(OfTheConfiguration, AScene,
                         ::testing::ValuesIn(OfTheConfiguration()),
                         SentenceOf());
INSTANTIATE_TEST_SUITE_P(OfThePage, AScene, ::testing::ValuesIn(OfThePage()),
                         SentenceOf());
INSTANTIATE_TEST_SUITE_P(OfThePrograms, AScene,
                         ::testing::ValuesIn(OfThePrograms()), SentenceOf());

TEST(AScene, OfACertificateThatNobodyVouchesFor) {
  HelpWorld world;
  const TlsFront https(Authority().Issue("localhost"), 1);
  world.SetUserPreference("1");
  MapOf("https://localhost:" + std::to_string(https.port()) + "/page")(world);
  const auto run = RunToolIn(world, WithHost(DisplayIntro()));
  const Words lines = FirstThree(run.out);
  ASSERT_EQ(lines.size(), 3U) << run.err;
  EXPECT_THAT(lines[1], ::testing::HasSubstr("certificate"));
}

/// Every file and folder below a folder, with its text.
std::map<std::string, std::string> TreeBelow(const std::string& folder) {
  namespace fs = std::filesystem;
  std::map<std::string, std::string> tree;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    const bool is_file = entry.is_regular_file();
    const std::string path = entry.path().string();
    if (!path.ends_with("/tool.out") && !path.ends_with("/tool.err")) {
      tree[path] = is_file ? FileText(path) : "";
    }
  }
  return tree;
}

TEST(AnExplanation, ChangesNoFileAndStartsNothing) {
  HelpWorld world;
  kPage(world);
  world.Remove("{settings}");
  const std::string folder = world.Expanded("{bin}/..");
  const auto before = TreeBelow(folder);
  EXPECT_EQ(RunToolIn(world, WithHost(DisplayIntro())).status, 0);
  EXPECT_EQ(RunToolIn(world, {"status", "Foo", "en_US", "--host", "{bin}/host"})
                .status,
            0);
  EXPECT_EQ(TreeBelow(folder), before);
  EXPECT_EQ(world.Started(), Words());
}

struct WhatIf {
  const char* sentence;
  Changes changes;
  Words options;
  Words started;
};

void PrintTo(const WhatIf& row, std::ostream* out) { *out << row.sentence; }

class WhatIfOption : public ::testing::TestWithParam<WhatIf> {};

TEST_P(WhatIfOption, ChangesTheOutcome) {
  HelpWorld world;
  Apply(GetParam().changes, world);
  auto arguments = WithHost(DisplayIntro());
  arguments.emplace_back("--json");
  arguments.insert(arguments.end(), GetParam().options.begin(),
                   GetParam().options.end());
  const auto json =
      nlohmann::json::parse(RunToolIn(world, arguments).out, nullptr, false);
  ASSERT_TRUE(json.is_object());
  ASSERT_TRUE(json["starts"].is_object());
  EXPECT_EQ(json["starts"]["command"].get<Words>(),
            world.Expanded(GetParam().started));
  EXPECT_EQ(json["what_if"], GetParam().options);
}

INSTANTIATE_TEST_SUITE_P(
    , WhatIfOption,
    ::testing::Values(WhatIf{"offline",
                             {Online(), kPage},
                             {"--offline"},
                             Viewer("HELP", "\"{url:installed}/intro.html\"")},
                      WhatIf{
                          "online",
                          {Served("intro.html")},
                          {"--online"},
                          Viewer("HELP", "\"{server}/{folder}/intro.html\"")},
                      WhatIf{"no viewer",
                             {kPage},
                             {"--no-viewer"},
                             Browser("{url:installed}/intro.html")},
                      WhatIf{"a preference",
                             {Online(), kPage},
                             {"--pref", "VelmoOnlineDefault=0"},
                             Viewer("HELP", "\"{url:installed}/intro.html\"")}),
    SentenceOf());

TEST(TheCommand, MakesTheRequestItself) {
  HelpWorld world;
  kPage(world);
  const auto run = RunToolIn(
      world, {"display", "Foo", "en_US", "intro", "--host", "{bin}/host"});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(world.Started(),
            world.Expanded(Viewer("HELP", "\"{url:installed}/intro.html\"")));
}

}  // namespace
}  // namespace velmohelp::testing
#endif
