// The files of a scripted machine.
#ifndef PLATFORM_SCRIPTED_SCRIPTED_FILES_H_
#define PLATFORM_SCRIPTED_SCRIPTED_FILES_H_

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/machine.h"

namespace velmohelp {

/// A tree of files and directories that exist, without contents. Paths mean
/// what they mean to a file system: several slashes count as one, a final one
/// asks for a directory, and nothing exists at an empty path or at one with a
/// NUL.
class ScriptedFiles {
 public:
  /// Makes a file or a directory exist, with every directory above it.
  void AddFile(const std::string& path) { Add(path, false); }
  void AddDirectory(const std::string& path) { Add(path, true); }

  /// Removes one entry; the entries below it stay.
  void Remove(const std::string& path);

  std::optional<FileEntry> Find(const std::string& path) const;

  /// The names directly in a directory.
  std::vector<std::string> NamesIn(const std::string& path) const;

 private:
  void Add(const std::string& path, bool is_directory);

  std::map<std::string, FileEntry> entries_;
  std::uint64_t last_inode_ = 0;
};

/// The path with each run of slashes reduced to one and none at its end, except
/// for the root.
std::string WithSingleSlashes(const std::string& path);

}  // namespace velmohelp

#endif  // PLATFORM_SCRIPTED_SCRIPTED_FILES_H_
