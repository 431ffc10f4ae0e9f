// What OpenURL returns and shows.
#include <gtest/gtest.h>

#include "tests/support/client_world.h"
#include "tests/support/sentence.h"

namespace velmohelp {
namespace {

using testing::ClientWorld;
using testing::Outcome;

constexpr char kKlhPublisher[] = "9C3A51F07B26D48E15A0C7F3B9D2E6418A75C0D2.1";

void Nothing(ClientWorld&) {}

struct Story {
  const char* sentence;
  /// Set up before the client is initialised, and after.
  void (*given)(ClientWorld&);
  void (*then)(ClientWorld&);
  const char* url;
  Outcome outcome;
};

class OpenUrlCode : public ::testing::TestWithParam<Story> {};

TEST_P(OpenUrlCode, AndWhatIsShown) {
  ClientWorld world;
  world.Install();
  GetParam().given(world);
  world.Initialise();
  GetParam().then(world);
  const auto code = world.OpenUrl(GetParam().url);
  EXPECT_EQ((Outcome{code, world.Shown()}), GetParam().outcome);
}

INSTANTIATE_TEST_SUITE_P(
    InViewer, OpenUrlCode,
    ::testing::Values(
        Story{"a URL between quotes",
              [](ClientWorld& world) { world.InstallWorkingViewer(); },
              Nothing,
              "http://x/y",
              {0, {"StartProgram ~/Viewer URL Foo en_US \"\"http://x/y\"\""}}},
        Story{"spaces stay spaces",
              [](ClientWorld& world) { world.InstallWorkingViewer(); },
              Nothing,
              "http://x/a b.html",
              {0,
               {"StartProgram ~/Viewer URL Foo en_US "
                "\"\"http://x/a b.html\"\""}}},
        Story{"quotes inside are not escaped",
              [](ClientWorld& world) { world.InstallWorkingViewer(); },
              Nothing,
              "file://\"x\\\"",
              {0,
               {"StartProgram ~/Viewer URL Foo en_US "
                "\"\"file://\"x\\\"\"\""}}},
        Story{"with a preference file that allows it",
              [](ClientWorld& world) {
                world.InstallWorkingViewer();
                world.SetAccessibleMode("FALSE");
              },
              Nothing,
              "https://x",
              {0, {"StartProgram ~/Viewer URL Foo en_US \"\"https://x\"\""}}},
        Story{"a viewer that ends at once gives two",
              [](ClientWorld& world) {
                world.InstallViewer();
                world.InstallRuntime();
              },
              Nothing,
              "https://x",
              {2, {"StartProgram ~/Viewer URL Foo en_US \"\"https://x\"\""}}}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    InBrowser, OpenUrlCode,
    ::testing::Values(Story{"where no viewer is installed",
                            [](ClientWorld& world) { world.StartBrowsers(); },
                            Nothing,
                            "http://x/y",
                            {0, {"OpenInBrowser http://x/y"}}},
                      Story{"spaces are escaped",
                            [](ClientWorld& world) { world.StartBrowsers(); },
                            Nothing,
                            "http://x/a b.html",
                            {0, {"OpenInBrowser http://x/a%20b.html"}}},
                      Story{"escapes are not escaped again",
                            [](ClientWorld& world) { world.StartBrowsers(); },
                            Nothing,
                            "http://x/a%20b#c?d",
                            {0, {"OpenInBrowser http://x/a%20b#c?d"}}},
                      Story{"where the configuration names no viewer",
                            [](ClientWorld& world) {
                              world.Install({.app_id = "NULL"});
                              world.InstallWorkingViewer("klh", kKlhPublisher);
                              world.StartBrowsers();
                            },
                            Nothing,
                            "http://x/y",
                            {0, {"OpenInBrowser http://x/y"}}},
                      Story{"in accessible mode",
                            [](ClientWorld& world) {
                              world.InstallWorkingViewer();
                              world.SetAccessibleMode("true");
                              world.StartBrowsers();
                            },
                            Nothing,
                            "http://x/y",
                            {0, {"OpenInBrowser http://x/y"}}},
                      Story{"without the runtime",
                            [](ClientWorld& world) {
                              world.InstallViewer();
                              world.StartBrowsers();
                            },
                            Nothing,
                            "http://x/y",
                            {0, {"OpenInBrowser http://x/y"}}},
                      Story{"a browser that does not start gives one",
                            Nothing,
                            Nothing,
                            "http://x/y",
                            {1, {"OpenInBrowser http://x/y"}}},
                      Story{"a text that is not valid UTF-8 gives one",
                            [](ClientWorld& world) { world.StartBrowsers(); },
                            Nothing,
                            "http://x/\xFF",
                            {1, {}}}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Refused, OpenUrlCode,
    ::testing::Values(
        Story{"no URL", Nothing, Nothing, nullptr, {3, {}}},
        Story{"an empty URL", Nothing, Nothing, "", {3, {}}},
        Story{"spaces", Nothing, Nothing, "   ", {3, {}}},
        Story{"a page id", Nothing, Nothing, "page.html", {3, {}}},
        Story{"a scheme in capitals", Nothing, Nothing, "HTTP://x", {3, {}}},
        Story{"another scheme", Nothing, Nothing, "mailto:x", {3, {}}},
        Story{"a leading space", Nothing, Nothing, " http://x", {3, {}}},
        Story{"a configuration removed since",
              Nothing,
              [](ClientWorld& world) {
                world.RemoveFile(world.InstalledConfig());
              },
              "http://x",
              {4, {}}},
        Story{"a configuration that has become invalid",
              Nothing,
              [](ClientWorld& world) { world.Install({.path = ""}); },
              "http://x",
              {5, {}}},
        Story{"a configuration without content folders",
              [](ClientWorld& world) { world.Install({.folders = {}}); },
              Nothing,
              "http://x",
              {5, {}}}),
    testing::SentenceOf());

TEST(OpenUrlSix, IsReturnedBeforeAnyInitialisation) {
  ClientWorld world;
  world.Install();
  EXPECT_EQ(world.OpenUrl("http://x"), 6U);
  EXPECT_TRUE(world.Questions().empty());
}

TEST(OpenUrlSix, ComesAfterTheTestsOfTheArgument) {
  ClientWorld world;
  for (const char* url : {static_cast<const char*>(nullptr), "", " ", "x"}) {
    EXPECT_EQ(world.OpenUrl(url), 3U);
  }
}

TEST(OpenUrlSix, FollowsAFailedRereadUntilASearchInitialisesAgain) {
  ClientWorld world;
  world.Install();
  world.StartBrowsers();
  world.Initialise();
  world.RemoveFile(world.InstalledConfig());
  EXPECT_EQ(world.OpenUrl("http://x"), 4U);
  EXPECT_EQ(world.state().init_status, 6);
  world.Install();
  EXPECT_EQ(world.OpenUrl("http://x"), 6U);
  world.SearchHelp("Foo", "en_US", "x");
  EXPECT_EQ(world.OpenUrl("http://x"), 0U);
}

TEST(OpenUrl, DoesNotCareWhetherTheMachineIsOnline) {
  ClientWorld world;
  world.Install();
  world.GoOnline();
  world.StartBrowsers();
  world.Initialise();
  world.machine().SetReachability("localhost", {});
  EXPECT_EQ(world.OpenUrl("http://x"), 0U);
  EXPECT_TRUE(world.state().is_online);
  for (const std::string& question : world.Questions()) {
    EXPECT_FALSE(question.starts_with("HostReachability")) << question;
  }
}

}  // namespace
}  // namespace velmohelp
