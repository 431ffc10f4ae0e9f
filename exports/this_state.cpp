#include "exports/state.h"
#include "exports/this_client.h"

namespace velmohelp {

/// References to objects need no code at load, and so keep out of the order in
/// which the state is built.
ClientState& ThisState() {
  static constinit ClientState state = {
      .init_status = sInitStatus,
      .product_id = sProductID,
      .locale = sLocale,
      .config_id = sConfigID,
      .base_url = sBaseUrl,
      .help_paths = sHelpPaths,
      .help_path_count = sHelpPathCount,
      .app_id = sAppID,
      .publisher_id = sPublisherID,
      .default_app_id = sDefaultAppID,
      .default_publisher_id = sDefaultPublisherID,
      .app_id_is_null = sAppIDIsNull,
      .preference_file = kKLHPreferenceFile,
      .downloaded_content = kDownloadedOfflineContent,
      .downloaded_config = kDownloadedHelpcfg,
      .help_app_path = sHelpAppPath,
      .viewer_choice = sViewerChoice,
      .is_online = sIsOnline,
      .query_is_raw = sQueryIsRaw,
      .help_map = sHelpMap};
  return state;
}

}  // namespace velmohelp
