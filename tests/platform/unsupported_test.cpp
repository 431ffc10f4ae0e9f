#include <gtest/gtest.h>

#include "platform/unsupported/unsupported_machine.h"

namespace velmohelp {
namespace {

TEST(UnsupportedMachine, CanDoNothing) {
  UnsupportedMachine machine;
  EXPECT_FALSE(machine.FindFile("/"));
  EXPECT_TRUE(machine.NamesIn("/").empty());
  EXPECT_FALSE(machine.PreferencesFolder(true));
  EXPECT_FALSE(machine.SetHost("/x/host"));
  EXPECT_FALSE(machine.ResourcesDirectory());
  EXPECT_FALSE(machine.BundleDirectory("com.example.x"));
  EXPECT_FALSE(machine.ApplicationExecutable("/"));
  EXPECT_FALSE(machine.RunToEnd("/bin/true", {}));
  EXPECT_FALSE(machine.FirstOutput("/bin/echo", {}));
  EXPECT_FALSE(machine.SetActivationToken("token"));
  EXPECT_EQ(machine.StartWorker({}), -1);
  EXPECT_FALSE(machine.FinishWorker(-1));
  EXPECT_FALSE(machine.StartProgram("/bin/true", {}));
  EXPECT_FALSE(machine.CanStart("/bin/true"));
  EXPECT_FALSE(machine.OpenInBrowser("http://localhost/"));
  EXPECT_FALSE(machine.FindBrowser("http://localhost/"));
  EXPECT_FALSE(machine.HostReachability("localhost"));
  EXPECT_FALSE(
      machine.Preference("x", "y", PreferenceScope::kCurrentUserAnyHost));
  EXPECT_FALSE(
      machine.FetchText("file:///etc/passwd", std::chrono::seconds(1)));
}

}  // namespace
}  // namespace velmohelp
