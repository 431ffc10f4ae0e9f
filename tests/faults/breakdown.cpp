#include "tests/faults/breakdown.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <iterator>
#include <ostream>

#include "platform/scripted/fault_machine.h"
#include "tests/support/client_variables.h"

namespace velmohelp::testing {

void PrintTo(const Result& result, std::ostream* out) {
  *out << result.code << " " << ::testing::PrintToString(result.shown) << " "
       << ::testing::PrintToString(result.state);
}

void OneQuestionFails::Run(int question) {
  ClientWorld world;
  GetParam().prepare(world);
  if (GetParam().initialised) world.Initialise();
  FaultMachine broken(world.machine(), question);
  world.RunOn(broken);
  code_ = GetParam().run(world);
  asked_ = world.Questions();
  shown_ = world.Shown();
  state_ = Described(world.state());
}

Result OneQuestionFails::ResultComparedWith(const Steps& state) const {
  Result result = {code_, shown_, {}};
  std::ranges::copy_if(
      state_, std::back_inserter(result.state),
      [&](const auto& line) { return !std::ranges::count(state, line); });
  return result;
}

TEST_P(OneQuestionFails, AndTheResultIs) {
  Run(0);
  EXPECT_EQ(ResultComparedWith(state_), GetParam().undisturbed);
  const Steps undisturbed = state_;
  Steps expected;
  for (const Breakdown& row : GetParam().breakdowns) {
    expected.insert(expected.end(), row.questions.begin(), row.questions.end());
  }
  ASSERT_THAT(asked_, ::testing::ElementsAreArray(expected));
  int number = 0;
  for (const Breakdown& row : GetParam().breakdowns) {
    for (const std::string& question : row.questions) {
      Run(++number);
      EXPECT_EQ(ResultComparedWith(undisturbed), row.result) << question;
    }
  }
}

void PutContent(ClientWorld& world) {
  world.Install({.base_url = "http://localhost/old/"});
  world.Download();
  for (const std::string& folder :
       {world.DownloadedManual(), ClientWorld::InstalledManual()}) {
    world.AddFile(folder + "/page.html");
    world.AddFile(folder + "/search.html");
  }
  world.machine().SetPreference("com.velmo.a.b", "HelpcfgName",
                                PreferenceScope::kAnyUserCurrentHost, "Foo");
  world.StartBrowsers();
}

void PutViewer(ClientWorld& world) {
  PutContent(world);
  world.InstallWorkingViewer();
  world.GoOnline();
  world.machine().SetPreference("com.velmo.VelmoOnlineHelp",
                                "VelmoOnlineDefault",
                                PreferenceScope::kCurrentUserAnyHost, "0");
}

void PutServer(ClientWorld& world) {
  PutContent(world);
  world.GoOnline();
  const std::string manual = "http://localhost/help/" + OwnName("manual");
  world.machine().AddText(manual + "/page.html");
  world.machine().AddText(manual + "/search.html");
}

}  // namespace velmohelp::testing
