// From a page id to the URL that is shown.
#include <gtest/gtest.h>

#include "tests/support/client_world.h"
#include "tests/support/sentence.h"

namespace velmohelp {
namespace {

using testing::ClientWorld;

struct Target {
  const char* sentence;
  void (*given)(ClientWorld&);
  const char* page_id;
  /// What the browser opens; "" for nothing.
  const char* url;
};

class DisplayTarget : public ::testing::TestWithParam<Target> {};

TEST_P(DisplayTarget, IsWhatTheBrowserOpens) {
  ClientWorld world;
  world.Install();
  world.StartBrowsers();
  GetParam().given(world);
  world.Initialise();
  world.DisplayPage(GetParam().page_id);
  std::vector<std::string> expected;
  if (*GetParam().url != '\0') {
    expected.push_back(std::string("OpenInBrowser ") + GetParam().url);
  }
  EXPECT_EQ(world.Shown(), expected);
}

void AddInstalledPage(ClientWorld& world, const char* name) {
  world.AddFile(ClientWorld::InstalledManual() + "/" + name);
}

void AddInstalledMap(ClientWorld& world, const char* text) {
  world.AddFile(ClientWorld::InstalledManual() + "/helpmap.txt", text);
}

INSTANTIATE_TEST_SUITE_P(
    Offline, DisplayTarget,
    ::testing::Values(
        Target{"the downloaded page before the installed one",
               [](ClientWorld& world) {
                 AddInstalledPage(world, "page.html");
                 world.AddFile(world.DownloadedManual() + "/page.html");
               },
               "page",
               "file://~/Preferences/reader.VELMO.1/Local%20Store/Help/manual/"
               "page.html"},
        Target{"the installed page after a doubled slash",
               [](ClientWorld& world) { AddInstalledPage(world, "page.html"); },
               "page", "file:///Help//manual/page.html"},
        Target{
            "a leading space is part of the page id",
            [](ClientWorld& world) { AddInstalledPage(world, "_help.html"); },
            " help", "file:///Help//manual/_help.html"},
        Target{"a leading space keeps a URL from being one",
               [](ClientWorld& world) {
                 AddInstalledPage(world, "_http___x.html");
               },
               " http://x", "file:///Help//manual/_http___x.html"},
        Target{"dots do not lead out of the folder",
               [](ClientWorld& world) {
                 AddInstalledPage(world, ".._.._etc_passwd.html");
               },
               "../../etc/passwd",
               "file:///Help//manual/.._.._etc_passwd.html"},
        Target{
            "an unknown page gives the home page",
            [](ClientWorld& world) { AddInstalledPage(world, "VX_HOME.html"); },
            "page", "file:///Help//manual/VX_HOME.html"},
        Target{
            "the home page by its own id",
            [](ClientWorld& world) { AddInstalledPage(world, "VX_HOME.html"); },
            "VX_HOME", "file:///Help//manual/VX_HOME.html"},
        Target{"an anchor in the map becomes a query",
               [](ClientWorld& world) {
                 AddInstalledMap(world,
                                 "VX_HOME\thome.html\nintro\tv2.html#top\n");
               },
               "intro", "file:///Help//manual/v2.html?nameAnchor=top"},
        Target{"a space in the map is escaped",
               [](ClientWorld& world) {
                 AddInstalledMap(world, "VX_HOME\tmy home.html\n");
               },
               "page", "file:///Help//manual/my%20home.html"},
        Target{"a URL in the map is not looked up as a file",
               [](ClientWorld& world) {
                 AddInstalledMap(world, "VX_HOME\thttp://x/y\n");
                 world.machine().AddText("http://x/y");
               },
               "page", ""},
        Target{"a URL in the map that exists as a path is shown as it is",
               [](ClientWorld& world) {
                 AddInstalledMap(world, "VX_HOME\tfile:///x\n");
                 world.machine().AddFile("file:///x");
               },
               "page", "file:///x"},
        Target{"a map without the home page hides its folder",
               [](ClientWorld& world) {
                 AddInstalledMap(world, "page\tpage.html\n");
                 AddInstalledPage(world, "page.html");
               },
               "page", ""},
        Target{"a folder whose flag is not YES is passed over",
               [](ClientWorld& world) {
                 AddInstalledPage(world, "page.html");
                 world.Install({.folders = {{.flag = "no"}}});
               },
               "page", ""}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Online, DisplayTarget,
    ::testing::Values(
        Target{"a page that can be fetched",
               [](ClientWorld& world) {
                 world.GoOnline();
                 world.machine().AddText("http://localhost/help/" +
                                         testing::OwnName("manual") +
                                         "/page.html");
               },
               "page", "http://localhost/help/manual/page.html"},
        Target{"an unknown page gives the home page",
               [](ClientWorld& world) {
                 world.GoOnline();
                 world.machine().AddText("http://localhost/help/" +
                                         testing::OwnName("manual") +
                                         "/VX_HOME.html");
               },
               "page", "http://localhost/help/manual/VX_HOME.html"},
        Target{"a mapped page with its anchor unchanged",
               [](ClientWorld& world) {
                 world.GoOnline();
                 AddInstalledMap(world, "VX_HOME\thome.html#top\n");
               },
               "page", "http://localhost/help/manual/home.html#top"},
        Target{"a mapped URL that can be fetched",
               [](ClientWorld& world) {
                 world.GoOnline();
                 AddInstalledMap(world, "VX_HOME\thttps://x/y\n");
                 world.machine().AddText("https://x/y");
               },
               "page", "https://x/y"},
        Target{"nothing for a mapped URL that cannot be fetched",
               [](ClientWorld& world) {
                 world.GoOnline();
                 AddInstalledMap(world, "VX_HOME\thttps://x/y\n");
               },
               "page", ""},
        Target{"a local page is not looked for",
               [](ClientWorld& world) {
                 world.GoOnline();
                 AddInstalledPage(world, "page.html");
               },
               "page", ""}),
    testing::SentenceOf());

/// The viewer gets its arguments as C strings, which end at a zero byte.
TEST(ZeroByteInAMappedTarget, EndsTheTargetAndKeepsTheViewersClosingQuote) {
  using namespace std::string_literals;
  for (const std::string& value : {"https://x/y\0z"s, "y\0z"s}) {
    ClientWorld world;
    world.Install({.base_url = "https://x/"});
    world.InstallWorkingViewer();
    world.GoOnline();
    world.machine().AddText("https://x/y");
    world.AddFile(ClientWorld::InstalledManual() + "/helpmap.txt",
                  "VX_HOME\t" + value + "\n");
    world.Initialise();
    EXPECT_EQ(world.DisplayPage("page"), kDisplaySuccess);
    ASSERT_EQ(world.Shown().size(), 1);
    const std::string shown = world.Shown()[0];
    EXPECT_EQ(shown.find('\0'), std::string::npos);
    EXPECT_TRUE(shown.ends_with("y\"\"")) << shown;
  }
}

TEST(DisplayedMap, StaysInTheState) {
  ClientWorld world;
  world.Install();
  AddInstalledMap(world, "foo\tbar.html\n");
  world.Initialise();
  world.DisplayPage("page");
  EXPECT_EQ(world.state().help_map,
            (std::map<std::string, std::string>{{"foo", "bar.html"}}));
}

}  // namespace
}  // namespace velmohelp
