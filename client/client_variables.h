// Variables that hold a state of a client's own.
#ifndef CLIENT_CLIENT_VARIABLES_H_
#define CLIENT_CLIENT_VARIABLES_H_

#include <string>

#include "client/client_state.h"

namespace velmohelp {

/// A whole state of its own, with its values at load or a copy of another
/// state's. In place: the state refers to it. Large: not for a host's stack.
struct ClientVariables {
  ClientVariables() = default;
  /// Copies all but the help map, which no request looks at before it has read
  /// its own.
  explicit ClientVariables(const ClientState& from);
  ClientVariables(const ClientVariables&) = delete;
  ClientVariables& operator=(const ClientVariables&) = delete;

  std::int32_t init_status = 1;
  std::string product_id, locale, config_id, base_url;
  std::string help_paths[kHelpPathCapacity][2];
  std::int32_t help_path_count = kHelpPathCapacity;
  std::string app_id, publisher_id;
  std::string default_app_id = "klh";
  std::string default_publisher_id =
      "9C3A51F07B26D48E15A0C7F3B9D2E6418A75C0D2.1";
  bool app_id_is_null = false;
  std::string preference_file, downloaded_content, downloaded_config;
  std::string help_app_path;
  std::uint32_t viewer_choice = 0;
  bool is_online = false;
  bool query_is_raw = false;
  HelpMap help_map;

  ClientState state = {.init_status = init_status,
                       .product_id = product_id,
                       .locale = locale,
                       .config_id = config_id,
                       .base_url = base_url,
                       .help_paths = help_paths,
                       .help_path_count = help_path_count,
                       .app_id = app_id,
                       .publisher_id = publisher_id,
                       .default_app_id = default_app_id,
                       .default_publisher_id = default_publisher_id,
                       .app_id_is_null = app_id_is_null,
                       .preference_file = preference_file,
                       .downloaded_content = downloaded_content,
                       .downloaded_config = downloaded_config,
                       .help_app_path = help_app_path,
                       .viewer_choice = viewer_choice,
                       .is_online = is_online,
                       .query_is_raw = query_is_raw,
                       .help_map = help_map};
};

}  // namespace velmohelp

#endif  // CLIENT_CLIENT_VARIABLES_H_
