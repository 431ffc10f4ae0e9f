// A map that is loaded again reuses the nodes of the keys that come again.
// Nobody may notice: no old entry is left, whatever happens.
#include <gtest/gtest.h>
#include <velmohelp/resolve.h>

#include <sstream>

#include "resolve/help_map/builder.h"
#include "tests/support/exhaustion.h"
#include "tests/support/random_text.h"
#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"
#include "util/file_text.h"

namespace velmohelp::testing {
namespace {

using namespace std::string_literals;

/// Values are too long for a string's own buffer.
std::string ValueOf(const std::string& key, const std::string& mark) {
  return "topics/a-long-name/" + mark + key;
}

HelpMap MapOf(const std::string& keys, const std::string& mark) {
  HelpMap map;
  for (const char key : keys) map[{key}] = ValueOf({key}, mark);
  return map;
}

std::string TextOf(const std::string& keys, const std::string& mark) {
  std::string text;
  for (const char key : keys) {
    text += key + "\t"s + ValueOf({key}, mark) + "\n";
  }
  return text;
}

struct Row {
  const char* sentence;
  std::string before;
  std::string file;
};

class Reload : public ::testing::TestWithParam<Row> {
 protected:
  const TemporaryDirectory folder;
  const std::string path = folder.Write("x", TextOf(GetParam().file, "new"));
  const HelpMap expected = MapOf(GetParam().file, "new");
  HelpMap map = MapOf(GetParam().before, "old");
};

TEST_P(Reload, LeavesTheFilesEntries) {
  ITEMInternal::LoadMapFile(path, map);
  EXPECT_EQ(map, expected);
}

/// Some of the new entries may be there, none of the old ones.
void ExpectPartOf(const HelpMap& whole, const HelpMap& map) {
  for (const auto& entry : map) {
    const auto found = whole.find(entry.first);
    ASSERT_NE(found, whole.end()) << entry.first;
    EXPECT_EQ(entry.second, found->second);
  }
}

TEST_P(Reload, LeavesNothingOldWhenOutOfMemory) {
  bool failed = true;
  for (std::size_t allocation = 1; failed; ++allocation) {
    map = MapOf(GetParam().before, "old");
    failed = false;
    try {
      const Exhaustion memory(allocation, Shortage::kFromThenOn);
      ITEMInternal::LoadMapFile(path, map);
    } catch (const std::bad_alloc&) {
      failed = true;
    }
    ExpectPartOf(expected, map);
  }
  EXPECT_EQ(map, expected);
}

INSTANTIATE_TEST_SUITE_P(
    , Reload,
    ::testing::Values(
        Row{.sentence = "of an empty map", .before = "", .file = "abc"},
        Row{.sentence = "of the same keys", .before = "abc", .file = "abc"},
        Row{.sentence = "of the same keys in another order",
            .before = "abc",
            .file = "bca"},
        Row{.sentence = "of fewer keys", .before = "abcdef", .file = "bd"},
        Row{.sentence = "of more keys", .before = "bd", .file = "abcdef"},
        Row{.sentence = "of other keys that come after",
            .before = "abc",
            .file = "xyz"},
        Row{.sentence = "of other keys that come before",
            .before = "xyz",
            .file = "abc"},
        Row{.sentence = "of other keys in between",
            .before = "ace",
            .file = "bdf"},
        Row{.sentence = "of other keys in another order",
            .before = "ace",
            .file = "fdb"},
        Row{.sentence = "with a file that is empty",
            .before = "abc",
            .file = ""}),
    SentenceOf());

TEST(ReloadOfRandomFiles, LeavesWhatAFirstLoadGives) {
  RandomText random("abcdefgh");
  HelpMap map;
  for (int i = 0; i < 3000; ++i) {
    std::string text;
    for (std::size_t lines = random.Below(12); lines > 0; --lines) {
      text += random.Next(1 + random.Below(2)) + "\t" + random.Next(20) + "\n";
    }
    HelpMap fresh;
    BuildHelpMap(text, fresh);
    BuildHelpMap(text, map);
    ASSERT_EQ(map, fresh) << text;
  }
}

/// The first piece is added in order; what follows meets its entries.
TEST(AFileThatLosesItsOrderAfterItsFirstPiece, KeepsTheFirstEntryOfAKey) {
  constexpr int kFirst = 10'000;
  constexpr int kLast = 20'000;
  std::string text;
  HelpMap expected;
  for (int number = kFirst; number < kLast; ++number) {
    expected[std::to_string(number)] = "first";
    text += std::to_string(number) + "\tfirst\n";
  }
  ASSERT_GT(text.size(), FileText::kPieceSize);
  expected["10000a"] = expected["0"] = "between";
  text += "10001\tagain\n10000a\tbetween\n0\tbetween\n10000\tagain\n";
  const TemporaryDirectory folder;
  HelpMap map = MapOf("abc", "old");
  ITEMInternal::LoadMapFile(folder.Write("x", text), map);
  EXPECT_EQ(map, expected);
}

/// Gives its text, a thousand bytes at most at a time, and then breaks.
class BrokenFile : public InputFile {
 public:
  explicit BrokenFile(std::string_view text)
      : InputFile(text.size(), kHelpMapLimit), text_(text) {}

  std::size_t Read(char* buffer, std::size_t size) override {
    if (text_.empty()) throw std::ios_base::failure("broken");
    const std::size_t got =
        text_.copy(buffer, std::min<std::size_t>(size, 1000));
    text_.remove_prefix(got);
    return got;
  }

 private:
  std::string_view text_;
};

/// The entries that are in a map after its file broke.
HelpMap LoadedFromBroken(std::string_view text) {
  BrokenFile file(text);
  HelpMap map = {{"0", "old"}, {"100500", "old"}, {"x", "old"}};
  EXPECT_THROW(HelpMapBuilder(map).AddFile(file), std::ios_base::failure);
  return map;
}

/// Lines for more than one piece.
class FileThatBreaks : public ::testing::TestWithParam<bool> {
 protected:
  static constexpr int kFirst = 100'000;
  static constexpr int kLines = 9'000;

  static std::string Line(int line) {
    const bool reversed = GetParam();
    const int number = kFirst + (reversed ? kLines - line : line);
    return std::to_string(number) + "\tvalue\n";
  }
};

TEST_P(FileThatBreaks, LeavesTheWholeLinesBeforeTheError) {
  std::string text;
  HelpMap expected;
  for (int line = 0; line < kLines; ++line) {
    text += Line(line);
    expected[Line(line).substr(0, 6)] = "value";
  }
  ASSERT_GT(text.size(), 2 * FileText::kPieceSize);
  EXPECT_EQ(LoadedFromBroken(text + "999999\tval"), expected);
}

INSTANTIATE_TEST_SUITE_P(InOrderAndNot, FileThatBreaks, ::testing::Bool());

struct BrokenRow {
  const char* sentence;
  std::string text;
  HelpMap entries;
};

class TextThatBreaks : public ::testing::TestWithParam<BrokenRow> {};

TEST_P(TextThatBreaks, HasTheEntriesOfItsWholeLines) {
  EXPECT_EQ(LoadedFromBroken(GetParam().text), GetParam().entries);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TextThatBreaks,
    ::testing::Values(
        BrokenRow{"before its first byte", "", {}},
        BrokenRow{"inside its first line", "a\tb", {}},
        BrokenRow{"after a line feed", "a\tb\n", {{"a", "b"}}},
        BrokenRow{"inside its second line", "a\tb\nc\td", {{"a", "b"}}},
        BrokenRow{"inside a line that is out of order",
                  "b\tb\na\tb\nc\td",
                  {{"a", "b"}, {"b", "b"}}},
        BrokenRow{
            "after the first byte of a CR LF", "a\tb\r\nc\td\r", {{"a", "b"}}},
        BrokenRow{"after a CR LF", "a\tb\r\n", {{"a", "b"}}}),
    SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
