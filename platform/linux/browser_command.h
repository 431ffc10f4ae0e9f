// The answer of velmohelp-browser.
#ifndef PLATFORM_LINUX_BROWSER_COMMAND_H_
#define PLATFORM_LINUX_BROWSER_COMMAND_H_

#include <optional>
#include <string_view>

#include "platform/machine.h"

namespace velmohelp {

/// The command line that an answer asks to be started: an absolute path, and
/// its arguments. Empty when the desktop opened the URL itself; nullopt when
/// it is no whole answer.
std::optional<Arguments> ParseBrowserAnswer(std::string_view answer);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_BROWSER_COMMAND_H_
