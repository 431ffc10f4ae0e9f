#include "tests/support/client_state.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

#include "client/state.h"

namespace velmohelp::testing {
namespace {

void EmptyTexts() {
  for (std::string* text :
       {&sAppID, &sPublisherID, &kKLHPreferenceFile, &kDownloadedOfflineContent,
        &kDownloadedHelpcfg, &sProductID, &sLocale, &sConfigID, &sBaseUrl,
        &sHelpAppPath}) {
    text->clear();
  }
  for (auto& row : sHelpPaths) {
    row[0].clear();
    row[1].clear();
  }
}

long FilledRows() {
  return std::ranges::count_if(sHelpPaths,
                               [](const auto& row) { return !row[0].empty(); });
}

}  // namespace

void ResetClientState() {
  EmptyTexts();
  sHelpMap.clear();
  sInitStatus = 1;
  sHelpPathCount = kHelpPathCapacity;
  sAppIDIsNull = false;
  sViewerChoice = 0;
  sIsOnline = false;
  sQueryIsRaw = false;
}

std::vector<std::string> DescribeClientState() {
  std::vector<std::string> lines;
  const std::initializer_list<std::pair<const char*, const std::string&>>
      texts = {{"sProductID", sProductID},
               {"sLocale", sLocale},
               {"sConfigID", sConfigID},
               {"sBaseUrl", sBaseUrl},
               {"sAppID", sAppID},
               {"sPublisherID", sPublisherID},
               {"sHelpAppPath", sHelpAppPath},
               {"kKLHPreferenceFile", kKLHPreferenceFile},
               {"kDownloadedOfflineContent", kDownloadedOfflineContent},
               {"kDownloadedHelpcfg", kDownloadedHelpcfg}};
  for (const auto& [name, text] : texts) {
    lines.push_back(std::string(name) + " \"" + text + "\"");
  }
  const std::initializer_list<std::pair<const char*, long>> numbers = {
      {"sInitStatus", sInitStatus},
      {"sHelpPathCount", sHelpPathCount},
      {"sHelpPaths", FilledRows()},
      {"sHelpMap", static_cast<long>(sHelpMap.size())},
      {"sAppIDIsNull", sAppIDIsNull},
      {"sViewerChoice", sViewerChoice},
      {"sIsOnline", sIsOnline},
      {"sQueryIsRaw", sQueryIsRaw}};
  for (const auto& [name, number] : numbers) {
    lines.push_back(std::string(name) + " " + std::to_string(number));
  }
  return lines;
}

}  // namespace velmohelp::testing
