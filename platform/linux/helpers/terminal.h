// Programs that need a terminal.
#ifndef PLATFORM_LINUX_HELPERS_TERMINAL_H_
#define PLATFORM_LINUX_HELPERS_TERMINAL_H_

#include <string>
#include <vector>

namespace velmohelp {

/// The argument vector that runs another one in the first terminal emulator
/// that is installed. Empty when there is none, or words is empty.
std::vector<std::string> InTerminal(std::vector<std::string> words);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_HELPERS_TERMINAL_H_
