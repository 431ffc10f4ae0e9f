// The answer of velmohelp-browser.
#ifndef PLATFORM_LINUX_BROWSER_COMMAND_H_
#define PLATFORM_LINUX_BROWSER_COMMAND_H_

#include <optional>
#include <string_view>

#include "platform/machine.h"

namespace velmohelp {

/// The argument vector that an answer asks to start; its program is an absolute
/// path. Empty when the desktop opened the URL itself, or would. nullopt when
/// nothing opens the URL, or the answer is not complete.
std::optional<Arguments> ParseBrowserAnswer(std::string_view answer);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_BROWSER_COMMAND_H_
