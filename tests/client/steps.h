// What the client asks the machine in the steps that its requests share, as a
// ClientWorld with its viewer reader.VELMO.1 tells it.
#ifndef TESTS_CLIENT_STEPS_H_
#define TESTS_CLIENT_STEPS_H_

#include <string>
#include <vector>

namespace velmohelp::testing {

using Steps = std::vector<std::string>;

inline Steps Joined(const std::vector<Steps>& parts) {
  Steps all;
  for (const Steps& part : parts) {
    all.insert(all.end(), part.begin(), part.end());
  }
  return all;
}

inline constexpr char kDownloadedConfigIsLookedFor[] =
    "FindFile \"~/Preferences/reader.VELMO.1/Local Store//Foo/Cfg/"
    "Foo.helpcfg\"";

inline const Steps kConfigurationIsRead = {"ResourcesDirectory",
                                           "PreferencesFolder create",
                                           kDownloadedConfigIsLookedFor};

inline constexpr char kToolIsLookedFor[] =
    "FindFile ~/Framework//Versions/A/Resources/QTV";
inline constexpr char kIsViewerInstalled[] =
    "RunToEnd ~/Framework//Versions/A/Resources/QTV -isAppInstalled reader "
    "VELMO.1";

inline constexpr char kWhereIsTheViewer[] =
    "FirstOutput ~/Framework//Versions/A/Resources/QTV -appLocation reader "
    "VELMO.1";

inline const Steps kViewerIsLookedUp = {
    "BundleDirectory com.velmo.vxclientframework", kToolIsLookedFor,
    kIsViewerInstalled, kWhereIsTheViewer,
    "ApplicationExecutable ~/Viewer.app"};

inline const Steps kNetworkIsProbed = {
    "Preference admin com.velmo.VelmoOnlineHelp VelmoOnlineDefault",
    "Preference user com.velmo.VelmoOnlineHelp VelmoOnlineDefault",
    "HostReachability localhost"};

inline const Steps kPreferenceFileIsLookedFor = {
    "FindFile \"~/Preferences/reader.VELMO.1/Local Store/klh-pref.xml\""};

/// The viewer, and only when it is there its runtime.
inline const Steps kViewerIsTried = {
    "FindFile ~/Viewer", "BundleDirectory com.velmo.vxclientframework",
    kToolIsLookedFor,
    "RunToEnd ~/Framework//Versions/A/Resources/QTV -isRuntimeInstalled"};

/// The question whether a file exists in the downloaded folder.
inline std::string InDownloadedManual(const std::string& name) {
  return "FindFile \"~/Preferences/reader.VELMO.1/Local Store/Help/manual" +
         name + "\"";
}

}  // namespace velmohelp::testing

#endif  // TESTS_CLIENT_STEPS_H_
