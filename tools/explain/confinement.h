// Programs that do not see all of the machine's files.
#ifndef TOOLS_EXPLAIN_CONFINEMENT_H_
#define TOOLS_EXPLAIN_CONFINEMENT_H_

#include <string>
#include <string_view>

#include "platform/machine.h"

namespace velmohelp::tool {

/// The default browser, as its desktop entry describes it.
struct BrowserEntry {
  /// The entry's file; "" when there is none.
  std::string file = {};
  std::string name = {};
  /// The name of the Snap or Flatpak that it is; "" for an ordinary program.
  std::string snap = {};
  std::string flatpak = {};
};

/// What `velmohelp-browser --describe` prints: one "key=value" per line.
BrowserEntry ParseBrowserEntry(std::string_view text);

/// Takes from a command line what its desktop entry does not say: a program in
/// /snap/bin is a Snap, `flatpak run` a Flatpak.
void AddFromCommand(const Arguments& words, BrowserEntry& entry);

/// "Snap", "Flatpak", or "" for an ordinary program.
std::string ConfinementOf(const BrowserEntry& entry);

/// Why the browser cannot read a local page as its command line names it; ""
/// when nothing is known that keeps it from doing so. home: the person's.
std::string WhyUnreadable(const BrowserEntry& entry, const std::string& path,
                          const std::string& home);

/// The application that runs in the Flatpak sandbox whose file .flatpak-info
/// this text is; "" when it is none.
std::string SandboxedApplication(std::string_view info);

}  // namespace velmohelp::tool

#endif  // TOOLS_EXPLAIN_CONFINEMENT_H_
