#include "tools/import/formats.h"

#include <algorithm>

#include "tools/files.h"
#include "tools/import/readers.h"

namespace velmohelp::tool {
namespace {

/// A reader of text, for a file.
template <IdTable (*kRead)(std::string_view text)>
IdTable ReadText(const std::filesystem::path& file) {
  return kRead(ReadWholeFile(file));
}

}  // namespace

const std::vector<ImportFormat>& ImportFormats() {
  static const std::vector<ImportFormat> formats = {
      {"tsv", "id, tab, page on each line", ReadText<ReadTabSeparated>},
      {"csv", "id, comma, page, as RFC 4180", ReadText<ReadCommaSeparated>},
      {"gimp", "GIMP's gimp-help.xml", ReadText<ReadGimpHelp>},
      {"qhp", "a Qt help project", ReadText<ReadQtHelpProject>},
      {"qch", "a Qt compressed help file", ReadQtCompressedHelp},
      {"htmlhelp", "an HTML Help project, or a file with its [ALIAS] section",
       ReadHtmlHelp},
      {"hid2file", "LibreOffice's hid2file.js", ReadText<ReadHid2File>}};
  return formats;
}

IdTable ReadIdTable(std::string_view format,
                    const std::filesystem::path& file) {
  const auto& found =
      *std::ranges::find(ImportFormats(), format, &ImportFormat::name);
  try {
    return found.read(file);
  } catch (const ImportError& error) {
    throw ImportError(file.string() + ": " + error.what());
  }
}

}  // namespace velmohelp::tool
