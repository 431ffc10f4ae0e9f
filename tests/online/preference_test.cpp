#include "online/network_status.h"
#include "tests/support/scripted_test.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

using namespace std::string_literals;
using ITEMInternal::kAdminPreference;
using ITEMInternal::kUserPreference;
using ITEMInternal::NexletPreference;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr char kDomain[] = "com.velmo.VelmoOnlineHelp";
constexpr char kKey[] = "VelmoOnlineDefault";
constexpr char kAsksAdmin[] =
    "Preference admin com.velmo.VelmoOnlineHelp VelmoOnlineDefault";
constexpr char kAsksUser[] =
    "Preference user com.velmo.VelmoOnlineHelp VelmoOnlineDefault";

class OnlinePreferences : public ScriptedTest {
 protected:
  void SetAdmin(const std::string& value) {
    machine.SetPreference(kDomain, kKey, PreferenceScope::kAnyUserCurrentHost,
                          value);
  }
  void SetUser(const std::string& value) {
    machine.SetPreference(kDomain, kKey, PreferenceScope::kCurrentUserAnyHost,
                          value);
  }
};

TEST_F(OnlinePreferences, AreReadInCrossedScopes) {
  SetAdmin("of the host");
  SetUser("of the user");
  EXPECT_EQ(OnlinePreferenceText(machine, kAdminPreference), "of the host");
  EXPECT_EQ(OnlinePreferenceText(machine, kUserPreference), "of the user");
  EXPECT_THAT(machine.Questions(), ElementsAre(kAsksAdmin, kAsksUser));
}

TEST_F(OnlinePreferences, OfNoScopeAreEmptyAndNothingIsAsked) {
  SetAdmin("0");
  SetUser("0");
  for (const int which : {2, 3, 255, -1}) {
    EXPECT_EQ(
        OnlinePreferenceText(machine, static_cast<NexletPreference>(which)),
        "");
  }
  EXPECT_THAT(machine.Questions(), IsEmpty());
}

TEST_F(OnlinePreferences, AreEmptyWhereNothingIsSet) {
  EXPECT_EQ(OnlinePreferenceText(machine, kAdminPreference), "");
  EXPECT_EQ(OnlinePreferenceText(machine, kUserPreference), "");
}

TEST_F(OnlinePreferences, AreEmptyForValuesThatHaveNoCString) {
  for (const char* value : {"", "\xE2\x82\xAC", "\xFF", "0\xFF"}) {
    SetAdmin(value);
    EXPECT_EQ(OnlinePreferenceText(machine, kAdminPreference), "");
    EXPECT_TRUE(IsOnlineHelpAllowed(machine, kAdminPreference));
  }
}

TEST_F(OnlinePreferences, AreReadAfreshAtEachCall) {
  SetAdmin("0");
  EXPECT_FALSE(IsOnlineHelpAllowed(machine));
  SetAdmin("1");
  EXPECT_TRUE(IsOnlineHelpAllowed(machine));
}

TEST_F(OnlinePreferences, OfTheUserAreNotReadWhenTheAdministratorSaysNo) {
  SetAdmin("0");
  SetUser("1");
  EXPECT_FALSE(IsOnlineHelpAllowed(machine));
  EXPECT_THAT(machine.Questions(), ElementsAre(kAsksAdmin));
}

TEST_F(OnlinePreferences, OfTheUserSwitchOff) {
  SetUser("0");
  EXPECT_FALSE(IsOnlineHelpAllowed(machine));
  SetAdmin("1");
  EXPECT_FALSE(IsOnlineHelpAllowed(machine));
  EXPECT_THAT(machine.Questions(),
              ElementsAre(kAsksAdmin, kAsksUser, kAsksAdmin, kAsksUser));
}

TEST_F(OnlinePreferences, LeaveOnlineHelpOnByDefault) {
  EXPECT_TRUE(IsOnlineHelpAllowed(machine));
  EXPECT_THAT(machine.Questions(), ElementsAre(kAsksAdmin, kAsksUser));
}

struct Row {
  const char* sentence;
  std::string value;
  bool on;
};

class OnlineValue : public OnlinePreferences,
                    public ::testing::WithParamInterface<Row> {};

TEST_P(OnlineValue, SwitchesItsScopeAlone) {
  SetAdmin(GetParam().value);
  EXPECT_EQ(IsOnlineHelpAllowed(machine, kAdminPreference), GetParam().on);
  EXPECT_TRUE(IsOnlineHelpAllowed(machine, kUserPreference));
  EXPECT_THAT(machine.Questions(), ElementsAre(kAsksAdmin, kAsksUser));
}

TEST_P(OnlineValue, SwitchesTheOtherScopeAlone) {
  SetUser(GetParam().value);
  EXPECT_TRUE(IsOnlineHelpAllowed(machine, kAdminPreference));
  EXPECT_EQ(IsOnlineHelpAllowed(machine, kUserPreference), GetParam().on);
}

const Row kValues[] = {
    {"zero is off", "0", false},
    {"zero before a NUL byte is off", "0\0x"s, false},
    {"one is on", "1", true},
    {"an empty text is on", "", true},
    {"two zeros are on", "00", true},
    {"a space before zero is on", " 0", true},
    {"a space after zero is on", "0 ", true},
    {"a line feed after zero is on", "0\n", true},
    {"yes is on", "yes", true},
    {"no is on", "no", true},
    {"false is on", "false", true},
    {"a wide zero is on", "\xEF\xBC\x90", true},
};

INSTANTIATE_TEST_SUITE_P(Values, OnlineValue, ::testing::ValuesIn(kValues),
                         SentenceOf());

/// A machine that throws when it is asked for a preference.
class ThrowingMachine : public ScriptedMachine {
 public:
  std::optional<std::string> Preference(const std::string&, const std::string&,
                                        PreferenceScope) override {
    throw std::bad_alloc();
  }
};

TEST(OnlinePreferencesThatThrow, AreEmptyAndOn) {
  ThrowingMachine machine;
  EXPECT_EQ(OnlinePreferenceText(machine, kAdminPreference), "");
  EXPECT_TRUE(IsOnlineHelpAllowed(machine));
}

}  // namespace
}  // namespace velmohelp::testing
