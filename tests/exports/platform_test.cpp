// The exported functions of <velmohelp/platform.h>: what each one asks this
// machine, with this state, and the numbers that it returns.
#include <velmohelp/platform.h>

#include "exports/state.h"
#include "tests/support/on_scripted_machine.h"

namespace velmohelp::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr char kFramework[] = "com.velmo.vxclientframework";
constexpr char kTool[] = "/fw//Versions/A/Resources/QTV";
constexpr std::int16_t kUserDomain = -32763;
constexpr std::uint32_t kPreferencesFolderType = 0x70726566;  // 'pref'

class PlatformExports : public OnScriptedMachine {
 protected:
  void InstallTool() {
    machine.SetBundle(kFramework, "/fw");
    machine.AddFile(kTool);
  }
};

TEST_F(PlatformExports, FindFilesAndDirectories) {
  machine.AddFile("/x/y");
  EXPECT_TRUE(ITEMInternal::FileExists("/x/y"));
  EXPECT_TRUE(ITEMInternal::FileExists("/x"));
  EXPECT_FALSE(ITEMInternal::FileExists("/y"));
}

TEST_F(PlatformExports, FindNoFileWhoseNameIsNotUtf8) {
  machine.AddFile("/x\xFC.html");
  EXPECT_FALSE(ITEMInternal::FileExists("/x\xFC.html"));
  machine.AddFile("/x\xC3\xBC.html");
  EXPECT_TRUE(ITEMInternal::FileExists("/x\xC3\xBC.html"));
}

TEST_F(PlatformExports, AskTheToolAboutTheRuntime) {
  InstallTool();
  EXPECT_FALSE(ITEMInternal::IsZAMRuntimePresent());
  machine.OnRun(kTool, {"-isRuntimeInstalled"}, 0);
  EXPECT_TRUE(ITEMInternal::IsZAMRuntimePresent());
}

TEST_F(PlatformExports, AskTheToolAboutTheViewerOfTheState) {
  InstallTool();
  sAppID = "app";
  sPublisherID = "publisher";
  machine.OnRun(kTool, {"-isAppInstalled", "app", "publisher"}, 0);
  machine.OnOutput(kTool, {"-appLocation", "app", "publisher"}, "/Viewer.app");
  machine.SetExecutable("/Viewer.app", "/Viewer");
  EXPECT_EQ(ITEMInternal::GetHelpApplicationPath(), "/Viewer");
}

TEST_F(PlatformExports, ReturnZeroForAStartedApplicationElseOne) {
  EXPECT_EQ(ITEMInternal::LaunchApplication("/x", "a", "b", "c", "d"), 1);
  machine.AddFile("/x");
  EXPECT_EQ(ITEMInternal::LaunchApplication("/x", "a", "b", "c", "d"), 1);
  machine.OnStart("/x");
  EXPECT_EQ(ITEMInternal::LaunchApplication("/x", "a", "b", "c", "d"), 0);
  EXPECT_EQ(machine.Questions().back(), "StartProgram /x a b c d");
}

TEST_F(PlatformExports, ReturnZeroForAnOpenBrowserElseTwo) {
  EXPECT_EQ(ITEMInternal::LaunchPlatformBrowser("http://x"), 2);
  EXPECT_EQ(ITEMInternal::LaunchPlatformBrowser("not a URL"), 2);
  machine.SetBrowserOpens(true);
  EXPECT_EQ(ITEMInternal::LaunchPlatformBrowser("http://x"), 0);
}

TEST_F(PlatformExports, MakeTheStandardFolderForAnyNumberButZero) {
  machine.SetPreferencesFolder("/prefs");
  std::string out;
  for (const auto create :
       {std::uint8_t{0}, std::uint8_t{1}, std::uint8_t{255}}) {
    EXPECT_TRUE(ITEMInternal::StdStringFindFolder(
        kUserDomain, kPreferencesFolderType, create, out));
    EXPECT_EQ(out, "/prefs");
  }
  EXPECT_THAT(machine.Questions(),
              ElementsAre("PreferencesFolder find", "PreferencesFolder create",
                          "PreferencesFolder create"));
}

TEST_F(PlatformExports, LeaveTheStringAloneForAnotherStandardFolder) {
  machine.SetPreferencesFolder("/prefs");
  std::string out = "old";
  EXPECT_FALSE(
      ITEMInternal::StdStringFindFolder(0, kPreferencesFolderType, 1, out));
  EXPECT_EQ(out, "old");
  EXPECT_THAT(machine.Questions(), IsEmpty());
}

TEST_F(PlatformExports, AppendThePathsOfTheState) {
  machine.SetPreferencesFolder("/prefs");
  kKLHPreferenceFile = "/klh-pref.xml";
  kDownloadedOfflineContent = "/Help/";
  EXPECT_EQ(ITEMInternal::GetKLHPreferenceFilePath(), "/prefs/klh-pref.xml");
  EXPECT_EQ(ITEMInternal::GetDownloadedContentPath(), "/prefs/Help/");
}

TEST_F(PlatformExports, NameTheInstalledContent) {
  const std::string installed = ITEMInternal::GetInstalledContentPath();
  EXPECT_TRUE(installed.ends_with('/'));
  EXPECT_EQ(ITEMInternal::GetHelpContentDirectory("first", "second"),
            installed + "second/first");
}

TEST_F(PlatformExports, WriteAFileReferenceOnlyOnSuccess) {
  machine.AddFile("/x");
  const auto expected = machine.FindFile("/x")->reference;
  ITEMInternal::FileReference reference = {7, 7};
  EXPECT_EQ(ITEMInternal::GetFSRefFromPath("/missing", reference), -43);
  EXPECT_EQ(reference.inode, 7);
  EXPECT_EQ(ITEMInternal::GetFSRefFromPath("/x", reference), 0);
  EXPECT_EQ(reference.device, expected.device);
  EXPECT_EQ(reference.inode, expected.inode);
}

}  // namespace
}  // namespace velmohelp::testing
