// Whether online help may be used: policy, then reachability.
// After the end of the state (velmohelp.h, convention 8) they do nothing and
// return false or "".
#ifndef VELMOHELP_ONLINE_H_
#define VELMOHELP_ONLINE_H_

#include <velmohelp/export.h>

#include <string>

/// Keeps in the client's state, which the requests read, whether online help
/// may be used: neither preference is "0", as GetOnlineDefault has it, and the
/// help server can be reached. The network is not probed when the preferences
/// forbid its use. The flag is false when this throws std::bad_alloc.
VELMOHELP_API void GetNetworkStatus();

namespace ITEMInternal {

/// A scope of the preference that allows online help.
enum NexletPreference : int {
  kAdminPreference = 0,  ///< The administrator's: any user, this host.
  kUserPreference = 1,   ///< The user's: this user, any host.
};

/// True when neither preference is "0". The user's is not read when the
/// administrator's is "0".
VELMOHELP_API bool GetOnlineDefault();

/// False only when the scope's preference is exactly "0".
VELMOHELP_API bool GetAdminOnlinePref();
VELMOHELP_API bool GetUserOnlinePref();

/// True when the URL's host can be reached without first establishing a
/// connection. No packet is sent to the host. False also when url is not a URI
/// (a space, a double quote, a byte beyond ASCII, a "%" without two hexadecimal
/// digits), has no host, or has a host that, unescaped, is not valid UTF-8, has
/// a zero byte, or has more than 254 bytes.
VELMOHELP_API bool GetOnlineStatus(const std::string& url);

/// The preference's text, UTF-8; "" when nothing is set, it cannot be read, or
/// which is neither of the two scopes. Never throws.
VELMOHELP_API std::string GetNexletPreference(NexletPreference which);

}  // namespace ITEMInternal

#endif  // VELMOHELP_ONLINE_H_
