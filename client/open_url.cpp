#include <velmohelp/config.h>
#include <velmohelp/platform.h>
#include <velmohelp/resolve.h>
#include <velmohelp/text.h>
#include <velmohelp/velmohelp.h>

#include "client/request.h"
#include "client/state.h"
#include "exports/guarded.h"

namespace velmohelp {
namespace {

/// The codes of the two failed launches are crossed: the viewer's failure
/// comes back as the browser's and the other way about. Callers compare the
/// numbers, so this stays.
std::uint32_t CodeOfLaunch(int launch) {
  switch (launch) {
    case 0:
      return kDisplaySuccess;
    case 1:
      return kDisplayBrowserLaunchFailure;
    case 2:
      return kDisplayHelpAppLaunchFailure;
    default:
      return kDisplayPageidDoesNotExist;
  }
}

std::uint32_t Open(const char* url) {
  if (!HasText(url) || !isUrl(url)) return kDisplayInvalidArgument;
  if (sInitStatus != kInitSuccess) return kDisplayInvalidInitialization;
  RereadConfiguration(sLocale);
  TakeDefaultViewerIfNoneIsNamed();
  RefreshHelpAppPath();
  const std::uint32_t code = CodeOfConfiguration();
  if (code != kDisplaySuccess) return code;
  const bool in_viewer =
      !sAppIDIsNull && IsViewerUsable(ITEMInternal::GetKLHPreferenceFilePath());
  return CodeOfLaunch(
      in_viewer ? LaunchViewer("URL", Quoted(url))
                : ITEMInternal::LaunchPlatformBrowser(
                      ITEMInternal::VelmoHelpEncodeURIComponent(url)));
}

}  // namespace
}  // namespace velmohelp

uint32_t OpenURL(const char* url) {
  using namespace velmohelp;
  return Guarded<std::uint32_t>(kDisplayPageidDoesNotExist,
                                [&] { return Open(url); });
}
