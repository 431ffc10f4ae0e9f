// The help viewer: its ids, whether it can be used, and starting it.
#ifndef CLIENT_VIEWER_H_
#define CLIENT_VIEWER_H_

#include <string>
#include <string_view>

#include "client/client.h"
#include "platform/launch.h"

namespace velmohelp {

/// Sets both viewer ids to the defaults.
void SetDefaultViewer(ClientState& state);

/// SetDefaultViewer when both ids are empty; one that is set stays.
void SetDefaultViewerIfNoneIsNamed(ClientState& state);

/// Asks the tool where the viewer is.
void RefreshHelpAppPath(const Client& client);

/// The viewer is where the tool said, and its runtime is installed. The
/// runtime is asked about only when the viewer exists.
bool IsViewerInstalled(const Client& client);

/// The viewer's preference file.
std::string PreferenceFile(const Client& client);

/// The choice between viewer and browser that all requests share: the
/// configuration must name a viewer, the preference file, if it exists, must
/// allow it, and it must be installed. The file's path is looked up only when
/// a viewer is named; a request that looks it up earlier passes it in.
bool IsViewerUsable(const Client& client);
bool IsViewerUsable(const Client& client, const std::string& preference_file);

/// Starts the viewer with a verb, product, locale and request.
LaunchResult LaunchViewer(const Client& client, const char* verb,
                          const std::string& request);

/// url between double quotes; nothing in it is escaped. It ends at its first
/// zero byte: the viewer gets a C string, and would lose the closing quote.
std::string Quoted(std::string_view url);

}  // namespace velmohelp

#endif  // CLIENT_VIEWER_H_
