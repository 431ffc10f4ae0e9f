// A key in the first line, a configuration file in the rest. What a parser
// finds is what the oracle finds; a scan without end is not entered.
#include <velmohelp/config.h>

#include "tests/fuzz/input.h"
#include "tests/support/key_oracle.h"

namespace velmohelp::testing {

void Check(Input input) {
  static FileInMemory file;
  const std::string key = input.Line();
  XMLParser parser;
  Same(parser.ReadFileToBuffer(file.Write(input.Rest())), true);
  const std::string text = OracleBuffer(input.Rest());
  const auto value = OracleKey(text, key);
  if (value) Same(parser.GetKey(key), *value);
  std::string tables[2][4][2];
  const int capacity = static_cast<int>(key.size() % 6) - 1;
  int counts[2] = {capacity, capacity};
  parser.PopulatePathArray(tables[0], counts[0]);
  OraclePathTable(text, tables[1], counts[1]);
  Same(counts[0], counts[1]);
  Same(::testing::PrintToString(tables[0]),
       ::testing::PrintToString(tables[1]));
}

}  // namespace velmohelp::testing
