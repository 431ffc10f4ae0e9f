// A configuration that changes under a client: each request reads it again,
// and nothing is put back where a read fails.
#include <gtest/gtest.h>
#include <velmohelp/velmohelp.h>

#include "client/state.h"
#include "tests/support/client_world.h"

namespace velmohelp {
namespace {

using testing::ClientWorld;
using testing::HelpConfig;
using testing::OwnName;

TEST(Reread, TakesAnEditedConfigurationAtTheNextRequest) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  world.Install({.app_id = "other", .base_url = "http://new/"});
  DisplayVelmoHelpClientPage("page");
  EXPECT_EQ(sBaseUrl, "http://new/");
  EXPECT_EQ(sAppID, "other");
}

TEST(Reread, TakesAConfigurationDownloadedSince) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  world.Download({.base_url = "http://downloaded/"});
  OpenURL("http://x");
  EXPECT_EQ(sBaseUrl, "http://downloaded/");
}

TEST(Reread, LeavesEverythingOfAConfigurationThatIsGoneButItsCount) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  EXPECT_EQ(sHelpPathCount, 1);
  world.RemoveFile(world.InstalledConfig());
  EXPECT_EQ(DisplayVelmoHelpClientPage("page"), 4U);
  EXPECT_EQ(sHelpPathCount, 100);
  EXPECT_EQ(sAppID, "reader");
  EXPECT_EQ(sConfigID, "en_US_Foo");
  EXPECT_EQ(sBaseUrl, "http://localhost/help/");
  EXPECT_EQ(sHelpPaths[0][0], OwnName("manual"));
  EXPECT_EQ(sViewerChoice, 0U);
}

TEST(Reread, LeavesWhatWasReadBeforeTheIdWasRejected) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  world.Install(
      {.id = "en_US_Bar", .app_id = "other", .base_url = "http://new/"});
  EXPECT_EQ(DisplayVelmoHelpClientPage("page"), 5U);
  EXPECT_EQ(sInitStatus, 7);
  EXPECT_EQ(sConfigID, "en_US_Bar");
  EXPECT_EQ(sAppID, "other");
  EXPECT_EQ(sLocale, "en_US");
  EXPECT_EQ(sBaseUrl, "http://localhost/help/");
}

TEST(Reread, LeavesAnEmptyBaseUrlThatWasRejected) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  world.Install({.base_url = ""});
  EXPECT_EQ(OpenURL("http://x"), 5U);
  EXPECT_EQ(sBaseUrl, "");
}

TEST(Reread, TakesTheDefaultViewerThoughADisplayFails) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  world.Install({.id = "en_US_Bar", .app_id = "NULL"});
  EXPECT_EQ(DisplayVelmoHelpClientPage("page"), 5U);
  EXPECT_EQ(sAppID, "klh");
  EXPECT_TRUE(sAppIDIsNull);
  EXPECT_EQ(sHelpAppPath, "");
}

/// A search leaves the ids as the failed read left them.
TEST(Reread, TakesNoDefaultViewerWhenASearchFails) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  world.Install({.id = "en_US_Bar", .app_id = "NULL"});
  EXPECT_EQ(SearchHelp("Foo", "en_US", "x"), 5U);
  EXPECT_EQ(sAppID, "");
  EXPECT_EQ(sPublisherID, "");
}

TEST(Reread, BringsTheClientBackOnlyThroughAnInitialisation) {
  ClientWorld world;
  world.Install();
  world.StartBrowsers();
  world.Initialise();
  world.AddFile(world.InstalledConfig());
  EXPECT_EQ(DisplayVelmoHelpClientPage("http://x"), 11U);
  world.Install();
  EXPECT_EQ(DisplayVelmoHelpClientPage("http://x"), 6U);
  EXPECT_EQ(GetVelmoHelpClientOnlineStatus(), 2U);
  EXPECT_EQ(InitializeVelmoHelpClient("Foo", "en_US", 0), 0U);
  EXPECT_EQ(DisplayVelmoHelpClientPage("http://x"), 0U);
}

/// The locale is cut to five bytes by the first accepted read, so the next one
/// looks in another folder.
TEST(Reread, FollowsTheCutLocaleFromOneRequestToTheNext) {
  ClientWorld world;
  world.Install();
  world.AddFile(world.InstalledConfig("zh_Hans"),
                HelpConfig{.id = "zh_Hans_Foo"}.Text());
  world.Initialise();
  EXPECT_EQ(SearchHelp("Foo", "zh_Hans", "x"), 6U);
  EXPECT_EQ(sInitStatus, 0);
  EXPECT_EQ(sLocale, "zh_Ha");
  EXPECT_EQ(DisplayVelmoHelpClientPage("page"), 4U);
  EXPECT_EQ(DisplayVelmoHelpClientPage("page"), 6U);
}

TEST(StaleRows, AreOutOfUseBehindAShorterTable) {
  ClientWorld world;
  world.Install({.folders = {{"old"}, {OwnName("manual")}}});
  world.AddFile(ClientWorld::InstalledManual() + "/page.html");
  world.StartBrowsers();
  world.Initialise();
  EXPECT_EQ(DisplayVelmoHelpClientPage("page"), 0U);
  world.Install({.folders = {{"new"}}});
  EXPECT_EQ(DisplayVelmoHelpClientPage("page"), 7U);
  EXPECT_EQ(sHelpPathCount, 1);
  EXPECT_EQ(sHelpPaths[1][0], OwnName("manual"));
}

/// A folder's name without a flag of its own fills a row that the count leaves
/// out; flags without names make old names count again.
TEST(StaleRows, ComeBackUnderFlagsWithoutNames) {
  ClientWorld world;
  world.Install({.folders = {{"old"}, {OwnName("manual")}}});
  world.AddFile(ClientWorld::InstalledManual() + "/page.html");
  world.StartBrowsers();
  world.Initialise();
  world.AddFile(world.InstalledConfig(),
                HelpConfig{.folders = {{"new"}}}.Text() +
                    "<content contextSensitivity=\"yes\"/>");
  EXPECT_EQ(DisplayVelmoHelpClientPage("page"), 0U);
  EXPECT_EQ(sHelpPathCount, 2);
  EXPECT_EQ(sHelpPaths[0][0], "new");
}

/// A downloaded file without any "path" leaves table and capacity as they are.
TEST(StaleRows, AllCountUnderAConfigurationWithoutPaths) {
  ClientWorld world;
  world.Install();
  world.AddFile(ClientWorld::InstalledManual() + "/page.html");
  world.StartBrowsers();
  world.Initialise();
  world.AddFile(world.DownloadedConfig(),
                R"(<x id="en_US_Foo" baseUrl="http://x/"/>)");
  EXPECT_EQ(DisplayVelmoHelpClientPage("page"), 0U);
  EXPECT_EQ(sHelpPathCount, 100);
}

}  // namespace
}  // namespace velmohelp
