// What tests rely on beyond the contract.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/scripted/scripted_machine.h"

namespace velmohelp {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(ScriptedMachine, RecordsEveryQuestionInOrder) {
  ScriptedMachine machine;
  machine.FindFile("/a b");
  machine.PreferencesFolder(true);
  machine.PreferencesFolder(false);
  machine.ResourcesDirectory();
  machine.RunToEnd("/x/QTV", {"-isAppInstalled", "", "p"});
  machine.HostReachability(std::nullopt);
  machine.HostReachability("localhost");
  machine.Preference("d", "k", PreferenceScope::kAnyUserCurrentHost);
  machine.Preference("d", "k", PreferenceScope::kCurrentUserAnyHost);
  EXPECT_THAT(machine.Questions(),
              ElementsAre("FindFile \"/a b\"", "PreferencesFolder create",
                          "PreferencesFolder find", "ResourcesDirectory",
                          "RunToEnd /x/QTV -isAppInstalled \"\" p",
                          "HostReachability", "HostReachability localhost",
                          "Preference admin d k", "Preference user d k"));
  machine.ForgetQuestions();
  EXPECT_THAT(machine.Questions(), IsEmpty());
}

TEST(ScriptedMachine, KnowsAProgramByItsArguments) {
  ScriptedMachine machine;
  machine.OnRun("/x/QTV", {"-a"}, 0);
  machine.OnRun("/x/QTV", {"-a"}, 3);
  EXPECT_EQ(machine.RunToEnd("/x//QTV", {"-a"}), 3);
  EXPECT_FALSE(machine.RunToEnd("/x/QTV", {"-b"}));
  EXPECT_FALSE(machine.RunToEnd("/x/QTV", {"-a", ""}));
}

TEST(ScriptedMachine, ForgetsAFileThatIsRemoved) {
  ScriptedMachine machine;
  machine.AddFile("/x/file");
  machine.Remove("/x/file");
  EXPECT_FALSE(machine.FindFile("/x/file"));
  EXPECT_TRUE(machine.FindFile("/x"));
}

TEST(ScriptedMachine, HasTheNetworkThatItIsTold) {
  ScriptedMachine machine;
  machine.SetReachability("far", {true, true});
  machine.SetBrowserOpens(true);
  const auto far = machine.HostReachability("far");
  ASSERT_TRUE(far);
  EXPECT_TRUE(far->reachable && far->connection_required);
  EXPECT_FALSE(machine.HostReachability("farther"));
  EXPECT_TRUE(machine.OpenInBrowser("http://far/"));
}

}  // namespace
}  // namespace velmohelp
