// Names for the results of the requests that scripts call through the module.
// The two tables that the plug-in brings along do not fit: each request numbers
// its failures differently.
#ifndef HOST_REQUEST_RESULTS_H_
#define HOST_REQUEST_RESULTS_H_

#include "exports/result_codes.h"

namespace velmohelp {

inline constexpr ResultCodeTable<9> kOpenUrlReturnCode = {
    {"Open URL Return Code", kOpenUrlReturnCode.values},
    {{"success", 0},
     {"browserLaunchFailure", 1},
     {"helpAppLaunchFailure", 2},
     {"invalidArgument", 3},
     {"missingConfig", 4},
     {"invalidConfig", 5},
     {"invalidInitialization", 6},
     {"unexpectedResult", 7},
     {nullptr, 0}}};

inline constexpr ResultCodeTable<8> kSearchReturnCode = {
    {"Search Return Code", kSearchReturnCode.values},
    {{"success", 0},
     {"launchFailure", 1},
     {"invalidArgument", 3},
     {"missingConfig", 4},
     {"invalidConfig", 5},
     {"noLocalPage", 6},
     {"noOnlinePage", 7},
     {nullptr, 0}}};

inline constexpr ResultCodeTable<4> kOnlineStatusReturnCode = {
    {"Online Status Return Code", kOnlineStatusReturnCode.values},
    {{"online", 0}, {"offline", 1}, {"notInitialized", 2}, {nullptr, 0}}};

}  // namespace velmohelp

#endif  // HOST_REQUEST_RESULTS_H_
