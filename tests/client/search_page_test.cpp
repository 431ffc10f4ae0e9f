// Which of the content folders' search pages is found.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <velmohelp/resolve.h>

#include "platform/locations.h"
#include "tests/support/exported_world.h"
#include "tests/support/sentence.h"

namespace velmohelp {
namespace {

using ::testing::ElementsAre;
using testing::ExportedWorld;

struct Row {
  const char* sentence;
  /// Things that exist, and texts that can be fetched.
  std::vector<std::string> pages;
  bool online;
  /// "" where nothing is found.
  std::string page;
};

const std::string kInstalled = std::string(kInstalledHelpDir) + "/";
constexpr char kDownloaded[] = "/downloaded/";

/// Three rows in use, of which two take part, and one beyond them.
class SearchPageRows : public ::testing::Test {
 protected:
  SearchPageRows() {
    world_.machine().SetPreferencesFolder("/downloaded");
    world_.state().downloaded_content = "/";
    world_.state().base_url = "http://x";
    SetRow(0, "one", "YES");
    SetRow(1, "low", "yes");
    SetRow(2, "two", "YES");
    SetRow(3, "past", "YES");
    world_.state().help_path_count = 3;
  }

  void SetRow(int row, const char* folder, const char* flag) {
    world_.state().help_paths[row][0] = folder;
    world_.state().help_paths[row][1] = flag;
  }

  ExportedWorld world_;
};

class SearchPage : public SearchPageRows,
                   public ::testing::WithParamInterface<Row> {};

TEST_P(SearchPage, IsFound) {
  for (const std::string& page : GetParam().pages) {
    world_.machine().AddFile(page);
    world_.machine().AddText(page);
  }
  world_.state().is_online = GetParam().online;
  std::string page = "stale";
  EXPECT_EQ(GetSearchPage(page, "", nullptr), !GetParam().page.empty());
  EXPECT_EQ(page, GetParam().page);
}

INSTANTIATE_TEST_SUITE_P(
    Offline, SearchPage,
    ::testing::Values(
        Row{"downloaded before installed",
            {kInstalled + "one/search.html",
             std::string(kDownloaded) + "one/search.html"},
            false,
            std::string(kDownloaded) + "one/search.html"},
        Row{"a later row downloaded before an earlier row installed",
            {kInstalled + "one/search.html",
             std::string(kDownloaded) + "two/search.html"},
            false,
            std::string(kDownloaded) + "two/search.html"},
        Row{"the earlier row within a location",
            {kInstalled + "one/search.html", kInstalled + "two/search.html"},
            false,
            kInstalled + "one/search.html"},
        Row{"not in a row whose flag is in lower case",
            {kInstalled + "low/search.html"},
            false,
            ""},
        Row{"not beyond the count",
            {kInstalled + "past/search.html"},
            false,
            ""},
        Row{"not on the server", {"http://xone/search.html"}, false, ""}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Online, SearchPage,
    ::testing::Values(
        Row{"directly after the base URL",
            {"http://xone/search.html"},
            true,
            "http://xone/search.html"},
        Row{"the first that can be fetched",
            {"http://xtwo/search.html"},
            true,
            "http://xtwo/search.html"},
        Row{"not in a row whose flag is in lower case",
            {"http://xlow/search.html"},
            true,
            ""},
        Row{"not beyond the count", {"http://xpast/search.html"}, true, ""},
        Row{"not on this machine", {kInstalled + "one/search.html"}, true, ""}),
    testing::SentenceOf());

TEST_F(SearchPageRows, IsFetchedOnceForEachRowThatTakesPart) {
  world_.state().is_online = true;
  std::string page;
  GetSearchPage(page, "", nullptr);
  EXPECT_THAT(world_.Questions(),
              ElementsAre("FetchText http://xone/search.html",
                          "FetchText http://xtwo/search.html"));
}

TEST_F(SearchPageRows, IsNeverFoundInTheCallersTable) {
  std::string paths[1][2] = {{"mine", "YES"}};
  world_.machine().AddFile(kInstalled + "mine/search.html");
  std::string page;
  EXPECT_FALSE(GetSearchPage(page, "", paths));
}

TEST_F(SearchPageRows, IsNotFoundInNoRows) {
  world_.state().help_path_count = 0;
  std::string page = "stale";
  EXPECT_FALSE(GetSearchPage(page, "", nullptr));
  EXPECT_EQ(page, "");
}

}  // namespace
}  // namespace velmohelp
