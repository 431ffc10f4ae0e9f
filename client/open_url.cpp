#include "client/client.h"
#include "client/configuration.h"
#include "client/viewer.h"
#include "resolve/page_id.h"
#include "util/percent_encoding.h"

namespace velmohelp {
namespace {

/// The numbers of the two failed launches are crossed compared with those of a
/// page display. Callers compare the numbers, so this stays.
OpenUrlReturnCode CodeOf(LaunchResult launch) {
  switch (launch) {
    case LaunchResult::kLaunched:
      return kOpenUrlSuccess;
    case LaunchResult::kViewerNotLaunched:
      return kOpenUrlHelpAppLaunchFailure;
    case LaunchResult::kBrowserNotLaunched:
      return kOpenUrlBrowserLaunchFailure;
  }
  return kOpenUrlUnexpectedResult;
}

OpenUrlReturnCode CodeOf(Configuration configuration) {
  switch (configuration) {
    case Configuration::kUsable:
      return kOpenUrlSuccess;
    case Configuration::kMissing:
      return kOpenUrlMissingConfig;
    case Configuration::kInvalid:
      return kOpenUrlInvalidConfig;
  }
  return kOpenUrlUnexpectedResult;
}

LaunchResult Launch(const Client& client, const char* url) {
  if (IsViewerUsable(client)) return LaunchViewer(client, "URL", Quoted(url));
  return LaunchPlatformBrowser(client.machine, EncodeUriComponent(url));
}

}  // namespace

OpenUrlReturnCode OpenUrl(const Client& client, const char* url) {
  if (!HasText(url) || !IsUrl(url)) return kOpenUrlInvalidArgument;
  if (client.state.init_status != kInitSuccess) {
    return kOpenUrlInvalidInitialization;
  }
  RereadConfiguration(client, client.state.locale);
  SetDefaultViewerIfNoneIsNamed(client.state);
  RefreshHelpAppPath(client);
  const OpenUrlReturnCode code = CodeOf(ConfigurationOf(client.state));
  if (code != kOpenUrlSuccess) return code;
  return CodeOf(Launch(client, url));
}

}  // namespace velmohelp
