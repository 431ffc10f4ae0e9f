#include "tools/explain/near_ids.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/sentence.h"

namespace velmohelp::tool {
namespace {

using Names = std::vector<std::string>;

struct Near {
  std::string sentence;
  std::string map;
  std::string key;
  Names near;
};

void PrintTo(const Near& row, std::ostream* out) { *out << row.sentence; }

class NearIds : public ::testing::TestWithParam<Near> {};

TEST_P(NearIds, AreTheseOnes) {
  EXPECT_EQ(NearKeys(GetParam().map, GetParam().key), GetParam().near);
}

INSTANTIATE_TEST_SUITE_P(
    , NearIds,
    ::testing::Values(
        Near{"an empty map has none", "", "intro", {}},
        Near{"two letters are swapped", "intro\ta\n", "intor", {"intro"}},
        Near{"a letter is missing", "intro\ta\n", "inro", {"intro"}},
        Near{"a letter is too many", "intro\ta\n", "inntro", {"intro"}},
        Near{"a letter is another one", "intro\ta\n", "intra", {"intro"}},
        Near{"two mistakes in five letters are too many",
             "intro\ta\n",
             "antra",
             {}},
        Near{"capitals do not matter", "INTRO\ta\n", "intro", {"INTRO"}},
        Near{"the best comes first",
             "abcdef1\ta\nabcdefg\tb\n",
             "ABCDEFG",
             {"abcdefg", "abcdef1"}},
        Near{"the home page is no id", "VX_HOME\ta\n", "VX_HOM", {}},
        Near{"the key itself is not near", "intro\ta\n", "intro", {}},
        Near{"three are enough",
             "aaaa1\t1\naaaa2\t1\naaaa3\t1\naaaa4\t1\n",
             "aaaa5",
             {"aaaa1", "aaaa2", "aaaa3"}},
        Near{"a very long key has none",
             std::string(300, 'a') + "\tb\n",
             std::string(299, 'a'),
             {}}),
    testing::SentenceOf());

}  // namespace
}  // namespace velmohelp::tool
