#include <string>

#include "client/client.h"
#include "client/configuration.h"
#include "client/viewer.h"
#include "resolve/page_id.h"
#include "resolve/page_target.h"
#include "util/path_join.h"
#include "util/percent_encoding.h"

namespace velmohelp {
namespace {

constexpr char kHomePage[] = "VX_HOME.html";

DisplayPageReturnCode CodeOf(LaunchResult launch) {
  switch (launch) {
    case LaunchResult::kLaunched:
      return kDisplaySuccess;
    case LaunchResult::kViewerNotLaunched:
      return kDisplayHelpAppLaunchFailure;
    case LaunchResult::kBrowserNotLaunched:
      return kDisplayBrowserLaunchFailure;
  }
  return kDisplayUnexpectedResult;
}

DisplayPageReturnCode CodeOf(Configuration configuration) {
  switch (configuration) {
    case Configuration::kUsable:
      return kDisplaySuccess;
    case Configuration::kMissing:
      return kDisplayMissingConfig;
    case Configuration::kInvalid:
      return kDisplayInvalidConfig;
  }
  return kDisplayUnexpectedResult;
}

/// A configuration that has become unusable is a result that the display of a
/// URL has no name for, and it does not say which launch failed.
DisplayPageReturnCode CodeOf(OpenUrlReturnCode code) {
  switch (code) {
    case kOpenUrlSuccess:
      return kDisplaySuccess;
    case kOpenUrlBrowserLaunchFailure:
    case kOpenUrlHelpAppLaunchFailure:
      return kDisplayBrowserLaunchFailure;
    case kOpenUrlInvalidArgument:
      return kDisplayInvalidArgument;
    case kOpenUrlInvalidInitialization:
      return kDisplayInvalidInitialization;
    case kOpenUrlMissingConfig:
    case kOpenUrlInvalidConfig:
    case kOpenUrlUnexpectedResult:
      break;
  }
  return kDisplayUnexpectedResult;
}

DisplayPageReturnCode ShowInViewer(const Client& client,
                                   const std::string& request) {
  return CodeOf(LaunchViewer(client, "HELP", request));
}

/// The last resort, whatever was chosen: a viewer that is installed gets the
/// page id and may know what to do with it.
DisplayPageReturnCode ShowInViewerIfInstalled(const Client& client,
                                              const char* page_id) {
  if (!IsViewerInstalled(client)) return kDisplayPageidDoesNotExist;
  return ShowInViewer(client, page_id);
}

DisplayPageReturnCode ShowTarget(const Client& client, const char* page_id,
                                 const std::string& target) {
  const bool is_url = IsUrl(target);
  if (client.state.viewer_choice == kShowInViewer) {
    return ShowInViewer(client, is_url ? Quoted(target) : page_id);
  }
  if (!is_url) return ShowInViewerIfInstalled(client, page_id);
  return CodeOf(LaunchPlatformBrowser(client.machine, target));
}

DisplayPageReturnCode ShowLocalTarget(const Client& client, const char* page_id,
                                      const std::string& target) {
  const std::string encoded = EncodeUriComponent(target);
  if (encoded.empty()) {
    return client.state.viewer_choice == kShowInViewer
               ? ShowInViewer(client, page_id)
               : kDisplayBrowserLaunchFailure;
  }
  if (IsUrl(encoded)) return ShowTarget(client, page_id, encoded);
  return ShowTarget(client, page_id, JoinPath("file://", encoded));
}

/// The page, or the home page in its place.
bool FindPageOrHome(const Client& client, const std::string& id,
                    std::string& target) {
  FetchBudget budget;
  const PageSearch search{.machine = client.machine,
                          .budget = budget,
                          .content = ContentView(client.state, client.observer),
                          .wants_urls = client.state.is_online,
                          .help_map = client.state.help_map};
  if (FindPageTarget(search, id, target)) return true;
  return id != kHomePage && FindPageTarget(search, kHomePage, target);
}

/// Refreshes what the choice between viewer and browser depends on.
void ChooseViewer(const Client& client) {
  const std::string preferences = PreferenceFile(client);
  RefreshHelpAppPath(client);
  RefreshOnlineStatus(client);
  client.state.viewer_choice =
      IsViewerUsable(client, preferences) ? kShowInViewer : kShowInBrowser;
}

DisplayPageReturnCode ShowPage(const Client& client, const char* page_id,
                               const std::string& normalised_id) {
  std::string target;
  if (!FindPageOrHome(client, normalised_id, target)) {
    return ShowInViewerIfInstalled(client, page_id);
  }
  return client.state.is_online ? ShowTarget(client, page_id, target)
                                : ShowLocalTarget(client, page_id, target);
}

}  // namespace

DisplayPageReturnCode DisplayPage(const Client& client, const char* page_id) {
  if (client.state.init_status != kInitSuccess) {
    return kDisplayInvalidInitialization;
  }
  if (!HasText(page_id)) return kDisplayInvalidArgument;
  if (IsUrl(page_id)) return CodeOf(OpenUrl(client, page_id));
  std::string normalised_id = page_id;
  NormalizePageId(normalised_id);
  RereadConfiguration(client, client.state.locale);
  SetDefaultViewerIfNoneIsNamed(client.state);
  const DisplayPageReturnCode code = CodeOf(ConfigurationOf(client.state));
  if (code != kDisplaySuccess) return code;
  ChooseViewer(client);
  return ShowPage(client, page_id, normalised_id);
}

}  // namespace velmohelp
