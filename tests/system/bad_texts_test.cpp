// Texts from a hostile script or a broken one, in every place that takes a
// text. A shell would make a file of some of them.
#include "tests/system/routes.h"

namespace velmohelp::testing {
namespace {

struct Text {
  const char* sentence;
  std::string text;
  /// As a search term and as the end of a URL: percent-encoded.
  std::string term;
  std::string escaped;
};

void PrintTo(const Text& row, std::ostream* out) { *out << row.sentence; }

class ABadText : public ::testing::TestWithParam<Text> {
 protected:
  ~ABadText() override {
    EXPECT_FALSE(std::filesystem::exists(world_.Expanded("{bin}/made")));
  }

  std::string Text() const { return world_.Expanded(GetParam().text); }
  void ExpectStarted(const Words& words) {
    EXPECT_EQ(world_.Started(), world_.Expanded(words));
  }

  HelpWorld world_;
};

TEST_P(ABadText, IsNoProductAndNoLocale) {
  EXPECT_EQ(world_.Ask({"initialise", Text(), "en_US"}), "6");
  EXPECT_EQ(world_.Ask({"initialise", "Foo", Text()}), "6");
  EXPECT_EQ(world_.Ask({"search", Text(), "en_US", "x"}), "4");
  EXPECT_EQ(world_.Ask({"search", "Foo", Text(), "x"}), "4");
  EXPECT_TRUE(world_.Initialise());
}

TEST_P(ABadText, IsNoNameInThePreferenceStore) {
  EXPECT_EQ(world_.Ask({"search by name", Text(), "x", "en_US", "x"}), "8");
  EXPECT_EQ(world_.Ask({"search by name", "x", Text(), "en_US", "x"}), "8");
  EXPECT_TRUE(world_.Initialise());
}

TEST_P(ABadText, ReachesTheViewerAsAPageId) {
  ASSERT_TRUE(world_.Initialise());
  EXPECT_EQ(world_.Ask(Display(Text())), "0");
  ExpectStarted(Viewer("HELP", Text()));
}

TEST_P(ABadText, ReachesTheViewerAsASearchTerm) {
  ASSERT_TRUE(world_.Initialise());
  EXPECT_EQ(world_.Ask(Search(GetParam().text)), "0");
  ExpectStarted(Viewer("SEARCH", GetParam().term));
}

TEST_P(ABadText, ReachesTheViewerInAUrl) {
  ASSERT_TRUE(world_.Initialise());
  EXPECT_EQ(world_.Ask(Open("http://localhost/" + Text())), "0");
  ExpectStarted(Viewer("URL", "\"http://localhost/" + Text() + "\""));
}

TEST_P(ABadText, ReachesTheBrowserInAUrlThatIsText) {
  world_.Remove("{viewer}");
  ASSERT_TRUE(world_.Initialise());
  const std::string& escaped = GetParam().escaped;
  EXPECT_EQ(world_.Ask(Open("http://localhost/" + GetParam().text)),
            escaped.empty() ? "1" : "0");
  ExpectStarted(escaped.empty() ? Nothing()
                                : Browser("http://localhost/" + escaped));
}

TEST_P(ABadText, MayNameAViewer) {
  world_.config().app_id = GetParam().text;
  world_.Configure();
  ASSERT_TRUE(world_.Initialise());
  EXPECT_EQ(world_.Ask(Display("intro")), "0");
  ExpectStarted(Viewer("HELP", "intro"));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ABadText,
    ::testing::Values(
        Text{"the way up", "../../../../../../etc/passwd",
             "%2e%2e%2f%2e%2e%2f%2e%2e%2f%2e%2e%2f%2e%2e%2f%2e%2e%2fetc%"
             "2fpasswd",
             "../../../../../../etc/passwd"},
        Text{"a quote", "a\"b'c", "a%22b'c", "a%22b'c"},
        Text{"a command after quotes", "\"; : > made; '; : > made",
             "%22%3b%20%3a%20%3e%20made%3b%20'%3b%20%3a%20%3e%20made",
             "%22;%20:%20%3E%20made;%20';%20:%20%3E%20made"},
        Text{"a command to substitute", "$(:>made)`:>made`",
             "%24(%3a%3emade)%60%3a%3emade%60", "$(:%3Emade)%60:%3Emade%60"},
        Text{"a pipe and a background job", "|:&", "%7c%3a%26", "%7C:&"},
        Text{"line feeds", "a\nb\r\n", "a%0ab%0d%0a", "a%0Ab%0D%0A"},
        Text{"a format", "%s%n", "%25s%25n", "%25s%25n"},
        Text{"an option", "-h", "%2dh", "-h"},
        Text{"bytes that are not UTF 8", "\xC3\x28\xFF", "%c3(%ff", ""}),
    SentenceOf());

/// Longer than an argument of a program may be.
class ATextOfAMegabyte : public ::testing::Test {
 protected:
  const std::string text_ = std::string(1U << 20U, 'x');
  HelpWorld world_;
};

TEST_F(ATextOfAMegabyte, NamesNothing) {
  EXPECT_EQ(world_.Ask({"initialise", text_, "en_US"}), "6");
  EXPECT_EQ(world_.Ask({"initialise", "Foo", text_}), "6");
  EXPECT_EQ(world_.Ask({"search by name", text_, text_, "en_US", "x"}), "8");
}

TEST_F(ATextOfAMegabyte, IsTooMuchForTheViewer) {
  ASSERT_TRUE(world_.Initialise());
  EXPECT_EQ(world_.Ask(Display(text_)), "1");
  EXPECT_EQ(world_.Ask(Open("http://" + text_)), "2");
  EXPECT_EQ(world_.Ask(Search(text_)), "1");
  EXPECT_EQ(world_.Started(), Nothing());
}

TEST_F(ATextOfAMegabyte, IsTooMuchForTheBrowser) {
  world_.Remove("{viewer}");
  world_.Write("{installed}/search.html", "<p>");
  ASSERT_TRUE(world_.Initialise());
  EXPECT_EQ(world_.Ask(Display(text_)), "7");
  EXPECT_EQ(world_.Ask(Open("http://" + text_)), "1");
  EXPECT_EQ(world_.Ask(Search(text_)), "1");
  EXPECT_EQ(world_.Started(), Nothing());
}

TEST_F(ATextOfAMegabyte, IsNoViewersName) {
  world_.config().app_id = text_;
  world_.Configure();
  ASSERT_TRUE(world_.Initialise());
  EXPECT_EQ(world_.Ask(Display("intro")), "7");
}

/// A file beside the store, and the folder in the store through which a path
/// would lead there.
TEST(ANameInThePreferenceStore, LeadsNowhereElse) {
  HelpWorld world;
  const std::string folder = VELMO_TEST_SYSCONF "/com.velmo.{folder}";
  const std::string file = VELMO_TEST_SYSCONF "/../{folder}.x.conf";
  world.Write(folder + "/file", "");
  world.Write(file, "[Preferences]\nHelpcfgName=Foo\n");
  EXPECT_TRUE(std::filesystem::exists(
      world.Expanded(folder + "/../../{folder}.x.conf")));
  EXPECT_EQ(world.Ask({"search by name", "{folder}/../../{folder}", "x",
                       "en_US", "x"}),
            "8");
  EXPECT_EQ(world.Ask({"search by name", "{folder}", "/../../{folder}.x",
                       "en_US", "x"}),
            "8");
  world.Remove(folder);
  world.Remove(file);
}

/// A product whose name is all that a shell could stumble over.
TEST(AProduct, ReachesTheViewerAsItIsCalled) {
  HelpWorld world;
  const std::string product = "$(:>made)`:>made`';|&\n*";
  world.config().id = "en_US_" + product;
  world.Write("{bin}/host.resources/help/en_US/" + product + ".helpcfg",
              world.config().Text());
  ASSERT_EQ(world.Ask({"initialise", product, "en_US"}), "0");
  EXPECT_EQ(world.Ask(Display("intro")), "0");
  EXPECT_EQ(world.Started(), world.Expanded(Words{"{viewer}", "HELP", product,
                                                  "en_US", "intro"}));
}

}  // namespace
}  // namespace velmohelp::testing
