// What a page display asks the machine, in which order and how often.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/client/steps.h"
#include "tests/support/client_world.h"

namespace velmohelp {
namespace {

using testing::ClientWorld;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using testing::Joined;
using testing::Steps;

const Steps kUpToChoice = Joined({testing::kConfigurationIsRead,
                                  {"PreferencesFolder create"},
                                  testing::kViewerIsLookedUp,
                                  testing::kNetworkIsProbed,
                                  testing::kPreferenceFileIsLookedFor});

constexpr char kPageInViewer[] =
    "StartProgram ~/Viewer HELP Foo en_US \"\"file://~/Preferences/"
    "reader.VELMO.1/Local%20Store/Help/manual/page.html\"\"";

TEST(DisplayOrder, OfALocalPageInTheViewer) {
  ClientWorld world;
  world.Install();
  world.InstallWorkingViewer();
  world.AddFile(world.DownloadedManual() + "/page.html");
  world.Initialise();
  world.DisplayPage("page");
  EXPECT_THAT(
      world.Questions(),
      ElementsAreArray(Joined({kUpToChoice,
                               testing::kViewerIsTried,
                               {"PreferencesFolder create",
                                testing::InDownloadedManual("//helpmap.txt"),
                                testing::InDownloadedManual("/page.html"),
                                // The launch looks once more before it starts.
                                "FindFile ~/Viewer", kPageInViewer}})));
}

TEST(DisplayOrder, OfAnUnknownPageProbesTheRuntimeTwice) {
  ClientWorld world;
  world.Install();
  world.InstallWorkingViewer();
  world.Initialise();
  world.DisplayPage("page");
  const Steps page = {"PreferencesFolder create",
                      testing::InDownloadedManual("//helpmap.txt"),
                      testing::InDownloadedManual("/page.html"),
                      "FindFile /Help//manual//helpmap.txt",
                      "FindFile /Help//manual/page.html"};
  const Steps home = {"PreferencesFolder create",
                      testing::InDownloadedManual("//helpmap.txt"),
                      testing::InDownloadedManual("/VX_HOME.html"),
                      "FindFile /Help//manual//helpmap.txt",
                      "FindFile /Help//manual/VX_HOME.html"};
  EXPECT_THAT(world.Questions(),
              ElementsAreArray(
                  Joined({kUpToChoice,
                          testing::kViewerIsTried,
                          page,
                          home,
                          testing::kViewerIsTried,
                          {"FindFile ~/Viewer",
                           "StartProgram ~/Viewer HELP Foo en_US page"}})));
}

TEST(DisplayOrder, DoesNotLookForTheHomePageTwice) {
  ClientWorld world;
  world.Install();
  world.InstallTool();
  world.Initialise();
  world.DisplayPage("VX_HOME.html");
  EXPECT_THAT(world.Questions(),
              ElementsAreArray(Joined(
                  {testing::kConfigurationIsRead,
                   {"PreferencesFolder create",
                    // A viewer that is not installed has no place.
                    "BundleDirectory com.velmo.vxclientframework",
                    testing::kToolIsLookedFor, testing::kIsViewerInstalled},
                   testing::kNetworkIsProbed,
                   testing::kPreferenceFileIsLookedFor,
                   {"FindFile \"\"", "PreferencesFolder create",
                    testing::InDownloadedManual("//helpmap.txt"),
                    testing::InDownloadedManual("/VX_HOME.html"),
                    "FindFile /Help//manual//helpmap.txt",
                    "FindFile /Help//manual/VX_HOME.html", "FindFile \"\""}})));
}

TEST(DisplayOrder, AsksForNoPreferenceFileWhenNoViewerIsNamed) {
  ClientWorld world;
  world.Install({.app_id = "NULL"});
  world.Initialise();
  world.DisplayPage("page");
  for (const std::string& question : world.Questions()) {
    EXPECT_EQ(question.find("klh-pref.xml"), std::string::npos) << question;
  }
}

TEST(DisplayOrder, ReadsTheConfigurationAloneWhenItIsGone) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  world.RemoveFile(world.InstalledConfig());
  world.DisplayPage("page");
  EXPECT_THAT(world.Questions(), ElementsAreArray({"ResourcesDirectory"}));
}

TEST(DisplayOrder, StopsBeforeTheToolWhenThereAreNoContentFolders) {
  ClientWorld world;
  world.Install({.folders = {}});
  world.Initialise();
  world.DisplayPage("page");
  EXPECT_THAT(world.Questions(),
              ElementsAreArray(testing::kConfigurationIsRead));
}

TEST(DisplayOrder, ProbesTheNetworkOnceAndForgetsTheLastAnswer) {
  ClientWorld world;
  world.Install();
  world.GoOnline();
  world.Initialise();
  EXPECT_TRUE(world.state().is_online);
  world.machine().SetReachability("localhost", {});
  world.DisplayPage("page");
  EXPECT_FALSE(world.state().is_online);
  const auto asked = world.Questions();
  EXPECT_EQ(std::ranges::count(asked, "HostReachability localhost"), 1);
}

TEST(DisplayOrder, AsksNothingForABadArgument) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  for (const char* page_id : {static_cast<const char*>(nullptr), "", "  "}) {
    EXPECT_EQ(world.DisplayPage(page_id), 3U);
  }
  EXPECT_THAT(world.Questions(), IsEmpty());
}

TEST(DisplayOrder, OfAUrlIsThatOfOpenUrl) {
  ClientWorld world;
  world.Install();
  world.InstallWorkingViewer();
  world.Initialise();
  world.DisplayPage("http://x/y");
  const auto displayed = world.Questions();
  world.machine().ForgetQuestions();
  world.OpenUrl("http://x/y");
  EXPECT_EQ(displayed, world.Questions());
  EXPECT_EQ(world.state().viewer_choice, 0U);
}

}  // namespace
}  // namespace velmohelp
