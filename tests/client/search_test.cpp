// What the two searches return and show.
#include <gtest/gtest.h>

#include "tests/support/client_world.h"
#include "tests/support/sentence.h"

namespace velmohelp {
namespace {

using testing::ClientWorld;
using testing::Outcome;

void AddSearchPage(ClientWorld& world) {
  world.AddFile(ClientWorld::InstalledManual() + "/search.html");
}

void NameProduct(ClientWorld& world, const char* product) {
  world.machine().SetPreference("com.velmo.Suite.Editor", "HelpcfgName",
                                PreferenceScope::kAnyUserCurrentHost, product);
}

struct Story {
  const char* sentence;
  void (*given)(ClientWorld&);
  std::uint32_t (*search)(ClientWorld&);
  Outcome outcome;
};

std::uint32_t ForText(ClientWorld& world) {
  return world.SearchHelp("Foo", "en_US", "a b&c");
}
std::uint32_t ByNames(ClientWorld& world) {
  return world.SearchByNames("Suite", "Editor", "en_US", "a b&c");
}

class SearchCode : public ::testing::TestWithParam<Story> {};

TEST_P(SearchCode, AndWhatIsShown) {
  ClientWorld world;
  world.Install();
  GetParam().given(world);
  const auto code = GetParam().search(world);
  EXPECT_EQ((Outcome{code, world.Shown()}), GetParam().outcome);
}

INSTANTIATE_TEST_SUITE_P(
    Zero, SearchCode,
    ::testing::Values(
        Story{"the viewer gets an encoded text",
              [](ClientWorld& world) { world.InstallWorkingViewer(); },
              ForText,
              {0, {"StartProgram ~/Viewer SEARCH Foo en_US a%20b%26c"}}},
        Story{"the viewer gets the text as it is by names",
              [](ClientWorld& world) {
                world.InstallWorkingViewer();
                NameProduct(world, "Foo");
              },
              ByNames,
              {0, {"StartProgram ~/Viewer SEARCH Foo en_US \"a b&c\""}}},
        Story{"the browser gets the local search page",
              [](ClientWorld& world) {
                AddSearchPage(world);
                world.StartBrowsers();
              },
              ForText,
              {0,
               {"OpenInBrowser file:///Help//manual/search.html?q="
                "a%20b%26c"}}},
        Story{"the browser gets the online search page",
              [](ClientWorld& world) {
                world.GoOnline();
                world.machine().AddText("http://localhost/help/" +
                                        testing::OwnName("manual") +
                                        "/search.html");
                world.StartBrowsers();
              },
              ForText,
              {0,
               {"OpenInBrowser http://localhost/help/manual/search.html?q="
                "a%20b%26c"}}},
        Story{"the browser in accessible mode",
              [](ClientWorld& world) {
                world.InstallWorkingViewer();
                world.SetAccessibleMode("TRUE");
                AddSearchPage(world);
                world.StartBrowsers();
              },
              ForText,
              {0,
               {"OpenInBrowser file:///Help//manual/search.html?q="
                "a%20b%26c"}}},
        Story{"the browser where no viewer is named",
              [](ClientWorld& world) {
                world.Install({.app_id = "NULL"});
                world.InstallWorkingViewer(
                    "klh", "9C3A51F07B26D48E15A0C7F3B9D2E6418A75C0D2.1");
                AddSearchPage(world);
                world.StartBrowsers();
              },
              ForText,
              {0,
               {"OpenInBrowser file:///Help//manual/search.html?q="
                "a%20b%26c"}}}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    One, SearchCode,
    ::testing::Values(
        Story{"a viewer that ends at once",
              [](ClientWorld& world) {
                world.InstallViewer();
                world.InstallRuntime();
              },
              ForText,
              {1, {"StartProgram ~/Viewer SEARCH Foo en_US a%20b%26c"}}},
        Story{"a browser that does not start",
              AddSearchPage,
              ForText,
              {1,
               {"OpenInBrowser file:///Help//manual/search.html?q="
                "a%20b%26c"}}},
        Story{"an unencoded text that makes no URL",
              [](ClientWorld& world) {
                AddSearchPage(world);
                world.StartBrowsers();
                NameProduct(world, "Foo");
              },
              ByNames,
              {1, {}}}),
    testing::SentenceOf());

void InViewer(ClientWorld& world) {
  world.InstallWorkingViewer();
  NameProduct(world, "Foo");
}

INSTANTIATE_TEST_SUITE_P(
    Three, SearchCode,
    ::testing::Values(Story{"no product",
                            InViewer,
                            [](ClientWorld& world) {
                              return world.SearchHelp(nullptr, "en_US", "x");
                            },
                            {3, {}}},
                      Story{"an empty product",
                            InViewer,
                            [](ClientWorld& world) {
                              return world.SearchHelp("", "en_US", "x");
                            },
                            {3, {}}},
                      Story{"no locale",
                            InViewer,
                            [](ClientWorld& world) {
                              return world.SearchHelp("Foo", nullptr, "x");
                            },
                            {3, {}}},
                      Story{"an empty locale",
                            InViewer,
                            [](ClientWorld& world) {
                              return world.SearchHelp("Foo", "", "x");
                            },
                            {3, {}}},
                      Story{"no text",
                            InViewer,
                            [](ClientWorld& world) {
                              return world.SearchHelp("Foo", "en_US", nullptr);
                            },
                            {3, {}}},
                      Story{"an empty text",
                            InViewer,
                            [](ClientWorld& world) {
                              return world.SearchHelp("Foo", "en_US", "");
                            },
                            {3, {}}},
                      Story{"a text of spaces",
                            InViewer,
                            [](ClientWorld& world) {
                              return world.SearchHelp("Foo", "en_US", "  ");
                            },
                            {3, {}}},
                      Story{"no text by names",
                            InViewer,
                            [](ClientWorld& world) {
                              return world.SearchByNames("Suite", "Editor",
                                                         "en_US", nullptr);
                            },
                            {3, {}}}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    FourToSeven, SearchCode,
    ::testing::Values(Story{"no configuration",
                            InViewer,
                            [](ClientWorld& world) {
                              return world.SearchHelp("Bar", "en_US", "x");
                            },
                            {4, {}}},
                      Story{"an invalid configuration",
                            [](ClientWorld& world) {
                              InViewer(world);
                              world.Install({.base_url = ""});
                            },
                            ForText,
                            {5, {}}},
                      Story{"no content folders",
                            [](ClientWorld& world) {
                              InViewer(world);
                              world.Install({.folders = {}});
                            },
                            ForText,
                            {5, {}}},
                      Story{"offline and no search page",
                            [](ClientWorld& world) { world.StartBrowsers(); },
                            ForText,
                            {6, {}}},
                      Story{"offline and a search page online alone",
                            [](ClientWorld& world) {
                              world.machine().AddText(
                                  "http://localhost/help/" +
                                  testing::OwnName("manual") + "/search.html");
                            },
                            ForText,
                            {6, {}}},
                      Story{"online and a local search page alone",
                            [](ClientWorld& world) {
                              world.GoOnline();
                              AddSearchPage(world);
                            },
                            ForText,
                            {7, {}}}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Eight, SearchCode,
    ::testing::Values(
        Story{"no name set",
              [](ClientWorld& world) { world.InstallWorkingViewer(); },
              ByNames,
              {8, {}}},
        Story{"an empty name set",
              [](ClientWorld& world) {
                world.InstallWorkingViewer();
                NameProduct(world, "");
              },
              ByNames,
              {8, {}}},
        Story{"a user's name does not count",
              [](ClientWorld& world) {
                world.machine().SetPreference(
                    "com.velmo.Suite.Editor", "HelpcfgName",
                    PreferenceScope::kCurrentUserAnyHost, "Foo");
              },
              ByNames,
              {8, {}}},
        Story{"an empty first part",
              InViewer,
              [](ClientWorld& world) {
                return world.SearchByNames("", "Editor", "en_US", "x");
              },
              {8, {}}},
        Story{"an empty second part",
              InViewer,
              [](ClientWorld& world) {
                return world.SearchByNames("Suite", "", "en_US", "x");
              },
              {8, {}}},
        Story{"no first part",
              InViewer,
              [](ClientWorld& world) {
                return world.SearchByNames(nullptr, "Editor", "en_US", "x");
              },
              {8, {}}},
        Story{"no second part",
              InViewer,
              [](ClientWorld& world) {
                return world.SearchByNames("Suite", nullptr, "en_US", "x");
              },
              {8, {}}},
        Story{"and the text is not even looked at",
              InViewer,
              [](ClientWorld& world) {
                return world.SearchByNames("", "", nullptr, nullptr);
              },
              {8, {}}}),
    testing::SentenceOf());

}  // namespace
}  // namespace velmohelp
