// A script in a file of its own.
#ifndef TESTS_HOST_SCRIPT_FILE_H_
#define TESTS_HOST_SCRIPT_FILE_H_

#include <stdlib.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace velmohelp::testing {

/// Lives in a new folder as "script.lua", as long as this object.
class ScriptFile {
 public:
  explicit ScriptFile(const std::string& text) {
    std::string folder =
        std::filesystem::temp_directory_path() / "velmohelp-XXXXXX";
    folder_ = mkdtemp(folder.data());
    std::ofstream(Path()) << text;
  }
  ~ScriptFile() { std::filesystem::remove_all(folder_); }
  ScriptFile(const ScriptFile&) = delete;
  ScriptFile& operator=(const ScriptFile&) = delete;

  std::string Path() const { return folder_ / "script.lua"; }

 private:
  std::filesystem::path folder_;
};

}  // namespace velmohelp::testing

#endif  // TESTS_HOST_SCRIPT_FILE_H_
