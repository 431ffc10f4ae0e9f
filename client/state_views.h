// The client's state as the layers below are handed it.
#ifndef CLIENT_STATE_VIEWS_H_
#define CLIENT_STATE_VIEWS_H_

#include "client/state.h"
#include "config/help_config.h"
#include "platform/help_tool.h"
#include "resolve/content_folders.h"

namespace velmohelp {

inline HelpConfigState ConfigView() {
  return {.product_id = sProductID,
          .downloaded_suffix = kDownloadedHelpcfg,
          .locale = sLocale,
          .config_id = sConfigID,
          .base_url = sBaseUrl,
          .app_id = sAppID,
          .publisher_id = sPublisherID,
          .app_id_is_null = sAppIDIsNull,
          .help_paths = sHelpPaths,
          .help_path_count = sHelpPathCount};
}

inline HelpContent ContentView() {
  return {.rows = sHelpPaths,
          .row_count = static_cast<std::uint32_t>(sHelpPathCount),
          .base_url = sBaseUrl,
          .downloaded_suffix = kDownloadedOfflineContent,
          .is_online = sIsOnline};
}

inline ViewerIdentity ViewerView() {
  return {.app_id = sAppID, .publisher_id = sPublisherID};
}

}  // namespace velmohelp

#endif  // CLIENT_STATE_VIEWS_H_
