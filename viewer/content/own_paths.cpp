#include "viewer/content/own_paths.h"

#include <velmohelp/state.h>

#include <string>

namespace viewer {

void AdoptOwnPaths() {
  const std::string store =
      "/" + sDefaultAppID + "." + sDefaultPublisherID + "/Local Store/";
  if (kKLHPreferenceFile.empty()) kKLHPreferenceFile = store + "klh-pref.xml";
  if (kDownloadedOfflineContent.empty()) {
    kDownloadedOfflineContent = store + "Help/";
  }
  if (kDownloadedHelpcfg.empty()) kDownloadedHelpcfg = store;
}

}  // namespace viewer
