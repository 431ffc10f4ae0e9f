// The map loader works on the whole text at once. Its result must be that of an
// oracle that goes line by line, field by field, entry by entry.
#include "tests/support/map_oracle.h"

#include <gtest/gtest.h>
#include <velmohelp/resolve.h>

#include "tests/support/random_text.h"
#include "tests/support/temporary_directory.h"
#include "util/file_text.h"

namespace velmohelp::testing {
namespace {

using Map = std::map<std::string, std::string>;

void ExpectAsTheOracle(const TemporaryDirectory& folder,
                       const std::string& text) {
  Map map;
  const Map expected = OracleMap(text);
  const bool complete = expected.contains("VX_HOME");
  ASSERT_EQ(ITEMInternal::LoadMapFile(folder.Write("x", text), map), complete);
  ASSERT_EQ(map, expected);
}

TEST(MapOfRandomBytes, IsAsTheOracleLoader) {
  const TemporaryDirectory folder;
  RandomText random(std::string("\t\t\t\n\n\r\r ab\v\x01") + '\0');
  for (int i = 0; i < 1500; ++i) {
    ExpectAsTheOracle(folder, random.Next(random.Below(60)));
  }
}

TEST(MapOfRandomLines, IsAsTheOracleLoader) {
  const TemporaryDirectory folder;
  RandomText random("abc");
  const std::string ends[] = {"\n", "\r", "\r\n", "\n\n", "\t\n", "x\n"};
  for (int i = 0; i < 100; ++i) {
    std::string text;
    for (std::size_t lines = random.Below(200); lines > 0; --lines) {
      const bool home = random.Below(100) == 0;
      text += home ? "VX_HOME" : random.Next(1 + random.Below(3));
      text += '\t' + random.Next(random.Below(3)) + ends[random.Below(6)];
    }
    ExpectAsTheOracle(folder, text);
  }
}

TEST(MapOfALargeRandomFile, IsAsTheOracleLoader) {
  const TemporaryDirectory folder;
  RandomText random("\t\t\n\rabcdefghijklmnop");
  for (const std::size_t size : {65535U, 65536U, 65537U, 200'000U}) {
    ExpectAsTheOracle(folder, random.Next(size));
  }
}

/// Lines that are longer than any piece, and of every kind.
TEST(MapOfLongLines, IsAsTheOracleLoader) {
  const TemporaryDirectory folder;
  const std::string a(FileText::kPieceSize * 2, 'a');
  const std::string tabs(FileText::kPieceSize * 2, '\t');
  for (const std::string& text :
       {a, a + "\tb\r\nc\td", tabs + "a" + tabs + "b" + tabs, a + "\t" + a,
        "b\tc\n" + a + "\td\n" + a + "\te", "b\tc\td" + a + "\na\tb"}) {
    ExpectAsTheOracle(folder, text);
  }
}

/// A line at the border of two pieces, cut at every byte.
TEST(MapAtAPiecesBorder, IsAsTheOracleLoader) {
  const TemporaryDirectory folder;
  const std::string cut = "\t\tkey\t\tvalue\tx\t\r\n\r\n\tk\nkey\tz\rl\tv";
  const std::string pad = "\tpage\n";
  for (const char* first : {"a", "z"}) {
    for (std::size_t shift = 0; shift <= cut.size(); ++shift) {
      const std::size_t before = 2 * FileText::kPieceSize - shift;
      const std::string text = std::string(before - pad.size() - 1, 'b') + pad;
      ExpectAsTheOracle(folder, first + text + cut);
    }
  }
}

/// Keys that differ late, early, or by zero bytes alone.
TEST(MapOfManyKeysInNoOrder, IsAsTheOracleLoader) {
  const TemporaryDirectory folder;
  RandomText random(std::string("ab\0\x01\xFF", 5));
  for (const std::size_t equal : {0U, 1U, 7U, 8U, 9U, 63U, 64U, 65U, 200U}) {
    std::string text;
    for (int line = 0; line < 3000; ++line) {
      text += random.Below(100) == 0 ? "" : std::string(equal, 'k');
      text += random.Next(1 + random.Below(12)) + '\t' + std::to_string(line) +
              '\n';
    }
    ExpectAsTheOracle(folder, text);
  }
}

}  // namespace
}  // namespace velmohelp::testing
