// What a page display asks the machine, in which order and how often.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <velmohelp/velmohelp.h>

#include <algorithm>

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

const Steps kUpToChoice = Joined({testing::kConfigurationIsRead,
                                  {"StandardFolder -32763 pref create"},
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
  DisplayVelmoHelpClientPage("page");
  EXPECT_THAT(
      world.Questions(),
      ElementsAreArray(Joined({kUpToChoice,
                               testing::kViewerIsTried,
                               {"StandardFolder -32763 pref create",
                                testing::InDownloadedManual("//helpmap.txt"),
                                testing::InDownloadedManual("/page.html"),
                                // The launch looks once more before it starts.
                                "FileExists ~/Viewer", kPageInViewer}})));
}

TEST(DisplayOrder, OfAnUnknownPageProbesTheRuntimeTwice) {
  ClientWorld world;
  world.Install();
  world.InstallWorkingViewer();
  world.Initialise();
  DisplayVelmoHelpClientPage("page");
  const Steps page = {"StandardFolder -32763 pref create",
                      testing::InDownloadedManual("//helpmap.txt"),
                      testing::InDownloadedManual("/page.html"),
                      "FileExists /Help//manual//helpmap.txt",
                      "FileExists /Help//manual/page.html"};
  const Steps home = {"StandardFolder -32763 pref create",
                      testing::InDownloadedManual("//helpmap.txt"),
                      testing::InDownloadedManual("/VX_HOME.html"),
                      "FileExists /Help//manual//helpmap.txt",
                      "FileExists /Help//manual/VX_HOME.html"};
  EXPECT_THAT(world.Questions(),
              ElementsAreArray(
                  Joined({kUpToChoice,
                          testing::kViewerIsTried,
                          page,
                          home,
                          testing::kViewerIsTried,
                          {"FileExists ~/Viewer",
                           "StartProgram ~/Viewer HELP Foo en_US page"}})));
}

TEST(DisplayOrder, DoesNotLookForTheHomePageTwice) {
  ClientWorld world;
  world.Install();
  world.InstallTool();
  world.Initialise();
  DisplayVelmoHelpClientPage("VX_HOME.html");
  EXPECT_THAT(
      world.Questions(),
      ElementsAreArray(Joined(
          {testing::kConfigurationIsRead,
           {"StandardFolder -32763 pref create",
            // A viewer that is not installed has no place.
            "BundleDirectory com.velmo.vxclientframework",
            testing::kToolIsLookedFor, testing::kIsViewerInstalled},
           testing::kNetworkIsProbed,
           testing::kPreferenceFileIsLookedFor,
           {"FileExists \"\"", "StandardFolder -32763 pref create",
            testing::InDownloadedManual("//helpmap.txt"),
            testing::InDownloadedManual("/VX_HOME.html"),
            "FileExists /Help//manual//helpmap.txt",
            "FileExists /Help//manual/VX_HOME.html", "FileExists \"\""}})));
}

TEST(DisplayOrder, AsksForNoPreferenceFileWhenNoViewerIsNamed) {
  ClientWorld world;
  world.Install({.app_id = "NULL"});
  world.Initialise();
  DisplayVelmoHelpClientPage("page");
  for (const std::string& question : world.Questions()) {
    EXPECT_EQ(question.find("klh-pref.xml"), std::string::npos) << question;
  }
}

TEST(DisplayOrder, ReadsTheConfigurationAloneWhenItIsGone) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  world.RemoveFile(world.InstalledConfig());
  DisplayVelmoHelpClientPage("page");
  EXPECT_THAT(world.Questions(), ElementsAreArray({"ResourcesDirectory"}));
}

TEST(DisplayOrder, StopsBeforeTheToolWhenThereAreNoContentFolders) {
  ClientWorld world;
  world.Install({.folders = {}});
  world.Initialise();
  DisplayVelmoHelpClientPage("page");
  EXPECT_THAT(world.Questions(),
              ElementsAreArray(testing::kConfigurationIsRead));
}

TEST(DisplayOrder, ProbesTheNetworkOnceAndForgetsTheLastAnswer) {
  ClientWorld world;
  world.Install();
  world.GoOnline();
  world.Initialise();
  EXPECT_TRUE(sIsOnline);
  world.machine().SetReachability("localhost", {});
  DisplayVelmoHelpClientPage("page");
  EXPECT_FALSE(sIsOnline);
  const auto asked = world.Questions();
  EXPECT_EQ(std::ranges::count(asked, "HostReachability localhost"), 1);
}

TEST(DisplayOrder, AsksNothingForABadArgument) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  for (const char* page_id : {static_cast<const char*>(nullptr), "", "  "}) {
    EXPECT_EQ(DisplayVelmoHelpClientPage(page_id), 3U);
  }
  EXPECT_THAT(world.Questions(), IsEmpty());
}

TEST(DisplayOrder, OfAUrlIsThatOfOpenUrl) {
  ClientWorld world;
  world.Install();
  world.InstallWorkingViewer();
  world.Initialise();
  DisplayVelmoHelpClientPage("http://x/y");
  const auto displayed = world.Questions();
  world.machine().ForgetQuestions();
  OpenURL("http://x/y");
  EXPECT_EQ(displayed, world.Questions());
  EXPECT_EQ(sViewerChoice, 0U);
}

}  // namespace
}  // namespace velmohelp
