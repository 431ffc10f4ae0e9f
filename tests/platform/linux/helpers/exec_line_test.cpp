#include "platform/linux/helpers/exec_line.h"

#include <gtest/gtest.h>

#include "tests/support/sentence.h"

namespace velmohelp {
namespace {

using Words = std::vector<std::string>;

constexpr char kUrl[] = "file:///a%20b/p.html?nameAnchor=x&y='z'";

struct LineRow {
  const char* sentence;
  const char* line;
  Words words;
};

class ExecLine : public ::testing::TestWithParam<LineRow> {};

TEST_P(ExecLine, BecomesACommandLine) {
  const FieldValues values = {kUrl, "an icon", "A Name", "/x/b.desktop"};
  EXPECT_EQ(ExpandExecLine(GetParam().line, values), GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ExecLine,
    ::testing::Values(
        LineRow{"a URL", "b %u", {"b", kUrl}},
        LineRow{"URLs", "b %U", {"b", kUrl}},
        LineRow{"a file gets the URL too", "b %f", {"b", kUrl}},
        LineRow{"files get the URL too", "b %F", {"b", kUrl}},
        LineRow{"a URL within a word",
                "b --url=%u",
                {"b", std::string("--url=") + kUrl}},
        LineRow{"no code for the URL", "b -x", {"b", "-x", kUrl}},
        LineRow{"an icon", "b %i %u", {"b", "--icon", "an icon", kUrl}},
        LineRow{"a name", "b %c %u", {"b", "A Name", kUrl}},
        LineRow{"the entry's file", "b %k %u", {"b", "/x/b.desktop", kUrl}},
        LineRow{"a percent sign", "b 100%% %u", {"b", "100%", kUrl}},
        LineRow{"an escaped code is none", "b %%u", {"b", "%u", kUrl}},
        LineRow{"deprecated codes", "b %d %D %n %N %v %m %u", {"b", kUrl}},
        LineRow{"an unknown code", "b x%y %u", {"b", "x", kUrl}},
        LineRow{"a percent sign at the end", "b % %u", {"b", "%", kUrl}},
        LineRow{
            "quotes", "\"/a b/c\" \"x \\$ y\" %u", {"/a b/c", "x $ y", kUrl}},
        LineRow{"an empty word", "b \"\" %u", {"b", "", kUrl}},
        LineRow{"between marks",
                "flatpak run @@u %u @@",
                {"flatpak", "run", "@@u", kUrl, "@@"}},
        LineRow{"shell signs are words",
                "b $(x) ; > %u",
                {"b", "$(x)", ";", ">", kUrl}},
        LineRow{"an open quote", "b \"x", {}}, LineRow{"nothing", "", {}}),
    testing::SentenceOf());

TEST(ExecLineWithoutAnIcon, NamesNone) {
  EXPECT_EQ(ExpandExecLine("b %i %c %u", {kUrl, "", "", ""}),
            Words({"b", kUrl}));
}

}  // namespace
}  // namespace velmohelp
