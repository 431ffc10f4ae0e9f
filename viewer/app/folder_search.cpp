#include "viewer/app/folder_search.h"

#include <filesystem>
#include <system_error>

#include "viewer/content/help_client.h"

namespace viewer {
namespace {

namespace fs = std::filesystem;
using Folder = std::pair<std::string, std::string>;

constexpr int kDeepest = 3;

// Help maps lie near the top; a walk through every page would take too long.
void Walk(const std::string& place, const fs::path& root,
          std::vector<Folder>& folders) {
  std::error_code error;
  fs::recursive_directory_iterator at(
      root, fs::directory_options::skip_permission_denied, error);
  for (; !error && at != fs::recursive_directory_iterator();
       at.increment(error)) {
    if (at.depth() >= kDeepest) at.disable_recursion_pending();
    if (at->path().filename() != "helpmap.txt") continue;
    const auto folder = at->path().parent_path().lexically_relative(root);
    if (folder != ".") folders.emplace_back(place, folder.string());
  }
}

std::vector<Folder> Containing(const std::vector<Folder>& folders,
                               const std::string& part) {
  std::vector<Folder> found;
  for (const auto& folder : folders) {
    for (const auto& name : fs::path(folder.second)) {
      if (name == part) found.push_back(folder);
    }
  }
  return found;
}

}  // namespace

std::vector<Folder> FindFolders(const std::string& product,
                                const std::string& locale) {
  const auto locations = FindLocations();
  std::vector<Folder> folders;
  Walk("downloaded", locations.downloaded, folders);
  Walk("installed", locations.installed, folders);
  for (const auto& part : {product, locale}) {
    if (const auto found = Containing(folders, part); !found.empty()) {
      return found;
    }
  }
  return folders;
}

}  // namespace viewer
