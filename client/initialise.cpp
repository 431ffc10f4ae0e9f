#include <algorithm>
#include <exception>
#include <string>

#include "client/client.h"
#include "client/configuration.h"
#include "client/viewer.h"

namespace velmohelp {
namespace {

std::string WithoutPathSeparators(std::string product) {
  std::ranges::replace(product, '/', '_');
  std::ranges::replace(product, '\\', '_');
  return product;
}

/// Where the viewer keeps its files, below the user's Preferences folder.
void BuildViewerPaths(ClientState& state) {
  if (state.app_id.empty() || state.publisher_id.empty()) {
    SetDefaultViewer(state);
  }
  const std::string store =
      "/" + state.app_id + "." + state.publisher_id + "/Local Store/";
  state.preference_file = store + "klh-pref.xml";
  state.downloaded_content = store + "Help/";
  state.downloaded_config = store;
}

bool IsInitialisedFor(const ClientState& state, const std::string& product,
                      const std::string& locale) {
  return state.init_status == kInitSuccess && state.product_id == product &&
         state.locale == locale;
}

/// The configuration is read twice: only the second read can see a downloaded
/// one, in the viewer's folder that the first read has made known.
void ReadConfiguration(const Client& client, const std::string& locale) {
  RereadConfiguration(client, locale);
  if (client.state.init_status != kInitSuccess) return;
  BuildViewerPaths(client.state);
  RefreshOnlineStatus(client);
  RereadConfiguration(client, client.state.locale);
}

void InitialiseFor(const Client& client, const std::string& product,
                   const std::string& locale) {
  if (IsInitialisedFor(client.state, product, locale)) return;
  client.state.product_id = product;
  client.state.locale = locale;
  ReadConfiguration(client, locale);
}

}  // namespace

InitReturnCode Initialise(const Client& client, const char* product,
                          const char* locale, bool clean_product) noexcept {
  if (!HasText(product) || !HasText(locale)) return kInitInvalidArgument;
  try {
    InitialiseFor(client,
                  clean_product ? WithoutPathSeparators(product) : product,
                  locale);
  } catch (const std::exception&) {
    // A state of which one half is new and the other old must not count as
    // initialised.
    client.state.init_status = kInitMissingConfig;
  }
  return static_cast<InitReturnCode>(client.state.init_status);
}

}  // namespace velmohelp
