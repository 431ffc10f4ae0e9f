#include "viewer/content/preferences.h"

#include <velmohelp/config.h>
#include <velmohelp/state.h>

#include "tests/support/sentence.h"
#include "tests/viewer/folder.h"
#include "viewer/identity.h"

namespace viewer {
namespace {

using velmohelp::testing::SentenceOf;

struct Row {
  const char* sentence;
  const char* before;
  const char* after;
};

class ViewerPreference : public ::testing::TestWithParam<Row> {};

TEST_P(ViewerPreference, IsWritten) {
  EXPECT_EQ(WithValue(GetParam().before, "accessibleMode", "TRUE"),
            GetParam().after);
}

constexpr Row kFiles[] = {
    {"an empty file gets an element", "",
     "<preferences accessibleMode=\"TRUE\"/>\n"},
    {"a value is replaced in its place",
     "<a localHelp=\"x\" accessibleMode = \"false\"/><!-- b -->",
     "<a localHelp=\"x\" accessibleMode = \"TRUE\"/><!-- b -->"},
    {"the first occurrence counts as it does for the client",
     "accessibleMode=\"a\" accessibleMode=\"b\"",
     "accessibleMode=\"TRUE\" accessibleMode=\"b\""},
    {"a missing value goes into the first element",
     "<?xml version=\"1.0\"?>\n<!-- c -->\n<prefs localHelp=\"x\"/>",
     "<?xml version=\"1.0\"?>\n<!-- c -->\n<prefs accessibleMode=\"TRUE\" "
     "localHelp=\"x\"/>"},
};

INSTANTIATE_TEST_SUITE_P(, ViewerPreference, ::testing::ValuesIn(kFiles),
                         SentenceOf());

class UserPreference : public ::testing::TestWithParam<Row> {};

TEST_P(UserPreference, IsWritten) {
  EXPECT_EQ(WithPreference(GetParam().before, "Key", "0"), GetParam().after);
}

constexpr Row kStores[] = {
    {"an empty file gets a group", "", "[Preferences]\nKey=0\n"},
    {"everything else stays",
     "# c\n[Preferences]\nOther=1\nKey=1\n[More]\na=b\n",
     "# c\n\n[Preferences]\nOther=1\nKey=0\n\n[More]\na=b\n"},
};

INSTANTIATE_TEST_SUITE_P(, UserPreference, ::testing::ValuesIn(kStores),
                         SentenceOf());

class Preferences : public ::testing::Test {
 protected:
  Preferences() { setenv("XDG_CONFIG_HOME", folder_.path().c_str(), 1); }
  Folder folder_;
};

TEST_F(Preferences, ChangeWhatTheClientReads) {
  EXPECT_FALSE(UsesBrowser());
  EXPECT_TRUE(SetUsesBrowser(true));
  EXPECT_TRUE(UsesBrowser());
  EXPECT_TRUE(SetUsesBrowser(false));
  EXPECT_FALSE(UsesBrowser());
  EXPECT_TRUE(UsesOnlineHelp());
  EXPECT_TRUE(SetUsesOnlineHelp(false));
  EXPECT_FALSE(UsesOnlineHelp());
  EXPECT_TRUE(SetUsesOnlineHelp(true));
  EXPECT_TRUE(UsesOnlineHelp());
}

TEST(Identity, IsTheClientsDefault) {
  EXPECT_EQ(sDefaultAppID, VIEWER_APP_ID);
  EXPECT_EQ(sDefaultPublisherID, VIEWER_PUBLISHER_ID);
}

}  // namespace
}  // namespace viewer
