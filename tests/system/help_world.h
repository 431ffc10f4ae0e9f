// A machine's files for one test: a host with its resources, the tool, a viewer
// and a browser, a user's settings, and a help server on loopback.
#ifndef TESTS_SYSTEM_HELP_WORLD_H_
#define TESTS_SYSTEM_HELP_WORLD_H_

#include <map>
#include <memory>
#include <optional>
#include <string>

#include "tests/support/help_config.h"
#include "tests/support/http_server.h"
#include "tests/support/temporary_directory.h"
#include "tests/system/host_process.h"

namespace velmohelp::testing {

/// At first: product Foo in en_US with one content folder and no content, a
/// viewer and a browser, both installed, and a user who wants no online help.
///
/// Texts passed in may name places:
///   {bin}         the host's folder
///   {config}      Foo's installed configuration
///   {downloaded}  the content folder where the viewer downloads it
///   {installed}   the content folder where the machine has it
///   {store}       the viewer's own folder
///   {settings}    the user's Preferences folder
///   {folder}      the content folder's name
///   {tool}        the tool
///   {viewer}      the viewer's executable
///   {browser}     the browser's executable
///   {server}      the help server's URL, without a final "/"
///   {url:NAME}    one of the other places as a file URL has it
class HelpWorld {
 public:
  HelpWorld();
  HelpWorld(const HelpWorld&) = delete;
  HelpWorld& operator=(const HelpWorld&) = delete;
  /// Ends whatever was started in it.
  ~HelpWorld();

  std::string Expanded(std::string text) const;
  Words Expanded(Words texts) const;

  /// Writes a file, and the folders above it.
  void Write(const std::string& name, const std::string& text) const;
  void Remove(const std::string& name) const;
  /// Writes an executable.
  void WriteProgram(const std::string& name, const std::string& text) const;

  /// Foo's configuration; Configure writes it to its place.
  HelpConfig& config() { return config_; }
  void Configure() const;

  /// Names the viewer whose folders {store} and {downloaded} are.
  void NameViewer(const std::string& app_id, const std::string& publisher_id);

  /// What the tool does, in shell script, by its first argument $1.
  void WriteTool(const std::string& lines) const;
  /// What the tool says of the runtime and the viewer.
  void AnswerTool(bool runtime, bool viewer) const;

  void SetUserPreference(const std::string& value) const;
  void InstallBrowser(const std::string& exec_line) const;

  /// Bytes that the server sends for a path; 404 for all others.
  void Serve(const std::string& path, const std::string& response);

  /// Called, on the server's thread, for every request that it gets. To be set
  /// before the first of them.
  void OnRequest(std::function<void()> action) { on_request_ = action; }

  /// Uses a copy of a library, with helpers of its own; returns their folder.
  std::string CopyLibrary(const std::string& library = VELMO_TEST_LIBRARY);

  /// How the host is started. May be changed before the first Host().
  HostStart& start() { return start_; }

  /// The host; started at the first call.
  HostProcess& Host();

  /// Host().Ask, with Expanded texts.
  std::string Ask(const Words& request);

  /// Initialises the client for Foo, and says whether that went well.
  bool Initialise();

  /// The programs that the library has started in the host and that are left,
  /// those that have ended among them: they are the test's children.
  std::vector<pid_t> Programs();

  /// What the viewer or the browser that the host started last had to report:
  /// see StartFacts; "" when neither runs.
  std::string Report();
  /// The argument vector in that report.
  Words Started();

  /// Ends the host. The test fails when it did not end well or said something.
  void EndHost();

 private:
  std::string At(const std::string& name) const { return directory_ / name; }
  std::string Response(const std::string& path) const;
  std::optional<pid_t> ProgramOfHere();

  TemporaryDirectory directory_;
  HelpConfig config_;
  std::map<std::string, std::string> places_;
  std::map<std::string, std::string> responses_;
  std::function<void()> on_request_ = [] {};
  HttpServer server_;
  HostStart start_;
  std::unique_ptr<HostProcess> host_;
};

}  // namespace velmohelp::testing

#endif  // TESTS_SYSTEM_HELP_WORLD_H_
