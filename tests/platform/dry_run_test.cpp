#include "platform/dry_run_machine.h"
#include "platform/launch.h"
#include "tests/support/scripted_test.h"

namespace velmohelp::testing {
namespace {

using enum LaunchResult;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

class DryRun : public ScriptedTest {
 protected:
  /// Nothing was started, opened or made.
  void ExpectNoChange() {
    for (const char* verb :
         {"StartProgram", "OpenInBrowser", "PreferencesFolder create"}) {
      EXPECT_THAT(machine.Questions(), Not(Contains(StartsWith(verb))));
    }
  }

  DryRunMachine dry{machine};
};

TEST_F(DryRun, NotesTheViewerWithItsArguments) {
  machine.AddFile("/x/Viewer");
  machine.OnStart("/x/Viewer");
  EXPECT_EQ(LaunchApplication(dry, "/x/Viewer", {"HELP", "Foo"}), kLaunched);
  ASSERT_TRUE(dry.start());
  EXPECT_EQ(dry.start()->kind, NotedStart::Kind::kViewer);
  EXPECT_EQ(dry.start()->program, "/x/Viewer");
  EXPECT_THAT(dry.start()->arguments, ElementsAre("HELP", "Foo"));
  EXPECT_EQ(dry.start()->url, "");
  ExpectNoChange();
}

TEST_F(DryRun, FailsWhereTheViewerCannotBeStarted) {
  machine.AddFile("/x/Viewer");
  EXPECT_FALSE(dry.StartProgram("/x/Viewer", {}));
  EXPECT_FALSE(dry.start());
  ExpectNoChange();
}

TEST_F(DryRun, NotesTheBrowserWithItsCommandAndUrl) {
  machine.SetBrowserOpens(true);
  EXPECT_EQ(LaunchPlatformBrowser(dry, "http://h/?a=b"), kLaunched);
  ASSERT_TRUE(dry.start());
  EXPECT_EQ(dry.start()->kind, NotedStart::Kind::kBrowser);
  EXPECT_EQ(dry.start()->program, "/usr/bin/browser");
  EXPECT_THAT(dry.start()->arguments, ElementsAre("http://h/?a=b"));
  EXPECT_EQ(dry.start()->url, "http://h/?a=b");
  ExpectNoChange();
}

/// A browser whose file is not a program.
class BrokenBrowserMachine : public ForwardingMachine {
 public:
  using ForwardingMachine::ForwardingMachine;
  bool CanStart(const std::string&) override { return false; }
};

TEST_F(DryRun, FailsWithABrowserThatCannotBeStarted) {
  machine.SetBrowserOpens(true);
  BrokenBrowserMachine broken(machine);
  DryRunMachine on_broken(broken);
  EXPECT_FALSE(on_broken.OpenInBrowser("http://h/"));
  EXPECT_FALSE(on_broken.start());
}

TEST_F(DryRun, FailsWithoutABrowser) {
  EXPECT_EQ(LaunchPlatformBrowser(dry, "http://h/"), kBrowserNotLaunched);
  EXPECT_FALSE(dry.start());
  ExpectNoChange();
}

/// The first choice was refused, and nothing else was tried after it.
TEST_F(DryRun, ForgetsAStartWhenALaterOneFails) {
  machine.AddFile("/x/Viewer");
  machine.OnStart("/x/Viewer");
  EXPECT_TRUE(dry.StartProgram("/x/Viewer", {}));
  EXPECT_FALSE(dry.OpenInBrowser("http://h/"));
  EXPECT_FALSE(dry.start());
}

/// A browser without a command line: the desktop starts it.
class PortalMachine : public ForwardingMachine {
 public:
  using ForwardingMachine::ForwardingMachine;
  std::optional<Arguments> FindBrowser(const std::string&) override {
    return Arguments{};
  }
};

TEST_F(DryRun, NotesTheUrlAloneWhereTheDesktopOpensIt) {
  PortalMachine portal(machine);
  DryRunMachine sandboxed(portal);
  EXPECT_TRUE(sandboxed.OpenInBrowser("http://h/"));
  ASSERT_TRUE(sandboxed.start());
  EXPECT_EQ(sandboxed.start()->program, "");
  EXPECT_THAT(sandboxed.start()->arguments, IsEmpty());
  EXPECT_EQ(sandboxed.start()->url, "http://h/");
}

TEST_F(DryRun, MakesNoFolder) {
  machine.SetPreferencesFolder("/home/x/.config");
  EXPECT_EQ(dry.PreferencesFolder(true), "/home/x/.config");
  EXPECT_THAT(machine.Questions(), ElementsAre("PreferencesFolder find"));
}

TEST(ForwardingMachine, PassesEveryQuestionOn) {
  ScriptedMachine machine;
  ForwardingMachine forwarding(machine);
  forwarding.FindFile("/a");
  forwarding.NamesIn("/b");
  forwarding.PreferencesFolder(true);
  forwarding.SetHost("/x/host");
  forwarding.ResourcesDirectory();
  forwarding.BundleDirectory("b");
  forwarding.ApplicationExecutable("/c");
  forwarding.RunToEnd("/d", {"1"});
  forwarding.FirstOutput("/e", {"2"});
  forwarding.SetActivationToken("t");
  forwarding.StartProgram("/f", {"3"});
  forwarding.CanStart("/f");
  forwarding.OpenInBrowser("http://g/");
  forwarding.FindBrowser("http://h/");
  forwarding.HostReachability("i");
  forwarding.Preference("j", "k", PreferenceScope::kAnyUserCurrentHost);
  forwarding.FetchText("http://l/", std::chrono::seconds(1));
  forwarding.StartWorker({});
  forwarding.FinishWorker(-1);
  EXPECT_EQ(forwarding.MonotonicTime(), machine.MonotonicTime());
  EXPECT_THAT(
      machine.Questions(),
      ElementsAre("FindFile /a", "NamesIn /b", "PreferencesFolder create",
                  "SetHost /x/host", "ResourcesDirectory", "BundleDirectory b",
                  "ApplicationExecutable /c", "RunToEnd /d 1",
                  "FirstOutput /e 2", "SetActivationToken t",
                  "StartProgram /f 3", "CanStart /f", "OpenInBrowser http://g/",
                  "FindBrowser http://h/", "HostReachability i",
                  "Preference admin j k", "FetchText http://l/", "StartWorker",
                  "FinishWorker"));
}

}  // namespace
}  // namespace velmohelp::testing
