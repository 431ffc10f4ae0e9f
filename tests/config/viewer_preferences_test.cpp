#include <gtest/gtest.h>
#include <velmohelp/config.h>
#include <velmohelp/state.h>

#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"

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
  const TemporaryDirectory folder;
  const std::string path = folder.Write("klh-pref.xml", GetParam().text);
  EXPECT_EQ(GetKLHFilePreferenceForHelpApp(path), GetParam().viewer);
  EXPECT_EQ(GetPreferenceSettingsForNetwork(path), GetParam().network);
}

constexpr Row kRefusals[] = {
    {.sentence = "TRUE refuses",
     .text = R"(<p accessibleMode="TRUE" localHelp="TRUE"/>)",
     .viewer = 2,
     .network = false},
    {.sentence = "true in lower case refuses",
     .text = R"(accessibleMode="true" localHelp="true")",
     .viewer = 2,
     .network = false},
    {.sentence = "True in mixed case refuses",
     .text = R"(accessibleMode="True" localHelp="tRuE")",
     .viewer = 2,
     .network = false},
    {.sentence = "accessible mode says nothing about the network",
     .text = R"(accessibleMode="TRUE")",
     .viewer = 2,
     .network = true},
    {.sentence = "local help says nothing about the viewer",
     .text = R"(localHelp="TRUE")",
     .viewer = 1,
     .network = false},
    {.sentence = "the first occurrence decides",
     .text = R"(accessibleMode="true" accessibleMode="false" localHelp="true")",
     .viewer = 2,
     .network = false},
};

constexpr Row kConsents[] = {
    {.sentence = "FALSE consents",
     .text = R"(accessibleMode="FALSE" localHelp="FALSE")",
     .viewer = 1,
     .network = true},
    {.sentence = "any other text consents",
     .text = R"(accessibleMode="yes" localHelp="yes")",
     .viewer = 1,
     .network = true},
    {.sentence = "spaces around the text consent",
     .text = R"(accessibleMode=" TRUE" localHelp="TRUE ")",
     .viewer = 1,
     .network = true},
    {.sentence = "an empty text consents",
     .text = R"(accessibleMode="" localHelp="")",
     .viewer = 1,
     .network = true},
    {.sentence = "missing keys consent",
     .text = R"(<preferences/>)",
     .viewer = 1,
     .network = true},
    {.sentence = "an empty file consents",
     .text = "",
     .viewer = 1,
     .network = true},
    {.sentence = "the letter case of a key counts",
     .text = R"(accessiblemode="TRUE" LocalHelp="TRUE")",
     .viewer = 1,
     .network = true},
    {.sentence = "a value without its closing quote consents",
     .text = "accessibleMode=\"TRUE",
     .viewer = 1,
     .network = true},
};

INSTANTIATE_TEST_SUITE_P(Refusing, Preferences, ::testing::ValuesIn(kRefusals),
                         SentenceOf());
INSTANTIATE_TEST_SUITE_P(Consenting, Preferences,
                         ::testing::ValuesIn(kConsents), SentenceOf());

TEST(PreferencesThatCannotBeRead, Consent) {
  const TemporaryDirectory folder;
  for (const std::string& path :
       {std::string(), folder / "missing", folder.path()}) {
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
