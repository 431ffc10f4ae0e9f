// The client's whole state: the exported variables and those that are visible
// inside the library alone. Its values at load stand here; who writes each one
// later, beside it.
#ifndef CLIENT_STATE_H_
#define CLIENT_STATE_H_

#include <velmohelp/state.h>

#include <cstdint>
#include <string>

#include "config/help_config.h"

namespace velmohelp {

/// Code of the last configuration read (InitReturnCode), 1 at load; 0 means
/// that the client is initialised. Written by every request.
extern std::int32_t sInitStatus;

/// The initialisation's arguments as stored. A configuration that is accepted
/// replaces the locale by the first five bytes of its "id".
extern std::string sProductID;
extern std::string sLocale;

/// "id" and "baseUrl" of the configuration read last.
extern std::string sConfigID;
extern std::string sBaseUrl;

/// Content folders: name, and "YES" where the folder takes part.
extern std::string sHelpPaths[kHelpPathCapacity][2];
/// Rows of sHelpPaths in use; the capacity before a read, and at load.
extern std::int32_t sHelpPathCount;

/// The configuration names no viewer application.
extern bool sAppIDIsNull;

/// The viewer's executable, asked of the tool by every request.
extern std::string sHelpAppPath;

/// Where the current page display goes: kShowInViewer or kShowInBrowser; 0 at
/// load.
extern std::uint32_t sViewerChoice;
inline constexpr std::uint32_t kShowInViewer = 1;
inline constexpr std::uint32_t kShowInBrowser = 2;

/// Online help may be used.
extern bool sIsOnline;

/// The next search passes its text on unencoded. Set by Search.
extern bool sQueryIsRaw;

}  // namespace velmohelp

#endif  // CLIENT_STATE_H_
