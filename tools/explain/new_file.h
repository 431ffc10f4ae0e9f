// A file that is made before it is known whether there is something to write.
#ifndef TOOLS_EXPLAIN_NEW_FILE_H_
#define TOOLS_EXPLAIN_NEW_FILE_H_

#include <filesystem>
#include <string>
#include <string_view>

#include "platform/linux/unique_fd.h"

namespace velmohelp::tool {

/// Made now and written later, when this process may have moved to where the
/// path leads elsewhere. It is removed again unless the whole text was written:
/// nobody takes an empty report for one.
class NewFile {
 public:
  /// Throws FileError when something is at path already, or the file cannot be
  /// made.
  explicit NewFile(const std::filesystem::path& path);
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  ~NewFile();

  /// Writes the whole text, once. Throws FileError when that fails.
  void Write(std::string_view text);

 private:
  [[noreturn]] void Fail() const;

  std::filesystem::path path_;
  /// Where the path led when the file was made.
  UniqueFd folder_;
  UniqueFd file_;
  bool written_ = false;
};

}  // namespace velmohelp::tool

#endif  // TOOLS_EXPLAIN_NEW_FILE_H_
