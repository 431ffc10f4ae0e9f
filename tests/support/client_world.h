// The world that the client's tests run in: a machine, the files on it, and a
// client in the state that it has at load.
#ifndef TESTS_SUPPORT_CLIENT_WORLD_H_
#define TESTS_SUPPORT_CLIENT_WORLD_H_

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

#include "client/client.h"
#include "platform/scripted/scripted_machine.h"
#include "tests/support/client_variables.h"
#include "tests/support/help_config.h"

namespace velmohelp::testing {

/// A machine on which nothing is installed, offline, with a browser that does
/// not start. A test describes what exists, then calls the client.
///
/// Files have their contents in a temporary folder, because the client reads
/// with standard C++, and their existence on the machine, because it asks
/// there. All of it is removed with the world.
///
/// In the texts that a world returns, "~" is the temporary folder, "/Help/" the
/// machine's installed content, and names from OwnName are cut to their word.
class ClientWorld {
 public:
  /// A client with a state of its own, or with the caller's.
  explicit ClientWorld(ScriptedMachine& machine)
      : ClientWorld(machine, own_variables_.state) {}
  ClientWorld(ScriptedMachine& machine, ClientState& state);
  explicit ClientWorld(ClientState& state) : ClientWorld(own_machine_, state) {}
  ClientWorld() : ClientWorld(own_machine_) {}
  ~ClientWorld();
  ClientWorld(const ClientWorld&) = delete;
  ClientWorld& operator=(const ClientWorld&) = delete;

  ScriptedMachine& machine() { return machine_; }
  ClientState& state() { return state_; }

  /// Gives the client another machine, which the caller keeps alive.
  void RunOn(Machine& machine) { client_machine_ = &machine; }

  /// The client's operations, and the number that each returns.
  std::uint32_t Initialise(const char* product, const char* locale,
                           bool clean_product = false);
  std::uint32_t OnlineStatus();
  std::uint32_t DisplayPage(const char* page_id);
  std::uint32_t OpenUrl(const char* url);
  std::uint32_t SearchHelp(const char* product, const char* locale,
                           const char* text);
  std::uint32_t SearchByNames(const char* a, const char* b, const char* locale,
                              const char* text);

  /// Makes a file that holds text, or removes it.
  void AddFile(const std::string& path, const std::string& text = "");
  void RemoveFile(const std::string& path);
  /// Makes a directory.
  void AddDirectory(const std::string& path);

  /// Where the configurations of the host and of the viewer reader.VELMO.1 are.
  std::string InstalledConfig(const std::string& locale = "en_US",
                              const std::string& product = "Foo") const;
  std::string DownloadedConfig() const;
  /// Write them.
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

  /// Initialises the client for Foo in en_US; fails the test unless that
  /// succeeds. Then forgets the questions that it asked.
  void Initialise();

  /// What the machine was asked; and of that only what was put on the screen.
  std::vector<std::string> Questions() const;
  std::vector<std::string> Shown() const;

 private:
  std::string Tool() const;
  std::string Viewer() const;
  std::string Preferences() const { return root_ + "/Preferences"; }
  std::string ViewerStore() const;
  std::string Abbreviated(std::string text) const;
  Client client() { return {*client_machine_, state_}; }

  ScriptedMachine own_machine_;
  ClientVariables own_variables_;
  ScriptedMachine& machine_;
  Machine* client_machine_;
  ClientState& state_;
  std::string root_;
};

/// The code that a request returned, and what was shown for it.
struct Outcome {
  std::uint32_t code = 0;
  std::vector<std::string> shown;

  bool operator==(const Outcome&) const = default;
};

void PrintTo(const Outcome& outcome, std::ostream* out);

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_CLIENT_WORLD_H_
