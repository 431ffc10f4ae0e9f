// Downloaded and installed help content, with real help maps.
#ifndef TESTS_SUPPORT_CONTENT_FOLDERS_H_
#define TESTS_SUPPORT_CONTENT_FOLDERS_H_

#include <unistd.h>
#include <velmohelp/platform.h>
#include <velmohelp/resolve.h>

#include <string>

#include "platform/locations.h"
#include "tests/support/on_scripted_machine.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp::testing {

/// What ValidateID returns, and what it leaves in its out string.
struct Target {
  int code;
  std::string out;
  bool operator==(const Target&) const = default;
};

inline void PrintTo(const Target& target, std::ostream* stream) {
  *stream << target.code << " " << target.out;
}

/// Pages exist on the scripted machine alone; a help map is a real file that
/// the machine knows of. Folder names are this process's own, for all tests
/// share the folder of installed content.
class ContentFolders : public OnScriptedMachine {
 protected:
  ContentFolders() {
    machine.SetPreferencesFolder(temp_.path());
    kDownloadedOfflineContent = "/store/Help/";
    sBaseUrl = "http://localhost/base/";
    sHelpPathCount = 0;
  }
  ~ContentFolders() override {
    std::error_code ignored;
    for (const char* name : {"a", "b", "c"}) {
      std::filesystem::remove_all(kInstalledHelpDir + Folder(name), ignored);
    }
  }

  static std::string Folder(const std::string& name) {
    return name + "-" + std::to_string(getpid());
  }
  std::string Downloaded(const std::string& name) const {
    return temp_ / ("store/Help/" + Folder(name));
  }
  static std::string Installed(const std::string& name) {
    return kInstalledHelpDir + ("/" + Folder(name));
  }
  /// The URL of a page in a folder.
  static std::string Online(const std::string& name, const std::string& page) {
    return "http://localhost/base/" + Folder(name) + "/" + page;
  }

  /// Adds a row to the table: one of the folders "a", "b" and "c".
  static void AddRow(const std::string& name, const std::string& mark = "YES") {
    sHelpPaths[sHelpPathCount][0] = Folder(name);
    sHelpPaths[sHelpPathCount][1] = mark;
    ++sHelpPathCount;
  }
  void AddPage(const std::string& directory, const std::string& page) {
    machine.AddFile(directory + "/" + page);
  }
  void AddMap(const std::string& directory, const std::string& text) {
    WriteFile(directory + "/helpmap.txt", text);
    machine.AddFile(directory + "/helpmap.txt");
  }

  /// Forgets earlier questions and validates.
  Target Validate(const std::string& id, bool online) {
    machine.ForgetQuestions();
    Target target = {-1, "untouched"};
    target.code = ValidateID(id, online, target.out);
    return target;
  }
  Target Locally(const std::string& id) { return Validate(id, false); }
  Target OnTheNet(const std::string& id) { return Validate(id, true); }

  static Target Found(const std::string& out) { return {0, out}; }
  static Target NotFound(const std::string& id) { return {3, id}; }

  const std::string asks_for_root = "PreferencesFolder create";
  static std::string Asks(const std::string& path) {
    return path.find(' ') == std::string::npos ? "FindFile " + path
                                               : "FindFile \"" + path + "\"";
  }
  /// The question whether a folder has a help map.
  static std::string AsksForMap(const std::string& directory) {
    return Asks(directory + "//helpmap.txt");
  }

 private:
  const TemporaryDirectory temp_;
};

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_CONTENT_FOLDERS_H_
