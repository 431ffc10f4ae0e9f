#include "platform/folders.h"
#include "platform/locations.h"
#include "tests/support/scripted_test.h"

namespace velmohelp::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;

constexpr std::int16_t kUser = -32763;
constexpr std::uint32_t kPref = 0x70726566;

class ContentPaths : public ScriptedTest {};

TEST_F(ContentPaths, FindAStandardFolder) {
  machine.SetPreferencesFolder("/prefs");
  std::string out = "old";
  EXPECT_TRUE(FindStandardFolder(machine, kUser, kPref, true, out));
  EXPECT_EQ(out, "/prefs");
}

TEST_F(ContentPaths, LeaveTheStringAloneWhereThereIsNoSuchFolder) {
  machine.SetPreferencesFolder("/prefs");
  std::string out = "old";
  EXPECT_FALSE(FindStandardFolder(machine, 0, kPref, true, out));
  EXPECT_FALSE(FindStandardFolder(machine, kUser, 0x64657364, true, out));
  EXPECT_EQ(out, "old");
}

TEST_F(ContentPaths, MakeAFolderOnRequestOnly) {
  std::string out;
  FindStandardFolder(machine, kUser, kPref, false, out);
  FindStandardFolder(machine, kUser, kPref, true, out);
  EXPECT_THAT(machine.Questions(), ElementsAre("PreferencesFolder find",
                                               "PreferencesFolder create"));
}

TEST_F(ContentPaths, AskNothingForAnotherStandardFolder) {
  std::string out;
  FindStandardFolder(machine, 0, kPref, true, out);
  FindStandardFolder(machine, kUser, 0x64657364, true, out);
  EXPECT_TRUE(machine.Questions().empty());
}

TEST_F(ContentPaths, TakeAFolderLongerThanAnyBuffer) {
  const std::string folder = "/" + std::string(100'000, 'a');
  machine.SetPreferencesFolder(folder);
  std::string out;
  EXPECT_TRUE(FindStandardFolder(machine, kUser, kPref, true, out));
  EXPECT_EQ(out, folder);
}

TEST_F(ContentPaths, AreBelowTheUsersPreferences) {
  machine.SetPreferencesFolder("/home/u/.config");
  EXPECT_EQ(BelowPreferences(machine, "/klh.1/Local Store/Help/"),
            "/home/u/.config/klh.1/Local Store/Help/");
  EXPECT_THAT(machine.Questions(), ElementsAre("PreferencesFolder create"));
}

TEST_F(ContentPaths, AreTheSuffixAloneWithoutAPreferencesFolder) {
  EXPECT_EQ(BelowPreferences(machine, "/klh.1/Local Store/Help/"),
            "/klh.1/Local Store/Help/");
}

TEST_F(ContentPaths, AreLookedUpAgainAtEachCall) {
  machine.SetPreferencesFolder("/a");
  EXPECT_EQ(BelowPreferences(machine, "/x"), "/a/x");
  machine.SetPreferencesFolder("/b");
  EXPECT_EQ(BelowPreferences(machine, "/x"), "/b/x");
}

TEST_F(ContentPaths, OfInstalledContentEndInASlash) {
  EXPECT_EQ(InstalledContentPath(), kInstalledHelpDir);
  EXPECT_THAT(InstalledContentPath(), EndsWith("/"));
}

TEST_F(ContentPaths, JoinTheSecondWordBeforeTheFirst) {
  const std::string base = kInstalledHelpDir;
  const std::string without_slash = base.substr(0, base.size() - 1);
  EXPECT_EQ(HelpContentDirectory("first", "second"), base + "second/first");
  EXPECT_EQ(HelpContentDirectory("", "second"), base + "second");
  EXPECT_EQ(HelpContentDirectory("first", ""), base + "first");
  EXPECT_EQ(HelpContentDirectory("", ""), without_slash);
  EXPECT_EQ(HelpContentDirectory("/a", "b/"), base + "b//a");
}

}  // namespace
}  // namespace velmohelp::testing
