// A key in the first line, a help map in the rest: what the slow rules have.
#include <velmohelp/resolve.h>

#include "resolve/help_map_text.h"
#include "tests/fuzz/input.h"
#include "tests/support/map_oracle.h"

namespace velmohelp::testing {

void Check(Input input) {
  static FileInMemory file;
  const std::string key = input.Line();
  const std::string path = file.Write(input.Rest());
  auto expected = OracleMap(input.Rest());
  std::map<std::string, std::string> map = {{"old", "entry"}};
  Same(ITEMInternal::LoadMapFile(path, map), expected.contains("VX_HOME"));
  Same(map, expected);
  Same(FindEntry(input.Rest(), key).value_or(""), expected[key]);
  std::string line;
  std::ifstream stream(path, std::ios_base::binary);
  for (const std::string& expected_line : OracleLines(input.Rest())) {
    Same(ITEMInternal::GetLine(stream, line) ? line : "no", expected_line);
    std::deque<std::string> fields;
    ITEMInternal::DelimitedStringToDeque('\t', line, fields);
    Same(fields, OracleFields('\t', line));
  }
}

}  // namespace velmohelp::testing
