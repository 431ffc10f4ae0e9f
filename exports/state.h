// The variables that hold the client's state. Those of <velmohelp/state.h> are
// exported; these are visible only inside the library. client/client_state.h
// says what each one means.
#ifndef EXPORTS_STATE_H_
#define EXPORTS_STATE_H_

#include <velmohelp/state.h>

#include <cstdint>
#include <string>

#include "client/client_state.h"

namespace velmohelp {

extern std::int32_t sInitStatus;
extern std::string sProductID;
extern std::string sLocale;
extern std::string sConfigID;
extern std::string sBaseUrl;
extern std::string sHelpPaths[kHelpPathCapacity][2];
extern std::int32_t sHelpPathCount;
extern bool sAppIDIsNull;
extern std::string sHelpAppPath;
extern std::uint32_t sViewerChoice;
extern bool sIsOnline;
extern bool sQueryIsRaw;

}  // namespace velmohelp

#endif  // EXPORTS_STATE_H_
