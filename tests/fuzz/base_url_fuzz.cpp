// A base URL file: its lines, their fields and its URL are the oracle's, the
// mistake in the rule included.
#include <velmohelp/resolve.h>

#include "tests/fuzz/input.h"
#include "tests/support/map_oracle.h"

namespace velmohelp::testing {

void Check(Input input) {
  static FileInMemory file;
  const std::string path = file.Write(input.Rest());
  std::string line;
  std::ifstream stream(path, std::ios_base::binary);
  for (const std::string& expected_line : OracleLines(input.Rest())) {
    Same(ITEMInternal::GetLine(stream, line) ? line : "no", expected_line);
    std::deque<std::string> fields;
    ITEMInternal::DelimitedStringToDeque('\t', line, fields);
    Same(fields, OracleFields('\t', line));
  }
  const auto expected = OracleBaseUrl(input.Rest());
  try {
    Same(ITEMInternal::GetHelpMapBaseUrl(path), expected);
  } catch (const std::out_of_range&) {
    Same(expected.has_value(), false);
  }
}

}  // namespace velmohelp::testing
