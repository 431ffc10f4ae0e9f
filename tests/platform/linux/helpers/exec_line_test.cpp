#include "platform/linux/helpers/exec_line.h"

#include <gtest/gtest.h>

#include "tests/support/sentence.h"

namespace velmohelp {
namespace {

using Words = std::vector<std::string>;

// What a shell would take apart: a query of two values, ";", "$" and a quote.
constexpr char kUrl[] = "file:///a%20b/p.html?a=1&b=2;c=$x&d='z'";

struct LineRow {
  const char* sentence;
  const char* line;
  Words words;
};

class ExecLine : public ::testing::TestWithParam<LineRow> {};

TEST_P(ExecLine, BecomesAnArgumentVector) {
  const FieldValues values = {
      .url = kUrl, .icon = "an icon", .name = "It's", .file = "/x y/b.desktop"};
  EXPECT_EQ(ExpandExecLine(GetParam().line, values), GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(
    Accepted, ExecLine,
    ::testing::Values(
        LineRow{"a URL", "b %u", {"b", kUrl}},
        LineRow{"URLs", "b %U", {"b", kUrl}},
        LineRow{"a file gets the URL too", "b %f", {"b", kUrl}},
        LineRow{"files get the URL too", "b %F", {"b", kUrl}},
        LineRow{"the second code for a URL gives nothing",
                "b %u %U %f",
                {"b", kUrl}},
        LineRow{"a URL inside a word",
                "b --url=%u",
                {"b", std::string("--url=") + kUrl}},
        LineRow{"no code for the URL", "b -x", {"b", "-x", kUrl}},
        LineRow{"an icon", "b %i %u", {"b", "--icon", "an icon", kUrl}},
        LineRow{"a name with a quote", "b %c %u", {"b", "It's", kUrl}},
        LineRow{"the entry's file", "b %k %u", {"b", "/x y/b.desktop", kUrl}},
        LineRow{"a percent sign", "b 100%% %u", {"b", "100%", kUrl}},
        LineRow{"a percent sign in quotes",
                "b \"100%% x\" %u",
                {"b", "100% x", kUrl}},
        LineRow{"an escaped percent sign before a letter",
                "b %%u",
                {"b", "%u", kUrl}},
        LineRow{"deprecated codes", "b %d %D %n %N %v %m %u", {"b", kUrl}},
        LineRow{"an unknown code", "b x%y %u", {"b", "x", kUrl}},
        LineRow{"an unknown code that is a space", "b % %u", {"b", kUrl}},
        LineRow{"a percent sign at the end", "b %u %", {"b", kUrl, "%"}},
        LineRow{
            "quotes", "\"/a b/c\" \"x \\$ y\" %u", {"/a b/c", "x $ y", kUrl}},
        LineRow{"an escaped quote opens no quotation",
                "b \\\" %u \\\"",
                {"b", "\"", kUrl, "\""}},
        LineRow{"a quote inside other quotes opens no quotation",
                "b \"it's\" %u '\"'",
                {"b", "it's", kUrl, "\""}},
        LineRow{"a backslash in single quotes escapes nothing",
                "b 'x\\' %u",
                {"b", "x\\", kUrl}},
        LineRow{"a quoted word before and after the URL's",
                "'x y'\t%u\n'z'",
                {"x y", kUrl, "z"}},
        LineRow{"an empty word", "b \"\" %u", {"b", "", kUrl}},
        LineRow{"between marks",
                "flatpak run @@u %u @@",
                {"flatpak", "run", "@@u", kUrl, "@@"}},
        LineRow{"shell operators are words",
                "b $(x) ; > %u",
                {"b", "$(x)", ";", ">", kUrl}}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Refused, ExecLine,
    ::testing::Values(
        LineRow{"the URL in a shell's program", "sh -c \"/x/b %u\"", {}},
        LineRow{"the URL in single quotes", "sh -c '/x/b %u'", {}},
        LineRow{"the URL after a quote in quotes", "sh -c \"b \\\" %u\"", {}},
        LineRow{"the URL after a quoted part of a shell's program",
                "sh -c '/x/b '%u",
                {}},
        LineRow{"the URL before a quoted part of a shell's program",
                "sh -c /x/b%u' -x'",
                {}},
        LineRow{"the URL after an escaped space", "sh -c /x/b\\ %u", {}},
        LineRow{"the URL after a backslash", "b \\%u", {}},
        LineRow{"a name in quotes", "b \"%c\" %u", {}},
        LineRow{"a deprecated code in quotes", "b \"%d\" %u", {}},
        LineRow{"the URL in a comment", "b # %u", {}},
        LineRow{"an open quote", "b \"x", {}},
        LineRow{"a comment alone", "# b", {}}, LineRow{"nothing", "", {}}),
    testing::SentenceOf());

TEST(ExecLineOfAnEntryWithoutValues, HasNoWordsForThem) {
  EXPECT_EQ(ExpandExecLine("b %i %c %k %u", {.url = kUrl}), Words({"b", kUrl}));
}

}  // namespace
}  // namespace velmohelp
