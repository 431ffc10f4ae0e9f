// A help map that no caller sees is searched as text, with the same result as a
// search in the map.
#include <gtest/gtest.h>

#include "resolve/help_map/builder.h"
#include "resolve/help_map/entry_parser.h"
#include "tests/support/random_text.h"

namespace velmohelp::testing {
namespace {

std::optional<std::string> ByMap(const std::string& text,
                                 const std::string& key) {
  HelpMap map;
  BuildHelpMap(text, map);
  const auto entry = map.find(key);
  if (entry == map.end()) return std::nullopt;
  return entry->second;
}

std::optional<std::string> ByText(const std::string& text,
                                  const std::string& key) {
  const auto value = FindEntry(text, key);
  if (!value) return std::nullopt;
  return std::string(*value);
}

TEST(EntryOfRandomText, IsTheSameBySearchAndByMap) {
  RandomText texts("\t\t\t\t\n\n\raaab");
  RandomText keys("aaab");
  for (int i = 0; i < 30'000; ++i) {
    const std::string text = texts.Next(texts.Below(30));
    const std::string key = keys.Next(keys.Below(4));
    ASSERT_EQ(ByText(text, key), ByMap(text, key))
        << ::testing::PrintToString(text) << " " << key;
  }
}

TEST(EntryOfRandomText, IsNotFoundForAKeyThatCannotBeAField) {
  RandomText texts("\t\n\rab");
  for (const std::string key : {"", "\t", "a\tb", "\ta", "a\n", "\ra", "a\r"}) {
    for (int i = 0; i < 300; ++i) {
      const std::string text = key + texts.Next(20) + key;
      ASSERT_EQ(ByText(text, key), std::nullopt)
          << ::testing::PrintToString(text);
    }
  }
}

TEST(EntryOfMegabytes, IsFoundAfterNearMisses) {
  for (const std::string miss : {"a", "a\n", "\tca", "a\t\t\n", "ab\tc\n"}) {
    std::string text;
    while (text.size() < 4'000'000) text += miss;
    EXPECT_EQ(ByText(text + "\na\tv", "a"), "v");
    EXPECT_EQ(ByText(text, "b"), std::nullopt);
  }
}

TEST(EntryOfMegabytes, IsFoundForAKeyOfAMegabyte) {
  const std::string key(1'000'000, 'a');
  const std::string misses = key + "a\tx\n" + key + "\n\tb" + key + "\tx\r";
  EXPECT_EQ(ByText(misses + "\t" + key + "\tv\n", key), "v");
  EXPECT_EQ(ByText(misses + std::string(8'000'000, 'a'), key), std::nullopt);
}

}  // namespace
}  // namespace velmohelp::testing
