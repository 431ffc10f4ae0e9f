// The requests on a system that nobody has written a folder for.
#include <gtest/gtest.h>

#include <optional>

#include "platform/unsupported/unsupported_machine.h"
#include "tests/support/client_world.h"
#include "tests/support/sentence.h"

namespace velmohelp {
namespace {

using testing::ClientWorld;

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
  std::uint32_t (*run)(ClientWorld&);
  /// On a machine that can do nothing; on one on which a configuration is read.
  std::uint32_t code;
  std::uint32_t code_when_initialised;
};

class OnAnUnsupportedMachine : public ::testing::TestWithParam<Request> {
 protected:
  ClientWorld world_;
};

TEST_P(OnAnUnsupportedMachine, TheAnswerIsDefined) {
  UnsupportedMachine machine;
  world_.RunOn(machine);
  EXPECT_EQ(GetParam().run(world_), GetParam().code);
}

TEST_P(OnAnUnsupportedMachine, TheAnswerIsDefinedForAnInitialisedClient) {
  world_.Install();
  BareMachine machine(*world_.machine().ResourcesDirectory());
  world_.RunOn(machine);
  ASSERT_EQ(world_.Initialise("Foo", "en_US"), 0U);
  EXPECT_EQ(GetParam().run(world_), GetParam().code_when_initialised);
}

INSTANTIATE_TEST_SUITE_P(
    , OnAnUnsupportedMachine,
    ::testing::Values(
        Request{
            "of an initialisation",
            [](ClientWorld& world) { return world.Initialise("Foo", "en_US"); },
            6, 0},
        Request{"of the online status",
                [](ClientWorld& world) { return world.OnlineStatus(); }, 2, 1},
        Request{"of a page display",
                [](ClientWorld& world) { return world.DisplayPage("page"); }, 6,
                7},
        Request{
            "of the display of a URL",
            [](ClientWorld& world) { return world.DisplayPage("http://x"); }, 6,
            2},
        Request{"of the opening of a URL",
                [](ClientWorld& world) { return world.OpenUrl("http://x"); }, 6,
                1},
        Request{"of a search",
                [](ClientWorld& world) {
                  return world.SearchHelp("Foo", "en_US", "x");
                },
                4, 6},
        Request{"of a search by names",
                [](ClientWorld& world) {
                  return world.SearchByNames("a", "b", "en_US", "x");
                },
                8, 8}),
    testing::SentenceOf());

}  // namespace
}  // namespace velmohelp
