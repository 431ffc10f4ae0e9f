// The viewer's preference file, "klh-pref.xml".
#ifndef CONFIG_VIEWER_PREFERENCES_H_
#define CONFIG_VIEWER_PREFERENCES_H_

#include <string>

#include "platform/observer.h"

namespace velmohelp {

/// False when "accessibleMode" is "TRUE" in any letter case: a person who needs
/// it reads help in the browser. True without a file or a setting.
bool IsViewerAllowed(const std::string& preference_file,
                     RequestObserver* observer = nullptr);

/// False when "localHelp" is "TRUE" in any letter case, else true.
bool IsNetworkHelpAllowed(const std::string& preference_file);

}  // namespace velmohelp

#endif  // CONFIG_VIEWER_PREFERENCES_H_
