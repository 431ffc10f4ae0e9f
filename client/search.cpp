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

/// A search answers from the numbers of DisplayPageReturnCode, some of which
/// mean something else here.
enum SearchCode : std::uint32_t {
  kSearchStarted = 0,
  kSearchNotStarted = 1,
  kSearchInvalidArgument = 3,
  kNoLocalSearchPage = 6,
  kNoOnlineSearchPage = 7,
  kNoConfigName = 8,
};

bool IsEmpty(const char* text) { return text == nullptr || *text == '\0'; }

void PrepareConfiguration(const char* locale) {
  if (sInitStatus == kInitSuccess) {
    RereadConfiguration(locale);
    return;
  }
  sInitStatus = static_cast<std::int32_t>(
      InitializeVelmoHelpClient(sProductID.c_str(), sLocale.c_str(), 0));
}

/// The text as the search page or the viewer gets it. Search's own mark holds
/// for one term.
std::string TakeTerm(const char* text) {
  std::string term = sQueryIsRaw ? text : urlencode(text);
  sQueryIsRaw = false;
  return term;
}

std::uint32_t SearchInBrowser(const std::string& term) {
  sIsOnline = false;
  GetNetworkStatus();
  std::string page;
  if (!GetSearchPage(page, sLocale, sHelpPaths)) {
    return sIsOnline ? kNoOnlineSearchPage : kNoLocalSearchPage;
  }
  const std::string query = page + "?q=";
  const std::string address =
      sIsOnline ? query + term
                : ITEMInternal::AppendToPath(
                      "file://",
                      ITEMInternal::VelmoHelpEncodeURIComponent(query) + term);
  return ITEMInternal::LaunchPlatformBrowser(address) == 0 ? kSearchStarted
                                                           : kSearchNotStarted;
}

std::uint32_t RunSearch(const char* product, const char* locale,
                        const char* text) {
  if (IsEmpty(product) || IsEmpty(locale) || !HasText(text)) {
    return kSearchInvalidArgument;
  }
  sProductID = product;
  sLocale = locale;
  PrepareConfiguration(locale);
  const std::uint32_t code = CodeOfConfiguration();
  if (code != kDisplaySuccess) return code;
  TakeDefaultViewerIfNoneIsNamed();
  RefreshHelpAppPath();
  const std::string term = TakeTerm(text);
  const bool in_viewer =
      !sAppIDIsNull && IsViewerUsable(ITEMInternal::GetKLHPreferenceFilePath());
  return in_viewer ? static_cast<std::uint32_t>(LaunchViewer("SEARCH", term))
                   : SearchInBrowser(term);
}

}  // namespace
}  // namespace velmohelp

uint32_t SearchHelp(const char* productId, const char* locale,
                    const char* searchText) {
  using namespace velmohelp;
  return Guarded<std::uint32_t>(kSearchNotStarted, [&] {
    return RunSearch(productId, locale, searchText);
  });
}

uint32_t Search(const char* a, const char* b, const char* locale,
                const char* searchText) {
  using namespace velmohelp;
  return Guarded<std::uint32_t>(kSearchNotStarted, [&]() -> std::uint32_t {
    sQueryIsRaw = true;
    const std::string name =
        IsEmpty(a) || IsEmpty(b) ? "" : ITEMInternal::GetHelpConfigName(a, b);
    // The mark stays set and holds for the next search; callers rely on it.
    if (name.empty()) return kNoConfigName;
    return SearchHelp(name.c_str(), locale, searchText);
  });
}
