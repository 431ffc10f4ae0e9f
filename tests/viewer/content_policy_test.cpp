#include "viewer/web/content_policy.h"

#include <gmock/gmock.h>

#include "tests/support/sentence.h"

namespace viewer {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using velmohelp::testing::SentenceOf;

constexpr auto kMeta =
    "<meta http-equiv=\"Content-Security-Policy\" content=\"p\"/>";

struct Row {
  const char* sentence;
  const char* before;
  const char* after;
};

class PolicyIn : public ::testing::TestWithParam<Row> {};

TEST_P(PolicyIn, APage) {
  const std::string before = GetParam().before;
  const std::string after = GetParam().after;
  EXPECT_EQ(WithPolicy(before + after, "p"), before + kMeta + after);
}

constexpr Row kRows[] = {
    {"it follows the document type", "<!DOCTYPE html>", "<html><script>"},
    {"the letter case does not matter", " \n<!doctype HTML>", "<html>"},
    {"a comment may come first", "<!-- a --><!DOCTYPE html>", "x"},
    {"an XML declaration may come first",
     "<?xml version='1.0'?>\n<!DOCTYPE html>", "x"},
    {"without a document type it comes first", "", "<script>x</script>"},
    {"a script before the document type does not escape it", "",
     "<script>x</script><!DOCTYPE html>"},
    {"a comment that never ends hides nothing that runs", "", "<!-- <script>"},
    {"a document type that never ends hides nothing", "<!DOCTYPE x", ""},
    {"an empty comment hides no script", "",
     "<!--><script>x</script>--><!DOCTYPE html>"},
    {"nor does a short one", "", "<!---><script>x</script>--><!DOCTYPE html>"},
    {"nor does one that ends oddly", "",
     "<!-- --!><script>x</script>--><!DOCTYPE html>"},
    {"a comment with a tag in it is not trusted", "",
     "<!-- <a> --><!DOCTYPE html>"},
    {"an empty page has one", "", ""},
};

INSTANTIATE_TEST_SUITE_P(, PolicyIn, ::testing::ValuesIn(kRows), SentenceOf());

ContentFolder Folder(const std::string& name, bool trusted) {
  return {.place = "downloaded",
          .name = name,
          .directory = "/x",
          .trusted = trusted};
}

TEST(ContentPolicyOf, AFolderAllowsItsOwnScripts) {
  EXPECT_THAT(ContentPolicy(Folder("en_US/A b", true)),
              HasSubstr("script-src velmohelp://downloaded/en_US/A%20b/ "));
}

TEST(ContentPolicyOf, AFolderOfNoHelpAllowsNone) {
  EXPECT_THAT(ContentPolicy(Folder("a", false)),
              HasSubstr("script-src 'none';"));
}

TEST(ContentPolicyOf, AFolderCannotEndItsSource) {
  EXPECT_THAT(ContentPolicy(Folder("a; script-src *,b", true)),
              Not(HasSubstr("script-src *")));
}

}  // namespace
}  // namespace viewer
