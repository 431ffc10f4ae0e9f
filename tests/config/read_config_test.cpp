#include <velmohelp/config.h>

#include "tests/support/on_scripted_machine.h"
#include "tests/support/sentence.h"
#include "tests/support/temp_folder.h"

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
  const TempFolder folder;
};

TEST_P(ReadConfig, AnswersAndAssigns) {
  const Row& row = GetParam();
  sLocale = row.locale;
  sProductID = row.product;
  EXPECT_EQ(ReadHelpcfg(folder.Write("x.helpcfg", row.text)), row.result);
  EXPECT_EQ(sLocale, row.locale_after);
  EXPECT_EQ(sConfigID, row.config_id);
  EXPECT_EQ(sBaseUrl, row.base_url);
}

constexpr Row kAccepted[] = {
    {"locale and product make the id", R"(id="en_US_Foo" baseUrl="u")", "en_US",
     "Foo", 0, "en_US", "en_US_Foo", "u"},
    {"a short locale is accepted and then cut wrongly",
     R"(id="en_Foo" baseUrl="u")", "en", "Foo", 0, "en_Fo", "en_Foo", "u"},
    {"a long locale is cut to five bytes", R"(id="zh_Hans_Foo" baseUrl="u")",
     "zh_Hans", "Foo", 0, "zh_Ha", "zh_Hans_Foo", "u"},
    {"an id of five bytes is enough", R"(id="en_Fo" baseUrl="u")", "en", "Fo",
     0, "en_Fo", "en_Fo", "u"},
    {"an empty product is a product", R"(id="en_US_" baseUrl="u")", "en_US", "",
     0, "en_US", "en_US_", "u"},
    {"the order of keys does not matter", R"(baseUrl="u" id="en_US_Foo")",
     "en_US", "Foo", 0, "en_US", "en_US_Foo", "u"},
    {"an id inside an earlier word is taken",
     R"(width="en_US_Foo" id="x" baseUrl="u")", "en_US", "Foo", 0, "en_US",
     "en_US_Foo", "u"},
    {"five bytes are cut through a character",
     "id=\"\xC3\xA4\xC3\xA4\xC3\xA4_F\" baseUrl=\"u\"",
     "\xC3\xA4\xC3\xA4\xC3\xA4", "F", 0, "\xC3\xA4\xC3\xA4\xC3",
     "\xC3\xA4\xC3\xA4\xC3\xA4_F", "u"},
    {"a base URL is any text", R"(id="en_US_Foo" baseUrl=" ")", "en_US", "Foo",
     0, "en_US", "en_US_Foo", " "},
};

constexpr Row kRejected[] = {
    {"a file without an id", R"(baseUrl="u")", "en_US", "Foo", 7, "en_US", "",
     "old url"},
    {"an empty file", "", "en_US", "Foo", 7, "en_US", "", "old url"},
    {"an empty id", R"(id="" baseUrl="u")", "en_US", "Foo", 7, "en_US", "",
     "old url"},
    {"an id of four bytes though it matches", R"(id="en_F" baseUrl="u")", "en",
     "F", 7, "en", "en_F", "old url"},
    {"an id in another letter case", R"(id="en_US_foo" baseUrl="u")", "en_US",
     "Foo", 7, "en_US", "en_US_foo", "old url"},
    {"an id with a blank before it", R"(id=" en_US_Foo" baseUrl="u")", "en_US",
     "Foo", 7, "en_US", " en_US_Foo", "old url"},
    {"an id of another locale", R"(id="de_DE_Foo" baseUrl="u")", "en_US", "Foo",
     7, "en_US", "de_DE_Foo", "old url"},
    {"an id that goes on", R"(id="en_US_Foo2" baseUrl="u")", "en_US", "Foo", 7,
     "en_US", "en_US_Foo2", "old url"},
    {"a missing base URL after the locale was cut", R"(id="en_Foo")", "en",
     "Foo", 7, "en_Fo", "en_Foo", ""},
    {"an empty base URL", R"(id="en_US_Foo" baseUrl="")", "en_US", "Foo", 7,
     "en_US", "en_US_Foo", ""},
    {"a base URL in another letter case", R"(id="en_US_Foo" baseURL="u")",
     "en_US", "Foo", 7, "en_US", "en_US_Foo", ""},
};

INSTANTIATE_TEST_SUITE_P(Accepted, ReadConfig, ::testing::ValuesIn(kAccepted),
                         SentenceOf());
INSTANTIATE_TEST_SUITE_P(Rejected, ReadConfig, ::testing::ValuesIn(kRejected),
                         SentenceOf());

class ReadConfigFile : public ReadConfig {};

TEST_F(ReadConfigFile, ThatCannotBeReadChangesNothing) {
  sLocale = "en_US";
  EXPECT_EQ(ReadHelpcfg(folder.Path("missing")), 6);
  EXPECT_EQ(ReadHelpcfg(folder.Path()), 6);
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
