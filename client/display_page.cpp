#include <velmohelp/config.h>
#include <velmohelp/online.h>
#include <velmohelp/platform.h>
#include <velmohelp/resolve.h>
#include <velmohelp/text.h>
#include <velmohelp/velmohelp.h>

#include "client/request.h"
#include "client/state.h"
#include "exports/guarded.h"

namespace velmohelp {
namespace {

constexpr char kHomePage[] = "VX_HOME.html";
constexpr unsigned char kTargetFound = 0;

/// What OpenURL answers, in this operation's numbers. A configuration that has
/// become unreadable is no result that a display of a URL has a name for.
std::uint32_t CodeOfOpenUrl(std::uint32_t code) {
  switch (code) {
    case kDisplaySuccess:
    case kDisplayInvalidArgument:
    case kDisplayInvalidInitialization:
      return code;
    case kDisplayHelpAppLaunchFailure:
    case kDisplayBrowserLaunchFailure:
      return kDisplayBrowserLaunchFailure;
    default:
      return kDisplayUnexpectedResult;
  }
}

std::uint32_t ShowInViewer(const std::string& request) {
  return static_cast<std::uint32_t>(LaunchViewer("HELP", request));
}

/// The last resort, whatever was chosen: a viewer that is installed gets the
/// page id and may know what to do with it.
std::uint32_t ShowInViewerIfInstalled(const char* page_id) {
  if (!IsViewerInstalled()) return kDisplayPageidDoesNotExist;
  return ShowInViewer(page_id);
}

std::uint32_t ShowTarget(const char* page_id, const std::string& target) {
  const bool is_url = isUrl(target);
  if (sViewerChoice == kShowInViewer) {
    return ShowInViewer(is_url ? Quoted(target) : page_id);
  }
  if (!is_url) return ShowInViewerIfInstalled(page_id);
  return static_cast<std::uint32_t>(
      ITEMInternal::LaunchPlatformBrowser(target));
}

std::uint32_t ShowLocalTarget(const char* page_id, const std::string& target) {
  const std::string encoded = ITEMInternal::VelmoHelpEncodeURIComponent(target);
  if (encoded.empty()) {
    if (sViewerChoice == kShowInViewer) return ShowInViewer(page_id);
    return kDisplayBrowserLaunchFailure;
  }
  if (isUrl(encoded)) return ShowTarget(page_id, encoded);
  return ShowTarget(page_id, ITEMInternal::AppendToPath("file://", encoded));
}

/// The page, or once the home page in its place.
bool FindTarget(const std::string& id, std::string& target) {
  if (ValidateID(id, sIsOnline, target) == kTargetFound) return true;
  return id != kHomePage &&
         ValidateID(kHomePage, sIsOnline, target) == kTargetFound;
}

/// Takes down afresh what the choice between viewer and browser rests on.
void ChooseViewer() {
  const std::string preferences = ITEMInternal::GetKLHPreferenceFilePath();
  RefreshHelpAppPath();
  sIsOnline = false;
  GetNetworkStatus();
  sViewerChoice = !sAppIDIsNull && IsViewerUsable(preferences) ? kShowInViewer
                                                               : kShowInBrowser;
}

std::uint32_t Display(const char* page_id) {
  if (sInitStatus != kInitSuccess) return kDisplayInvalidInitialization;
  if (!HasText(page_id)) return kDisplayInvalidArgument;
  if (isUrl(page_id)) return CodeOfOpenUrl(OpenURL(page_id));
  std::string id = page_id;
  NormalizePageID(id);
  RereadConfiguration(sLocale);
  TakeDefaultViewerIfNoneIsNamed();
  const std::uint32_t code = CodeOfConfiguration();
  if (code != kDisplaySuccess) return code;
  ChooseViewer();
  std::string target;
  if (!FindTarget(id, target)) return ShowInViewerIfInstalled(page_id);
  return sIsOnline ? ShowTarget(page_id, target)
                   : ShowLocalTarget(page_id, target);
}

}  // namespace
}  // namespace velmohelp

uint32_t DisplayVelmoHelpClientPage(const char* pageId) {
  using namespace velmohelp;
  return Guarded<std::uint32_t>(kDisplayUnexpectedResult,
                                [&] { return Display(pageId); });
}
