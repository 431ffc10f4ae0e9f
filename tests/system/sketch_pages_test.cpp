// The pages of examples/sketch in a real browser: what their scripts do.
#include <cstdlib>

#include "tests/system/chromium.h"
#include "tests/system/routes.h"

namespace velmohelp::testing {
namespace {

namespace fs = std::filesystem;

constexpr char kPages[] = VELMO_TEST_SKETCH "/content/Sketch/en_US";
constexpr char kIndexPages[] = VELMO_TEST_SKETCH "/index-pages";

class SketchPages : public ::testing::Test {
 protected:
  SketchPages() {
    InstallChromium(world_);
    NoViewer()(world_);
    // Entries that the example's own map has no need of.
    world_.Write("{downloaded}/helpmap.txt",
                 "VX_HOME\tindex.html\n"
                 "curves\tlines.html#curves\n"
                 "odd-curves\tlines.html?a=b#curves\n"
                 "odd\todd.html#a b+c&d=%C3%BC\n");
  }

  void SetUp() override {
    if (!IsChromiumInstalled()) GTEST_SKIP() << "there is no chromium here";
    const fs::path folder = world_.Expanded("{downloaded}");
    for (const auto& entry : fs::directory_iterator(kPages)) {
      if (entry.path().filename() == "helpmap.txt") continue;
      fs::copy(entry.path(), folder);
    }
    world_.Write("{downloaded}/odd.html",
                 "<meta charset=utf-8><title>At its top</title>"
                 "<script src=anchor.js defer></script>"
                 "<script>onload = () => { document.title = "
                 "document.querySelector(':target').title; }</script>"
                 "<p id=\"a b+c&amp;d=ü\" title=\"At its anchor\">");
    const std::string index =
        std::string("'") + kIndexPages + "' '" + folder.string() + "'";
    ASSERT_EQ(std::system(index.c_str()), 0);
    ASSERT_TRUE(world_.Initialise());
  }

  void ExpectPage(const Words& request, const std::string& address,
                  const std::string& title) {
    EXPECT_EQ(world_.Ask(request), "0");
    AwaitPage(world_, world_.Expanded("{url:downloaded}/" + address), title);
  }

 private:
  HelpWorld world_;
};

TEST_F(SketchPages, GoToTheirAnchor) {
  ExpectPage(Display("curves"), "lines.html?nameAnchor=curves#curves",
             "Drawing lines");
}

TEST_F(SketchPages, GoToAnAnchorAfterAQuery) {
  ExpectPage(Display("odd-curves"), "lines.html?a=b?nameAnchor=curves#curves",
             "Drawing lines");
}

TEST_F(SketchPages, KeepWhatAnAnchorMayHave) {
  ExpectPage(Display("odd"),
             "odd.html?nameAnchor=a%20b+c&d=%C3%BC#a%20b+c&d=%C3%BC",
             "At its anchor");
}

TEST_F(SketchPages, FindThePagesThatHaveAllWords) {
  ExpectPage(Search("curves draw"), "search.html?q=curves%20draw",
             "Pages found: 2");
}

TEST_F(SketchPages, FindNothingForAWordThatNoPageHas) {
  ExpectPage(Search("circle"), "search.html?q=circle", "Pages found: 0");
}

}  // namespace
}  // namespace velmohelp::testing
