#include <velmohelp/platform.h>
#include <velmohelp_locations.h>

#include "tests/support/on_scripted_machine.h"

namespace velmohelp::testing {
namespace {

using namespace ITEMInternal;
using ::testing::ElementsAre;
using ::testing::EndsWith;

constexpr std::int16_t kUser = -32763;
constexpr std::uint32_t kPref = 0x70726566;

class ContentPaths : public OnScriptedMachine {};

TEST_F(ContentPaths, FindAStandardFolder) {
  machine.SetPreferencesFolder("/prefs");
  std::string out = "old";
  EXPECT_TRUE(StdStringFindFolder(kUser, kPref, 1, out));
  EXPECT_EQ(out, "/prefs");
}

TEST_F(ContentPaths, LeaveTheStringAloneWhereThereIsNoSuchFolder) {
  machine.SetPreferencesFolder("/prefs");
  std::string out = "old";
  EXPECT_FALSE(StdStringFindFolder(0, kPref, 1, out));
  EXPECT_FALSE(StdStringFindFolder(kUser, 0x64657364, 1, out));
  EXPECT_EQ(out, "old");
}

TEST_F(ContentPaths, MakeAFolderForAnyNumberButZero) {
  std::string out;
  StdStringFindFolder(kUser, kPref, 0, out);
  StdStringFindFolder(kUser, kPref, 1, out);
  StdStringFindFolder(kUser, kPref, 255, out);
  EXPECT_THAT(machine.Questions(),
              ElementsAre("StandardFolder -32763 pref find",
                          "StandardFolder -32763 pref create",
                          "StandardFolder -32763 pref create"));
}

TEST_F(ContentPaths, TakeAFolderLongerThanAnyBuffer) {
  const std::string folder = "/" + std::string(100'000, 'a');
  machine.SetPreferencesFolder(folder);
  std::string out;
  EXPECT_TRUE(StdStringFindFolder(kUser, kPref, 1, out));
  EXPECT_EQ(out, folder);
}

TEST_F(ContentPaths, LieBelowTheUsersPreferences) {
  machine.SetPreferencesFolder("/home/u/.config");
  kKLHPreferenceFile = "/klh.1/Local Store/klh-pref.xml";
  kDownloadedOfflineContent = "/klh.1/Local Store/Help/";
  EXPECT_EQ(GetKLHPreferenceFilePath(),
            "/home/u/.config/klh.1/Local Store/klh-pref.xml");
  EXPECT_EQ(GetDownloadedContentPath(),
            "/home/u/.config/klh.1/Local Store/Help/");
  EXPECT_THAT(machine.Questions(),
              ElementsAre("StandardFolder -32763 pref create",
                          "StandardFolder -32763 pref create"));
}

TEST_F(ContentPaths, AreTheSuffixAloneWithoutAPreferencesFolder) {
  kKLHPreferenceFile = "/klh.1/Local Store/klh-pref.xml";
  kDownloadedOfflineContent = "/klh.1/Local Store/Help/";
  EXPECT_EQ(GetKLHPreferenceFilePath(), kKLHPreferenceFile);
  EXPECT_EQ(GetDownloadedContentPath(), kDownloadedOfflineContent);
}

TEST_F(ContentPaths, AreMadeAfreshAtEachCall) {
  machine.SetPreferencesFolder("/a");
  kKLHPreferenceFile = "/x";
  EXPECT_EQ(GetKLHPreferenceFilePath(), "/a/x");
  machine.SetPreferencesFolder("/b");
  kKLHPreferenceFile = "/y";
  EXPECT_EQ(GetKLHPreferenceFilePath(), "/b/y");
}

TEST_F(ContentPaths, OfInstalledContentEndInASlashAndAskNothing) {
  EXPECT_EQ(GetInstalledContentPath(), kInstalledHelpDir);
  EXPECT_THAT(GetInstalledContentPath(), EndsWith("/"));
  EXPECT_TRUE(machine.Questions().empty());
}

TEST_F(ContentPaths, JoinTheSecondWordBeforeTheFirst) {
  const std::string base = kInstalledHelpDir;
  const std::string without_slash = base.substr(0, base.size() - 1);
  EXPECT_EQ(GetHelpContentDirectory("first", "second"), base + "second/first");
  EXPECT_EQ(GetHelpContentDirectory("", "second"), base + "second");
  EXPECT_EQ(GetHelpContentDirectory("first", ""), base + "first");
  EXPECT_EQ(GetHelpContentDirectory("", ""), without_slash);
  EXPECT_EQ(GetHelpContentDirectory("/a", "b/"), base + "b//a");
}

}  // namespace
}  // namespace velmohelp::testing
