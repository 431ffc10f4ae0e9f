// Where the QTV tool lies, and what it says of the viewer's runtime.
#include <velmohelp/platform.h>

#include "tests/support/on_scripted_machine.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

using ITEMInternal::GetHelpApplicationPath;
using ITEMInternal::IsZAMRuntimePresent;
using ::testing::ElementsAre;

constexpr char kBundle[] = "com.velmo.vxclientframework";
constexpr char kAsksForBundle[] = "BundleDirectory com.velmo.vxclientframework";
// The doubled slash is the rule's.
constexpr char kTool[] = "/fw//Versions/A/Resources/QTV";

class HelpTool : public OnScriptedMachine {};

TEST_F(HelpTool, LiesBehindADoubledSlashInItsBundle) {
  machine.SetBundle(kBundle, "/fw");
  EXPECT_FALSE(IsZAMRuntimePresent());
  EXPECT_THAT(machine.Questions(),
              ElementsAre(kAsksForBundle, std::string("FileExists ") + kTool));
}

TEST_F(HelpTool, IsNotLookedForWithoutItsBundle) {
  machine.SetBundle("com.velmo.other", "/fw");
  machine.AddFile(kTool);
  machine.OnRun(kTool, {"-isRuntimeInstalled"}, 0);
  EXPECT_FALSE(IsZAMRuntimePresent());
  EXPECT_EQ(GetHelpApplicationPath(), "");
  EXPECT_THAT(machine.Questions(), ElementsAre(kAsksForBundle, kAsksForBundle));
}

TEST_F(HelpTool, IsNotRunWhereItDoesNotExist) {
  machine.SetBundle(kBundle, "/fw");
  machine.OnRun(kTool, {"-isRuntimeInstalled"}, 0);
  machine.OnRun(kTool, {"-isAppInstalled", "", ""}, 0);
  EXPECT_FALSE(IsZAMRuntimePresent());
  EXPECT_EQ(GetHelpApplicationPath(), "");
  EXPECT_EQ(machine.Questions().size(), 4);
}

TEST_F(HelpTool, HasAPathOfAtMost1023Bytes) {
  const std::string inside = "//Versions/A/Resources/QTV";
  for (const std::size_t size : {1023U, 1024U}) {
    ScriptedMachine deep;
    UseMachine(&deep);
    const std::string bundle = "/" + std::string(size - 1 - inside.size(), 'a');
    deep.SetBundle(kBundle, bundle);
    deep.AddFile(bundle + inside);
    deep.OnRun(bundle + inside, {"-isRuntimeInstalled"}, 0);
    EXPECT_EQ(IsZAMRuntimePresent(), size == 1023) << size;
  }
}

TEST_F(HelpTool, IsRunOnceForTheRuntime) {
  machine.SetBundle(kBundle, "/fw");
  machine.AddFile(kTool);
  machine.OnRun(kTool, {"-isRuntimeInstalled"}, 0);
  EXPECT_TRUE(IsZAMRuntimePresent());
  EXPECT_THAT(
      machine.Questions(),
      ElementsAre(kAsksForBundle, std::string("FileExists ") + kTool,
                  std::string("RunToEnd ") + kTool + " -isRuntimeInstalled"));
}

TEST_F(HelpTool, SaysNoWithAnyOtherStatusAndWhenItCannotRun) {
  machine.SetBundle(kBundle, "/fw");
  machine.AddFile(kTool);
  EXPECT_FALSE(IsZAMRuntimePresent());
  for (const int status : {1, 2, 127, 255, -1}) {
    machine.OnRun(kTool, {"-isRuntimeInstalled"}, status);
    EXPECT_FALSE(IsZAMRuntimePresent()) << status;
  }
}

TEST_F(HelpTool, IsAskedAfreshAtEachCall) {
  machine.SetBundle(kBundle, "/fw");
  machine.AddFile(kTool);
  machine.OnRun(kTool, {"-isRuntimeInstalled"}, 0);
  EXPECT_TRUE(IsZAMRuntimePresent());
  machine.OnRun(kTool, {"-isRuntimeInstalled"}, 1);
  EXPECT_FALSE(IsZAMRuntimePresent());
}

}  // namespace
}  // namespace velmohelp::testing
