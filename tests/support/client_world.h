// The world that the client's tests play in: a machine, the files on it, and a
// client in the state that it has at load.
#ifndef TESTS_SUPPORT_CLIENT_WORLD_H_
#define TESTS_SUPPORT_CLIENT_WORLD_H_

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

#include "platform/scripted/scripted_machine.h"
#include "tests/support/help_config.h"

namespace velmohelp::testing {

/// A machine on which nothing is installed, offline, with a browser that does
/// not start. Tests tell what is there, then what happens.
///
/// Files have their contents in a temporary folder, because the client reads
/// with standard C++, and their existence on the machine, because it asks
/// there. All of it is gone with the world, and the client is as at load.
///
/// In the texts that a world returns, "~" is the temporary folder, "/Help/" the
/// machine's installed content, and names from OwnName are cut to their word.
class ClientWorld {
 public:
  explicit ClientWorld(ScriptedMachine& machine);
  ClientWorld() : ClientWorld(own_machine_) {}
  ~ClientWorld();
  ClientWorld(const ClientWorld&) = delete;
  ClientWorld& operator=(const ClientWorld&) = delete;

  ScriptedMachine& machine() { return machine_; }

  /// Makes a file that holds text, or takes it away.
  void AddFile(const std::string& path, const std::string& text = "");
  void RemoveFile(const std::string& path);
  /// Makes a directory.
  void AddDirectory(const std::string& path);

  /// Where the configurations of the host and of the viewer reader.VELMO.1 lie.
  std::string InstalledConfig(const std::string& locale = "en_US",
                              const std::string& product = "Foo") const;
  std::string DownloadedConfig() const;
  /// Puts them there.
  void Install(const HelpConfig& config = {});
  void Download(const HelpConfig& config = {});

  /// The folder "manual" in the downloaded content of the viewer
  /// reader.VELMO.1, and in the installed content.
  std::string DownloadedManual() const;
  static std::string InstalledManual();

  /// The tool; a viewer that ends at once when it is started, where the tool
  /// finds it; the viewer's runtime.
  void InstallTool();
  void InstallViewer(const std::string& app_id = "reader",
                     const std::string& publisher_id = "VELMO.1");
  void InstallRuntime();
  /// All of the three, with a viewer that keeps running.
  void InstallWorkingViewer(const std::string& app_id = "reader",
                            const std::string& publisher_id = "VELMO.1");
  void RemoveViewer() { RemoveFile(Viewer()); }

  /// The preference file of the viewer reader.VELMO.1.
  std::string PreferenceFile() const;
  void SetAccessibleMode(const std::string& value);

  void StartBrowsers() { machine_.SetBrowserOpens(true); }
  /// The online help server can be reached.
  void GoOnline();

  /// Initialises the client for Foo in en_US; fails the test unless that goes
  /// well. Then forgets what the machine was asked for it.
  void Initialise();

  /// What the machine was asked; and of that only what was put on the screen.
  std::vector<std::string> Questions() const;
  std::vector<std::string> Shown() const;

 private:
  std::string Tool() const;
  std::string Viewer() const;
  std::string Preferences() const { return root_ + "/Preferences"; }
  std::string ViewerStore() const;
  std::string Told(std::string text) const;

  ScriptedMachine own_machine_;
  ScriptedMachine& machine_;
  std::string root_;
};

/// The code that a request answered, and what was shown for it.
struct Outcome {
  std::uint32_t code = 0;
  std::vector<std::string> shown;

  bool operator==(const Outcome&) const = default;
};

void PrintTo(const Outcome& outcome, std::ostream* out);

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_CLIENT_WORLD_H_
