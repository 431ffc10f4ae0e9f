#include <velmohelp/config.h>

#include "config/help_config.h"
#include "tests/support/on_scripted_machine.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp::testing {
namespace {

using ::testing::ElementsAre;

constexpr char kGood[] = R"(id="en_US_Foo" baseUrl="installed" path="dir"
    appId="app" pubId="publisher" path="a" contextSensitivity="yes")";

/// A host with a resources directory and a viewer with a store.
class UpdateConfig : public OnScriptedMachine {
 protected:
  UpdateConfig() {
    machine.SetResourcesDirectory(folder / "res");
    machine.SetPreferencesFolder(folder / "prefs");
    kDownloadedHelpcfg = "/store/";
    sLocale = "en_US";
    sProductID = "Foo";
  }
  std::string Install(const std::string& text,
                      const std::string& locale = "en_US") {
    return folder.Write("res/help/" + locale + "/Foo.helpcfg", text);
  }
  std::string DownloadPath() const {
    return folder / "prefs/store//dir/Foo.helpcfg";
  }
  std::string AsksForDownload() const {
    return "FindFile \"" + DownloadPath() + "\"";
  }
  void Download(const std::string& text) {
    WriteFile(DownloadPath(), text);
    machine.AddFile(DownloadPath());
  }
  const TemporaryDirectory folder;
};

TEST_F(UpdateConfig, ReadsTheInstalledFileWhenNothingWasDownloaded) {
  Install(kGood);
  EXPECT_EQ(UpdateHelpConfigInfo("en_US"), 0);
  EXPECT_EQ(sBaseUrl, "installed");
  EXPECT_EQ(sAppID, "app");
  EXPECT_EQ(sPublisherID, "publisher");
  EXPECT_FALSE(sAppIDIsNull);
  EXPECT_EQ(sHelpPathCount, 1);
  EXPECT_THAT(machine.Questions(),
              ElementsAre("ResourcesDirectory", "PreferencesFolder create",
                          AsksForDownload()));
}

TEST_F(UpdateConfig, ReadsTheViewersIdsOnlyFromTheInstalledFile) {
  Install(kGood);
  Download(R"(id="en_US_Foo" baseUrl="downloaded" path="other" appId="x"
      pubId="y" path="b" contextSensitivity="no" path="c"
      contextSensitivity="yes")");
  EXPECT_EQ(UpdateHelpConfigInfo("en_US"), 0);
  EXPECT_EQ(sAppID, "app");
  EXPECT_EQ(sPublisherID, "publisher");
  EXPECT_EQ(sBaseUrl, "downloaded");
  EXPECT_EQ(sHelpPathCount, 2);
  EXPECT_EQ(sHelpPaths[0][0], "b");
  EXPECT_EQ(sHelpPaths[1][1], "YES");
  EXPECT_THAT(machine.Questions(),
              ElementsAre("ResourcesDirectory", "PreferencesFolder create",
                          AsksForDownload()));
}

TEST_F(UpdateConfig, FallsBackFromADownloadOfAnotherProduct) {
  Install(kGood);
  Download(R"(id="en_US_Bar" baseUrl="downloaded")");
  EXPECT_EQ(UpdateHelpConfigInfo("en_US"), 0);
  EXPECT_EQ(sConfigID, "en_US_Foo");
  EXPECT_EQ(sBaseUrl, "installed");
  EXPECT_THAT(machine.Questions(),
              ElementsAre("ResourcesDirectory", "PreferencesFolder create",
                          AsksForDownload(), "ResourcesDirectory"));
}

TEST_F(UpdateConfig, FallsBackFromADownloadThatCannotBeRead) {
  Install(kGood);
  machine.AddFile(DownloadPath());
  EXPECT_EQ(UpdateHelpConfigInfo("en_US"), 0);
  EXPECT_EQ(sBaseUrl, "installed");
}

TEST_F(UpdateConfig, ReturnsTheInstalledFilesResultAfterAFallback) {
  Install(R"(id="en_US_Bar" baseUrl="installed" path="dir")");
  machine.AddFile(DownloadPath());
  EXPECT_EQ(UpdateHelpConfigInfo("en_US"), 7);
  EXPECT_EQ(sConfigID, "en_US_Bar");
}

TEST_F(UpdateConfig,
       ChecksTheInstalledFileAgainstTheLocaleThatTheDownloadLeft) {
  sLocale = "en";
  Install(R"(id="en_Foo" baseUrl="installed" path="dir")", "en");
  Download(R"(id="en_Foo")");
  EXPECT_EQ(UpdateHelpConfigInfo("en"), 7);
  EXPECT_EQ(sLocale, "en_Fo");
  EXPECT_EQ(sBaseUrl, "");
}

/// The download replaces the state's locale before it is rejected. The
/// installed file is still looked for in the folder of the locale that was
/// asked for.
TEST_F(UpdateConfig, KeepsTheLocaleAskedForWhenItIsTheStatesOwn) {
  Install(R"(id="en_Foo" baseUrl="installed" path="dir")", "en");
  Download(R"(id="en_Foo")");
  const std::string product_id = "Foo";
  const std::string downloaded_suffix = "/store/";
  std::string locale = "en";
  std::string texts[4];
  bool app_id_is_null = false;
  std::string rows[kHelpPathCapacity][2];
  std::int32_t row_count = 0;
  const HelpConfigState state = {.product_id = product_id,
                                 .downloaded_suffix = downloaded_suffix,
                                 .locale = locale,
                                 .config_id = texts[0],
                                 .base_url = texts[1],
                                 .app_id = texts[2],
                                 .publisher_id = texts[3],
                                 .app_id_is_null = app_id_is_null,
                                 .help_paths = rows,
                                 .help_path_count = row_count};
  EXPECT_EQ(UpdateHelpConfig(machine, state, locale),
            HelpConfigStatus::kInvalid);
  EXPECT_EQ(locale, "en_Fo");
}

TEST_F(UpdateConfig, DoesNotRetryAnInstalledFile) {
  Install(R"(id="en_US_Foo" path="dir")");
  EXPECT_EQ(UpdateHelpConfigInfo("en_US"), 7);
  EXPECT_EQ(machine.Questions().size(), 3);
}

TEST_F(UpdateConfig, IsUnreadableWithoutTheInstalledFileDespiteADownload) {
  Download(kGood);
  sAppID = "old app";
  sHelpPathCount = 3;
  EXPECT_EQ(UpdateHelpConfigInfo("en_US"), 6);
  EXPECT_EQ(sAppID, "old app");
  EXPECT_EQ(sConfigID, "");
  EXPECT_EQ(sHelpPathCount, 100);
  EXPECT_THAT(machine.Questions(), ElementsAre("ResourcesDirectory"));
}

TEST_F(UpdateConfig, IsInvalidWithoutAPathAndAssignsNothing) {
  sAppID = "old app";
  for (const char* text : {R"(id="en_US_Foo" baseUrl="u" appId="a")",
                           R"(path="" id="en_US_Foo" baseUrl="u")"}) {
    Install(text);
    EXPECT_EQ(UpdateHelpConfigInfo("en_US"), 7);
  }
  EXPECT_EQ(sAppID, "old app");
  EXPECT_EQ(sConfigID, "");
  EXPECT_EQ(machine.Questions().size(), 2);
}

TEST_F(UpdateConfig, AssignsTheViewersIdsBeforeTheFileIsRejected) {
  Install(R"(path="dir" appId="a" pubId="b")");
  EXPECT_EQ(UpdateHelpConfigInfo("en_US"), 7);
  EXPECT_EQ(sAppID, "a");
  EXPECT_EQ(sPublisherID, "b");
}

TEST_F(UpdateConfig, AssignsIdsThatTheFileLacks) {
  sAppID = "old app";
  sPublisherID = "old publisher";
  sAppIDIsNull = true;
  Install(R"(id="en_US_Foo" baseUrl="u" path="dir")");
  EXPECT_EQ(UpdateHelpConfigInfo("en_US"), 0);
  EXPECT_EQ(sAppID, "");
  EXPECT_EQ(sPublisherID, "");
  EXPECT_FALSE(sAppIDIsNull);
}

TEST_F(UpdateConfig, HasNoViewerForNullInAnyLetterCase) {
  for (const std::string null : {"NULL", "null", "Null", "nUlL"}) {
    sAppIDIsNull = false;
    Install(R"(id="en_US_Foo" baseUrl="u" path="d" pubId="p" appId=")" + null +
            "\"");
    EXPECT_EQ(UpdateHelpConfigInfo("en_US"), 0);
    EXPECT_EQ(sAppID, "") << null;
    EXPECT_EQ(sPublisherID, "") << null;
    EXPECT_TRUE(sAppIDIsNull) << null;
  }
}

TEST_F(UpdateConfig, HasAViewerForWhatOnlyLooksLikeNull) {
  for (const std::string id : {" NULL", "NULL ", "NULLL", "NUL", ""}) {
    sAppIDIsNull = true;
    Install(R"(id="en_US_Foo" baseUrl="u" path="d" pubId="NULL" appId=")" + id +
            "\"");
    EXPECT_EQ(UpdateHelpConfigInfo("en_US"), 0);
    EXPECT_EQ(sAppID, id);
    EXPECT_EQ(sPublisherID, "NULL");
    EXPECT_FALSE(sAppIDIsNull) << id;
  }
}

TEST_F(UpdateConfig, LooksInTheFolderOfItsArgumentAndChecksTheStatesLocale) {
  Install(kGood, "fr_FR");
  EXPECT_EQ(UpdateHelpConfigInfo("fr_FR"), 0);
  EXPECT_EQ(sLocale, "en_US");
}

TEST_F(UpdateConfig, MissesTheFileOfATwoLetterLocaleAtTheSecondUpdate) {
  sLocale = "en";
  Install(R"(id="en_Foo" baseUrl="u" path="dir")", "en");
  EXPECT_EQ(UpdateHelpConfigInfo(sLocale), 0);
  EXPECT_EQ(sLocale, "en_Fo");
  EXPECT_EQ(UpdateHelpConfigInfo(sLocale), 6);
}

TEST_F(UpdateConfig, SeesAnEditedFileAtOnce) {
  Install(kGood);
  EXPECT_EQ(UpdateHelpConfigInfo("en_US"), 0);
  Install(R"(id="en_US_Foo" baseUrl="edited" path="dir")");
  EXPECT_EQ(UpdateHelpConfigInfo("en_US"), 0);
  EXPECT_EQ(sBaseUrl, "edited");
  EXPECT_EQ(sHelpPathCount, 0);
}

TEST_F(UpdateConfig, GivesAReadRowsForAHundredFoldersEachTime) {
  Install(kGood);
  sHelpPathCount = 0;
  EXPECT_EQ(UpdateHelpConfigInfo("en_US"), 0);
  EXPECT_EQ(sHelpPathCount, 1);
}

}  // namespace
}  // namespace velmohelp::testing
