// A folder of a test's own, removed with the object.
#ifndef TESTS_VIEWER_FOLDER_H_
#define TESTS_VIEWER_FOLDER_H_

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace viewer {

class Folder {
 public:
  Folder() {
    std::string name = ::testing::TempDir() + "viewer-XXXXXX";
    path_ = mkdtemp(name.data());
  }
  ~Folder() { std::filesystem::remove_all(path_); }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  std::string path(const std::string& name = {}) const {
    return name.empty() ? path_ : path_ + "/" + name;
  }
  std::string Write(const std::string& name, const std::string& text) const {
    const std::filesystem::path file = path(name);
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
    return file.string();
  }

 private:
  std::string path_;
};

}  // namespace viewer

#endif  // TESTS_VIEWER_FOLDER_H_
