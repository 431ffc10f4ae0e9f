// The two preferences that the help client reads, as the person sets them here.
#ifndef VIEWER_CONTENT_PREFERENCES_H_
#define VIEWER_CONTENT_PREFERENCES_H_

#include <string>
#include <string_view>

namespace viewer {

/// "Open help in my browser instead": accessibleMode in klh-pref.xml.
bool UsesBrowser();
/// False when the file cannot be written.
bool SetUsesBrowser(bool uses_browser);

/// "Use online help": the user's preference.
bool UsesOnlineHelp();
bool SetUsesOnlineHelp(bool uses_online_help);
/// True when the administrator has switched online help off: the user's
/// preference then has no effect.
bool IsOnlineHelpLocked();

/// Opens a URL in the default browser. Blocks as the client does. False when no
/// browser took it.
bool OpenInBrowser(const std::string& url);

/// text with the value of a key of klh-pref.xml replaced or added; everything
/// else in it stays.
std::string WithValue(std::string text, std::string_view key,
                      std::string_view value);

/// text with the value of a key in the group [Preferences] of a preference file
/// replaced or added; everything else in it stays.
std::string WithPreference(const std::string& text, const std::string& key,
                           const std::string& value);

}  // namespace viewer

#endif  // VIEWER_CONTENT_PREFERENCES_H_
