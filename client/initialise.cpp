#include <velmohelp/config.h>
#include <velmohelp/online.h>
#include <velmohelp/velmohelp.h>

#include <algorithm>

#include "client/request.h"
#include "client/state.h"
#include "exports/guarded.h"

namespace velmohelp {
namespace {

constexpr std::uint32_t kVersion = 0x10500;

enum OnlineStatusCode : std::uint32_t {
  kOnline = 0,
  kOffline = 1,
  kNotInitialised = 2,
};

std::string WithoutPathSeparators(std::string product) {
  std::ranges::replace(product, '/', '_');
  std::ranges::replace(product, '\\', '_');
  return product;
}

/// Where the viewer keeps its files, below the user's Preferences folder.
void BuildViewerPaths() {
  if (sAppID.empty() || sPublisherID.empty()) TakeDefaultViewer();
  const std::string store = "/" + sAppID + "." + sPublisherID + "/Local Store/";
  kKLHPreferenceFile = store + "klh-pref.xml";
  kDownloadedOfflineContent = store + "Help/";
  kDownloadedHelpcfg = store;
}

/// The configuration is read twice: only the second read can see a downloaded
/// one, in the viewer's folder that the first read has made known.
std::uint32_t Initialise(const std::string& product,
                         const std::string& locale) {
  if (sInitStatus == kInitSuccess && sProductID == product &&
      sLocale == locale) {
    return kInitSuccess;
  }
  sProductID = product;
  sLocale = locale;
  const std::uint32_t first_read = UpdateHelpConfigInfo(locale);
  if (first_read != kConfigAccepted) return first_read;
  BuildViewerPaths();
  GetNetworkStatus();
  return UpdateHelpConfigInfo(sLocale);
}

}  // namespace
}  // namespace velmohelp

uint32_t InitializeVelmoHelpClient(const char* productId, const char* locale,
                                   unsigned int cleanProductId) {
  using namespace velmohelp;
  if (!HasText(productId) || !HasText(locale)) return kInitInvalidArgument;
  const auto initialise = [&] {
    return Initialise(
        cleanProductId != 0 ? WithoutPathSeparators(productId) : productId,
        locale);
  };
  // Stored also where an exception cut it short: a state of which one half is
  // new and the other old must not pass for initialised.
  const auto code = Guarded<std::uint32_t>(kInitMissingConfig, initialise);
  sInitStatus = static_cast<std::int32_t>(code);
  return code;
}

uint32_t GetVelmoHelpClientVersion(void) { return velmohelp::kVersion; }

uint32_t GetVelmoHelpClientOnlineStatus(void) {
  using namespace velmohelp;
  if (sInitStatus != kInitSuccess) return kNotInitialised;
  return Guarded<std::uint32_t>(kOffline, [] {
    sIsOnline = false;
    GetNetworkStatus();
    return sIsOnline ? kOnline : kOffline;
  });
}
