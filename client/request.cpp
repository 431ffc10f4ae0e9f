#include "client/request.h"

#include <velmohelp/config.h>
#include <velmohelp/platform.h>
#include <velmohelp/velmohelp.h>

#include <cstring>

#include "client/state.h"
#include "util/c_string.h"
#include "util/str_cat.h"

namespace velmohelp {
namespace {

constexpr int kViewerAllowed = 1;

}  // namespace

bool HasText(const char* text) {
  return text != nullptr && text[std::strspn(text, " ")] != '\0';
}

void RereadConfiguration(const std::string& locale) {
  sInitStatus = static_cast<std::int32_t>(UpdateHelpConfigInfo(locale));
}

std::uint32_t CodeOfConfiguration() {
  if (sInitStatus == kInitMissingConfig) return kDisplayMissingConfig;
  if (sInitStatus == kInitInvalidConfig) return kDisplayInvalidConfig;
  return sHelpPathCount < 1 ? kDisplayInvalidConfig : kDisplaySuccess;
}

void RefreshHelpAppPath() {
  sHelpAppPath = ITEMInternal::GetHelpApplicationPath();
}

void TakeDefaultViewer() {
  sAppID = sDefaultAppID;
  sPublisherID = sDefaultPublisherID;
}

void TakeDefaultViewerIfNoneIsNamed() {
  if (sAppID.empty() && sPublisherID.empty()) TakeDefaultViewer();
}

bool IsViewerInstalled() {
  return ITEMInternal::FileExists(sHelpAppPath) &&
         ITEMInternal::IsZAMRuntimePresent();
}

bool IsViewerUsable(const std::string& preference_file) {
  if (ITEMInternal::FileExists(preference_file) &&
      GetKLHFilePreferenceForHelpApp(preference_file) != kViewerAllowed) {
    return false;
  }
  return IsViewerInstalled();
}

int LaunchViewer(const char* verb, const std::string& request) {
  return ITEMInternal::LaunchApplication(sHelpAppPath, verb, sProductID,
                                         sLocale, request);
}

std::string Quoted(const std::string& url) {
  return StrCat({"\"", UpToZero(url), "\""});
}

}  // namespace velmohelp
