// What the three requests (display, URL, search) and the initialisation have
// in common. All of it works on the client's state.
#ifndef CLIENT_REQUEST_H_
#define CLIENT_REQUEST_H_

#include <cstdint>
#include <string>

namespace velmohelp {

/// text is not null and holds something besides blanks. Blanks count only in
/// this test; a text is used as the caller gave it.
bool HasText(const char* text);

/// Reads the configuration of a locale again; what becomes of it is the state's
/// sInitStatus.
void RereadConfiguration(const std::string& locale);

/// What a request answers to the state that the configuration was read into: 0
/// when the request may go on, else 4 or 5 of DisplayPageReturnCode.
std::uint32_t CodeOfConfiguration();

/// Asks the tool where the viewer is.
void RefreshHelpAppPath();

/// Sets both viewer ids to the defaults.
void TakeDefaultViewer();

/// TakeDefaultViewer when both ids are empty; one that is set stands.
void TakeDefaultViewerIfNoneIsNamed();

/// The viewer lies where the tool said, and its runtime is installed. The
/// runtime is asked about only when the viewer is there.
bool IsViewerInstalled();

/// The choice that all requests share, with the viewer's preference file at a
/// path: the file, where there is one, must allow the viewer, and the viewer
/// must be installed.
bool IsViewerUsable(const std::string& preference_file);

/// Starts the viewer with a verb, product, locale and request. 0 or 1.
int LaunchViewer(const char* verb, const std::string& request);

/// url between double quotes; nothing in it is escaped. It ends at its first
/// zero byte: the viewer gets a C string, and would lose the closing quote.
std::string Quoted(const std::string& url);

}  // namespace velmohelp

#endif  // CLIENT_REQUEST_H_
