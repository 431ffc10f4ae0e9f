#include <gtest/gtest.h>
#include <velmohelp/config.h>
#include <velmohelp/state.h>

#include "tests/support/sentence.h"
#include "tests/support/temp_folder.h"

namespace velmohelp::testing {
namespace {

struct Row {
  const char* sentence;
  const char* text;
  int viewer;
  bool network;
};

class Preferences : public ::testing::TestWithParam<Row> {};

TEST_P(Preferences, Decide) {
  const TempFolder folder;
  const std::string path = folder.Write("klh-pref.xml", GetParam().text);
  EXPECT_EQ(GetKLHFilePreferenceForHelpApp(path), GetParam().viewer);
  EXPECT_EQ(GetPreferenceSettingsForNetwork(path), GetParam().network);
}

constexpr Row kRefusals[] = {
    {"TRUE refuses", R"(<p accessibleMode="TRUE" localHelp="TRUE"/>)", 2,
     false},
    {"true in lower case refuses", R"(accessibleMode="true" localHelp="true")",
     2, false},
    {"True in mixed case refuses", R"(accessibleMode="True" localHelp="tRuE")",
     2, false},
    {"accessible mode says nothing about the network",
     R"(accessibleMode="TRUE")", 2, true},
    {"local help says nothing about the viewer", R"(localHelp="TRUE")", 1,
     false},
    {"the first occurrence decides",
     R"(accessibleMode="true" accessibleMode="false" localHelp="true")", 2,
     false},
};

constexpr Row kConsents[] = {
    {"FALSE consents", R"(accessibleMode="FALSE" localHelp="FALSE")", 1, true},
    {"any other text consents", R"(accessibleMode="yes" localHelp="yes")", 1,
     true},
    {"blanks around the text consent",
     R"(accessibleMode=" TRUE" localHelp="TRUE ")", 1, true},
    {"an empty text consents", R"(accessibleMode="" localHelp="")", 1, true},
    {"missing keys consent", R"(<preferences/>)", 1, true},
    {"an empty file consents", "", 1, true},
    {"the letter case of a key counts",
     R"(accessiblemode="TRUE" LocalHelp="TRUE")", 1, true},
    {"a value without its closing quote consents", "accessibleMode=\"TRUE", 1,
     true},
};

INSTANTIATE_TEST_SUITE_P(Refusing, Preferences, ::testing::ValuesIn(kRefusals),
                         SentenceOf());
INSTANTIATE_TEST_SUITE_P(Consenting, Preferences,
                         ::testing::ValuesIn(kConsents), SentenceOf());

TEST(PreferencesThatCannotBeRead, Consent) {
  const TempFolder folder;
  for (const std::string& path :
       {std::string(), folder.Path("missing"), folder.Path()}) {
    EXPECT_EQ(GetKLHFilePreferenceForHelpApp(path), 1) << path;
    EXPECT_TRUE(GetPreferenceSettingsForNetwork(path)) << path;
  }
}

TEST(PreferenceTexts, AreTheExportedOnes) {
  EXPECT_STREQ(kTrue, "TRUE");
  EXPECT_STREQ(kFalse, "FALSE");
}

}  // namespace
}  // namespace velmohelp::testing
