// A directory of a test's own, because tests run in parallel.
#ifndef TESTS_SUPPORT_TEMPORARY_DIRECTORY_H_
#define TESTS_SUPPORT_TEMPORARY_DIRECTORY_H_

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <system_error>

namespace velmohelp::testing {

/// Writes a file, and makes the directories above it.
inline void WriteFile(const std::string& path, const std::string& bytes) {
  std::filesystem::create_directories(
      std::filesystem::path(path).parent_path());
  std::ofstream(path, std::ios::binary) << bytes;
}

/// The bytes of a file; none when it cannot be read.
inline std::string FileText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// Removed with everything in it when the object ends. Its path has a space in
/// it, as people's paths do.
class TemporaryDirectory {
 public:
  TemporaryDirectory() {
    if (mkdtemp(path_.data()) == nullptr) throw std::runtime_error(path_);
  }
  ~TemporaryDirectory() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

  /// Without a final "/".
  const std::string& path() const { return path_; }
  std::string operator/(const std::string& name) const {
    return path_ + "/" + name;
  }

  /// Writes a file, and makes the directories above it. Returns its path.
  std::string Write(const std::string& name, const std::string& bytes) const {
    std::string file = *this / name;
    WriteFile(file, bytes);
    return file;
  }

  /// Writes an executable shell script. Returns its path.
  std::string WriteScript(const std::string& name,
                          const std::string& lines) const {
    std::string file = Write(name, "#!/bin/sh\n" + lines + "\n");
    std::filesystem::permissions(file, std::filesystem::perms::owner_all);
    return file;
  }

  std::string MakeDirectory(const std::string& name) const {
    std::filesystem::create_directories(*this / name);
    return *this / name;
  }

 private:
  std::string path_ = "/tmp/velmo test XXXXXX";
};

/// The process works in another directory until the object ends. Tests that
/// follow in the same process start programs, which may need one that exists.
class WorkingDirectory {
 public:
  explicit WorkingDirectory(const std::string& path) {
    std::filesystem::current_path(path);
  }
  ~WorkingDirectory() {
    std::error_code ignored;
    std::filesystem::current_path(previous_, ignored);
  }
  WorkingDirectory(const WorkingDirectory&) = delete;
  WorkingDirectory& operator=(const WorkingDirectory&) = delete;

 private:
  std::filesystem::path previous_ = std::filesystem::current_path();
};

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_TEMPORARY_DIRECTORY_H_
