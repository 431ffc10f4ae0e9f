#include <velmohelp/config.h>

#include "tests/support/on_scripted_machine.h"
#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp::testing {
namespace {

using ::testing::IsEmpty;

struct Row {
  const char* sentence;
  const char* text;
  const char* locale;
  const char* product;
  std::uint32_t result;
  const char* locale_after;
  const char* config_id;
  const char* base_url;
};

/// Reads one file over the state of an earlier read.
class ReadConfig : public OnScriptedMachine,
                   public ::testing::WithParamInterface<Row> {
 protected:
  ReadConfig() {
    sConfigID = "old id";
    sBaseUrl = "old url";
    sHelpPaths[0][0] = "old folder";
    sHelpPaths[0][1] = "OLD";
    sAppID = "old app";
    sPublisherID = "old publisher";
    sAppIDIsNull = true;
  }
  const TemporaryDirectory folder;
};

TEST_P(ReadConfig, ReturnsAResultAndAssigns) {
  const Row& row = GetParam();
  sLocale = row.locale;
  sProductID = row.product;
  EXPECT_EQ(ReadHelpcfg(folder.Write("x.helpcfg", row.text)), row.result);
  EXPECT_EQ(sLocale, row.locale_after);
  EXPECT_EQ(sConfigID, row.config_id);
  EXPECT_EQ(sBaseUrl, row.base_url);
}

constexpr Row kAccepted[] = {
    {.sentence = "locale and product make the id",
     .text = R"(id="en_US_Foo" baseUrl="u")",
     .locale = "en_US",
     .product = "Foo",
     .result = 0,
     .locale_after = "en_US",
     .config_id = "en_US_Foo",
     .base_url = "u"},
    {.sentence = "a short locale is accepted and then cut wrongly",
     .text = R"(id="en_Foo" baseUrl="u")",
     .locale = "en",
     .product = "Foo",
     .result = 0,
     .locale_after = "en_Fo",
     .config_id = "en_Foo",
     .base_url = "u"},
    {.sentence = "a long locale is cut to five bytes",
     .text = R"(id="zh_Hans_Foo" baseUrl="u")",
     .locale = "zh_Hans",
     .product = "Foo",
     .result = 0,
     .locale_after = "zh_Ha",
     .config_id = "zh_Hans_Foo",
     .base_url = "u"},
    {.sentence = "an id of five bytes is enough",
     .text = R"(id="en_Fo" baseUrl="u")",
     .locale = "en",
     .product = "Fo",
     .result = 0,
     .locale_after = "en_Fo",
     .config_id = "en_Fo",
     .base_url = "u"},
    {.sentence = "an empty product is a product",
     .text = R"(id="en_US_" baseUrl="u")",
     .locale = "en_US",
     .product = "",
     .result = 0,
     .locale_after = "en_US",
     .config_id = "en_US_",
     .base_url = "u"},
    {.sentence = "the order of keys does not matter",
     .text = R"(baseUrl="u" id="en_US_Foo")",
     .locale = "en_US",
     .product = "Foo",
     .result = 0,
     .locale_after = "en_US",
     .config_id = "en_US_Foo",
     .base_url = "u"},
    {.sentence = "an id inside an earlier word counts",
     .text = R"(width="en_US_Foo" id="x" baseUrl="u")",
     .locale = "en_US",
     .product = "Foo",
     .result = 0,
     .locale_after = "en_US",
     .config_id = "en_US_Foo",
     .base_url = "u"},
    {.sentence = "five bytes are cut through a character",
     .text = "id=\"\xC3\xA4\xC3\xA4\xC3\xA4_F\" baseUrl=\"u\"",
     .locale = "\xC3\xA4\xC3\xA4\xC3\xA4",
     .product = "F",
     .result = 0,
     .locale_after = "\xC3\xA4\xC3\xA4\xC3",
     .config_id = "\xC3\xA4\xC3\xA4\xC3\xA4_F",
     .base_url = "u"},
    {.sentence = "a base URL is any text",
     .text = R"(id="en_US_Foo" baseUrl=" ")",
     .locale = "en_US",
     .product = "Foo",
     .result = 0,
     .locale_after = "en_US",
     .config_id = "en_US_Foo",
     .base_url = " "},
};

constexpr Row kRejected[] = {
    {.sentence = "a file without an id",
     .text = R"(baseUrl="u")",
     .locale = "en_US",
     .product = "Foo",
     .result = 7,
     .locale_after = "en_US",
     .config_id = "",
     .base_url = "old url"},
    {.sentence = "an empty file",
     .text = "",
     .locale = "en_US",
     .product = "Foo",
     .result = 7,
     .locale_after = "en_US",
     .config_id = "",
     .base_url = "old url"},
    {.sentence = "an empty id",
     .text = R"(id="" baseUrl="u")",
     .locale = "en_US",
     .product = "Foo",
     .result = 7,
     .locale_after = "en_US",
     .config_id = "",
     .base_url = "old url"},
    {.sentence = "an id of four bytes though it matches",
     .text = R"(id="en_F" baseUrl="u")",
     .locale = "en",
     .product = "F",
     .result = 7,
     .locale_after = "en",
     .config_id = "en_F",
     .base_url = "old url"},
    {.sentence = "an id in another letter case",
     .text = R"(id="en_US_foo" baseUrl="u")",
     .locale = "en_US",
     .product = "Foo",
     .result = 7,
     .locale_after = "en_US",
     .config_id = "en_US_foo",
     .base_url = "old url"},
    {.sentence = "an id with a space before it",
     .text = R"(id=" en_US_Foo" baseUrl="u")",
     .locale = "en_US",
     .product = "Foo",
     .result = 7,
     .locale_after = "en_US",
     .config_id = " en_US_Foo",
     .base_url = "old url"},
    {.sentence = "an id of another locale",
     .text = R"(id="de_DE_Foo" baseUrl="u")",
     .locale = "en_US",
     .product = "Foo",
     .result = 7,
     .locale_after = "en_US",
     .config_id = "de_DE_Foo",
     .base_url = "old url"},
    {.sentence = "an id that goes on",
     .text = R"(id="en_US_Foo2" baseUrl="u")",
     .locale = "en_US",
     .product = "Foo",
     .result = 7,
     .locale_after = "en_US",
     .config_id = "en_US_Foo2",
     .base_url = "old url"},
    {.sentence = "a missing base URL after the locale was cut",
     .text = R"(id="en_Foo")",
     .locale = "en",
     .product = "Foo",
     .result = 7,
     .locale_after = "en_Fo",
     .config_id = "en_Foo",
     .base_url = ""},
    {.sentence = "an empty base URL",
     .text = R"(id="en_US_Foo" baseUrl="")",
     .locale = "en_US",
     .product = "Foo",
     .result = 7,
     .locale_after = "en_US",
     .config_id = "en_US_Foo",
     .base_url = ""},
    {.sentence = "a base URL in another letter case",
     .text = R"(id="en_US_Foo" baseURL="u")",
     .locale = "en_US",
     .product = "Foo",
     .result = 7,
     .locale_after = "en_US",
     .config_id = "en_US_Foo",
     .base_url = ""},
};

INSTANTIATE_TEST_SUITE_P(Accepted, ReadConfig, ::testing::ValuesIn(kAccepted),
                         SentenceOf());
INSTANTIATE_TEST_SUITE_P(Rejected, ReadConfig, ::testing::ValuesIn(kRejected),
                         SentenceOf());

class ReadConfigFile : public ReadConfig {};

TEST_F(ReadConfigFile, ThatCannotBeReadChangesNothing) {
  sLocale = "en_US";
  EXPECT_EQ(ReadHelpcfg(folder / "missing"), 6);
  EXPECT_EQ(ReadHelpcfg(folder.path()), 6);
  EXPECT_EQ(ReadHelpcfg(""), 6);
  EXPECT_EQ(sConfigID, "old id");
  EXPECT_EQ(sBaseUrl, "old url");
  EXPECT_EQ(sLocale, "en_US");
  EXPECT_EQ(sHelpPathCount, 100);
}

TEST_F(ReadConfigFile, FillsTheFoldersOnlyWhenItIsAccepted) {
  sLocale = "en_US";
  sProductID = "Foo";
  const std::string folders = R"( path="p" path="a" contextSensitivity="yes")";
  EXPECT_EQ(ReadHelpcfg(folder.Write("x", R"(id="en_US_Foo")" + folders)), 7);
  EXPECT_EQ(sHelpPathCount, 100);
  EXPECT_EQ(sHelpPaths[0][0], "old folder");
  const std::string good = R"(id="en_US_Foo" baseUrl="u")" + folders;
  EXPECT_EQ(ReadHelpcfg(folder.Write("x", good)), 0);
  EXPECT_EQ(sHelpPathCount, 1);
  EXPECT_EQ(sHelpPaths[0][0], "a");
  EXPECT_EQ(sHelpPaths[0][1], "YES");
}

TEST_F(ReadConfigFile, IsAcceptedWithoutFolders) {
  sLocale = "en_US";
  sProductID = "Foo";
  const std::string text = R"(id="en_US_Foo" baseUrl="u")";
  EXPECT_EQ(ReadHelpcfg(folder.Write("x", text)), 0);
  EXPECT_EQ(sHelpPathCount, 100);
  EXPECT_EQ(ReadHelpcfg(folder.Write("x", text + R"( path="p")")), 0);
  EXPECT_EQ(sHelpPathCount, 0);
}

TEST_F(ReadConfigFile, LeavesTheViewersIdsAlone) {
  sLocale = "en_US";
  sProductID = "Foo";
  ReadHelpcfg(folder.Write(
      "x", R"(id="en_US_Foo" baseUrl="u" appId="a" pubId="b" path="p")"));
  EXPECT_EQ(sAppID, "old app");
  EXPECT_EQ(sPublisherID, "old publisher");
  EXPECT_TRUE(sAppIDIsNull);
  EXPECT_THAT(machine.Questions(), IsEmpty());
}

}  // namespace
}  // namespace velmohelp::testing
