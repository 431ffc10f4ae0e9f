// The part of the client's state that other modules can see. Each variable has
// C linkage, so that its symbol is its plain name. All exist as long as the
// library is loaded, without a lock (velmohelp.h, convention 4). The library
// uses its own ones only, even where a host has variables with these names.
#ifndef VELMOHELP_STATE_H_
#define VELMOHELP_STATE_H_

#include <velmohelp/export.h>

#include <map>
#include <string>

extern "C" {

/// The viewer's application id: key "appId" of the help configuration, or the
/// default. Empty at load.
VELMOHELP_API_VARIABLE extern std::string sAppID;
/// The viewer's publisher id: key "pubId", or the default. Empty at load.
VELMOHELP_API_VARIABLE extern std::string sPublisherID;
/// Page id to page: the help map that was read last. Empty at load.
VELMOHELP_API_VARIABLE extern std::map<std::string, std::string> sHelpMap;
/// "klh", never changed after load.
VELMOHELP_API_VARIABLE extern std::string sDefaultAppID;
/// Forty hexadecimal digits, a point and a version digit; never changed.
VELMOHELP_API_VARIABLE extern std::string sDefaultPublisherID;

/// The next three are relative to the user's Preferences folder, begin with
/// "/", and are empty until an initialisation has read a configuration.
/// "/<app id>.<publisher id>/Local Store/klh-pref.xml"
VELMOHELP_API_VARIABLE extern std::string kKLHPreferenceFile;
/// "/<app id>.<publisher id>/Local Store/Help/"
VELMOHELP_API_VARIABLE extern std::string kDownloadedOfflineContent;
/// "/<app id>.<publisher id>/Local Store/"
VELMOHELP_API_VARIABLE extern std::string kDownloadedHelpcfg;

/// "TRUE" and "FALSE", with which preference values are compared.
VELMOHELP_API_VARIABLE extern const char* kTrue;
VELMOHELP_API_VARIABLE extern const char* kFalse;
}

#endif  // VELMOHELP_STATE_H_
