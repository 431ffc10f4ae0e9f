// Names for the results of the requests that scripts call through the module.
// The two tables that the plug-in brings along do not fit: each request numbers
// its failures differently.
#ifndef HOST_REQUEST_RESULTS_H_
#define HOST_REQUEST_RESULTS_H_

#include <velmohelp/velmohelp.h>

#include "exports/result_codes.h"

namespace velmohelp {

inline constexpr ResultCodeTable<9> kOpenUrlReturnCode = {
    {"Open URL Return Code", kOpenUrlReturnCode.values},
    {{"success", kOpenUrlSuccess},
     {"browserLaunchFailure", kOpenUrlBrowserLaunchFailure},
     {"helpAppLaunchFailure", kOpenUrlHelpAppLaunchFailure},
     {"invalidArgument", kOpenUrlInvalidArgument},
     {"missingConfig", kOpenUrlMissingConfig},
     {"invalidConfig", kOpenUrlInvalidConfig},
     {"invalidInitialization", kOpenUrlInvalidInitialization},
     {"unexpectedResult", kOpenUrlUnexpectedResult},
     {nullptr, 0}}};

inline constexpr ResultCodeTable<8> kSearchReturnCode = {
    {"Search Return Code", kSearchReturnCode.values},
    {{"success", kSearchSuccess},
     {"launchFailure", kSearchLaunchFailure},
     {"invalidArgument", kSearchInvalidArgument},
     {"missingConfig", kSearchMissingConfig},
     {"invalidConfig", kSearchInvalidConfig},
     {"noLocalPage", kSearchNoLocalPage},
     {"noOnlinePage", kSearchNoOnlinePage},
     {nullptr, 0}}};

inline constexpr ResultCodeTable<4> kOnlineStatusReturnCode = {
    {"Online Status Return Code", kOnlineStatusReturnCode.values},
    {{"online", kOnlineStatusOnline},
     {"offline", kOnlineStatusOffline},
     {"notInitialized", kOnlineStatusNotInitialized},
     {nullptr, 0}}};

}  // namespace velmohelp

#endif  // HOST_REQUEST_RESULTS_H_
