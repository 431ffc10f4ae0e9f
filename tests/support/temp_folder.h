// A folder of a test's own, gone when the test ends.
#ifndef TESTS_SUPPORT_TEMP_FOLDER_H_
#define TESTS_SUPPORT_TEMP_FOLDER_H_

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace velmohelp::testing {

/// Writes a file, and makes the folders above it.
inline void WriteFile(const std::string& path, const std::string& bytes) {
  std::filesystem::create_directories(
      std::filesystem::path(path).parent_path());
  std::ofstream(path, std::ios_base::binary) << bytes;
}

class TempFolder {
 public:
  TempFolder() {
    if (mkdtemp(path_.data()) == nullptr) throw std::runtime_error(path_);
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  /// The path of a name below the folder, without a final "/".
  std::string Path(const std::string& name = "") const {
    return name.empty() ? path_ : path_ + "/" + name;
  }
  /// Writes a file below the folder and returns its path.
  std::string Write(const std::string& name, const std::string& bytes) const {
    WriteFile(Path(name), bytes);
    return Path(name);
  }

 private:
  std::string path_ = ::testing::TempDir() + "velmohelp-XXXXXX";
};

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_TEMP_FOLDER_H_
