// What a search asks the machine, in which order, and the state afterwards.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/client/steps.h"
#include "tests/support/client_world.h"

namespace velmohelp {
namespace {

using testing::ClientWorld;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using testing::Joined;
using testing::Steps;

TEST(SearchOrder, InTheViewerProbesNoNetwork) {
  ClientWorld world;
  world.Install();
  world.InstallWorkingViewer();
  world.Initialise();
  world.SearchHelp("Foo", "en_US", "x");
  EXPECT_THAT(world.Questions(),
              ElementsAreArray(Joined(
                  {testing::kConfigurationIsRead, testing::kViewerIsLookedUp,
                   Steps{"PreferencesFolder create"},
                   testing::kPreferenceFileIsLookedFor, testing::kViewerIsTried,
                   Steps{"FindFile ~/Viewer",
                         "StartProgram ~/Viewer SEARCH Foo en_US x"}})));
}

TEST(SearchOrder, InTheBrowserLooksForDownloadedThenInstalledPages) {
  ClientWorld world;
  world.Install({.app_id = "NULL"});
  world.Initialise();
  world.state().downloaded_config = "/reader.VELMO.1/Local Store/";
  world.state().downloaded_content = "/reader.VELMO.1/Local Store/Help/";
  world.SearchHelp("Foo", "en_US", "x");
  EXPECT_THAT(world.Questions(),
              ElementsAreArray(
                  Joined({testing::kConfigurationIsRead,
                          Steps{"BundleDirectory com.velmo.vxclientframework"},
                          testing::kNetworkIsProbed,
                          Steps{"PreferencesFolder create",
                                testing::InDownloadedManual("/search.html"),
                                "FindFile /Help//manual/search.html"}})));
}

TEST(SearchOrder, AsksNothingForABadArgument) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  world.SearchHelp("Bar", "de_DE", "  ");
  world.SearchHelp("Bar", "", "x");
  world.SearchHelp(nullptr, "de_DE", "x");
  EXPECT_THAT(world.Questions(), IsEmpty());
  EXPECT_EQ(world.state().product_id, "Foo");
  EXPECT_EQ(world.state().locale, "en_US");
}

TEST(SearchOrder, AsksForNoPreferenceWhenAPartOfTheNameIsMissing) {
  ClientWorld world;
  world.SearchByNames("", "Editor", "en_US", "x");
  world.SearchByNames("Suite", "", "en_US", "x");
  EXPECT_THAT(world.Questions(), IsEmpty());
}

TEST(SearchOrder, AsksTheHostPreferenceFirst) {
  ClientWorld world;
  world.SearchByNames("Suite", "Editor", "en_US", "x");
  EXPECT_THAT(world.Questions(),
              ElementsAreArray(
                  {"Preference admin com.velmo.Suite.Editor HelpcfgName"}));
}

TEST(SearchInitialises, AClientThatIsNot) {
  ClientWorld world;
  world.Install();
  EXPECT_EQ(world.SearchHelp("Foo", "en_US", "x"), 6U);
  EXPECT_EQ(world.state().init_status, 0);
  EXPECT_EQ(world.state().downloaded_config, "/reader.VELMO.1/Local Store/");
  EXPECT_EQ(world.state().product_id, "Foo");
  EXPECT_EQ(world.state().locale, "en_US");
  EXPECT_EQ(world.DisplayPage("page"), 7U);
}

/// An initialised client is only read again, also for another product: the
/// viewer's folders stay those of the last initialisation.
TEST(SearchInitialises, NotForAnotherProduct) {
  ClientWorld world;
  world.Install();
  world.AddFile(world.InstalledConfig("de_DE", "Bar"),
                testing::HelpConfig{
                    .id = "de_DE_Bar", .app_id = "other", .pub_id = "OTHER.1"}
                    .Text());
  world.Initialise();
  EXPECT_EQ(world.SearchHelp("Bar", "de_DE", "x"), 6U);
  EXPECT_EQ(world.state().app_id, "other");
  EXPECT_EQ(world.state().product_id, "Bar");
  EXPECT_EQ(world.state().locale, "de_DE");
  EXPECT_EQ(world.state().downloaded_config, "/reader.VELMO.1/Local Store/");
}

TEST(SearchInitialises, AndRefusesWhatItCannotRead) {
  ClientWorld world;
  EXPECT_EQ(world.SearchHelp("Foo", "en_US", "x"), 4U);
  EXPECT_EQ(world.state().init_status, 6);
  EXPECT_EQ(world.state().product_id, "Foo");
  EXPECT_EQ(world.state().locale, "en_US");
}

/// A product of spaces is an argument that the initialisation refuses (1), not
/// a configuration that failed (6, 7): the search goes on with what there is.
TEST(SearchInitialises, AndGoesOnWhenItsArgumentsAreRefused) {
  ClientWorld world;
  world.InstallWorkingViewer("klh",
                             "9C3A51F07B26D48E15A0C7F3B9D2E6418A75C0D2.1");
  EXPECT_EQ(world.SearchHelp("  ", "en_US", "x"), 0U);
  EXPECT_EQ(world.state().init_status, 1);
  EXPECT_EQ(world.Shown(),
            Steps{"StartProgram ~/Viewer SEARCH \"  \" en_US x"});
}

TEST(SearchInitialises, AndGoesOnToTheBrowserWhenItsArgumentsAreRefused) {
  ClientWorld world;
  EXPECT_EQ(world.SearchHelp("Foo", " ", "x"), 6U);
  EXPECT_EQ(world.state().init_status, 1);
  EXPECT_EQ(world.state().help_path_count, 100);
}

TEST(SearchTerm, IsRawForOneSearchThatGotThatFar) {
  ClientWorld world;
  world.Install();
  world.InstallWorkingViewer();
  world.Initialise();
  world.state().query_is_raw = true;
  world.SearchHelp("Foo", "en_US", "a b");
  world.SearchHelp("Foo", "en_US", "a b");
  EXPECT_EQ(world.Shown(),
            (Steps{"StartProgram ~/Viewer SEARCH Foo en_US \"a b\"",
                   "StartProgram ~/Viewer SEARCH Foo en_US a%20b"}));
  EXPECT_FALSE(world.state().query_is_raw);
}

TEST(SearchTerm, StaysRawAfterASearchWithoutAName) {
  ClientWorld world;
  world.Install();
  world.InstallWorkingViewer();
  EXPECT_EQ(world.SearchByNames("Suite", "Editor", "en_US", "x"), 8U);
  EXPECT_TRUE(world.state().query_is_raw);
  EXPECT_EQ(world.SearchHelp("Foo", "en_US", "a b"), 0U);
  EXPECT_EQ(world.Shown(),
            Steps{"StartProgram ~/Viewer SEARCH Foo en_US \"a b\""});
}

TEST(SearchTerm, StaysRawAfterEveryEarlyReturn) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  world.state().query_is_raw = true;
  EXPECT_EQ(world.SearchHelp("Foo", "en_US", " "), 3U);
  world.Install({.folders = {}});
  EXPECT_EQ(world.SearchHelp("Foo", "en_US", "x"), 5U);
  world.AddFile(world.InstalledConfig());
  EXPECT_EQ(world.SearchHelp("Foo", "en_US", "x"), 5U);
  EXPECT_EQ(world.SearchHelp("Bar", "en_US", "x"), 4U);
  EXPECT_TRUE(world.state().query_is_raw);
}

TEST(SearchTerm, IsEncodedStrictly) {
  ClientWorld world;
  world.Install();
  world.InstallWorkingViewer();
  world.SearchHelp("Foo", "en_US", "a-b_c.d \xC3\x9C'()*!~");
  EXPECT_EQ(world.Shown(), Steps{"StartProgram ~/Viewer SEARCH Foo en_US "
                                 "a%2db%5fc%2ed%20%c3%9c'()*!~"});
}

TEST(SearchViewer, IsTheDefaultOneOnlyWhenBothIdsAreEmpty) {
  ClientWorld world;
  world.Install({.app_id = "", .pub_id = ""});
  world.SearchHelp("Foo", "en_US", "x");
  EXPECT_EQ(world.state().app_id, "klh");
  world.Install({.app_id = "reader", .pub_id = ""});
  world.SearchHelp("Foo", "en_US", "x");
  EXPECT_EQ(world.state().app_id, "reader");
  EXPECT_EQ(world.state().publisher_id, "");
}

}  // namespace
}  // namespace velmohelp
