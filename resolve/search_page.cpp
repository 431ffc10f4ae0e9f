#include <velmohelp/platform.h>
#include <velmohelp/resolve.h>

#include "client/state.h"
#include "resolve/page_target.h"

namespace velmohelp {
namespace {

/// The search page of the first content folder below root that has one.
bool FindBelow(const std::string& root, std::string& page) {
  for (std::int32_t row = 0; row < sHelpPathCount; ++row) {
    const auto& [folder, mark] = sHelpPaths[row];
    if (mark != kFolderTakesPart) continue;
    const std::string candidate = root + folder + "/search.html";
    if (ITEMInternal::ValidateURL(candidate, sIsOnline)) {
      page = candidate;
      return true;
    }
  }
  return false;
}

bool FindLocally(std::string& page) {
  return FindBelow(ITEMInternal::GetDownloadedContentPath(), page) ||
         FindBelow(ITEMInternal::GetInstalledContentPath() + "/", page);
}

}  // namespace
}  // namespace velmohelp

bool GetSearchPage(std::string& page, std::string /*locale*/,
                   std::string /*paths*/[][2]) {
  using namespace velmohelp;
  const bool found = sIsOnline ? FindBelow(sBaseUrl, page) : FindLocally(page);
  if (!found) page.clear();
  return found;
}
