// A key in the first line, a help map in the rest: the oracle's entries are
// found, and loaded over another map's, across a file's pieces too.
#include <velmohelp/resolve.h>

#include "resolve/help_map/entry_parser.h"
#include "resolve/help_map/help_map.h"
#include "tests/fuzz/input.h"
#include "tests/support/map_oracle.h"

namespace velmohelp::testing {

void Check(Input input) {
  static FileInMemory file;
  const std::string key = input.Line();
  const std::string text = input.Rest().substr(0, FileText::kPieceSize);
  const std::string line(FileText::kPieceSize - text.size() / 2, 'x');
  const HelpMap expected = OracleMap(text);
  const std::string value = expected.contains(key) ? expected.at(key) : "";
  Same(FindEntry(text, key).value_or(""), value);
  HelpMap map;
  ITEMInternal::LoadMapFile(file.Write(text.substr(text.size() / 2)), map);
  for (const std::string& whole : {text, line + '\n' + text}) {
    const bool complete = ITEMInternal::LoadMapFile(file.Write(whole), map);
    Same(map, expected);
    Same(complete, map.contains("VX_HOME"));
  }
}

}  // namespace velmohelp::testing
