#include <gtest/gtest.h>
#include <velmohelp/text.h>

#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

struct Row {
  const char* sentence;
  const char* base;
  const char* leaf;
  const char* append_to_path;
  const char* appent_path;
};

class PathJoin : public ::testing::TestWithParam<Row> {};

TEST_P(PathJoin, JoinsBothWays) {
  const Row& row = GetParam();
  EXPECT_EQ(ITEMInternal::AppendToPath(row.base, row.leaf), row.append_to_path);
  EXPECT_EQ(AppentPath(row.base, row.leaf), row.appent_path);
}

constexpr Row kAlike[] = {
    {.sentence = "a slash is put between",
     .base = "a",
     .leaf = "b",
     .append_to_path = "a/b",
     .appent_path = "a/b"},
    {.sentence = "a slash at the base's end is enough",
     .base = "a/",
     .leaf = "b",
     .append_to_path = "a/b",
     .appent_path = "a/b"},
    {.sentence = "a slash at the leaf's start does not count",
     .base = "a",
     .leaf = "/b",
     .append_to_path = "a//b",
     .appent_path = "a//b"},
    {.sentence = "slashes on both sides stay",
     .base = "a/",
     .leaf = "/b",
     .append_to_path = "a//b",
     .appent_path = "a//b"},
    {.sentence = "two slashes at the base's end stay",
     .base = "a//",
     .leaf = "b",
     .append_to_path = "a//b",
     .appent_path = "a//b"},
    {.sentence = "the root is a base",
     .base = "/",
     .leaf = "b",
     .append_to_path = "/b",
     .appent_path = "/b"},
    {.sentence = "a URL's scheme is a base",
     .base = "file://",
     .leaf = "/x",
     .append_to_path = "file:///x",
     .appent_path = "file:///x"},
    {.sentence = "a base with a slash stays with an empty leaf",
     .base = "a/",
     .leaf = "",
     .append_to_path = "a/",
     .appent_path = "a/"},
};

constexpr Row kApart[] = {
    {.sentence = "an empty leaf",
     .base = "a",
     .leaf = "",
     .append_to_path = "a",
     .appent_path = "a/"},
    {.sentence = "an empty base",
     .base = "",
     .leaf = "x",
     .append_to_path = "x",
     .appent_path = "/x"},
    {.sentence = "an empty base before a slash",
     .base = "",
     .leaf = "/x",
     .append_to_path = "/x",
     .appent_path = "//x"},
    {.sentence = "nothing at all",
     .base = "",
     .leaf = "",
     .append_to_path = "",
     .appent_path = "/"},
};

INSTANTIATE_TEST_SUITE_P(Alike, PathJoin, ::testing::ValuesIn(kAlike),
                         SentenceOf());
INSTANTIATE_TEST_SUITE_P(Apart, PathJoin, ::testing::ValuesIn(kApart),
                         SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
