// Files and directories.
#ifndef PLATFORM_LINUX_FILES_H_
#define PLATFORM_LINUX_FILES_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/linux/unique_fd.h"
#include "platform/machine.h"

namespace velmohelp {

/// What exists at path; a link counts as its target. Nothing exists at a path
/// with a NUL in it: the system would take a shorter path, that of another
/// file.
std::optional<FileEntry> FindEntry(const std::string& path);

bool IsDirectory(const std::string& path);

/// A regular file that this process may execute, by its effective ids.
bool IsExecutable(const std::string& path);

/// An executable of a format that the kernel starts by itself: ELF, or a script
/// that names its interpreter. What another program would have to run for the
/// kernel (binfmt_misc) is not one.
bool IsProgram(const std::string& path);

/// The names in a directory but "." and ".."; empty when it cannot be read.
std::vector<std::string> EntriesOf(const std::string& directory);

/// The first of the paths that is a directory.
std::optional<std::string> FirstDirectory(
    const std::vector<std::string>& paths);

/// Opens whatever exists at path; no descriptor when that fails. Never blocks,
/// as opening a pipe would until it has a writer, and never makes a terminal
/// the host's.
UniqueFd OpenForReading(const std::string& path);

/// What an open file is: nothing can take its place after the question. False
/// for no descriptor.
bool IsRegularFile(const UniqueFd& file);
bool IsDirectory(const UniqueFd& file);

/// Opens a regular file as OpenForReading does; no descriptor for anything
/// else.
UniqueFd OpenRegularFile(const std::string& path);

/// "/a/b" -> "/a", "/a" -> "/". path: absolute.
std::string Dirname(const std::string& path);

/// "/a/b" -> "b", "/a/b/" -> "b", "/" -> "".
std::string Basename(std::string_view path);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_FILES_H_
