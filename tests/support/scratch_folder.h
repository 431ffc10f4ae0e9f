// A folder of a test's own, because tests run in parallel.
#ifndef TESTS_SUPPORT_SCRATCH_FOLDER_H_
#define TESTS_SUPPORT_SCRATCH_FOLDER_H_

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace velmohelp::testing {

class ScratchFolder {
 public:
  ScratchFolder() : path_(::testing::TempDir() + "velmo-XXXXXX") {
    if (mkdtemp(path_.data()) == nullptr) path_.clear();
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() { std::filesystem::remove_all(path_); }

  [[nodiscard]] std::string Path(const std::string& name) const {
    return path_ + "/" + name;
  }

  void Write(const std::string& name, const std::string& text) const {
    std::ofstream(Path(name), std::ios::binary) << text;
  }

  /// A script for the shell.
  void WriteProgram(const std::string& name, const std::string& text) const {
    Write(name, "#!/bin/sh\n" + text + "\n");
    std::filesystem::permissions(Path(name), std::filesystem::perms::owner_all);
  }

  /// The text of a file; "" when it is not there.
  [[nodiscard]] std::string Read(const std::string& name) const {
    std::ifstream file(Path(name), std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
  }

 private:
  std::string path_;
};

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_SCRATCH_FOLDER_H_
