#include "viewer/content/contents_list.h"

#include "tests/support/sentence.h"

namespace viewer {
namespace {

using velmohelp::testing::SentenceOf;

std::string Outline(const std::vector<ContentsEntry>& entries) {
  std::string text;
  for (const auto& entry : entries) {
    text += entry.title + "=" + entry.href;
    if (!entry.children.empty()) text += "(" + Outline(entry.children) + ")";
    text += ";";
  }
  return text;
}

struct Row {
  const char* sentence;
  const char* page;
  const char* outline;
};

class ContentsOf : public ::testing::TestWithParam<Row> {};

TEST_P(ContentsOf, AHomePage) {
  std::string base;
  EXPECT_EQ(Outline(ReadContents(GetParam().page, base)), GetParam().outline);
}

constexpr Row kPages[] = {
    {"a list of links is the contents",
     "<ul><li><a href=a.html>A</a><li><a href=b.html>B</a></ul>",
     "A=a.html;B=b.html;"},
    {"a list in an entry lies below it",
     "<ul><li>A<ul><li><a href=b>B</a></li></ul></li><li><a href=c>C</a></ul>",
     "A=(B=b;);C=c;"},
    {"an entry without a link and without entries is left out",
     "<ul><li>A</li><li><a href=b>B</a></li></ul>", "B=b;"},
    {"links outside lists are no contents", "<p><a href=a>A</a></p>", ""},
    {"links within the page are no contents",
     "<ul><li><a href='#a'>A</a><li><a href=b>B</a></ul>", "B=b;"},
    {"a list item outside a list is none", "<li><a href=a>A</a>", ""},
    {"lists that are closed too often do no harm",
     "</ul></ul><ul><li><a href=a>A</a></ul>", "A=a;"},
    {"the title is decoded and its spaces are joined",
     "<ul><li><a href='a?b&amp;c'>A &amp;\n\n B</a></ul>", "A & B=a?b&c;"},
    {"a list that never ends is read", "<ol><li><a href=a>A", "A=a;"},
};

INSTANTIATE_TEST_SUITE_P(, ContentsOf, ::testing::ValuesIn(kPages),
                         SentenceOf());

TEST(ContentsList, KnowsTheBaseOfThePage) {
  std::string base = "x";
  ReadContents("<base href='../..'><p>", base);
  EXPECT_EQ(base, "../..");
}

TEST(ContentsList, SurvivesTenThousandNestedLists) {
  std::string page;
  for (int i = 0; i < 10000; ++i) page += "<ul><li><a href=a>A</a>";
  std::string base;
  EXPECT_FALSE(ReadContents(page, base).empty());
}

TEST(ContentsList, ReadsTheLinesOfALiveDocument) {
  EXPECT_EQ(Outline(ReadContentsLines("0\t\tA\n1\tb\tB\n0\tc\tC\nbroken")),
            "A=(B=b;);C=c;");
}

}  // namespace
}  // namespace viewer
