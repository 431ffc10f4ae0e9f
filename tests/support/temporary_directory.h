// A directory of a test's own.
#ifndef TESTS_SUPPORT_TEMPORARY_DIRECTORY_H_
#define TESTS_SUPPORT_TEMPORARY_DIRECTORY_H_

#include <filesystem>
#include <fstream>
#include <string>

namespace velmohelp::testing {

/// Gone with all that is in it at the end. Its path holds a blank.
class TemporaryDirectory {
 public:
  TemporaryDirectory() {
    std::string pattern = "/tmp/velmo test XXXXXX";
    path_ = mkdtemp(pattern.data());
  }
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
  ~TemporaryDirectory() { std::filesystem::remove_all(path_); }

  const std::string& path() const { return path_; }
  std::string operator/(const std::string& name) const {
    return path_ + "/" + name;
  }

  /// Writes a file, and the directories above it. Returns its path.
  std::string Write(const std::string& name, const std::string& text) const {
    std::string file = *this / name;
    std::filesystem::create_directories(
        std::filesystem::path(file).parent_path());
    std::ofstream(file, std::ios::binary) << text;
    return file;
  }

  /// Writes an executable shell script.
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
  std::string path_;
};

inline std::string FileText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_TEMPORARY_DIRECTORY_H_
