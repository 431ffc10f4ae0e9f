// What lies in the file system.
#ifndef PLATFORM_LINUX_FILES_H_
#define PLATFORM_LINUX_FILES_H_

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/descriptor.h"
#include "platform/machine.h"

namespace velmohelp {

/// What exists at path; a link counts as what it names. Nothing exists at a
/// path that holds a NUL: the system would read another, shorter path.
std::optional<FileEntry> FindEntry(const std::string& path);

bool IsDirectory(const std::string& path);

/// A regular file that this process may execute.
bool IsExecutable(const std::string& path);

/// The first of the paths that is a directory.
std::optional<std::string> FirstDirectory(
    const std::vector<std::string>& paths);

/// Opens a regular file for reading; no descriptor for anything else. Never
/// blocks, whatever lies there.
Descriptor OpenRegularFile(const std::string& path);

/// All of a file, nullopt when it cannot be read or is longer than limit.
std::optional<std::string> ReadAll(const Descriptor& file, std::size_t limit);

/// The folder that a path lies in: "/a/b" -> "/a", "/a" -> "/". path: absolute.
std::string FolderOf(const std::string& path);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_FILES_H_
