#include <velmohelp/resolve.h>

#include "exports/guarded.h"
#include "exports/this_client.h"
#include "platform/files.h"
#include "resolve/help_map/help_map.h"
#include "resolve/page_id.h"
#include "resolve/page_target.h"
#include "resolve/search_page.h"
#include "resolve/url_check.h"
#include "util/lines.h"
#include "util/path_join.h"

using velmohelp::ContentView;
using velmohelp::FetchBudget;
using velmohelp::ThisMachine;
using velmohelp::ThisState;
using velmohelp::Uncancelled;
using velmohelp::WithState;

namespace {

constexpr unsigned char kTargetFound = 0;
constexpr unsigned char kTargetNotFound = 3;

}  // namespace

bool isUrl(std::string text) {
  return Uncancelled([&] { return velmohelp::IsUrl(text); });
}

bool isHTMLPage(std::string name) {
  return Uncancelled([&] { return velmohelp::IsHtmlPage(name); });
}

void NormalizePageID(std::string& id) {
  return Uncancelled([&] { velmohelp::NormalizePageId(id); });
}

unsigned char ValidateID(std::string pageId, bool online, std::string& out) {
  return WithState(kTargetNotFound, [&] {
    FetchBudget budget;
    const velmohelp::PageSearch search{.machine = ThisMachine(),
                                       .budget = budget,
                                       .content = ContentView(ThisState()),
                                       .wants_urls = online,
                                       .help_map = ThisState().help_map};
    return velmohelp::FindPageTarget(search, pageId, out) ? kTargetFound
                                                          : kTargetNotFound;
  });
}

bool GetSearchPage(std::string& page, std::string /*locale*/,
                   std::string /*paths*/[][2]) {
  return WithState(false, [&] {
    FetchBudget budget;
    const auto found = velmohelp::FindSearchPage(ThisMachine(), budget,
                                                 ContentView(ThisState()));
    page = found.value_or("");
    return found.has_value();
  });
}

namespace ITEMInternal {

bool isUrl(std::string text) {
  return Uncancelled([&] { return velmohelp::IsUrl(text); });
}

bool ValidateURL(std::string target, bool fetch) {
  return WithState(false, [&] {
    if (!fetch) return velmohelp::FileExists(ThisMachine(), target);
    FetchBudget budget;
    return velmohelp::CanLoadText(ThisMachine(), budget, target);
  });
}

bool LoadMapFile(const std::string& path, velmohelp::HelpMap& map) {
  return Uncancelled([&] { return velmohelp::LoadHelpMap(path, map); });
}

std::string GetHelpMapBaseUrl(const std::string& path) {
  return Uncancelled([&] { return velmohelp::ReadHelpMapBaseUrl(path); });
}

std::string GetHelpMapPath(const std::string& folder) {
  return Uncancelled(
      [&] { return velmohelp::JoinPath(folder, velmohelp::kHelpMapName); });
}

std::string GetHelpMapBaseUrlPath(const std::string& folder) {
  return Uncancelled([&] {
    return velmohelp::JoinPath(folder, velmohelp::kHelpMapBaseUrlName);
  });
}

bool GetLine(std::ifstream& stream, std::string& line) {
  return Uncancelled([&] { return velmohelp::ReadLine(stream, line); });
}

int DelimitedStringToDeque(const char& delimiter, const std::string& text,
                           std::deque<std::string>& out) {
  return Uncancelled(
      [&] { return velmohelp::SplitFields(delimiter, text, out); });
}

}  // namespace ITEMInternal
