// The files of a content folder.
#ifndef TOOLS_CHECK_CONTENT_H_
#define TOOLS_CHECK_CONTENT_H_

#include <filesystem>
#include <string>
#include <vector>

namespace velmohelp::tool {

/// What the paths of a command line hold.
struct Inputs {
  std::vector<std::filesystem::path> configs;
  std::vector<std::filesystem::path> maps;
};

/// Configurations and help maps: files that are named, and those in folders
/// and below. Sorted. Throws FileError for a path that has neither.
Inputs FindInputs(const std::vector<std::filesystem::path>& paths);

/// The HTML pages in a content folder and below, relative to it and sorted. A
/// folder below that has a help map of its own is another content folder.
std::vector<std::string> ListPages(const std::filesystem::path& folder);

}  // namespace velmohelp::tool

#endif  // TOOLS_CHECK_CONTENT_H_
