// Where a command prints.
#ifndef TOOLS_CONSOLE_H_
#define TOOLS_CONSOLE_H_

#include <ostream>

namespace velmohelp::tool {

struct Console {
  std::ostream& out;
  std::ostream& err;
  /// Whether a person watches. Colours are for out, a progress bar for err.
  bool out_is_terminal = false;
  bool err_is_terminal = false;
};

}  // namespace velmohelp::tool

#endif  // TOOLS_CONSOLE_H_
