// Real help in a real browser.
#include "tests/system/chromium.h"
#include "tests/system/routes.h"

namespace velmohelp::testing {
namespace {

namespace fs = std::filesystem;

/// The help set of the demonstration.
constexpr char kHelpSet[] = "/usr/share/libreoffice/help";
constexpr char kMap[] =
    "VX_HOME\ten-US/text/shared/05/new_help.html\n"
    ".uno_PrintPreview\ten-US/text/swriter/01/01120000.html#bm_id2822117\n";

class RealBrowser : public ::testing::Test {
 protected:
  RealBrowser() {
    InstallChromium(world_);
    NoViewer()(world_);
  }

  void SetUp() override {
    if (!IsChromiumInstalled()) GTEST_SKIP() << "there is no chromium here";
  }

  HelpWorld world_;
};

TEST_F(RealBrowser, ShowsADownloadedPageAtItsAnchor) {
  if (!fs::exists(kHelpSet)) GTEST_SKIP() << "there is no help set here";
  world_.Write("{downloaded}/helpmap.txt", kMap);
  for (const auto& entry : fs::directory_iterator(kHelpSet)) {
    const fs::path own = world_.Expanded("{downloaded}");
    fs::create_symlink(entry.path(), own / entry.path().filename());
  }
  ASSERT_TRUE(world_.Initialise());
  EXPECT_EQ(world_.Ask(Display(".uno:PrintPreview")), "0");
  AwaitPage(world_,
            world_.Expanded("{url:downloaded}/en-US/text/swriter/01/"
                            "01120000.html?nameAnchor=bm_id2822117"),
            "Print Preview");
}

std::string Page(const std::string& title) {
  return Response("200 OK", "Content-Type: text/html\r\n",
                  "<title>" + title + "</title>");
}

TEST_F(RealBrowser, ShowsAPageOfAServer) {
  Apply({Online(), Served("intro.html", Page("An introduction"))}, world_);
  ASSERT_TRUE(world_.Initialise());
  EXPECT_EQ(world_.Ask(Display("intro")), "0");
  AwaitPage(world_, world_.Expanded("{server}/{folder}/intro.html"),
            "An introduction");
}

TEST_F(RealBrowser, ShowsWhatAServerFound) {
  Apply({Online(), Served("search.html", Page("Before the search")),
         Served("search.html?q=a%20b%26c", Page("Found"))},
        world_);
  ASSERT_TRUE(world_.Initialise());
  EXPECT_EQ(world_.Ask(Search("a b&c")), "0");
  AwaitPage(world_,
            world_.Expanded("{server}/{folder}/search.html"
                            "?q=a%20b%26c"),
            "Found");
}

}  // namespace
}  // namespace velmohelp::testing
