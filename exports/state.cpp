// The order of these definitions is the order of construction at load, and in
// reverse that of destruction at unload; a second file, state_paths.cpp, comes
// after this one. Both are documented, so neither order may change.
#include "exports/state.h"

#include "exports/exported_variable.h"

namespace velmohelp {
namespace own {

String sConfigID;
String sLocale;
String sHelpAppPath;
/// No operation uses this one. It keeps the documented order.
String sUnused;
String sBaseUrl;
String sProductID;
StateVariable<ContentTable> sHelpPaths;
String sAppID;
String sPublisherID;
StateVariable<HelpMap> sHelpMap;
String sDefaultAppID("klh");
String sDefaultPublisherID("9C3A51F07B26D48E15A0C7F3B9D2E6418A75C0D2.1");

}  // namespace own

std::int32_t sInitStatus = 1;
std::int32_t sHelpPathCount = kHelpPathCapacity;
bool sAppIDIsNull = false;
std::uint32_t sViewerChoice = 0;
bool sIsOnline = false;
bool sQueryIsRaw = false;

}  // namespace velmohelp

VELMO_EXPORT_OWN(sAppID);
VELMO_EXPORT_OWN(sPublisherID);
VELMO_EXPORT_OWN(sHelpMap);
VELMO_EXPORT_OWN(sDefaultAppID);
VELMO_EXPORT_OWN(sDefaultPublisherID);

// The library does not use these two: other modules do.
const char* kTrue = "TRUE";
const char* kFalse = "FALSE";
VELMO_PROTECT(kTrue);
VELMO_PROTECT(kFalse);
