// What a search asks the machine, in which order, and what it leaves behind.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <velmohelp/velmohelp.h>

#include "client/state.h"
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
  SearchHelp("Foo", "en_US", "x");
  EXPECT_THAT(world.Questions(),
              ElementsAreArray(Joined(
                  {testing::kConfigurationIsRead, testing::kViewerIsLookedUp,
                   Steps{"StandardFolder -32763 pref create"},
                   testing::kPreferenceFileIsLookedFor, testing::kViewerIsTried,
                   Steps{"FileExists ~/Viewer",
                         "StartProgram ~/Viewer SEARCH Foo en_US x"}})));
}

TEST(SearchOrder, InTheBrowserLooksForDownloadedThenInstalledPages) {
  ClientWorld world;
  world.Install({.app_id = "NULL"});
  world.Initialise();
  kDownloadedHelpcfg = "/reader.VELMO.1/Local Store/";
  kDownloadedOfflineContent = "/reader.VELMO.1/Local Store/Help/";
  SearchHelp("Foo", "en_US", "x");
  EXPECT_THAT(world.Questions(),
              ElementsAreArray(
                  Joined({testing::kConfigurationIsRead,
                          Steps{"BundleDirectory com.velmo.vxclientframework"},
                          testing::kNetworkIsProbed,
                          Steps{"StandardFolder -32763 pref create",
                                testing::InDownloadedManual("/search.html"),
                                "FileExists /Help//manual/search.html"}})));
}

TEST(SearchOrder, AsksNothingForABadArgument) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  SearchHelp("Bar", "de_DE", "  ");
  SearchHelp("Bar", "", "x");
  SearchHelp(nullptr, "de_DE", "x");
  EXPECT_THAT(world.Questions(), IsEmpty());
  EXPECT_EQ(sProductID, "Foo");
  EXPECT_EQ(sLocale, "en_US");
}

TEST(SearchOrder, AsksForNoPreferenceWhenAPartOfTheNameIsMissing) {
  ClientWorld world;
  Search("", "Editor", "en_US", "x");
  Search("Suite", "", "en_US", "x");
  EXPECT_THAT(world.Questions(), IsEmpty());
}

TEST(SearchOrder, AsksTheHostPreferenceFirst) {
  ClientWorld world;
  Search("Suite", "Editor", "en_US", "x");
  EXPECT_THAT(world.Questions(),
              ElementsAreArray(
                  {"Preference admin com.velmo.Suite.Editor HelpcfgName"}));
}

TEST(SearchInitialises, AClientThatIsNot) {
  ClientWorld world;
  world.Install();
  EXPECT_EQ(SearchHelp("Foo", "en_US", "x"), 6U);
  EXPECT_EQ(sInitStatus, 0);
  EXPECT_EQ(kDownloadedHelpcfg, "/reader.VELMO.1/Local Store/");
  EXPECT_EQ(sProductID, "Foo");
  EXPECT_EQ(sLocale, "en_US");
  EXPECT_EQ(DisplayVelmoHelpClientPage("page"), 7U);
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
  EXPECT_EQ(SearchHelp("Bar", "de_DE", "x"), 6U);
  EXPECT_EQ(sAppID, "other");
  EXPECT_EQ(sProductID, "Bar");
  EXPECT_EQ(sLocale, "de_DE");
  EXPECT_EQ(kDownloadedHelpcfg, "/reader.VELMO.1/Local Store/");
}

TEST(SearchInitialises, AndRefusesWhatItCannotRead) {
  ClientWorld world;
  EXPECT_EQ(SearchHelp("Foo", "en_US", "x"), 4U);
  EXPECT_EQ(sInitStatus, 6);
  EXPECT_EQ(sProductID, "Foo");
  EXPECT_EQ(sLocale, "en_US");
}

/// A product of blanks is an argument that the initialisation refuses (1), not
/// a configuration that failed (6, 7): the search goes on with what there is.
TEST(SearchInitialises, AndGoesOnWhenItsArgumentsAreRefused) {
  ClientWorld world;
  world.InstallWorkingViewer("klh",
                             "9C3A51F07B26D48E15A0C7F3B9D2E6418A75C0D2.1");
  EXPECT_EQ(SearchHelp("  ", "en_US", "x"), 0U);
  EXPECT_EQ(sInitStatus, 1);
  EXPECT_EQ(world.Shown(),
            Steps{"StartProgram ~/Viewer SEARCH \"  \" en_US x"});
}

TEST(SearchInitialises, AndGoesOnToTheBrowserWhenItsArgumentsAreRefused) {
  ClientWorld world;
  EXPECT_EQ(SearchHelp("Foo", " ", "x"), 6U);
  EXPECT_EQ(sInitStatus, 1);
  EXPECT_EQ(sHelpPathCount, 100);
}

TEST(SearchTerm, IsRawForOneSearchThatGotThatFar) {
  ClientWorld world;
  world.Install();
  world.InstallWorkingViewer();
  world.Initialise();
  sQueryIsRaw = true;
  SearchHelp("Foo", "en_US", "a b");
  SearchHelp("Foo", "en_US", "a b");
  EXPECT_EQ(world.Shown(),
            (Steps{"StartProgram ~/Viewer SEARCH Foo en_US \"a b\"",
                   "StartProgram ~/Viewer SEARCH Foo en_US a%20b"}));
  EXPECT_FALSE(sQueryIsRaw);
}

TEST(SearchTerm, StaysRawAfterASearchWithoutAName) {
  ClientWorld world;
  world.Install();
  world.InstallWorkingViewer();
  EXPECT_EQ(Search("Suite", "Editor", "en_US", "x"), 8U);
  EXPECT_TRUE(sQueryIsRaw);
  EXPECT_EQ(SearchHelp("Foo", "en_US", "a b"), 0U);
  EXPECT_EQ(world.Shown(),
            Steps{"StartProgram ~/Viewer SEARCH Foo en_US \"a b\""});
}

TEST(SearchTerm, StaysRawAfterEveryEarlyReturn) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  sQueryIsRaw = true;
  EXPECT_EQ(SearchHelp("Foo", "en_US", " "), 3U);
  world.Install({.folders = {}});
  EXPECT_EQ(SearchHelp("Foo", "en_US", "x"), 5U);
  world.AddFile(world.InstalledConfig());
  EXPECT_EQ(SearchHelp("Foo", "en_US", "x"), 5U);
  EXPECT_EQ(SearchHelp("Bar", "en_US", "x"), 4U);
  EXPECT_TRUE(sQueryIsRaw);
}

TEST(SearchTerm, IsEncodedStrictly) {
  ClientWorld world;
  world.Install();
  world.InstallWorkingViewer();
  SearchHelp("Foo", "en_US", "a-b_c.d \xC3\x9C'()*!~");
  EXPECT_EQ(world.Shown(), Steps{"StartProgram ~/Viewer SEARCH Foo en_US "
                                 "a%2db%5fc%2ed%20%c3%9c'()*!~"});
}

TEST(SearchViewer, IsTheDefaultOneOnlyWhenBothIdsAreEmpty) {
  ClientWorld world;
  world.Install({.app_id = "", .pub_id = ""});
  SearchHelp("Foo", "en_US", "x");
  EXPECT_EQ(sAppID, "klh");
  world.Install({.app_id = "reader", .pub_id = ""});
  SearchHelp("Foo", "en_US", "x");
  EXPECT_EQ(sAppID, "reader");
  EXPECT_EQ(sPublisherID, "");
}

}  // namespace
}  // namespace velmohelp
