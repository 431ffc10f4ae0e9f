// Files below one folder, whatever a name or a link in it says.
#ifndef VIEWER_WEB_CONFINED_FILE_H_
#define VIEWER_WEB_CONFINED_FILE_H_

#include <cstdint>
#include <ctime>
#include <string>

namespace viewer {

enum class FileProblem {
  kNone,
  kMissing,     ///< Nothing has that name, or the folder itself is gone.
  kOutside,     ///< ".." or a symbolic link leads out of the folder.
  kNotAFile,    ///< A folder, a pipe, a device.
  kTooLarge,    ///< More bytes than the caller takes.
  kUnreadable,  ///< Permission denied, or the disk fails.
};

/// An open file; closed with the object.
class ConfinedFile {
 public:
  /// Opens folder/name. folder is absolute; name is relative to it.
  ConfinedFile(const std::string& folder, const std::string& name);
  ~ConfinedFile();
  ConfinedFile(const ConfinedFile&) = delete;
  ConfinedFile& operator=(const ConfinedFile&) = delete;

  /// kNone when the file is open.
  FileProblem problem() const { return problem_; }
  std::int64_t size() const { return size_; }
  std::time_t modified() const { return modified_; }

  /// Gives the descriptor away.
  int Release();

  /// The whole text. kTooLarge when it has more bytes than limit.
  FileProblem Read(std::int64_t limit, std::string& text);

 private:
  FileProblem Open(const std::string& folder, const std::string& name);
  FileProblem Judge();

  int fd_ = -1;
  std::int64_t size_ = 0;
  std::time_t modified_ = 0;
  FileProblem problem_;
};

}  // namespace viewer

#endif  // VIEWER_WEB_CONFINED_FILE_H_
