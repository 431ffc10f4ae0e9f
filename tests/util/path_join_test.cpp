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
    {"a slash is put between", "a", "b", "a/b", "a/b"},
    {"a slash at the base's end is enough", "a/", "b", "a/b", "a/b"},
    {"a slash at the leaf's start is not seen", "a", "/b", "a//b", "a//b"},
    {"slashes on both sides stay", "a/", "/b", "a//b", "a//b"},
    {"two slashes at the base's end stay", "a//", "b", "a//b", "a//b"},
    {"the root is a base", "/", "b", "/b", "/b"},
    {"a URL's scheme is a base", "file://", "/x", "file:///x", "file:///x"},
    {"a base with a slash stays with an empty leaf", "a/", "", "a/", "a/"},
};

constexpr Row kApart[] = {
    {"an empty leaf", "a", "", "a", "a/"},
    {"an empty base", "", "x", "x", "/x"},
    {"an empty base before a slash", "", "/x", "/x", "//x"},
    {"nothing at all", "", "", "", "/"},
};

INSTANTIATE_TEST_SUITE_P(Alike, PathJoin, ::testing::ValuesIn(kAlike),
                         SentenceOf());
INSTANTIATE_TEST_SUITE_P(Apart, PathJoin, ::testing::ValuesIn(kApart),
                         SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
