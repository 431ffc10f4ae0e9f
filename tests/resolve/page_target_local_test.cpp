// Page ids offline, in folders without a help map.
#include "tests/support/content_folders.h"

namespace velmohelp::testing {
namespace {

using ::testing::ElementsAre;

class LocalPage : public ContentFolders {};

TEST_F(LocalPage, IsNotFoundInAnEmptyTable) {
  sHelpPaths[0][0] = Folder("a");
  sHelpPaths[0][1] = "YES";
  AddPage(Downloaded("a"), "intro.html");
  EXPECT_EQ(Locally("intro.html"), NotFound("intro.html"));
  EXPECT_EQ(OnTheNet("intro.html"), NotFound("intro.html"));
  EXPECT_THAT(machine.Questions(), ElementsAre(asks_for_root));
}

TEST_F(LocalPage, IsLookedForOnlyInRowsMarkedYesExactly) {
  for (const char* mark : {"", "yes", "Yes", "NO", "YES ", " YES", "TRUE"}) {
    AddRow("a", mark);
  }
  AddPage(Downloaded("a"), "intro.html");
  EXPECT_EQ(Locally("intro.html"), NotFound("intro.html"));
  EXPECT_THAT(machine.Questions(), ElementsAre(asks_for_root));
  AddRow("a", "YES");
  EXPECT_EQ(Locally("intro.html"), Found(Downloaded("a") + "/intro.html"));
}

TEST_F(LocalPage, IsFoundInTheDownloadedFolderBeforeTheInstalledOne) {
  AddRow("a");
  AddPage(Downloaded("a"), "intro.html");
  AddPage(Installed("a"), "intro.html");
  EXPECT_EQ(Locally("intro.html"), Found(Downloaded("a") + "/intro.html"));
  EXPECT_THAT(machine.Questions(),
              ElementsAre(asks_for_root, AsksForMap(Downloaded("a")),
                          Asks(Downloaded("a") + "/intro.html")));
}

TEST_F(LocalPage, IsLookedForInAllDownloadedFoldersBeforeAnyInstalledOne) {
  AddRow("a");
  AddRow("b");
  AddPage(Installed("a"), "intro.html");
  AddPage(Downloaded("b"), "intro.html");
  EXPECT_EQ(Locally("intro.html"), Found(Downloaded("b") + "/intro.html"));
}

TEST_F(LocalPage, IsFoundInTheFirstRowThatHasIt) {
  AddRow("b");
  AddRow("a");
  AddPage(Downloaded("a"), "intro.html");
  AddPage(Downloaded("b"), "intro.html");
  EXPECT_EQ(Locally("intro.html"), Found(Downloaded("b") + "/intro.html"));
}

TEST_F(LocalPage, HasADoubledSlashInItsInstalledPathAndInEachMapsPath) {
  AddRow("a");
  AddRow("b");
  AddPage(Installed("b"), "intro.html");
  const std::string page = Installed("b") + "/intro.html";
  ASSERT_EQ(page, ITEMInternal::GetInstalledContentPath() + "/" + Folder("b") +
                      "/intro.html");
  EXPECT_EQ(Locally("intro.html"), Found(page));
  EXPECT_THAT(machine.Questions(),
              ElementsAre(asks_for_root, AsksForMap(Downloaded("a")),
                          Asks(Downloaded("a") + "/intro.html"),
                          AsksForMap(Downloaded("b")),
                          Asks(Downloaded("b") + "/intro.html"),
                          AsksForMap(Installed("a")),
                          Asks(Installed("a") + "/intro.html"),
                          AsksForMap(Installed("b")), Asks(page)));
}

TEST_F(LocalPage, ThatIsNotFoundLeavesTheIdAlthoughCandidatesWereWritten) {
  AddRow("a");
  EXPECT_EQ(Locally("x y.html"), NotFound("x y.html"));
  EXPECT_EQ(machine.Questions().size(), 5);
}

/// It could not be shown: no URL can be made of its path.
TEST_F(LocalPage, IsNotTheOneInAFolderWhoseNameIsNotUtf8) {
  AddRow("a");
  AddRow("b");
  sHelpPaths[0][0] += "\xFC";
  AddPage(Downloaded("a") + "\xFC", "intro.html");
  AddMap(Downloaded("a") + "\xFC", "VX_HOME\th\nintro\tx.html\n");
  EXPECT_EQ(Locally("intro.html"), NotFound("intro.html"));
  AddPage(Downloaded("b"), "intro.html");
  EXPECT_EQ(Locally("intro.html"), Found(Downloaded("b") + "/intro.html"));
}

TEST_F(LocalPage, GetsNoSecondSlashAfterAFolderThatEndsWithOne) {
  AddRow("a");
  sHelpPaths[0][0] += "/";
  AddPage(Downloaded("a"), "intro.html");
  EXPECT_EQ(Locally("intro.html"), Found(Downloaded("a") + "/intro.html"));
  EXPECT_EQ(machine.Questions()[1], Asks(Downloaded("a") + "///helpmap.txt"));
}

TEST_F(LocalPage, OfAFolderWithoutANameIsInTheRootItself) {
  AddRow("a");
  sHelpPaths[0][0] = "";
  kDownloadedOfflineContent = "/store/Help";
  machine.SetPreferencesFolder("/prefs");
  machine.AddFile("/prefs/store/Help/intro.html");
  EXPECT_EQ(Locally("intro.html"), Found("/prefs/store/Help/intro.html"));
}

TEST_F(LocalPage, IsLookedForBelowTheSuffixWithoutAPreferencesFolder) {
  machine = ScriptedMachine();
  AddRow("a");
  machine.AddFile("/store/Help/" + Folder("a") + "/intro.html");
  EXPECT_EQ(Locally("intro.html"),
            Found("/store/Help/" + Folder("a") + "/intro.html"));
}

TEST_F(LocalPage, IsLookedForInAllHundredRowsOfATableThatWasNeverFilled) {
  sHelpPathCount = 100;
  sHelpPaths[99][0] = Folder("a");
  sHelpPaths[99][1] = "YES";
  AddPage(Downloaded("a"), "intro.html");
  EXPECT_EQ(Locally("intro.html"), Found(Downloaded("a") + "/intro.html"));
  sHelpPathCount = 99;
  EXPECT_EQ(Locally("intro.html"), NotFound("intro.html"));
}

TEST_F(LocalPage, MayBeADirectory) {
  AddRow("a");
  machine.AddDirectory(Downloaded("a"));
  EXPECT_EQ(Locally(""), Found(Downloaded("a") + "/"));
}

TEST_F(LocalPage, LeavesTheHelpMapAloneWhenNoFolderHasOne) {
  AddRow("a");
  sHelpMap = {{"old", "old"}};
  EXPECT_EQ(Locally("intro.html"), NotFound("intro.html"));
  EXPECT_EQ(sHelpMap.count("old"), 1);
}

TEST_F(LocalPage, MayBeValidatedIntoTheStringThatHoldsItsId) {
  AddRow("a");
  AddPage(Installed("a"), "intro.html");
  std::string id = "intro.html";
  EXPECT_EQ(ValidateID(id, false, id), 0);
  EXPECT_EQ(id, Installed("a") + "/intro.html");
}

}  // namespace
}  // namespace velmohelp::testing
