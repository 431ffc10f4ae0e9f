// A map that is loaded again keeps the nodes whose keys come again. Nobody may
// see that: nothing of what the map held before is left, whatever happens.
#include <gtest/gtest.h>
#include <velmohelp/resolve.h>

#include <sstream>

#include "resolve/help_map/builder.h"
#include "resolve/help_map/help_map.h"
#include "tests/support/failing_memory.h"
#include "tests/support/random_text.h"
#include "tests/support/sentence.h"
#include "tests/support/temp_folder.h"
#include "util/file_text.h"

namespace velmohelp::testing {
namespace {

using namespace std::string_literals;

/// Values are too long to lie inside a string.
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
  const TempFolder folder;
  const std::string path = folder.Write("x", TextOf(GetParam().file, "new"));
  const HelpMap expected = MapOf(GetParam().file, "new");
  HelpMap map = MapOf(GetParam().before, "old");
};

TEST_P(Reload, LeavesWhatTheFileHolds) {
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

TEST_P(Reload, LeavesNothingOldWhereMemoryRunsOut) {
  bool failed = true;
  for (int allocation = 1; failed; ++allocation) {
    map = MapOf(GetParam().before, "old");
    failed = false;
    try {
      const FailingMemory memory(allocation);
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
    ::testing::Values(Row{"of an empty map", "", "abc"},
                      Row{"of the same keys", "abc", "abc"},
                      Row{"of the same keys in another order", "abc", "bca"},
                      Row{"of fewer keys", "abcdef", "bd"},
                      Row{"of more keys", "bd", "abcdef"},
                      Row{"of other keys that lie behind", "abc", "xyz"},
                      Row{"of other keys that lie before", "xyz", "abc"},
                      Row{"of other keys in between", "ace", "bdf"},
                      Row{"of other keys in another order", "ace", "fdb"},
                      Row{"with a file that is empty", "abc", ""}),
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
    FillHelpMap(text, fresh);
    FillHelpMap(text, map);
    ASSERT_EQ(map, fresh) << text;
  }
}

/// The first piece is put in order; what follows meets the entries of it.
TEST(AFileThatLosesItsOrderBehindItsFirstPiece, KeepsTheFirstEntryOfAKey) {
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
  const TempFolder folder;
  HelpMap map = MapOf("abc", "old");
  ITEMInternal::LoadMapFile(folder.Write("x", text), map);
  EXPECT_EQ(map, expected);
}

/// Gives its text and then breaks.
class BrokenFile : public std::stringbuf {
 public:
  using std::stringbuf::stringbuf;

 private:
  std::streamsize xsgetn(char* to, std::streamsize size) override {
    const std::streamsize got = std::stringbuf::xsgetn(to, size);
    if (got < size) throw std::ios_base::failure("broken");
    return got;
  }
};

/// Lines for more than one piece, and the beginning of one behind them.
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

TEST_P(FileThatBreaks, LeavesTheWholeLinesOfThePiecesBefore) {
  std::string text;
  for (int line = 0; line < kLines; ++line) text += Line(line);
  const std::string before =
      text.substr(0, text.size() / FileText::kPieceSize * FileText::kPieceSize);
  HelpMap expected;
  FillHelpMap(before.substr(0, before.rfind('\n') + 1), expected);
  ASSERT_GT(expected.size(), FileText::kPieceSize / 13);

  BrokenFile broken(text);
  std::istream file(&broken);
  file.exceptions(std::ios_base::badbit);
  HelpMap map = {{"0", "old"}, {"100500", "old"}, {"x", "old"}};
  const auto load = [&] { HelpMapFiller(map).PutFile(file, text.size()); };
  EXPECT_THROW(load(), std::ios_base::failure);
  EXPECT_EQ(map, expected);
}

INSTANTIATE_TEST_SUITE_P(InOrderAndNot, FileThatBreaks, ::testing::Bool());

}  // namespace
}  // namespace velmohelp::testing
