// Another help system's table, in any format. Whatever the bytes are, a reader
// gives rows or refuses them, and the map that is made of the rows is one that
// the client reads as the importer means it.
#include <map>

#include "resolve/help_map/entry_parser.h"
#include "tests/fuzz/input.h"
#include "tests/support/temporary_directory.h"
#include "tools/files.h"
#include "tools/import/formats.h"
#include "tools/import/help_map_text.h"

namespace velmohelp::testing {
namespace {

/// The entries that the client takes from a map: the first of each key.
std::map<std::string, std::string> EntriesOf(const std::string& text) {
  std::map<std::string, std::string> entries;
  HelpMapParser parser(text);
  for (HelpMapEntry entry; parser.Next(entry);) {
    entries.emplace(entry.key, entry.value);
  }
  return entries;
}

void CheckTable(const tool::IdTable& table) {
  const tool::HelpMapText map =
      tool::WriteHelpMap(table, {.home = "home.html"});
  Same(EntriesOf(map.text).size(), map.entries);
}

}  // namespace

/// The first line names the format.
void Check(Input input) {
  // SQLite opens no file in memory.
  static const TemporaryDirectory folder;
  const std::string name = input.Line();
  for (const tool::ImportFormat& format : tool::ImportFormats()) {
    if (format.name != name) continue;
    try {
      CheckTable(format.read(folder.Write("table", input.Rest())));
    } catch (const tool::ImportError&) {
    } catch (const tool::FileError&) {  // what it includes
    }
  }
}

}  // namespace velmohelp::testing
