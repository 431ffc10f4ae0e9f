#include "exports/state.h"

#include <gtest/gtest.h>

namespace velmohelp {
namespace {

TEST(StateAtLoad, IsNotInitialised) { EXPECT_EQ(sInitStatus, 1); }

TEST(StateAtLoad, HasAHundredEmptyContentFolders) {
  EXPECT_EQ(sHelpPathCount, 100);
  for (const auto& row : sHelpPaths) {
    EXPECT_EQ(row[0], "");
    EXPECT_EQ(row[1], "");
  }
}

TEST(StateAtLoad, NamesTheDefaultViewer) {
  EXPECT_EQ(sDefaultAppID, "klh");
  EXPECT_EQ(sDefaultPublisherID, "9C3A51F07B26D48E15A0C7F3B9D2E6418A75C0D2.1");
}

TEST(StateAtLoad, HasEveryOtherStringEmpty) {
  for (const std::string* text :
       {&sAppID, &sPublisherID, &kKLHPreferenceFile, &kDownloadedOfflineContent,
        &kDownloadedHelpcfg, &sProductID, &sLocale, &sConfigID, &sBaseUrl,
        &sHelpAppPath}) {
    EXPECT_EQ(*text, "");
  }
  EXPECT_TRUE(sHelpMap.empty());
}

TEST(StateAtLoad, HasFlagsAndChoiceUnset) {
  EXPECT_FALSE(sAppIDIsNull);
  EXPECT_FALSE(sIsOnline);
  EXPECT_FALSE(sQueryIsRaw);
  EXPECT_EQ(sViewerChoice, 0U);
}

TEST(StateAtLoad, HasTheTextsOfPreferenceValues) {
  EXPECT_STREQ(kTrue, "TRUE");
  EXPECT_STREQ(kFalse, "FALSE");
}

}  // namespace
}  // namespace velmohelp
