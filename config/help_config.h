// Help configuration files (".helpcfg"): finding, reading and checking one.
#ifndef CONFIG_HELP_CONFIG_H_
#define CONFIG_HELP_CONFIG_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "config/key_scanner.h"
#include "platform/machine.h"
#include "platform/observer.h"

namespace velmohelp {

/// What became of a read.
enum class HelpConfigStatus : std::uint32_t {
  kAccepted = 0,
  kUnreadable = 6,
  /// A required value is missing, or "id" is not that of locale and product.
  kInvalid = 7,
};

/// The variables that a configuration read uses and fills, which the caller
/// owns.
struct HelpConfigState {
  const std::string& product_id;
  /// The end of the path of the downloaded configurations below the Preferences
  /// folder; empty until the first initialisation has built it.
  const std::string& downloaded_suffix;
  std::string& locale;
  std::string& config_id;
  std::string& base_url;
  std::string& app_id;
  std::string& publisher_id;
  bool& app_id_is_null;
  /// kHelpPathCapacity rows.
  ContentFolderRow* help_paths;
  std::int32_t& help_path_count;
  RequestObserver* observer = nullptr;
};

inline constexpr std::int32_t kHelpPathCapacity = 100;

/// A locale is five bytes: language, underscore, region.
inline constexpr std::size_t kLocaleLength = 5;

/// "<host resources>/help": a folder for each locale.
std::string InstalledConfigFolder(Machine& machine);

/// "<host resources>/help/<locale>/<product>.helpcfg".
std::string InstalledConfigPath(Machine& machine, std::string_view product,
                                std::string_view locale);

/// "<user Preferences><suffix>/<folder>/<product>.helpcfg".
std::string DownloadedConfigPath(Machine& machine, const std::string& suffix,
                                 std::string_view folder,
                                 std::string_view product);

/// The host preference "HelpcfgName" of the domain "com.velmo.<a>.<b>"; "" when
/// a or b is empty or nothing is set.
std::string PreferredConfigName(Machine& machine, std::string_view a,
                                std::string_view b);

/// Reads one file. What was assigned before a value is rejected stays.
HelpConfigStatus ReadHelpConfig(const HelpConfigState& state,
                                const std::string& path);

/// Reads the configuration of the state's product in a locale, which may be the
/// state's own: the downloaded file when there is a valid one, else the
/// installed one.
HelpConfigStatus UpdateHelpConfig(Machine& machine,
                                  const HelpConfigState& state,
                                  const std::string& locale);

}  // namespace velmohelp

#endif  // CONFIG_HELP_CONFIG_H_
