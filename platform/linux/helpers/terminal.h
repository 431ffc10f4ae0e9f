// Programs that need a terminal.
#ifndef PLATFORM_LINUX_HELPERS_TERMINAL_H_
#define PLATFORM_LINUX_HELPERS_TERMINAL_H_

#include <string>
#include <vector>

namespace velmohelp {

/// A command line that runs another one in the first terminal emulator that
/// there is; empty when there is none. An empty one stays empty.
std::vector<std::string> InTerminal(std::vector<std::string> words);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_HELPERS_TERMINAL_H_
