// Viewer or browser: how a page display chooses, and where the choice does not
// hold.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/client_world.h"
#include "tests/support/sentence.h"

namespace velmohelp {
namespace {

using testing::ClientWorld;
using testing::Outcome;

constexpr char kKlhPublisher[] = "9C3A51F07B26D48E15A0C7F3B9D2E6418A75C0D2.1";

struct Choice {
  const char* sentence;
  void (*given)(ClientWorld&);
  std::uint32_t choice;
  /// How often the tool is asked about the runtime while the choice is made.
  int runtime_probes;
};

class ViewerChoice : public ::testing::TestWithParam<Choice> {};

TEST_P(ViewerChoice, IsMadeFromWhatThereIs) {
  ClientWorld world;
  world.Install();
  world.AddFile(ClientWorld::InstalledManual() + "/page.html");
  world.StartBrowsers();
  GetParam().given(world);
  world.Initialise();
  EXPECT_EQ(world.DisplayPage("page"), kDisplaySuccess);
  EXPECT_EQ(world.state().viewer_choice, GetParam().choice);
  ASSERT_EQ(world.Shown().size(), 1U);
  EXPECT_EQ(world.Shown()[0].starts_with("StartProgram"),
            GetParam().choice == kShowInViewer);
  const auto asked = world.Questions();
  EXPECT_EQ(
      std::ranges::count_if(asked,
                            [](const auto& question) {
                              return question.ends_with(" -isRuntimeInstalled");
                            }),
      GetParam().runtime_probes);
}

INSTANTIATE_TEST_SUITE_P(
    Viewer, ViewerChoice,
    ::testing::Values(
        Choice{"installed and nothing said against it",
               [](ClientWorld& world) { world.InstallWorkingViewer(); }, 1, 1},
        Choice{"installed and accessible mode off",
               [](ClientWorld& world) {
                 world.InstallWorkingViewer();
                 world.SetAccessibleMode("false");
               },
               1, 1},
        Choice{"installed and an empty preference file",
               [](ClientWorld& world) {
                 world.InstallWorkingViewer();
                 world.AddFile(world.PreferenceFile());
               },
               1, 1}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Browser, ViewerChoice,
    ::testing::Values(
        Choice{"no viewer named though the default one is installed",
               [](ClientWorld& world) {
                 world.Install({.app_id = "NULL"});
                 world.InstallWorkingViewer("klh", kKlhPublisher);
               },
               2, 0},
        Choice{"accessible mode",
               [](ClientWorld& world) {
                 world.InstallWorkingViewer();
                 world.SetAccessibleMode("True");
               },
               2, 0},
        Choice{"no tool", [](ClientWorld&) {}, 2, 0},
        Choice{"a tool that knows no viewer",
               [](ClientWorld& world) { world.InstallRuntime(); }, 2, 0},
        Choice{"a tool that knows another viewer alone",
               [](ClientWorld& world) { world.InstallWorkingViewer("x", "y"); },
               2, 0},
        Choice{"a viewer that the tool knows but is missing",
               [](ClientWorld& world) {
                 world.InstallWorkingViewer();
                 world.RemoveViewer();
               },
               2, 0},
        Choice{"no runtime", [](ClientWorld& world) { world.InstallViewer(); },
               2, 1},
        Choice{"no runtime though the preference allows the viewer",
               [](ClientWorld& world) {
                 world.InstallViewer();
                 world.SetAccessibleMode("no");
               },
               2, 1}),
    testing::SentenceOf());

/// The last resort asks what is installed, not what was chosen.
struct LastResort {
  const char* sentence;
  void (*given)(ClientWorld&);
  Outcome outcome;
};

class ViewerAsLastResort : public ::testing::TestWithParam<LastResort> {};

TEST_P(ViewerAsLastResort, GetsThePageIdAsItWasGiven) {
  ClientWorld world;
  world.Install();
  world.StartBrowsers();
  GetParam().given(world);
  world.Initialise();
  const auto code = world.DisplayPage(" a/b");
  EXPECT_EQ((Outcome{code, world.Shown()}), GetParam().outcome);
}

const Outcome kPageIdInViewer{
    0, {"StartProgram ~/Viewer HELP Foo en_US \" a/b\""}};

INSTANTIATE_TEST_SUITE_P(
    , ViewerAsLastResort,
    ::testing::Values(
        LastResort{"for an unknown page with no viewer named",
                   [](ClientWorld& world) {
                     world.Install({.app_id = "null"});
                     world.InstallWorkingViewer("klh", kKlhPublisher);
                   },
                   kPageIdInViewer},
        LastResort{"for an unknown page in accessible mode",
                   [](ClientWorld& world) {
                     world.InstallWorkingViewer();
                     world.SetAccessibleMode("TRUE");
                   },
                   kPageIdInViewer},
        LastResort{"for an unknown page online",
                   [](ClientWorld& world) {
                     world.InstallWorkingViewer();
                     world.GoOnline();
                   },
                   kPageIdInViewer},
        LastResort{"for a target that is not a URL in accessible mode",
                   [](ClientWorld& world) {
                     world.Install({.base_url = "help/"});
                     world.AddFile(
                         ClientWorld::InstalledManual() + "/helpmap.txt",
                         "VX_HOME\thome.html\n");
                     world.InstallWorkingViewer();
                     world.SetAccessibleMode("TRUE");
                     world.GoOnline();
                   },
                   kPageIdInViewer},
        LastResort{"for a target that is not a URL with the viewer chosen",
                   [](ClientWorld& world) {
                     world.Install({.base_url = "help/"});
                     world.AddFile(
                         ClientWorld::InstalledManual() + "/helpmap.txt",
                         "VX_HOME\thome.html\n");
                     world.InstallWorkingViewer();
                     world.GoOnline();
                   },
                   kPageIdInViewer},
        LastResort{"for a local target that no URL can name",
                   [](ClientWorld& world) {
                     world.AddFile(
                         ClientWorld::InstalledManual() + "/helpmap.txt",
                         "VX_HOME\th\xFF.html\n");
                     world.InstallWorkingViewer();
                   },
                   kPageIdInViewer},
        LastResort{"but not where it is refused and the target has no URL",
                   [](ClientWorld& world) {
                     world.AddFile(
                         ClientWorld::InstalledManual() + "/helpmap.txt",
                         "VX_HOME\th\xFF.html\n");
                     world.InstallWorkingViewer();
                     world.SetAccessibleMode("TRUE");
                   },
                   {2, {}}}),
    testing::SentenceOf());

/// Initialisation falls back to the default viewer when either id is empty, a
/// display only when both are.
TEST(DefaultViewer, IsNotTakenForADisplayWhenOneIdIsThere) {
  ClientWorld world;
  world.Install({.pub_id = ""});
  world.InstallWorkingViewer("reader", "");
  world.Initialise();
  world.DisplayPage("page");
  EXPECT_EQ(world.state().app_id, "reader");
  EXPECT_EQ(world.state().publisher_id, "");
  EXPECT_EQ(world.Shown().size(), 1U);
}

TEST(DefaultViewer, IsTakenForADisplayWhenNeitherIdIsThere) {
  ClientWorld world;
  world.Install({.app_id = "", .pub_id = ""});
  world.InstallWorkingViewer("klh", kKlhPublisher);
  world.Initialise();
  EXPECT_EQ(world.state().app_id, "");
  world.DisplayPage("page");
  EXPECT_EQ(world.state().app_id, "klh");
  EXPECT_EQ(world.state().publisher_id, kKlhPublisher);
  EXPECT_EQ(world.Shown().size(), 1U);
}

}  // namespace
}  // namespace velmohelp
