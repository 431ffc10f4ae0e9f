#include "viewer/content/page_text.h"

#include "tests/support/sentence.h"

namespace viewer {
namespace {

using velmohelp::testing::SentenceOf;

struct Row {
  const char* sentence;
  const char* page;
  const char* title;
  const char* body;
};

class PageTextOf : public ::testing::TestWithParam<Row> {};

TEST_P(PageTextOf, APage) {
  const auto text = ReadPageText(GetParam().page);
  EXPECT_EQ(text.title, GetParam().title);
  EXPECT_EQ(text.body, GetParam().body);
}

constexpr Row kRows[] = {
    {"the title element is the title", "<title> Two\n words </title>x",
     "Two words", "x"},
    {"a page without a title has its first heading",
     "<body><h1>Lines</h1><h1>More</h1>", "Lines", "Lines More"},
    {"a page without both has no title", "<p>x", "", "x"},
    {"inline elements do not split a word", "wo<b>r</b>d", "", "word"},
    {"block elements end a word", "<p>a</p>b", "", "a b"},
    {"character references are decoded", "&lt;&#228;&#xe4;&amp;", "",
     "<\u00e4\u00e4&"},
    {"an unknown reference stays", "&nothing; &", "", "&nothing; &"},
    {"a reference that is no character stays", "&#0;&#xd800;", "",
     "&#0;&#xd800;"},
    {"scripts and styles are not text",
     "a<script>if (b < c) '</p>'</script><STYLE>d{}</STYLE>e", "", "a e"},
    {"comments are not text", "a<!-- <p>b</p> -->c", "", "ac"},
    {"navigation is not text", "<nav>a<div>b</div></nav>c", "", "c"},
    {"nested navigation ends with the outer element",
     "<aside>a<aside>b</aside>c</aside>d", "", "d"},
    {"a head that is never closed ends at the body",
     "<head><meta name=a content=b><body>c", "", "c"},
    {"a greater sign in a quoted value does not end the tag",
     "<p title=\"a > b\">c", "", "c"},
    {"a tag that never ends hides nothing before it", "a<p title=\"b", "", "a"},
    {"a lone less sign is text", "1 < 2", "", "1 < 2"},
    {"an empty page has nothing", "", "", ""},
};

INSTANTIATE_TEST_SUITE_P(, PageTextOf, ::testing::ValuesIn(kRows),
                         SentenceOf());

}  // namespace
}  // namespace viewer
