// Memory runs out at each question that a request asks the machine, one run
// per question: no exception reaches the host, and the code is a defined one.
#include <gtest/gtest.h>
#include <velmohelp/velmohelp.h>

#include <new>

#include "exports/state.h"
#include "tests/support/exported_world.h"
#include "tests/support/sentence.h"

namespace velmohelp {
namespace {

using testing::ExportedWorld;

/// Throws at a question that was counted from 1 or named; never for 0 and "".
class ExhaustedMachine : public ScriptedMachine {
 public:
  void Arm(std::size_t question) { left_ = question; }
  void ArmAt(const std::string& verb) { verb_ = verb; }

 private:
  void Record(const Arguments& words) override {
    ScriptedMachine::Record(words);
    if (left_ > 0 && --left_ == 0) throw std::bad_alloc();
    if (words.front() == verb_) throw std::bad_alloc();
  }

  std::size_t left_ = 0;
  std::string verb_;
};

struct Request {
  const char* sentence;
  std::uint32_t (*run)();
  bool initialised;
  std::uint32_t code;
  std::uint32_t code_of_fault;
};

class MemoryRunsOut : public ::testing::TestWithParam<Request> {
 protected:
  /// Returns the request's code. fault: the number of the question at which
  /// memory runs out, 0 for none; asked: all the questions asked.
  static std::uint32_t Run(std::size_t fault, std::vector<std::string>& asked) {
    ExhaustedMachine machine;
    ExportedWorld world(machine);
    world.Install();
    world.InstallWorkingViewer();
    world.GoOnline();
    world.machine().SetPreference("com.velmo.a.b", "HelpcfgName",
                                  PreferenceScope::kAnyUserCurrentHost, "Foo");
    if (GetParam().initialised) world.Initialise();
    machine.Arm(fault);
    const std::uint32_t code = GetParam().run();
    asked = world.Questions();
    return code;
  }
};

/// What is thrown while a preference is read leaves online help on.
bool IsOnlinePreference(const std::string& question) {
  return question.ends_with(" VelmoOnlineDefault");
}

TEST_P(MemoryRunsOut, AtAnyQuestion) {
  std::vector<std::string> all;
  ASSERT_EQ(Run(0, all), GetParam().code);
  ASSERT_FALSE(all.empty());
  for (std::size_t fault = 1; fault <= all.size(); ++fault) {
    const std::string& question = all[fault - 1];
    const bool goes_on = IsOnlinePreference(question);
    std::vector<std::string> asked;
    EXPECT_EQ(Run(fault, asked),
              goes_on ? GetParam().code : GetParam().code_of_fault)
        << question;
    EXPECT_EQ(asked.size(), goes_on ? all.size() : fault) << question;
  }
}

INSTANTIATE_TEST_SUITE_P(
    , MemoryRunsOut,
    ::testing::Values(
        Request{"in an initialisation",
                [] { return InitializeVelmoHelpClient("Foo", "en_US", 0); },
                false, 0, 6},
        Request{"in the online status", GetVelmoHelpClientOnlineStatus, true, 0,
                1},
        Request{"in a page display",
                [] { return DisplayVelmoHelpClientPage("page"); }, true, 0, 11},
        Request{"in the display of a URL",
                [] { return DisplayVelmoHelpClientPage("http://x"); }, true, 0,
                11},
        Request{"in the opening of a URL", [] { return OpenURL("http://x"); },
                true, 0, 7},
        Request{"in a search", [] { return ::SearchHelp("Foo", "en_US", "x"); },
                true, 0, 1},
        Request{"in a search by names",
                [] { return Search("a", "b", "en_US", "x"); }, true, 0, 1}),
    testing::SentenceOf());

TEST(MemoryRanOut, LeavesAnInitialisationUndone) {
  ExhaustedMachine machine;
  ExportedWorld world(machine);
  world.Install();
  world.Initialise();
  machine.Arm(1);
  EXPECT_EQ(InitializeVelmoHelpClient("Bar", "en_US", 0), 6U);
  EXPECT_EQ(sInitStatus, 6);
}

/// The search goes on from what the initialisation has returned.
TEST(MemoryRanOut, InTheInitialisationOfASearchIsAMissingConfiguration) {
  ExhaustedMachine machine;
  ExportedWorld world(machine);
  world.Install();
  machine.Arm(1);
  EXPECT_EQ(::SearchHelp("Foo", "en_US", "x"), 4U);
}

/// What was true at the last probe must not outlive one that failed.
TEST(MemoryRanOut, LeavesTheClientOffline) {
  const auto requests = {+[] { return GetVelmoHelpClientOnlineStatus(); },
                         +[] { return DisplayVelmoHelpClientPage("page"); },
                         +[] { return ::SearchHelp("Foo", "en_US", "x"); }};
  for (const auto request : requests) {
    ExhaustedMachine machine;
    ExportedWorld world(machine);
    world.Install();
    world.GoOnline();
    world.Initialise();
    EXPECT_TRUE(sIsOnline);
    machine.ArmAt("HostReachability");
    EXPECT_NE(request(), 0U);
    EXPECT_FALSE(sIsOnline);
  }
}

}  // namespace
}  // namespace velmohelp
