#include "platform/linux/helpers/terminal.h"

#include <glib.h>

#include "platform/linux/helpers/gobject_ptr.h"

namespace velmohelp {
namespace {

struct Terminal {
  const char* program;
  /// Goes before the command line; null for nothing.
  const char* option;
};

/// The names by which systems and users choose one come first.
constexpr Terminal kTerminals[] = {
    {"xdg-terminal-exec", nullptr}, {"x-terminal-emulator", "-e"},
    {"gnome-terminal", "--"},       {"konsole", "-e"},
    {"xfce4-terminal", "-x"},       {"xterm", "-e"},
};

}  // namespace

std::vector<std::string> InTerminal(std::vector<std::string> words) {
  if (words.empty()) return words;
  for (const Terminal& terminal : kTerminals) {
    if (!TextPtr(g_find_program_in_path(terminal.program))) continue;
    if (terminal.option != nullptr) {
      words.insert(words.begin(), terminal.option);
    }
    words.insert(words.begin(), terminal.program);
    return words;
  }
  return {};
}

}  // namespace velmohelp
