// The client's whole state, as requests receive it.
#ifndef CLIENT_CLIENT_STATE_H_
#define CLIENT_CLIENT_STATE_H_

#include <cstdint>
#include <string>

#include "config/help_config.h"
#include "platform/help_tool.h"
#include "resolve/content_folders.h"
#include "resolve/help_map/map_type.h"

namespace velmohelp {

/// Where a page display goes. The numbers are those of the state's
/// viewer_choice.
inline constexpr std::uint32_t kShowInViewer = 1;
inline constexpr std::uint32_t kShowInBrowser = 2;

/// References to the variables that hold the state. The variables themselves
/// are the caller's: exports/ has those that hosts see, a test has its own.
struct ClientState {
  /// Code of the last configuration read (InitReturnCode); 0 means that the
  /// client is initialised. Written by every request. 1 at load.
  std::int32_t& init_status;

  /// The initialisation's arguments as stored. A configuration that is accepted
  /// replaces the locale by the first five bytes of its "id".
  std::string& product_id;
  std::string& locale;

  /// "id" and "baseUrl" of the configuration read last.
  std::string& config_id;
  std::string& base_url;

  /// Content folders (name and flag), and how many rows are in use: the
  /// capacity before a read, and at load.
  std::string (&help_paths)[kHelpPathCapacity][2];
  std::int32_t& help_path_count;

  /// The viewer's ids, and those that take their place.
  std::string& app_id;
  std::string& publisher_id;
  const std::string& default_app_id;
  const std::string& default_publisher_id;
  /// The configuration names no viewer application.
  bool& app_id_is_null;

  /// Where the viewer keeps its files, below the user's Preferences folder:
  /// its preference file, downloaded content, downloaded configurations. Each
  /// begins with "/"; empty until an initialisation has read a configuration.
  std::string& preference_file;
  std::string& downloaded_content;
  std::string& downloaded_config;

  /// The viewer's executable, refreshed by every request.
  std::string& help_app_path;
  /// kShowInViewer or kShowInBrowser, for the current page display; 0 at load.
  std::uint32_t& viewer_choice;
  /// Online help may be used.
  bool& is_online;
  /// The next search passes its text on unencoded.
  bool& query_is_raw;
  /// The help map read last.
  HelpMap& help_map;
};

/// The parts of a state that the layers below need.
inline HelpConfigState ConfigView(ClientState& state,
                                  RequestObserver* observer = nullptr) {
  return {.product_id = state.product_id,
          .downloaded_suffix = state.downloaded_config,
          .locale = state.locale,
          .config_id = state.config_id,
          .base_url = state.base_url,
          .app_id = state.app_id,
          .publisher_id = state.publisher_id,
          .app_id_is_null = state.app_id_is_null,
          .help_paths = state.help_paths,
          .help_path_count = state.help_path_count,
          .observer = observer};
}

inline HelpContent ContentView(const ClientState& state,
                               RequestObserver* observer = nullptr) {
  return {.rows = state.help_paths,
          .row_count = static_cast<std::uint32_t>(state.help_path_count),
          .base_url = state.base_url,
          .downloaded_suffix = state.downloaded_content,
          .is_online = state.is_online,
          .observer = observer};
}

inline ViewerIdentity ViewerView(const ClientState& state) {
  return {.app_id = state.app_id, .publisher_id = state.publisher_id};
}

}  // namespace velmohelp

#endif  // CLIENT_CLIENT_STATE_H_
