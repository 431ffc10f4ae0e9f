// Every code that a page display returns, with what was shown for it.
#include <gtest/gtest.h>

#include <ios>

#include "tests/support/client_world.h"
#include "tests/support/sentence.h"

namespace velmohelp {
namespace {

using testing::ClientWorld;
using testing::Outcome;

constexpr char kPage[] = "/page.html";
constexpr char kInBrowser[] =
    "OpenInBrowser file://~/Preferences/reader.VELMO.1/Local%20Store/Help/"
    "manual/page.html";

struct Story {
  const char* sentence;
  /// Set up before the client is initialised, and after.
  void (*given)(ClientWorld&);
  void (*then)(ClientWorld&);
  const char* page_id;
  Outcome outcome;
};

void Nothing(ClientWorld&) {}

void WithPage(ClientWorld& world) {
  world.AddFile(world.DownloadedManual() + kPage);
}

class DisplayCode : public ::testing::TestWithParam<Story> {};

TEST_P(DisplayCode, AndWhatIsShown) {
  ClientWorld world;
  world.Install();
  GetParam().given(world);
  world.Initialise();
  GetParam().then(world);
  const auto code = world.DisplayPage(GetParam().page_id);
  EXPECT_EQ((Outcome{code, world.Shown()}), GetParam().outcome);
}

INSTANTIATE_TEST_SUITE_P(
    Zero, DisplayCode,
    ::testing::Values(
        Story{"a local page in the viewer",
              [](ClientWorld& world) {
                WithPage(world);
                world.InstallWorkingViewer();
              },
              Nothing,
              "page",
              {0,
               {"StartProgram ~/Viewer HELP Foo en_US "
                "\"\"file://~/Preferences/reader.VELMO.1/Local%20Store/Help/"
                "manual/page.html\"\""}}},
        Story{"a local page in the browser",
              [](ClientWorld& world) {
                WithPage(world);
                world.StartBrowsers();
              },
              Nothing,
              "page",
              {0, {kInBrowser}}},
        Story{"a URL",
              [](ClientWorld& world) { world.StartBrowsers(); },
              Nothing,
              "http://x/y",
              {0, {"OpenInBrowser http://x/y"}}},
        Story{"an unknown page in the viewer",
              [](ClientWorld& world) { world.InstallWorkingViewer(); },
              Nothing,
              "my page",
              {0,
               {"StartProgram ~/Viewer HELP Foo en_US "
                "\"my page\""}}}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    One, DisplayCode,
    ::testing::Values(
        Story{"a viewer that ends at once",
              [](ClientWorld& world) {
                WithPage(world);
                world.InstallViewer();
                world.InstallRuntime();
              },
              Nothing,
              "page.html",
              {1,
               {"StartProgram ~/Viewer HELP Foo en_US "
                "\"\"file://~/Preferences/reader.VELMO.1/Local%20Store/Help/"
                "manual/page.html\"\""}}},
        Story{"the last resort ends at once",
              [](ClientWorld& world) {
                world.InstallViewer();
                world.InstallRuntime();
              },
              Nothing,
              "page",
              {1, {"StartProgram ~/Viewer HELP Foo en_US page"}}}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Two, DisplayCode,
    ::testing::Values(
        Story{"a browser that does not start",
              WithPage,
              Nothing,
              "page",
              {2, {kInBrowser}}},
        Story{"a local target that no URL can name",
              [](ClientWorld& world) {
                world.AddFile(world.DownloadedManual() + "/helpmap.txt",
                              "VX_HOME\thome.html\npage\tp\xFF.html\n");
                world.StartBrowsers();
              },
              Nothing,
              "page",
              {2, {}}},
        Story{"a URL whose browser does not start",
              Nothing,
              Nothing,
              "http://x/y",
              {2, {"OpenInBrowser http://x/y"}}},
        Story{"a URL whose viewer ends at once",
              [](ClientWorld& world) {
                world.InstallViewer();
                world.InstallRuntime();
              },
              Nothing,
              "http://x/y",
              {2, {"StartProgram ~/Viewer URL Foo en_US \"\"http://x/y\"\""}}}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Three, DisplayCode,
    ::testing::Values(Story{"no page id", Nothing, Nothing, nullptr, {3, {}}},
                      Story{"an empty page id", Nothing, Nothing, "", {3, {}}},
                      Story{"spaces", Nothing, Nothing, "   ", {3, {}}}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    FourAndFive, DisplayCode,
    ::testing::Values(Story{"a configuration removed since",
                            WithPage,
                            [](ClientWorld& world) {
                              world.RemoveFile(world.InstalledConfig());
                            },
                            "page",
                            {4, {}}},
                      Story{"a configuration emptied since",
                            WithPage,
                            [](ClientWorld& world) {
                              world.AddFile(world.InstalledConfig());
                            },
                            "page",
                            {5, {}}},
                      Story{"a configuration of another product since",
                            WithPage,
                            [](ClientWorld& world) {
                              world.Install({.id = "en_US_Bar"});
                            },
                            "page",
                            {5, {}}},
                      Story{"a configuration without content folders",
                            [](ClientWorld& world) {
                              WithPage(world);
                              world.Install({.folders = {}});
                            },
                            Nothing,
                            "page",
                            {5, {}}}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Seven, DisplayCode,
    ::testing::Values(
        Story{"neither page nor home page nor viewer",
              [](ClientWorld& world) { world.StartBrowsers(); },
              Nothing,
              "page",
              {7, {}}},
        Story{"a viewer without its runtime is not the last resort",
              [](ClientWorld& world) { world.InstallViewer(); },
              Nothing,
              "page",
              {7, {}}},
        Story{"a target that is not a URL for the browser",
              [](ClientWorld& world) {
                world.Install({.base_url = "help/"});
                world.AddFile(ClientWorld::InstalledManual() + "/helpmap.txt",
                              "VX_HOME\thome.html\npage\tp.html\n");
                world.GoOnline();
                world.StartBrowsers();
              },
              Nothing,
              "page",
              {7, {}}}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Eleven, DisplayCode,
    ::testing::Values(Story{"a URL whose opening returns four",
                            Nothing,
                            [](ClientWorld& world) {
                              world.RemoveFile(world.InstalledConfig());
                            },
                            "http://x/y",
                            {11, {}}},
                      Story{"a URL whose opening returns five",
                            Nothing,
                            [](ClientWorld& world) {
                              world.AddFile(world.InstalledConfig());
                            },
                            "http://x/y",
                            {11, {}}}),
    testing::SentenceOf());

TEST(BrokenHelpMap, EndsADisplayThroughAnException) {
  ClientWorld world;
  world.Install();
  world.AddDirectory(world.DownloadedManual() + "/helpmap.txt");
  world.StartBrowsers();
  world.Initialise();
  EXPECT_THROW(world.DisplayPage("page"), std::ios_base::failure);
  EXPECT_TRUE(world.Shown().empty());
}

TEST(DisplaySix, ComesFirstBeforeAnyInitialisation) {
  for (const char* page_id :
       {static_cast<const char*>(nullptr), "", " ", "page", "http://x/y"}) {
    ClientWorld world;
    world.Install();
    world.InstallWorkingViewer();
    EXPECT_EQ(world.DisplayPage(page_id), 6U);
    EXPECT_TRUE(world.Questions().empty());
  }
}

TEST(DisplaySix, FollowsADisplayThatFoundTheConfigurationGone) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  world.RemoveFile(world.InstalledConfig());
  EXPECT_EQ(world.DisplayPage("page"), 4U);
  EXPECT_EQ(world.state().init_status, 6);
  world.Install();
  world.machine().ForgetQuestions();
  EXPECT_EQ(world.DisplayPage("page"), 6U);
  EXPECT_TRUE(world.Questions().empty());
}

}  // namespace
}  // namespace velmohelp
