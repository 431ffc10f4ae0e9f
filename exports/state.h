// The variables that hold the client's state. client/client_state.h says what
// each one means.
#ifndef EXPORTS_STATE_H_
#define EXPORTS_STATE_H_

#include <velmohelp/export.h>
// The library defines what others refer to weakly.
#undef VELMOHELP_API_VARIABLE
#define VELMOHELP_API_VARIABLE VELMOHELP_API
#include <velmohelp/state.h>

#include <cstdint>
#include <map>
#include <string>

#include "client/client_state.h"
#include "exports/lifetime.h"

/// The assembler's name of a variable, of which the exported name is an alias.
#define VELMO_OWN_SYMBOL(name) "velmohelp_own_" #name

namespace velmohelp {

/// The variables with destructors. The library uses no exported name: a host
/// that has a variable with the same name would get its values, or give it
/// ours.
namespace own {

using String = StateVariable<std::string>;
struct ContentTable {
  std::string rows[kHelpPathCapacity][2];
};

extern String sAppID asm(VELMO_OWN_SYMBOL(sAppID));
extern String sPublisherID asm(VELMO_OWN_SYMBOL(sPublisherID));
extern StateVariable<HelpMap> sHelpMap asm(VELMO_OWN_SYMBOL(sHelpMap));
extern String sDefaultAppID asm(VELMO_OWN_SYMBOL(sDefaultAppID));
extern String sDefaultPublisherID asm(VELMO_OWN_SYMBOL(sDefaultPublisherID));
extern String kKLHPreferenceFile asm(VELMO_OWN_SYMBOL(kKLHPreferenceFile));
extern String kDownloadedOfflineContent asm(
    VELMO_OWN_SYMBOL(kDownloadedOfflineContent));
extern String kDownloadedHelpcfg asm(VELMO_OWN_SYMBOL(kDownloadedHelpcfg));

extern String sProductID;
extern String sLocale;
extern String sConfigID;
extern String sBaseUrl;
extern StateVariable<ContentTable> sHelpPaths;
extern String sHelpAppPath;

}  // namespace own

inline constexpr std::string& sProductID = own::sProductID.value;
inline constexpr std::string& sLocale = own::sLocale.value;
inline constexpr std::string& sConfigID = own::sConfigID.value;
inline constexpr std::string& sBaseUrl = own::sBaseUrl.value;
inline constexpr std::string (&sHelpPaths)[kHelpPathCapacity][2] =
    own::sHelpPaths.value.rows;
inline constexpr std::string& sHelpAppPath = own::sHelpAppPath.value;

extern std::int32_t sInitStatus;
extern std::int32_t sHelpPathCount;
extern bool sAppIDIsNull;
extern std::uint32_t sViewerChoice;
extern bool sIsOnline;
extern bool sQueryIsRaw;

}  // namespace velmohelp

#endif  // EXPORTS_STATE_H_
