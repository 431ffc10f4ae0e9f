// GetVelmoHelpClientOnlineStatus, which probes at each call.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/client_world.h"
#include "tests/support/sentence.h"

namespace velmohelp {
namespace {

using testing::ClientWorld;
using ::testing::ElementsAre;

constexpr char kDomain[] = "com.velmo.VelmoOnlineHelp";
constexpr char kKey[] = "VelmoOnlineDefault";

void SetPreference(ClientWorld& world, PreferenceScope scope,
                   const char* value) {
  world.machine().SetPreference(kDomain, kKey, scope, value);
}

struct Network {
  const char* sentence;
  void (*given)(ClientWorld&);
  std::uint32_t code;
};

class OnlineStatusCode : public ::testing::TestWithParam<Network> {};

TEST_P(OnlineStatusCode, OfAnInitialisedClient) {
  ClientWorld world;
  world.Install();
  GetParam().given(world);
  world.Initialise();
  EXPECT_EQ(world.OnlineStatus(), GetParam().code);
  EXPECT_EQ(world.state().is_online, GetParam().code == 0);
}

INSTANTIATE_TEST_SUITE_P(
    , OnlineStatusCode,
    ::testing::Values(
        Network{"a server that can be reached",
                [](ClientWorld& world) { world.GoOnline(); }, 0},
        Network{"a user who did not switch it off",
                [](ClientWorld& world) {
                  world.GoOnline();
                  SetPreference(world, PreferenceScope::kCurrentUserAnyHost,
                                "1");
                },
                0},
        Network{"a server that nothing is known of", [](ClientWorld&) {}, 1},
        Network{"a user who said no",
                [](ClientWorld& world) {
                  world.GoOnline();
                  SetPreference(world, PreferenceScope::kCurrentUserAnyHost,
                                "0");
                },
                1},
        Network{
            "an administrator who said no to a user who said yes",
            [](ClientWorld& world) {
              world.GoOnline();
              SetPreference(world, PreferenceScope::kAnyUserCurrentHost, "0");
              SetPreference(world, PreferenceScope::kCurrentUserAnyHost, "1");
            },
            1}),
    testing::SentenceOf());

TEST(OnlineStatus, IsTwoBeforeAnyInitialisationWhateverTheNetwork) {
  ClientWorld world;
  world.GoOnline();
  EXPECT_EQ(world.OnlineStatus(), 2U);
  EXPECT_TRUE(world.Questions().empty());
  EXPECT_FALSE(world.state().is_online);
}

TEST(OnlineStatus, IsTwoAfterAFailedInitialisation) {
  ClientWorld world;
  world.GoOnline();
  world.Initialise("Foo", "en_US");
  EXPECT_EQ(world.OnlineStatus(), 2U);
}

TEST(OnlineStatus, IsProbedAfreshAtEachCall) {
  ClientWorld world;
  world.Install();
  world.GoOnline();
  world.Initialise();
  EXPECT_EQ(world.OnlineStatus(), 0U);
  world.machine().SetReachability("localhost", {});
  EXPECT_EQ(world.OnlineStatus(), 1U);
  EXPECT_FALSE(world.state().is_online);
}

TEST(OnlineStatus, AsksPolicyBeforeTheNetwork) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  SetPreference(world, PreferenceScope::kAnyUserCurrentHost, "0");
  world.OnlineStatus();
  EXPECT_THAT(world.Questions(),
              ElementsAre("Preference admin com.velmo.VelmoOnlineHelp "
                          "VelmoOnlineDefault"));
}

}  // namespace
}  // namespace velmohelp
