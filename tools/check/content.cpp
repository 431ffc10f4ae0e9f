#include "tools/check/content.h"

#include <algorithm>
#include <functional>
#include <set>

#include "resolve/help_map/help_map.h"
#include "resolve/page_id.h"
#include "tools/files.h"

namespace velmohelp::tool {
namespace {

namespace fs = std::filesystem;

/// Calls visit for each file in a folder and below; enter says whether a folder
/// below is gone into. Content may be linked, so links are followed, each
/// folder at most once: a link may lead up.
class Walk {
 public:
  using Enter = std::function<bool(const fs::path&)>;
  using Visit = std::function<void(const fs::path&)>;

  Walk(Enter enter, Visit visit)
      : enter_(std::move(enter)), visit_(std::move(visit)) {}

  void Below(const fs::path& root) {
    entered_.insert(fs::weakly_canonical(root));
    std::vector<fs::path> left = {root};
    while (!left.empty()) {
      const fs::path folder = left.back();
      left.pop_back();
      List(folder, left);
    }
  }

 private:
  void List(const fs::path& folder, std::vector<fs::path>& left) {
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; at != end;
         at.increment(error)) {
      if (at->is_directory(error)) {
        if (IsNew(at->path()) && enter_(at->path())) {
          left.push_back(at->path());
        }
      } else if (at->is_regular_file(error)) {
        visit_(at->path());
      }
    }
  }

  bool IsNew(const fs::path& folder) {
    std::error_code error;
    const fs::path canonical = fs::canonical(folder, error);
    return !error && entered_.insert(canonical).second;
  }

  Enter enter_;
  Visit visit_;
  std::set<fs::path> entered_;
};

bool AddInput(const fs::path& file, Inputs& inputs) {
  if (file.filename() == kHelpMapName) {
    inputs.maps.push_back(file);
  } else if (file.extension() == ".helpcfg") {
    inputs.configs.push_back(file);
  } else {
    return false;
  }
  return true;
}

void AddInputsOf(const fs::path& path, Inputs& inputs) {
  const std::size_t before = inputs.maps.size() + inputs.configs.size();
  std::error_code error;
  if (fs::is_directory(path, error)) {
    Walk([](const fs::path&) { return true; },
         [&](const fs::path& file) { AddInput(file, inputs); })
        .Below(path);
  } else if (!fs::exists(path, error)) {
    throw FileError(path.string() + ": no such file or folder");
  } else {
    AddInput(path, inputs);
  }
  if (inputs.maps.size() + inputs.configs.size() == before) {
    throw FileError(path.string() +
                    ": neither a .helpcfg nor a helpmap.txt is there");
  }
}

void SortUnique(std::vector<fs::path>& paths) {
  std::ranges::sort(paths);
  paths.erase(std::unique(paths.begin(), paths.end()), paths.end());
}

}  // namespace

Inputs FindInputs(const std::vector<fs::path>& paths) {
  Inputs inputs;
  for (const fs::path& path : paths) AddInputsOf(path, inputs);
  SortUnique(inputs.configs);
  SortUnique(inputs.maps);
  return inputs;
}

std::vector<std::string> ListPages(const fs::path& folder) {
  const fs::path root = folder.empty() ? fs::path(".") : folder;
  std::vector<std::string> pages;
  Walk([](const fs::path& below) { return !fs::exists(below / kHelpMapName); },
       [&](const fs::path& file) {
         if (!IsHtmlPage(file.native())) return;
         pages.push_back(file.lexically_relative(root).string());
       })
      .Below(root);
  std::ranges::sort(pages);
  return pages;
}

}  // namespace velmohelp::tool
