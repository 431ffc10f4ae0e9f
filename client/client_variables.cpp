#include "client/client_variables.h"

namespace velmohelp {

ClientVariables::ClientVariables(const ClientState& from)
    : init_status(from.init_status),
      product_id(from.product_id),
      locale(from.locale),
      config_id(from.config_id),
      base_url(from.base_url),
      help_path_count(from.help_path_count),
      app_id(from.app_id),
      publisher_id(from.publisher_id),
      default_app_id(from.default_app_id),
      default_publisher_id(from.default_publisher_id),
      app_id_is_null(from.app_id_is_null),
      preference_file(from.preference_file),
      downloaded_content(from.downloaded_content),
      downloaded_config(from.downloaded_config),
      help_app_path(from.help_app_path),
      viewer_choice(from.viewer_choice),
      is_online(from.is_online),
      query_is_raw(from.query_is_raw) {
  for (std::int32_t row = 0; row < kHelpPathCapacity; ++row) {
    help_paths[row][0] = from.help_paths[row][0];
    help_paths[row][1] = from.help_paths[row][1];
  }
}

}  // namespace velmohelp
