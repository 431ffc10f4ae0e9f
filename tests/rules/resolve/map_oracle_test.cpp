// The map loader works on the whole text at once. It must give what the plain
// way gives: line by line, field by field, entry by entry.
#include "tests/support/map_oracle.h"

#include <gtest/gtest.h>
#include <velmohelp/resolve.h>

#include "tests/rules/support/random_text.h"
#include "tests/rules/support/temp_folder.h"

namespace velmohelp::testing {
namespace {

using Map = std::map<std::string, std::string>;

void ExpectAsTheSlowLoader(const TempFolder& folder, const std::string& text) {
  Map map;
  const Map expected = OracleMap(text);
  const bool complete = expected.contains("VX_HOME");
  ASSERT_EQ(ITEMInternal::LoadMapFile(folder.Write("x", text), map), complete);
  ASSERT_EQ(map, expected);
}

TEST(MapOfRandomBytes, IsAsTheSlowLoaderHasIt) {
  const TempFolder folder;
  RandomText random(std::string("\t\t\t\n\n\r\r ab") + '\0');
  for (int i = 0; i < 1500; ++i) {
    ExpectAsTheSlowLoader(folder, random.Next(random.Below(60)));
  }
}

TEST(MapOfRandomLines, IsAsTheSlowLoaderHasIt) {
  const TempFolder folder;
  RandomText random("abc");
  const std::string ends[] = {"\n", "\r", "\r\n", "\n\n", "\t\n", "x\n"};
  for (int i = 0; i < 100; ++i) {
    std::string text;
    for (std::size_t lines = random.Below(200); lines > 0; --lines) {
      const bool home = random.Below(100) == 0;
      text += home ? "VX_HOME" : random.Next(1 + random.Below(3));
      text += '\t' + random.Next(random.Below(3)) + ends[random.Below(6)];
    }
    ExpectAsTheSlowLoader(folder, text);
  }
}

TEST(MapOfALargeRandomFile, IsAsTheSlowLoaderHasItAcrossThePiecesItIsReadIn) {
  const TempFolder folder;
  RandomText random("\t\t\n\rabcdefghijklmnop");
  for (const std::size_t size : {65535U, 65536U, 65537U, 131072U, 200'000U}) {
    ExpectAsTheSlowLoader(folder, random.Next(size));
  }
  ExpectAsTheSlowLoader(folder, std::string(65533, 'a') + "\tb\r\nc\td");
}

}  // namespace
}  // namespace velmohelp::testing
