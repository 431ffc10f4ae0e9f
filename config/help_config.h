// Help configuration files: finding, reading and checking one.
#ifndef CONFIG_HELP_CONFIG_H_
#define CONFIG_HELP_CONFIG_H_

#include <velmohelp/config.h>

#include <cstdint>
#include <string>

#include "platform/machine.h"

namespace velmohelp {

/// The variables that a configuration read uses and fills. A view of the
/// caller's state, valid for one call.
struct HelpConfigState {
  const std::string& product_id;
  /// Ends the path of the downloaded configurations below the Preferences
  /// folder; empty until the first initialisation has got that far.
  const std::string& downloaded_suffix;
  std::string& locale;
  std::string& config_id;
  std::string& base_url;
  std::string& app_id;
  std::string& publisher_id;
  bool& app_id_is_null;
  std::string (*help_paths)[2];
  std::int32_t& help_path_count;
};

/// How many rows help_paths has.
inline constexpr std::int32_t kHelpPathCapacity = 100;

/// See ITEMInternal::GetHelpConfigPath.
std::string GetHelpConfigPath(Machine& machine, const std::string& product,
                              const std::string& locale);

/// See ITEMInternal::GetDownloadedHelpConfigPath; suffix is kDownloadedHelpcfg.
std::string GetDownloadedHelpConfigPath(Machine& machine,
                                        const std::string& suffix,
                                        const std::string& first,
                                        const std::string& second);

/// See ITEMInternal::GetHelpConfigName.
std::string GetHelpConfigName(Machine& machine, const std::string& a,
                              const std::string& b);

/// See ::ReadHelpcfg.
std::uint32_t ReadHelpConfig(HelpConfigState state, const std::string& path);

/// See ::UpdateHelpConfigInfo. locale is a copy, because the read replaces the
/// state's own.
std::uint32_t UpdateHelpConfig(Machine& machine, HelpConfigState state,
                               std::string locale);

}  // namespace velmohelp

#endif  // CONFIG_HELP_CONFIG_H_
