// The client's operations. Each throws std::bad_alloc, or
// std::ios_base::failure when a help map cannot be read to its end, unless it
// says otherwise.
#ifndef CLIENT_CLIENT_H_
#define CLIENT_CLIENT_H_

#include <velmohelp/velmohelp.h>

#include "client/client_state.h"
#include "platform/machine.h"
#include "platform/observer.h"

namespace velmohelp {

/// What every operation works on: the machine that it runs on, the state that
/// it reads and rewrites, and who watches it, if anybody does. All are the
/// caller's.
struct Client {
  Machine& machine;
  ClientState& state;
  RequestObserver* observer = nullptr;
};

/// See ::InitializeVelmoHelpClient. Does not throw.
InitReturnCode Initialise(const Client& client, const char* product,
                          const char* locale, bool clean_product) noexcept;

/// See ::GetVelmoHelpClientOnlineStatus.
OnlineStatusReturnCode OnlineStatusOf(const Client& client);

/// Sets is_online: online help is allowed, and its server can be reached.
void RefreshOnlineStatus(const Client& client);

/// See ::DisplayVelmoHelpClientPage.
DisplayPageReturnCode DisplayPage(const Client& client, const char* page_id);

/// See ::OpenURL.
OpenUrlReturnCode OpenUrl(const Client& client, const char* url);

/// See ::SearchHelp.
SearchReturnCode SearchHelp(const Client& client, const char* product,
                            const char* locale, const char* text);

/// See ::Search.
SearchReturnCode SearchByNames(const Client& client, const char* a,
                               const char* b, const char* locale,
                               const char* text);

}  // namespace velmohelp

#endif  // CLIENT_CLIENT_H_
