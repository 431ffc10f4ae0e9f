// The order of these definitions is the order of construction at load, and in
// reverse that of destruction at unload; a second file, state_paths.cpp, comes
// after this one. Both are documented, so neither order may change.
#include "exports/state.h"

namespace velmohelp {

std::string sConfigID;
std::string sLocale;
std::string sHelpAppPath;
/// No operation uses this one. It keeps the documented order.
std::string sUnused;
std::string sBaseUrl;
std::string sProductID;
std::string sHelpPaths[kHelpPathCapacity][2];

}  // namespace velmohelp

std::string sAppID;
std::string sPublisherID;
std::map<std::string, std::string> sHelpMap;
std::string sDefaultAppID = "klh";
std::string sDefaultPublisherID = "9C3A51F07B26D48E15A0C7F3B9D2E6418A75C0D2.1";
const char* kTrue = "TRUE";
const char* kFalse = "FALSE";

namespace velmohelp {

std::int32_t sInitStatus = 1;
std::int32_t sHelpPathCount = kHelpPathCapacity;
bool sAppIDIsNull = false;
std::uint32_t sViewerChoice = 0;
bool sIsOnline = false;
bool sQueryIsRaw = false;

}  // namespace velmohelp
