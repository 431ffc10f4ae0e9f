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
      .app_id = own::sAppID.value,
      .publisher_id = own::sPublisherID.value,
      .default_app_id = own::sDefaultAppID.value,
      .default_publisher_id = own::sDefaultPublisherID.value,
      .app_id_is_null = sAppIDIsNull,
      .preference_file = own::kKLHPreferenceFile.value,
      .downloaded_content = own::kDownloadedOfflineContent.value,
      .downloaded_config = own::kDownloadedHelpcfg.value,
      .help_app_path = sHelpAppPath,
      .viewer_choice = sViewerChoice,
      .is_online = sIsOnline,
      .query_is_raw = sQueryIsRaw,
      .help_map = own::sHelpMap.value};
  return state;
}

}  // namespace velmohelp
