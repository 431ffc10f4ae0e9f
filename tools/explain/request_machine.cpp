#include "tools/explain/request_machine.h"

#include <cstdlib>
#include <filesystem>

#include "platform/dry_run_machine.h"
#include "platform/linux/folders.h"
#include "platform/linux/linux_machine.h"
#include "platform/linux/open_file.h"
#include "platform/linux/own_location.h"
#include "tools/explain/file_facts.h"
#include "tools/explain/process.h"
#include "util/input_file.h"
#include "util/str_cat.h"

namespace velmohelp::tool {
namespace {

namespace fs = std::filesystem;

/// The folder of the client library: that of a running host's, else the one
/// beside this program, as both are installed or built.
std::string LibraryFolder(const std::string& of_host) {
  if (!of_host.empty()) return of_host;
  const fs::path own = OwnFolder().value_or("/nonexistent");
  std::error_code error;
  const fs::path installed = own / VELMO_TOOL_LIBRARY_FOLDER;
  const fs::path built = own / "../lib";
  for (const fs::path& folder : {installed, built}) {
    if (fs::exists(folder / "velmohelp/velmohelp-reach", error)) {
      return fs::weakly_canonical(folder, error).string();
    }
  }
  return installed.lexically_normal().string();
}

/// The library looks for bundles beside its own file, which this program is
/// not.
class BesideTheLibrary : public ForwardingMachine {
 public:
  BesideTheLibrary(Machine& machine, std::string library_folder)
      : ForwardingMachine(machine), folder_(std::move(library_folder)) {}

  std::optional<std::string> BundleDirectory(
      const std::string& identifier) override {
    const std::string path = folder_ + "/" + identifier + ".framework";
    const bool named = identifier.find('/') == std::string::npos;
    const auto entry = named ? machine().FindFile(path) : std::nullopt;
    if (entry && entry->is_directory) return path;
    return machine().BundleDirectory(identifier);
  }

 private:
  std::string folder_;
};

/// Starts nothing, and knows which programs would not start.
class CheckedDryRun : public DryRunMachine {
 public:
  using DryRunMachine::DryRunMachine;

  /// A folder that is missing would be made: what is looked for in it has that
  /// path.
  std::optional<std::string> PreferencesFolder(bool) override {
    return PreferencesFolderPath();
  }
  bool StartProgram(const std::string& program,
                    const Arguments& arguments) override {
    return WhyNotRun(program).empty() &&
           DryRunMachine::StartProgram(program, arguments);
  }
  bool OpenInBrowser(const std::string& url) override {
    if (!DryRunMachine::OpenInBrowser(url)) return false;
    const std::string& program = start()->program;
    return program.empty() || WhyNotRun(program).empty();
  }
};

std::string Home() {
  const char* home = std::getenv("HOME");
  return home == nullptr ? "" : home;
}

}  // namespace

struct RequestMachine::Layers {
  Layers(const std::string& library_folder, const WhatIf& what_if)
      : linux_machine(library_folder + "/velmohelp"),
        beside(linux_machine, library_folder),
        dry(beside),
        what_if_dry(dry, what_if),
        what_if_real(beside, what_if) {}

  LinuxMachine linux_machine;
  BesideTheLibrary beside;
  CheckedDryRun dry;
  WhatIfMachine what_if_dry;
  WhatIfMachine what_if_real;
  bool is_dry = true;
};

RequestMachine::RequestMachine(const MachineOptions& options, bool dry)
    : host_(options.host), host_is_named_(true) {
  HostProcess process;
  if (!options.pid.empty()) process = BecomeProcess(options.pid);
  not_entered_ = process.not_entered;
  if (host_.empty()) host_ = process.executable;
  const std::string library_folder = LibraryFolder(process.library_folder);
  helper_folder_ = library_folder + "/velmohelp";
  layers_ = std::make_unique<Layers>(library_folder, options.what_if);
  layers_->is_dry = dry;
  if (!host_.empty()) {
    host_ = fs::absolute(host_).lexically_normal().string();
    layers_->linux_machine.SetHost(host_);
  } else {
    host_is_named_ = false;
    host_ = HostExecutable().value_or("");
  }
}

RequestMachine::~RequestMachine() = default;

Machine& RequestMachine::machine() {
  return layers_->is_dry ? layers_->what_if_dry : layers_->what_if_real;
}

Surroundings RequestMachine::Look(const Arguments& words) {
  Surroundings around = {.host = host_,
                         .host_is_named = host_is_named_,
                         .host_flatpak = "",
                         .browser = {},
                         .home = Home()};
  const auto entry = layers_->linux_machine.FirstOutput(
      helper_folder_ + "/velmohelp-browser", {"--describe"});
  around.browser = ParseBrowserEntry(entry.value_or(""));
  AddFromCommand(words, around.browser);
  const auto info = ReadRegularFile("/.flatpak-info", kSettingsFileLimit);
  around.host_flatpak = SandboxedApplication(info.value_or(""));
  return around;
}

Arguments WordsOf(const WhatIf& what_if) {
  Arguments words;
  if (what_if.offline) words.emplace_back("--offline");
  if (what_if.online) words.emplace_back("--online");
  if (what_if.no_viewer) words.emplace_back("--no-viewer");
  for (const auto& [key, value] : what_if.preferences) {
    words.emplace_back("--pref");
    words.push_back(StrCat({key, "=", value}));
  }
  return words;
}

void AddHostOptions(CLI::App& command, MachineOptions& options) {
  auto* host = command
                   .add_option("--host", options.host,
                               "Be this application: its executable")
                   ->check(CLI::ExistingFile.description(""))
                   ->option_text("EXECUTABLE");
  command
      .add_option("--pid", options.pid,
                  "Be a running application: its executable, environment and "
                  "sandbox")
      ->check(CLI::PositiveNumber.description(""))
      ->option_text("PID")
      ->excludes(host);
}

void AddWhatIfOptions(CLI::App& command, MachineOptions& options) {
  auto* offline = command.add_flag("--offline", options.what_if.offline,
                                   "What if the help server is out of reach");
  command
      .add_flag("--online", options.what_if.online,
                "What if online help is allowed and its server in reach")
      ->excludes(offline);
  command.add_flag("--no-viewer", options.what_if.no_viewer,
                   "What if no help viewer is installed");
  command
      .add_option_function<std::vector<std::string>>(
          "--pref",
          [&options](const std::vector<std::string>& preferences) {
            for (const std::string& preference : preferences) {
              const std::size_t sign = preference.find('=');
              if (sign == std::string::npos || sign == 0) {
                throw CLI::ValidationError("--pref", "is not KEY=VALUE");
              }
              options.what_if.preferences[preference.substr(0, sign)] =
                  preference.substr(sign + 1);
            }
          },
          "What if the administrator and the user had set this preference")
      ->option_text("KEY=VALUE")
      ->expected(1)
      ->take_all();
}

}  // namespace velmohelp::tool
