// The command line of lxhost.
#ifndef HOST_OPTIONS_H_
#define HOST_OPTIONS_H_

#include <span>
#include <vector>

namespace velmohelp {

inline constexpr char kUsage[] =
    "usage: lxhost [-i] [-e TEXT]... [SCRIPT [ARGUMENT...]]\n"
    "\n"
    "Loads the context-help client as a plug-in and runs a Lua script.\n"
    "\n"
    "  -e TEXT     run TEXT, before the script; may be repeated\n"
    "  -i          prompt for statements, after the script\n"
    "  --help      print this and exit\n"
    "  --version   print the version and exit\n"
    "  --          no option follows\n"
    "\n"
    "SCRIPT \"-\" is standard input. Without TEXT and SCRIPT, lxhost prompts\n"
    "when standard input is a terminal, and otherwise reads a script from "
    "it.\n";

struct Options {
  enum class Action { kRun, kPrintUsage, kPrintVersion, kRefuse };

  Action action = Action::kRun;
  std::vector<const char*> statements;
  bool prompts = false;
  /// The script and its arguments; empty without a script.
  std::span<char*> script;
  /// The argument that cannot be understood, for kRefuse.
  const char* refused = nullptr;
};

/// arguments: those of main, the program first.
Options ParseOptions(std::span<char*> arguments);

}  // namespace velmohelp

#endif  // HOST_OPTIONS_H_
