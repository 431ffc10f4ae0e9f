#include "tests/support/client_variables.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <type_traits>

namespace velmohelp::testing {
namespace {

using Rows = std::string[kHelpPathCapacity][2];

/// All members, in the order of kNames: a binding that leaves one out does not
/// compile.
auto MembersOf(const ClientState& state) {
  const auto& [init_status, product_id, locale, config_id, base_url, help_paths,
               help_path_count, app_id, publisher_id, default_app_id,
               default_publisher_id, app_id_is_null, preference_file,
               downloaded_content, downloaded_config, help_app_path,
               viewer_choice, is_online, query_is_raw, help_map] = state;
  return std::tie(product_id, locale, config_id, base_url, app_id, publisher_id,
                  default_app_id, default_publisher_id, help_app_path,
                  preference_file, downloaded_content, downloaded_config,
                  init_status, help_path_count, help_paths, help_map,
                  app_id_is_null, viewer_choice, is_online, query_is_raw);
}

constexpr std::array kNames = {"sProductID",
                               "sLocale",
                               "sConfigID",
                               "sBaseUrl",
                               "sAppID",
                               "sPublisherID",
                               "sDefaultAppID",
                               "sDefaultPublisherID",
                               "sHelpAppPath",
                               "kKLHPreferenceFile",
                               "kDownloadedOfflineContent",
                               "kDownloadedHelpcfg",
                               "sInitStatus",
                               "sHelpPathCount",
                               "sHelpPaths",
                               "sHelpMap",
                               "sAppIDIsNull",
                               "sViewerChoice",
                               "sIsOnline",
                               "sQueryIsRaw"};
constexpr auto kMembers = std::make_index_sequence<kNames.size()>();

template <typename Variable>
void Assign(Variable& to, const Variable& from) {
  to = from;
}
void Assign(const std::string& /*never_written*/, const std::string&) {}
void Assign(Rows& to, const Rows& from) {
  for (std::size_t row = 0; row < std::size(to); ++row) {
    std::ranges::copy(from[row], to[row]);
  }
}

std::string Value(const std::string& text) { return '"' + text + '"'; }
std::string Value(std::int64_t number) { return std::to_string(number); }
std::string Value(const HelpMap& map) { return std::to_string(map.size()); }
std::string Value(const Rows& rows) {
  return std::to_string(std::ranges::count_if(
      rows, [](const auto& row) { return !row[0].empty(); }));
}

template <std::size_t... kMember>
void AssignAll(const ClientState& to, const ClientState& from,
               std::index_sequence<kMember...> /*members*/) {
  (Assign(std::get<kMember>(MembersOf(to)), std::get<kMember>(MembersOf(from))),
   ...);
}

template <std::size_t... kMember>
std::vector<std::string> DescribedAll(
    const ClientState& state, std::index_sequence<kMember...> /*members*/) {
  return {(kNames[kMember] +
           (" " + Value(std::get<kMember>(MembersOf(state)))))...};
}

}  // namespace

void SetAsAtLoad(ClientState& state) {
  AssignAll(state, ClientVariables().state, kMembers);
}

std::vector<std::string> Described(const ClientState& state) {
  return DescribedAll(state, kMembers);
}

}  // namespace velmohelp::testing
