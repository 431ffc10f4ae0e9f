// A client's state that a command has for itself.
#ifndef TOOLS_EXPLAIN_OWN_STATE_H_
#define TOOLS_EXPLAIN_OWN_STATE_H_

#include <string>

#include "client/client_state.h"
#include "exports/this_client.h"

namespace velmohelp::tool {

/// The variables with their values at load. In place: the state refers to them.
struct OwnState {
  OwnState() = default;
  OwnState(const OwnState&) = delete;
  OwnState& operator=(const OwnState&) = delete;

  std::int32_t init_status = kInitInvalidArgument;
  std::string product_id, locale, config_id, base_url;
  std::string help_paths[kHelpPathCapacity][2];
  std::int32_t help_path_count = kHelpPathCapacity;
  std::string app_id, publisher_id;
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
                       .default_app_id = ThisState().default_app_id,
                       .default_publisher_id = ThisState().default_publisher_id,
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

}  // namespace velmohelp::tool

#endif  // TOOLS_EXPLAIN_OWN_STATE_H_
