// Where the QTV tool is, and what it says about the viewer's runtime.
#include "platform/help_tool.h"

#include "tests/support/scripted_test.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

using ::testing::ElementsAre;

constexpr char kBundle[] = "com.velmo.vxclientframework";
constexpr char kAsksForBundle[] = "BundleDirectory com.velmo.vxclientframework";
// The doubled slash is the rule's.
constexpr char kTool[] = "/fw//Versions/A/Resources/QTV";

const std::string kNoId;

class HelpTool : public ScriptedTest {};

TEST_F(HelpTool, ComesAfterADoubledSlashInItsBundle) {
  machine.SetBundle(kBundle, "/fw");
  EXPECT_FALSE(IsZamRuntimePresent(machine));
  EXPECT_THAT(machine.Questions(),
              ElementsAre(kAsksForBundle, std::string("FindFile ") + kTool));
}

TEST_F(HelpTool, IsNotLookedForWithoutItsBundle) {
  machine.SetBundle("com.velmo.other", "/fw");
  machine.AddFile(kTool);
  machine.OnRun(kTool, {"-isRuntimeInstalled"}, 0);
  EXPECT_FALSE(IsZamRuntimePresent(machine));
  EXPECT_EQ(HelpApplicationPath(machine, {kNoId, kNoId}), "");
  EXPECT_THAT(machine.Questions(), ElementsAre(kAsksForBundle, kAsksForBundle));
}

TEST_F(HelpTool, IsNotRunWhereItDoesNotExist) {
  machine.SetBundle(kBundle, "/fw");
  machine.OnRun(kTool, {"-isRuntimeInstalled"}, 0);
  machine.OnRun(kTool, {"-isAppInstalled", "", ""}, 0);
  EXPECT_FALSE(IsZamRuntimePresent(machine));
  EXPECT_EQ(HelpApplicationPath(machine, {kNoId, kNoId}), "");
  EXPECT_EQ(machine.Questions().size(), 4);
}

TEST_F(HelpTool, HasAPathOfAtMost1023Bytes) {
  const std::string inside = "//Versions/A/Resources/QTV";
  for (const std::size_t size : {1023U, 1024U}) {
    ScriptedMachine deep;
    const std::string bundle = "/" + std::string(size - 1 - inside.size(), 'a');
    deep.SetBundle(kBundle, bundle);
    deep.AddFile(bundle + inside);
    deep.OnRun(bundle + inside, {"-isRuntimeInstalled"}, 0);
    EXPECT_EQ(IsZamRuntimePresent(deep), size == 1023) << size;
  }
}

TEST_F(HelpTool, IsRunOnceForTheRuntime) {
  machine.SetBundle(kBundle, "/fw");
  machine.AddFile(kTool);
  machine.OnRun(kTool, {"-isRuntimeInstalled"}, 0);
  EXPECT_TRUE(IsZamRuntimePresent(machine));
  EXPECT_THAT(
      machine.Questions(),
      ElementsAre(kAsksForBundle, std::string("FindFile ") + kTool,
                  std::string("RunToEnd ") + kTool + " -isRuntimeInstalled"));
}

TEST_F(HelpTool, SaysNoWithAnyOtherStatusAndWhenItCannotRun) {
  machine.SetBundle(kBundle, "/fw");
  machine.AddFile(kTool);
  EXPECT_FALSE(IsZamRuntimePresent(machine));
  for (const int status : {1, 2, 127, 255, -1}) {
    machine.OnRun(kTool, {"-isRuntimeInstalled"}, status);
    EXPECT_FALSE(IsZamRuntimePresent(machine)) << status;
  }
}

TEST_F(HelpTool, IsAskedAfreshAtEachCall) {
  machine.SetBundle(kBundle, "/fw");
  machine.AddFile(kTool);
  machine.OnRun(kTool, {"-isRuntimeInstalled"}, 0);
  EXPECT_TRUE(IsZamRuntimePresent(machine));
  machine.OnRun(kTool, {"-isRuntimeInstalled"}, 1);
  EXPECT_FALSE(IsZamRuntimePresent(machine));
}

}  // namespace
}  // namespace velmohelp::testing
