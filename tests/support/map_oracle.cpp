#include "tests/support/map_oracle.h"

namespace velmohelp::testing {
namespace {

/// A position as the rule calculates with it; -1 when the word is not found.
long Find(const std::string& word, const std::string& text) {
  for (std::size_t at = 0; at + word.size() <= text.size(); ++at) {
    if (text.substr(at, word.size()) == word) return static_cast<long>(at);
  }
  return -1;
}

/// The three cases of the rule on "%", one after the other.
bool IsZoneSeparatorReplaced(long bracket, long percent, long encoded) {
  const bool encoded_before_bracket = encoded <= bracket - 1;
  if (percent >= 0 && encoded < 0) return true;
  if (percent >= 0 && encoded >= 0) return !encoded_before_bracket;
  return !encoded_before_bracket;
}

}  // namespace

std::vector<std::string> OracleLines(const std::string& file) {
  std::vector<std::string> lines;
  std::string line;
  for (std::size_t at = 0; at < file.size(); ++at) {
    const bool is_cr_lf =
        file[at] == '\r' && at + 1 < file.size() && file[at + 1] == '\n';
    if (file[at] != '\n' && file[at] != '\r') {
      line += file[at];
      continue;
    }
    lines.push_back(line);
    line.clear();
    if (is_cr_lf) ++at;
  }
  if (!line.empty()) lines.push_back(line);
  return lines;
}

std::deque<std::string> OracleFields(char delimiter, const std::string& text) {
  std::deque<std::string> fields;
  std::string field;
  bool ended = false;
  for (const char byte : text) {
    if (byte != delimiter) {
      field += byte;
    } else if (!field.empty()) {
      fields.push_back(field);
      field.clear();
      ended = true;
    }
  }
  if (text.empty()) return {};
  if (!ended) return {text};
  if (!field.empty()) fields.push_back(field);
  return fields;
}

std::map<std::string, std::string> OracleMap(const std::string& file) {
  std::map<std::string, std::string> map;
  for (const std::string& line : OracleLines(file)) {
    const std::deque<std::string> fields = OracleFields('\t', line);
    if (fields.size() < 2) continue;
    if (map.find(fields[0]) == map.end()) map[fields[0]] = fields[1];
  }
  return map;
}

std::optional<std::string> OracleBaseUrl(const std::string& file) {
  const std::vector<std::string> lines = OracleLines(file);
  const std::string url = lines.empty() ? "" : lines[0];
  if (Find("://[", url) < 0) return url;
  const long percent = Find("%", url);
  if (!IsZoneSeparatorReplaced(Find("]", url), percent, Find("%25", url))) {
    return url;
  }
  if (percent < 0) return std::nullopt;
  const auto at = static_cast<std::size_t>(percent);
  return url.substr(0, at) + "%25" + url.substr(at + 1);
}

}  // namespace velmohelp::testing
