// A configuration that changes under a client: each request reads it again,
// and nothing is put back where a read fails.
#include <gtest/gtest.h>

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
  world.DisplayPage("page");
  EXPECT_EQ(world.state().base_url, "http://new/");
  EXPECT_EQ(world.state().app_id, "other");
}

TEST(Reread, TakesAConfigurationDownloadedSince) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  world.Download({.base_url = "http://downloaded/"});
  world.OpenUrl("http://x");
  EXPECT_EQ(world.state().base_url, "http://downloaded/");
}

TEST(Reread, LeavesEverythingOfAConfigurationThatIsGoneButItsCount) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  EXPECT_EQ(world.state().help_path_count, 1);
  world.RemoveFile(world.InstalledConfig());
  EXPECT_EQ(world.DisplayPage("page"), 4U);
  EXPECT_EQ(world.state().help_path_count, 100);
  EXPECT_EQ(world.state().app_id, "reader");
  EXPECT_EQ(world.state().config_id, "en_US_Foo");
  EXPECT_EQ(world.state().base_url, "http://localhost/help/");
  EXPECT_EQ(world.state().help_paths[0][0], OwnName("manual"));
  EXPECT_EQ(world.state().viewer_choice, 0U);
}

TEST(Reread, LeavesWhatWasReadBeforeTheIdWasRejected) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  world.Install(
      {.id = "en_US_Bar", .app_id = "other", .base_url = "http://new/"});
  EXPECT_EQ(world.DisplayPage("page"), 5U);
  EXPECT_EQ(world.state().init_status, 7);
  EXPECT_EQ(world.state().config_id, "en_US_Bar");
  EXPECT_EQ(world.state().app_id, "other");
  EXPECT_EQ(world.state().locale, "en_US");
  EXPECT_EQ(world.state().base_url, "http://localhost/help/");
}

TEST(Reread, LeavesAnEmptyBaseUrlThatWasRejected) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  world.Install({.base_url = ""});
  EXPECT_EQ(world.OpenUrl("http://x"), 5U);
  EXPECT_EQ(world.state().base_url, "");
}

TEST(Reread, TakesTheDefaultViewerThoughADisplayFails) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  world.Install({.id = "en_US_Bar", .app_id = "NULL"});
  EXPECT_EQ(world.DisplayPage("page"), 5U);
  EXPECT_EQ(world.state().app_id, "klh");
  EXPECT_TRUE(world.state().app_id_is_null);
  EXPECT_EQ(world.state().help_app_path, "");
}

/// A search leaves the ids as the failed read left them.
TEST(Reread, TakesNoDefaultViewerWhenASearchFails) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  world.Install({.id = "en_US_Bar", .app_id = "NULL"});
  EXPECT_EQ(world.SearchHelp("Foo", "en_US", "x"), 5U);
  EXPECT_EQ(world.state().app_id, "");
  EXPECT_EQ(world.state().publisher_id, "");
}

TEST(Reread, BringsTheClientBackOnlyThroughAnInitialisation) {
  ClientWorld world;
  world.Install();
  world.StartBrowsers();
  world.Initialise();
  world.AddFile(world.InstalledConfig());
  EXPECT_EQ(world.DisplayPage("http://x"), 11U);
  world.Install();
  EXPECT_EQ(world.DisplayPage("http://x"), 6U);
  EXPECT_EQ(world.OnlineStatus(), 2U);
  EXPECT_EQ(world.Initialise("Foo", "en_US"), 0U);
  EXPECT_EQ(world.DisplayPage("http://x"), 0U);
}

/// The locale is cut to five bytes by the first accepted read, so the next one
/// looks in another folder.
TEST(Reread, FollowsTheCutLocaleFromOneRequestToTheNext) {
  ClientWorld world;
  world.Install();
  world.AddFile(world.InstalledConfig("zh_Hans"),
                HelpConfig{.id = "zh_Hans_Foo"}.Text());
  world.Initialise();
  EXPECT_EQ(world.SearchHelp("Foo", "zh_Hans", "x"), 6U);
  EXPECT_EQ(world.state().init_status, 0);
  EXPECT_EQ(world.state().locale, "zh_Ha");
  EXPECT_EQ(world.DisplayPage("page"), 4U);
  EXPECT_EQ(world.DisplayPage("page"), 6U);
}

TEST(StaleRows, AreOutOfUseBehindAShorterTable) {
  ClientWorld world;
  world.Install({.folders = {{"old"}, {OwnName("manual")}}});
  world.AddFile(ClientWorld::InstalledManual() + "/page.html");
  world.StartBrowsers();
  world.Initialise();
  EXPECT_EQ(world.DisplayPage("page"), 0U);
  world.Install({.folders = {{"new"}}});
  EXPECT_EQ(world.DisplayPage("page"), 7U);
  EXPECT_EQ(world.state().help_path_count, 1);
  EXPECT_EQ(world.state().help_paths[1][0], OwnName("manual"));
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
  EXPECT_EQ(world.DisplayPage("page"), 0U);
  EXPECT_EQ(world.state().help_path_count, 2);
  EXPECT_EQ(world.state().help_paths[0][0], "new");
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
  EXPECT_EQ(world.DisplayPage("page"), 0U);
  EXPECT_EQ(world.state().help_path_count, 100);
}

}  // namespace
}  // namespace velmohelp
