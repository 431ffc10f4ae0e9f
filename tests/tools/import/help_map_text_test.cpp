// The help map that is written for a table of ids.
#include "tools/import/help_map_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/sentence.h"

namespace velmohelp::tool {
namespace {

constexpr char kHome[] = "VX_HOME\td/home.html\n";

struct Row {
  std::string sentence;
  std::vector<IdRow> rows;
  std::string entries;
  std::size_t remarks = 0;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.sentence; }

HelpMapText Write(const std::vector<IdRow>& rows,
                  OnCollision on_collision = OnCollision::kFirst) {
  return WriteHelpMap(
      {rows, {}},
      {.home = "home.html", .prefix = "d/", .on_collision = on_collision});
}

class Written : public ::testing::TestWithParam<Row> {};

TEST_P(Written, MapHasTheseEntries) {
  const HelpMapText map = Write(GetParam().rows);
  EXPECT_EQ(map.text, kHome + GetParam().entries);
  EXPECT_EQ(map.remarks.size(), GetParam().remarks);
}

INSTANTIATE_TEST_SUITE_P(
    Kept, Written,
    ::testing::Values(
        Row{"letters digits and three other characters stay",
            {{"aZ09_-.", "p"}},
            "aZ09_-.\td/p\n"},
        Row{"a colon becomes an underscore",
            {{".uno:Save", "p#b"}},
            ".uno_Save\td/p#b\n",
            1},
        Row{"each byte of a letter becomes an underscore",
            {{"my page/\xC3\xA4", "p"}},
            "my_page___\td/p\n",
            1},
        Row{"a tab and a zero byte in an id become underscores",
            {{std::string("a\tb\0c", 5), "p"}},
            "a_b_c\td/p\n",
            1},
        Row{"an id with the page suffix is looked up without it",
            {{"a b.html", "p"}},
            "a b\td/p\n",
            1},
        Row{"an id with the short suffix loses five bytes all the same",
            {{"page.htm", "p"}},
            "pag\td/p\n",
            1},
        Row{"an id shorter than five bytes is looked up whole",
            {{".htm", "p"}},
            ".htm\td/p\n"},
        Row{"a scheme in capitals is not a URL",
            {{"HTTP://x", "p"}},
            "HTTP___x\td/p\n",
            1},
        Row{"a page that is a URL gets no prefix",
            {{"a", "https://h/p#x"}},
            "a\thttps://h/p#x\n"},
        Row{"spaces and quotes in a page stay",
            {{"a", "p \"q\".html"}},
            "a\td/p \"q\".html\n"},
        Row{"an id that is there twice with one page",
            {{"a", "p"}, {"a", "p"}},
            "a\td/p\n"},
        Row{"the first of two ids with one key wins",
            {{"a:b", "p"}, {"a/b", "q"}},
            "a_b\td/p\n",
            2}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    LeftOut, Written,
    ::testing::Values(
        Row{"an id that is a URL", {{"http://x/y", "p"}}, "", 1},
        Row{"an id that is only the suffix", {{".html", "p"}}, "", 1},
        Row{"an empty id", {{"", "p"}}, "", 1},
        Row{"a tab in a page", {{"a", "p\tq"}}, "", 1},
        Row{"a line end in a page", {{"a", "p\rq"}}, "", 1},
        Row{"a tab in an id that stays unchanged", {{"a\tb.html", "p"}}, "", 1},
        Row{"a second home page", {{"VX_HOME", "p"}}, "", 1},
        Row{"the home page again", {{"VX_HOME", "home.html"}}, ""}),
    testing::SentenceOf());

TEST(HelpMapText, MapEndsAtACollisionThatIsAnError) {
  const std::vector<IdRow> rows = {{"a:b", "p", 1}, {"a/b", "q", 2}};
  EXPECT_THROW(Write(rows, OnCollision::kError), ImportError);
  EXPECT_NO_THROW(Write({{"a:b", "p"}, {"a/b", "p"}}, OnCollision::kError));
}

TEST(HelpMapText, MapNeedsAHomePage) {
  EXPECT_THROW(WriteHelpMap({}, {.home = ""}), ImportError);
  EXPECT_THROW(WriteHelpMap({}, {.home = "a\tb"}), ImportError);
}

}  // namespace
}  // namespace velmohelp::tool
