#include "platform/linux/linux_machine.h"

#include <utility>

#include "platform/linux/bundles.h"
#include "platform/linux/environment.h"
#include "platform/linux/files.h"
#include "platform/linux/folders.h"
#include "platform/linux/own_location.h"
#include "platform/linux/preference_store.h"
#include "platform/linux/programs.h"
#include "platform/linux/worker.h"

namespace velmohelp {
LinuxMachine::LinuxMachine(std::string helper_folder, Timeouts timeouts,
                           std::string library_folder)
    : helper_folder_(std::move(helper_folder)),
      timeouts_(timeouts),
      library_folder_(std::move(library_folder)) {}

std::optional<std::string> LinuxMachine::LibraryFolder() const {
  return library_folder_.empty() ? OwnFolder() : library_folder_;
}

/// Beside the library, in the build tree, an installed tree and a package
/// alike. Never in PATH, which anybody may have set.
std::string LinuxMachine::HelperFolder() const {
  if (!helper_folder_.empty()) return helper_folder_;
  return LibraryFolder().value_or("/nonexistent") + "/velmohelp";
}

HelperAnswers LinuxMachine::Helpers() const {
  return HelperAnswers(HelperFolder(), timeouts_);
}

std::optional<std::string> LinuxMachine::Host() const {
  const auto host = host_.text();
  return host ? host : HostExecutable();
}

std::optional<FileEntry> LinuxMachine::FindFile(const std::string& path) {
  return FindEntry(path);
}

std::vector<std::string> LinuxMachine::NamesIn(const std::string& path) {
  return EntriesOf(path);
}

std::optional<std::string> LinuxMachine::PreferencesFolder(bool create) {
  return velmohelp::PreferencesFolder(create);
}

bool LinuxMachine::SetHost(const std::optional<std::string>& executable) {
  if (!executable) {
    host_.Clear();
    return true;
  }
  return executable->find('\0') == std::string::npos && host_.Set(*executable);
}

std::optional<std::string> LinuxMachine::ResourcesDirectory() {
  const auto executable = Host();
  return executable ? ResourcesOf(*executable) : std::nullopt;
}

std::optional<std::string> LinuxMachine::BundleDirectory(
    const std::string& identifier) {
  return FindBundle(identifier, LibraryFolder(), Host());
}

std::optional<std::string> LinuxMachine::ApplicationExecutable(
    const std::string& directory) {
  return ExecutableOf(directory);
}

std::optional<int> LinuxMachine::RunToEnd(const std::string& program,
                                          const Arguments& arguments) {
  return velmohelp::RunToEnd(program, arguments);
}

std::optional<std::string> LinuxMachine::FirstOutput(
    const std::string& program, const Arguments& arguments) {
  return velmohelp::FirstOutput(program, arguments);
}

/// The host's own token counts as used after any start: it belongs to the
/// host's first window.
std::optional<std::string> LinuxMachine::ConsumeActivationToken() {
  const auto own = ConsumeOwnActivationToken();
  const auto token = activation_token_.text();
  activation_token_.Clear();
  return token ? token : own;
}

bool LinuxMachine::SetActivationToken(const std::optional<std::string>& token) {
  if (token) return activation_token_.Set(*token);
  activation_token_.Clear();
  return true;
}

bool LinuxMachine::StartProgram(const std::string& program,
                                const Arguments& arguments) {
  return StartDetached(program, arguments, ConsumeActivationToken()) ==
         StartResult::kRunning;
}

bool LinuxMachine::CanStart(const std::string& program) {
  return IsProgram(program);
}

bool LinuxMachine::OpenInBrowser(const std::string& url) {
  return Helpers().OpenInBrowser(url, ConsumeActivationToken());
}

std::optional<Arguments> LinuxMachine::FindBrowser(const std::string& url) {
  return Helpers().FindBrowser(url);
}

std::optional<Reachability> LinuxMachine::HostReachability(
    const std::optional<std::string>& host) {
  return Helpers().HostReachability(host);
}

std::optional<std::string> LinuxMachine::Preference(const std::string& domain,
                                                    const std::string& key,
                                                    PreferenceScope scope) {
  return ReadPreference(domain, key, scope);
}

bool LinuxMachine::FetchText(const std::string& url,
                             std::chrono::milliseconds timeout) {
  return Helpers().FetchText(url, timeout);
}

int LinuxMachine::StartWorker(const Arguments& words) {
  return velmohelp::StartWorker({.helper_folder = HelperFolder(),
                                 .library_folder = LibraryFolder().value_or(""),
                                 .host = Host().value_or(""),
                                 .activation_token = ConsumeActivationToken()},
                                words);
}

std::optional<std::string> LinuxMachine::FinishWorker(int descriptor) {
  return velmohelp::FinishWorker(descriptor);
}

std::chrono::milliseconds LinuxMachine::MonotonicTime() {
  return std::chrono::duration_cast<std::chrono::milliseconds>(
      std::chrono::steady_clock::now().time_since_epoch());
}

}  // namespace velmohelp
