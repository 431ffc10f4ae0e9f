#include "platform/linux/browser_command.h"

#include <string>

#include "platform/linux/protocol.h"

namespace velmohelp {
namespace {

/// The records of a text, each ended by a NUL; nullopt when the last one is
/// not.
std::optional<Arguments> Records(std::string_view text) {
  Arguments records;
  while (!text.empty()) {
    const std::size_t end = text.find('\0');
    if (end == std::string_view::npos) return std::nullopt;
    records.emplace_back(text.substr(0, end));
    text.remove_prefix(end + 1);
  }
  return records;
}

}  // namespace

std::optional<Arguments> ParseBrowserAnswer(std::string_view answer) {
  const auto records = Records(answer);
  if (!records) return std::nullopt;
  if (*records == Arguments{VELMO_BROWSER_OPENED}) return Arguments{};
  if (records->size() < 3 || records->front() != VELMO_BROWSER_START) {
    return std::nullopt;
  }
  Arguments words(records->begin() + 2, records->end());
  // A helper that was killed while it wrote has left fewer words.
  if ((*records)[1] != std::to_string(words.size())) return std::nullopt;
  if (!words.front().starts_with('/')) return std::nullopt;
  return words;
}

}  // namespace velmohelp
