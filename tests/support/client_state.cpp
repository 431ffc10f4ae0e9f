#include "tests/support/client_state.h"

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

}  // namespace velmohelp::testing
