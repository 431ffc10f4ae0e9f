// What OpenURL asks the machine, in which order, and the state afterwards.
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

TEST(OpenUrlOrder, InTheViewer) {
  ClientWorld world;
  world.Install();
  world.InstallWorkingViewer();
  world.Initialise();
  world.OpenUrl("http://x");
  EXPECT_THAT(
      world.Questions(),
      ElementsAreArray(Joined(
          {testing::kConfigurationIsRead, testing::kViewerIsLookedUp,
           Steps{"PreferencesFolder create"},
           testing::kPreferenceFileIsLookedFor, testing::kViewerIsTried,
           Steps{"FindFile ~/Viewer",
                 "StartProgram ~/Viewer URL Foo en_US \"\"http://x\"\""}})));
}

TEST(OpenUrlOrder, InAccessibleModeLooksForNoViewer) {
  ClientWorld world;
  world.Install();
  world.InstallWorkingViewer();
  world.SetAccessibleMode("TRUE");
  world.Initialise();
  world.OpenUrl("http://x");
  EXPECT_THAT(world.Questions(),
              ElementsAreArray(Joined({testing::kConfigurationIsRead,
                                       testing::kViewerIsLookedUp,
                                       Steps{"PreferencesFolder create"},
                                       testing::kPreferenceFileIsLookedFor,
                                       Steps{"OpenInBrowser http://x"}})));
}

TEST(OpenUrlOrder, WithoutTheViewersFileAsksForNoRuntime) {
  ClientWorld world;
  world.Install();
  world.InstallWorkingViewer();
  world.Initialise();
  world.RemoveViewer();
  world.OpenUrl("http://x");
  EXPECT_THAT(world.Questions(),
              ElementsAreArray(Joined(
                  {testing::kConfigurationIsRead, testing::kViewerIsLookedUp,
                   Steps{"PreferencesFolder create"},
                   testing::kPreferenceFileIsLookedFor,
                   Steps{"FindFile ~/Viewer", "OpenInBrowser http://x"}})));
}

TEST(OpenUrlOrder, AsksForNoPreferenceFileWhenNoViewerIsNamed) {
  ClientWorld world;
  world.Install({.app_id = "NULL"});
  world.Initialise();
  world.OpenUrl("http://x");
  for (const std::string& question : world.Questions()) {
    EXPECT_EQ(question.find("klh-pref.xml"), std::string::npos) << question;
  }
}

TEST(OpenUrlOrder, AsksNothingForABadArgument) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  for (const char* url : {static_cast<const char*>(nullptr), "", "  ", "x"}) {
    EXPECT_EQ(world.OpenUrl(url), 3U);
  }
  EXPECT_THAT(world.Questions(), IsEmpty());
}

/// The viewer is looked up, by the default ids, even after a configuration read
/// that failed.
TEST(OpenUrlOrder, LooksForTheViewerThoughTheConfigurationIsGone) {
  ClientWorld world;
  world.Install();
  world.InstallWorkingViewer();
  world.Initialise();
  world.state().help_app_path = "stale";
  world.RemoveFile(world.InstalledConfig());
  EXPECT_EQ(world.OpenUrl("http://x"), 4U);
  EXPECT_THAT(world.Questions(),
              ElementsAreArray(Joined(
                  {Steps{"ResourcesDirectory"}, testing::kViewerIsLookedUp})));
  EXPECT_NE(world.state().help_app_path, "stale");
}

TEST(OpenUrlOrder, TakesTheDefaultViewerThoughTheConfigurationIsRejected) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  world.Install({.id = "en_US_Bar", .app_id = "null"});
  EXPECT_EQ(world.OpenUrl("http://x"), 5U);
  EXPECT_EQ(world.state().app_id, world.state().default_app_id);
  EXPECT_EQ(world.state().publisher_id, world.state().default_publisher_id);
  EXPECT_EQ(world.state().help_app_path, "");
}

TEST(OpenUrlOrder, LeavesOneIdAlone) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  world.Install({.app_id = ""});
  world.OpenUrl("http://x");
  EXPECT_EQ(world.state().app_id, "");
  EXPECT_EQ(world.state().publisher_id, "VELMO.1");
}

}  // namespace
}  // namespace velmohelp
