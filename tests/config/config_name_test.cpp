#include <velmohelp/config.h>

#include "tests/support/on_scripted_machine.h"

namespace velmohelp::testing {
namespace {

using namespace std::string_literals;
using ITEMInternal::GetHelpConfigName;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto kAdmin = PreferenceScope::kAnyUserCurrentHost;

class ConfigName : public OnScriptedMachine {
 protected:
  void SetName(const std::string& domain, const std::string& value) {
    machine.SetPreference(domain, "HelpcfgName", kAdmin, value);
  }
};

TEST_F(ConfigName, IsThePreferenceForAnyUserOfThisHost) {
  SetName("com.velmo.a.b", "Foo");
  EXPECT_EQ(GetHelpConfigName("a", "b"), "Foo");
  EXPECT_THAT(machine.Questions(),
              ElementsAre("Preference admin com.velmo.a.b HelpcfgName"));
}

TEST_F(ConfigName, IsNotTheUsersOwnPreference) {
  machine.SetPreference("com.velmo.a.b", "HelpcfgName",
                        PreferenceScope::kCurrentUserAnyHost, "Foo");
  EXPECT_EQ(GetHelpConfigName("a", "b"), "");
}

TEST_F(ConfigName, OfAnEmptyWordIsNeverLookedUp) {
  SetName("com.velmo.a.", "Foo");
  SetName("com.velmo..b", "Foo");
  SetName("com.velmo..", "Foo");
  EXPECT_EQ(GetHelpConfigName("", "b"), "");
  EXPECT_EQ(GetHelpConfigName("a", ""), "");
  EXPECT_EQ(GetHelpConfigName("", ""), "");
  EXPECT_THAT(machine.Questions(), IsEmpty());
}

TEST_F(ConfigName, IsEmptyWhenNothingIsSet) {
  EXPECT_EQ(GetHelpConfigName("a", "b"), "");
}

TEST_F(ConfigName, MayBeAnyText) {
  SetName("com.velmo.a.b", "../Pr\xC3\xB6 x");
  EXPECT_EQ(GetHelpConfigName("a", "b"), "../Pr\xC3\xB6 x");
}

TEST_F(ConfigName, IsEmptyForValuesThatDoNotFitTheirBuffer) {
  SetName("com.velmo.a.b", "");
  EXPECT_EQ(GetHelpConfigName("a", "b"), "");
  SetName("com.velmo.a.b", "\xE2\x82\xAC");
  EXPECT_EQ(GetHelpConfigName("a", "b"), "");
  SetName("com.velmo.a.b", "\xFF");
  EXPECT_EQ(GetHelpConfigName("a", "b"), "");
}

TEST_F(ConfigName, OfHostileWordsIsLookedUpInOneDomain) {
  GetHelpConfigName("../../etc", "x/y");
  GetHelpConfigName(" ", "\"");
  GetHelpConfigName("a.b", "c\nd");
  EXPECT_THAT(
      machine.Questions(),
      ElementsAre("Preference admin com.velmo.../../etc.x/y HelpcfgName",
                  "Preference admin \"com.velmo. .\"\" HelpcfgName",
                  "Preference admin com.velmo.a.b.c\nd HelpcfgName"));
}

TEST_F(ConfigName, IsLookedUpInMacRomanUpToTheFirstZeroByte) {
  GetHelpConfigName("\x8A\xFF", "b");
  GetHelpConfigName("a\0x"s, "b");
  GetHelpConfigName("\0"s, "b");
  EXPECT_THAT(machine.Questions(),
              ElementsAre("Preference admin com.velmo.ä\u02C7.b HelpcfgName",
                          "Preference admin com.velmo.a HelpcfgName",
                          "Preference admin com.velmo. HelpcfgName"));
}

/// An administrator finds these names in the documents.
TEST_F(ConfigName, OfOneLetterDependsOnTheCallersEncoding) {
  SetName("com.velmo.ü.b", "Mac Roman");
  SetName("com.velmo.√º.b", "UTF-8");
  SetName("com.velmo.¸.b", "Latin 1");
  EXPECT_EQ(GetHelpConfigName("\x9F", "b"), "Mac Roman");
  EXPECT_EQ(GetHelpConfigName("ü", "b"), "UTF-8");
  EXPECT_EQ(GetHelpConfigName("\xFC", "b"), "Latin 1");
}

TEST_F(ConfigName, OfMegabytesIsLookedUpToo) {
  const std::string word(4'000'000, 'a');
  EXPECT_EQ(GetHelpConfigName(word, word), "");
  EXPECT_EQ(machine.Questions().front().size(), 8'000'040);
}

}  // namespace
}  // namespace velmohelp::testing
