#include "tools/explain/confinement.h"

#include <algorithm>
#include <map>

#include "tools/lines.h"

namespace velmohelp::tool {
namespace {

/// "key=value" lines of a text, of all groups together.
std::map<std::string, std::string> ValuesIn(std::string_view text) {
  std::map<std::string, std::string> values;
  ForEachLine(text, [&](std::string_view line, std::size_t) {
    const std::size_t sign = line.find('=');
    if (sign == std::string_view::npos) return;
    values.emplace(line.substr(0, sign), line.substr(sign + 1));
  });
  return values;
}

std::string LastName(std::string_view path) {
  return std::string(path.substr(path.rfind('/') + 1));
}

/// The application that `flatpak run` starts: its first word with dots that is
/// no option.
std::string FlatpakIn(const Arguments& words) {
  const auto run = std::ranges::find(words, "run");
  for (auto word = run; word != words.end(); ++word) {
    if (!word->starts_with('-') && word->find('.') != std::string::npos) {
      return *word;
    }
  }
  return "";
}

bool IsBelow(const std::string& path, const std::string& folder) {
  return !folder.empty() && path.starts_with(folder + "/");
}

/// A Snap reads what is in the home, but for hidden folders at its top, and
/// removable media.
std::string WhyOutsideSnap(const std::string& path, const std::string& home) {
  for (const char* media : {"/media", "/mnt", "/run/media"}) {
    if (IsBelow(path, media)) return "";
  }
  if (!IsBelow(path, home)) return "it reads files in the home folder alone";
  if (path.at(home.size() + 1) != '.') return "";
  return "it reads no hidden folder of the home";
}

}  // namespace

BrowserEntry ParseBrowserEntry(std::string_view text) {
  auto values = ValuesIn(text);
  return {.file = values["entry"],
          .name = values["name"],
          .snap = values["snap"],
          .flatpak = values["flatpak"]};
}

void AddFromCommand(const Arguments& words, BrowserEntry& entry) {
  if (!ConfinementOf(entry).empty()) return;
  for (const std::string& word : words) {
    if (word.starts_with("/snap/bin/")) entry.snap = LastName(word);
  }
  if (!words.empty() && LastName(words.front()) == "flatpak") {
    entry.flatpak = FlatpakIn(words);
  }
}

std::string ConfinementOf(const BrowserEntry& entry) {
  if (!entry.snap.empty()) return "Snap";
  return entry.flatpak.empty() ? "" : "Flatpak";
}

std::string WhyUnreadable(const BrowserEntry& entry, const std::string& path,
                          const std::string& home) {
  if (!entry.snap.empty()) return WhyOutsideSnap(path, home);
  if (entry.flatpak.empty()) return "";
  return "it reads the files alone that the desktop hands to it";
}

std::string SandboxedApplication(std::string_view info) {
  if (info.find("[Application]") == std::string_view::npos) return "";
  return ValuesIn(info)["name"];
}

}  // namespace velmohelp::tool
