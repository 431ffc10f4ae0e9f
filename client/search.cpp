#include <string>

#include "client/client.h"
#include "client/configuration.h"
#include "client/viewer.h"
#include "resolve/search_page.h"
#include "util/path_join.h"
#include "util/percent_encoding.h"

namespace velmohelp {
namespace {

bool IsEmpty(const char* text) { return text == nullptr || *text == '\0'; }

/// A search does not say which of the two failed.
SearchReturnCode CodeOf(LaunchResult launch) {
  switch (launch) {
    case LaunchResult::kLaunched:
      return kSearchSuccess;
    case LaunchResult::kViewerNotLaunched:
    case LaunchResult::kBrowserNotLaunched:
      break;
  }
  return kSearchLaunchFailure;
}

SearchReturnCode CodeOf(Configuration configuration) {
  switch (configuration) {
    case Configuration::kUsable:
      return kSearchSuccess;
    case Configuration::kMissing:
      return kSearchMissingConfig;
    case Configuration::kInvalid:
      break;
  }
  return kSearchInvalidConfig;
}

void PrepareConfiguration(const Client& client, const char* product,
                          const char* locale) {
  client.state.product_id = product;
  client.state.locale = locale;
  if (client.state.init_status == kInitSuccess) {
    RereadConfiguration(client, locale);
  } else {
    client.state.init_status = Initialise(client, product, locale, false);
  }
}

/// The text as the search page or the viewer gets it. The mark for unencoded
/// text is good for one search.
std::string TermFor(ClientState& state, const char* text) {
  std::string term = state.query_is_raw ? text : EncodeSearchTerm(text);
  state.query_is_raw = false;
  return term;
}

std::string LocalAddress(const std::string& page, const std::string& term) {
  return JoinPath("file://", EncodeUriComponent(page + "?q=") + term);
}

SearchReturnCode SearchInBrowser(const Client& client,
                                 const std::string& term) {
  RefreshOnlineStatus(client);
  const bool is_online = client.state.is_online;
  FetchBudget budget;
  const auto page = FindSearchPage(client.machine, budget,
                                   ContentView(client.state, client.observer));
  if (!page) return is_online ? kSearchNoOnlinePage : kSearchNoLocalPage;
  return CodeOf(LaunchPlatformBrowser(
      client.machine,
      is_online ? *page + "?q=" + term : LocalAddress(*page, term)));
}

}  // namespace

SearchReturnCode SearchHelp(const Client& client, const char* product,
                            const char* locale, const char* text) {
  if (IsEmpty(product) || IsEmpty(locale) || !HasText(text)) {
    return kSearchInvalidArgument;
  }
  PrepareConfiguration(client, product, locale);
  const SearchReturnCode code = CodeOf(ConfigurationOf(client.state));
  if (code != kSearchSuccess) return code;
  SetDefaultViewerIfNoneIsNamed(client.state);
  RefreshHelpAppPath(client);
  const std::string term = TermFor(client.state, text);
  if (!IsViewerUsable(client)) return SearchInBrowser(client, term);
  return CodeOf(LaunchViewer(client, "SEARCH", term));
}

SearchReturnCode SearchByNames(const Client& client, const char* a,
                               const char* b, const char* locale,
                               const char* text) {
  client.state.query_is_raw = true;
  if (IsEmpty(a) || IsEmpty(b)) return kSearchNoConfigName;
  const std::string name = PreferredConfigName(client.machine, a, b);
  // The mark stays set, for the next search; callers rely on it.
  if (name.empty()) return kSearchNoConfigName;
  return SearchHelp(client, name.c_str(), locale, text);
}

}  // namespace velmohelp
