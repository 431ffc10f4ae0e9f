// Memory runs out at each allocation of each question to this system, one run
// per allocation: the machine throws or reports a failure, leaks no descriptor
// and no child, and works the next time.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <new>

#include "tests/support/exhaustion.h"
#include "tests/support/sentence.h"
#include "tests/support/world.h"

namespace velmohelp::testing {
namespace {

/// Puts what is asked for on the machine, and returns its path or name.
using Prepare = std::string (*)(World& world);
/// Whether the machine returns the right result.
using Ask = bool (*)(Machine& machine, const std::string& asked);

struct Question {
  const char* sentence;
  Prepare prepare;
  Ask ask;
};

class MemoryOfTheMachine : public ::testing::TestWithParam<Question> {
 protected:
  /// False when the question took fewer allocations than that.
  bool AskExhaustedAt(std::size_t nth, Shortage shortage) {
    const Exhaustion exhaustion(nth, shortage);
    try {
      GetParam().ask(world_->machine(), asked_);
    } catch (const std::bad_alloc&) {
      return true;
    }
    return Exhaustion::Came();
  }

  void ExpectAnAnswerAfterEachShortage(Shortage shortage) {
    const auto open_before = OpenDescriptors();
    for (std::size_t nth = 1; AskExhaustedAt(nth, shortage); ++nth) {
      EXPECT_TRUE(GetParam().ask(world_->machine(), asked_)) << nth;
      EXPECT_EQ(OpenDescriptors(), open_before) << nth;
    }
  }

  static std::ptrdiff_t OpenDescriptors() {
    const std::filesystem::directory_iterator all("/proc/self/fd");
    return std::distance(begin(all), end(all));
  }

  std::unique_ptr<World> world_ = MakeLinuxWorld();
  std::string asked_ = GetParam().prepare(*world_);
};

TEST_P(MemoryOfTheMachine, LosesNothingAndAnswersTheNextTime) {
  ASSERT_TRUE(GetParam().ask(world_->machine(), asked_));
  ExpectAnAnswerAfterEachShortage(Shortage::kOneAllocation);
  ExpectAnAnswerAfterEachShortage(Shortage::kFromThenOn);
}

std::string Nothing(World& /*world*/) { return ""; }

const Question kFiles[] = {
    {"FindFile", [](World& world) { return world.AddFile("a file"); },
     [](Machine& machine, const std::string& asked) {
       return machine.FindFile(asked).has_value();
     }},
    {"NamesIn", [](World& world) { return world.AddFile("folder/file"); },
     [](Machine& machine, const std::string& asked) {
       const auto folder = std::filesystem::path(asked).parent_path();
       return machine.NamesIn(folder) == std::vector<std::string>{"file"};
     }},
    {"SetHost and ResourcesDirectory",
     [](World& world) { return world.AddDirectory("bin/app.resources"); },
     [](Machine& machine, const std::string& asked) {
       const auto host = std::filesystem::path(asked).replace_extension();
       return machine.SetHost(host) && machine.ResourcesDirectory() == asked;
     }},
    {"PreferencesFolder",
     [](World& world) { return world.SetPreferencesFolder(); },
     [](Machine& machine, const std::string& asked) {
       return machine.PreferencesFolder(true) == asked;
     }},
    {"ResourcesDirectory", Nothing,
     [](Machine& machine, const std::string& /*asked*/) {
       machine.ResourcesDirectory();
       return true;
     }},
    {"BundleDirectory",
     [](World& world) {
       return world.AddBundle("com.example.memory" + std::to_string(getpid()));
     },
     [](Machine& machine, const std::string& asked) {
       const std::string name = std::filesystem::path(asked).stem();
       return machine.BundleDirectory(name) == asked;
     }},
    {"ApplicationExecutable",
     [](World& world) { return world.AddApplication("Viewer.app"); },
     [](Machine& machine, const std::string& asked) {
       return machine.ApplicationExecutable(asked) == asked + "/AppRun";
     }},
    {"Preference",
     [](World& world) -> std::string {
       world.SetUserPreference("com.example.memory", "Key", "a value");
       return "com.example.memory";
     },
     [](Machine& machine, const std::string& asked) {
       return machine.Preference(asked, "Key",
                                 PreferenceScope::kCurrentUserAnyHost) ==
              "a value";
     }},
};

const Question kPrograms[] = {
    {"RunToEnd", [](World& world) { return world.AddProgram("good", 0); },
     [](Machine& machine, const std::string& asked) {
       return machine.RunToEnd(asked, {}) == 0;
     }},
    {"FirstOutput",
     [](World& world) { return world.AddSpeaker("speaker", "/a b"); },
     [](Machine& machine, const std::string& asked) {
       return machine.FirstOutput(asked, {"speak"}) == "/a b";
     }},
    {"CanStart", [](World& world) { return world.AddLastingProgram("viewer"); },
     [](Machine& machine, const std::string& asked) {
       return machine.CanStart(asked);
     }},
    {"SetActivationToken", Nothing,
     [](Machine& machine, const std::string& /*asked*/) {
       return machine.SetActivationToken("a token that is not in place");
     }},
    {"StartWorker and FinishWorker", Nothing,
     [](Machine& machine, const std::string& /*asked*/) {
       const int descriptor = machine.StartWorker({"of another version"});
       return machine.FinishWorker(descriptor) == "";
     }},
    {"StartProgram",
     [](World& world) { return world.AddLastingProgram("viewer"); },
     [](Machine& machine, const std::string& asked) {
       return machine.StartProgram(asked, {"HELP", "Foo", "en_US", "page"});
     }},
    {"HostReachability", Nothing,
     [](Machine& machine, const std::string& /*asked*/) {
       return machine.HostReachability("localhost").has_value();
     }},
    {"FetchText", [](World& world) { return world.AddText("a page.html"); },
     [](Machine& machine, const std::string& asked) {
       return machine.FetchText(asked, std::chrono::minutes(1));
     }},
};

INSTANTIATE_TEST_SUITE_P(Files, MemoryOfTheMachine, ::testing::ValuesIn(kFiles),
                         SentenceOf());
INSTANTIATE_TEST_SUITE_P(Programs, MemoryOfTheMachine,
                         ::testing::ValuesIn(kPrograms), SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
