#include <velmohelp/resolve.h>

#include "exports/this_client.h"
#include "resolve/help_map/help_map.h"
#include "resolve/page_id.h"
#include "resolve/page_target.h"
#include "resolve/search_page.h"
#include "resolve/url_check.h"
#include "util/path_join.h"

using velmohelp::ContentView;
using velmohelp::FetchBudget;
using velmohelp::ThisMachine;
using velmohelp::ThisState;

namespace {

constexpr unsigned char kTargetFound = 0;
constexpr unsigned char kTargetNotFound = 3;

}  // namespace

bool isUrl(std::string text) { return velmohelp::IsUrl(text); }

bool isHTMLPage(std::string name) { return velmohelp::IsHtmlPage(name); }

void NormalizePageID(std::string& id) { velmohelp::NormalizePageId(id); }

unsigned char ValidateID(std::string pageId, bool online, std::string& out) {
  FetchBudget budget;
  return velmohelp::FindPageTarget(ThisMachine(), budget,
                                   ContentView(ThisState()), pageId, online,
                                   ThisState().help_map, out)
             ? kTargetFound
             : kTargetNotFound;
}

bool GetSearchPage(std::string& page, std::string /*locale*/,
                   std::string /*paths*/[][2]) {
  FetchBudget budget;
  const auto found = velmohelp::FindSearchPage(ThisMachine(), budget,
                                               ContentView(ThisState()));
  page = found.value_or("");
  return found.has_value();
}

namespace ITEMInternal {

bool isUrl(std::string text) { return velmohelp::IsUrl(text); }

bool ValidateURL(std::string target, bool fetch) {
  FetchBudget budget;
  return velmohelp::ValidateUrl(ThisMachine(), budget, target, fetch);
}

bool LoadMapFile(const std::string& path, velmohelp::HelpMap& map) {
  return velmohelp::LoadHelpMap(path, map);
}

std::string GetHelpMapBaseUrl(const std::string& path) {
  return velmohelp::ReadHelpMapBaseUrl(path);
}

std::string GetHelpMapPath(const std::string& folder) {
  return velmohelp::JoinPath(folder, velmohelp::kHelpMapName);
}

std::string GetHelpMapBaseUrlPath(const std::string& folder) {
  return velmohelp::JoinPath(folder, velmohelp::kHelpMapBaseUrlName);
}

bool GetLine(std::ifstream& stream, std::string& line) {
  return velmohelp::ReadLine(stream, line);
}

int DelimitedStringToDeque(const char& delimiter, const std::string& text,
                           std::deque<std::string>& out) {
  return velmohelp::SplitFields(delimiter, text, out);
}

}  // namespace ITEMInternal
