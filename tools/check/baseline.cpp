#include "tools/check/baseline.h"

#include <string>
#include <unordered_map>

#include "tools/check/report.h"
#include "tools/lines.h"

namespace velmohelp::tool {
namespace {

bool IsDigit(char c) { return '0' <= c && c <= '9'; }

/// "file:12:3" -> "file".
std::string_view WithoutNumbers(std::string_view place) {
  for (int part = 0; part < 2; ++part) {
    while (!place.empty() && IsDigit(place.back())) place.remove_suffix(1);
    if (place.ends_with(':')) place.remove_suffix(1);
  }
  return place;
}

/// A line of a report without the numbers of lines, also those in its text.
std::string Identity(std::string_view line) {
  std::size_t end = line.find(": error: ");
  if (end == std::string_view::npos) end = line.find(": warning: ");
  if (end == std::string_view::npos) return "";
  std::string identity(WithoutNumbers(line.substr(0, end)));
  std::string_view text = line.substr(end);
  constexpr std::string_view kOnLine = " is on line ";
  if (const auto at = text.find(kOnLine); at != std::string_view::npos) {
    identity += text.substr(0, at + kOnLine.size());
    text.remove_prefix(at + kOnLine.size());
    while (!text.empty() && IsDigit(text.front())) text.remove_prefix(1);
  }
  return identity.append(text);
}

}  // namespace

void RemoveKnown(std::string_view report, Findings& findings) {
  std::unordered_map<std::string, std::size_t> known;
  ForEachLine(report, [&](std::string_view line, std::size_t /*number*/) {
    ++known[Identity(line)];
  });
  std::erase_if(findings, [&](const Finding& finding) {
    const auto found = known.find(Identity(TextOf(finding, false)));
    if (found == known.end() || found->second == 0) return false;
    --found->second;
    return true;
  });
}

}  // namespace velmohelp::tool
