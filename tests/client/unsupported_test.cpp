// The requests on a system that nobody has written a folder for.
#include <gtest/gtest.h>
#include <velmohelp/velmohelp.h>

#include <optional>

#include "client/state.h"
#include "exports/this_machine.h"
#include "platform/unsupported/unsupported_machine.h"
#include "tests/support/client_world.h"
#include "tests/support/sentence.h"

namespace velmohelp {
namespace {

/// Has a host with resources, and nothing else.
class BareMachine : public UnsupportedMachine {
 public:
  explicit BareMachine(std::string resources)
      : resources_(std::move(resources)) {}
  std::optional<std::string> ResourcesDirectory() override {
    return resources_;
  }

 private:
  std::string resources_;
};

struct Request {
  const char* sentence;
  std::uint32_t (*run)();
  /// On a machine that can do nothing; on one on which a configuration is read.
  std::uint32_t code;
  std::uint32_t code_when_initialised;
};

class OnAnUnsupportedMachine : public ::testing::TestWithParam<Request> {
 protected:
  ~OnAnUnsupportedMachine() override { UseMachine(nullptr); }

  testing::ClientWorld world_;
};

TEST_P(OnAnUnsupportedMachine, TheAnswerIsDefined) {
  UnsupportedMachine machine;
  UseMachine(&machine);
  EXPECT_EQ(GetParam().run(), GetParam().code);
}

TEST_P(OnAnUnsupportedMachine, TheAnswerIsDefinedForAnInitialisedClient) {
  world_.Install();
  BareMachine machine(*world_.machine().ResourcesDirectory());
  UseMachine(&machine);
  ASSERT_EQ(InitializeVelmoHelpClient("Foo", "en_US", 0), 0U);
  EXPECT_EQ(GetParam().run(), GetParam().code_when_initialised);
}

INSTANTIATE_TEST_SUITE_P(
    , OnAnUnsupportedMachine,
    ::testing::Values(
        Request{"of an initialisation",
                [] { return InitializeVelmoHelpClient("Foo", "en_US", 0); }, 6,
                0},
        Request{"of the online status", GetVelmoHelpClientOnlineStatus, 2, 1},
        Request{"of the version", GetVelmoHelpClientVersion, 0x10500, 0x10500},
        Request{"of a page display",
                [] { return DisplayVelmoHelpClientPage("page"); }, 6, 7},
        Request{"of the display of a URL",
                [] { return DisplayVelmoHelpClientPage("http://x"); }, 6, 2},
        Request{"of the opening of a URL", [] { return OpenURL("http://x"); },
                6, 1},
        Request{"of a search", [] { return SearchHelp("Foo", "en_US", "x"); },
                4, 6},
        Request{"of a search by names",
                [] { return Search("a", "b", "en_US", "x"); }, 8, 8}),
    testing::SentenceOf());

}  // namespace
}  // namespace velmohelp
