#include "platform/scripted/scripted_files.h"

#include <cstddef>

namespace velmohelp {

std::string WithSingleSlashes(const std::string& path) {
  std::string result;
  for (const char c : path) {
    if (c != '/' || result.empty() || result.back() != '/') result += c;
  }
  if (result.size() > 1 && result.back() == '/') result.pop_back();
  return result;
}

void ScriptedFiles::Add(const std::string& path, bool is_directory) {
  const std::string name = WithSingleSlashes(path);
  if (name.empty()) return;
  const std::size_t slash = name.rfind('/');
  if (slash != std::string::npos && name != "/") {
    Add(slash == 0 ? "/" : name.substr(0, slash), true);
  }
  const auto [entry, is_new] = entries_.try_emplace(name);
  if (is_new) entry->second.reference = {1, ++last_inode_};
  entry->second.is_directory = is_directory;
}

void ScriptedFiles::Remove(const std::string& path) {
  entries_.erase(WithSingleSlashes(path));
}

std::optional<FileEntry> ScriptedFiles::Find(const std::string& path) const {
  const auto entry = entries_.find(WithSingleSlashes(path));
  if (entry == entries_.end()) return std::nullopt;
  if (path.back() == '/' && !entry->second.is_directory) return std::nullopt;
  return entry->second;
}

std::vector<std::string> ScriptedFiles::NamesIn(const std::string& path) const {
  std::vector<std::string> names;
  const auto directory = Find(path);
  if (!directory || !directory->is_directory) return names;
  std::string folder = WithSingleSlashes(path);
  if (folder != "/") folder += '/';
  for (const auto& [name, entry] : entries_) {
    if (name.size() == folder.size() || !name.starts_with(folder)) continue;
    const std::string rest = name.substr(folder.size());
    if (rest.find('/') == std::string::npos) names.push_back(rest);
  }
  return names;
}

}  // namespace velmohelp
