#include "platform/linux/linux_machine.h"

#include <utility>

#include "platform/linux/bundles.h"
#include "platform/linux/files.h"
#include "platform/linux/folders.h"
#include "platform/linux/own_location.h"
#include "platform/linux/preference_store.h"
#include "platform/linux/programs.h"

namespace velmohelp {
namespace {

/// Beside the library, in the build tree, an installed tree and a package
/// alike. Never in PATH, which anybody may have set.
std::string HelperFolder() {
  return OwnFolder().value_or("/nonexistent") + "/velmohelp";
}

}  // namespace

LinuxMachine::LinuxMachine(std::string helper_folder, Timeouts timeouts)
    : helper_folder_(std::move(helper_folder)), timeouts_(timeouts) {}

HelperAnswers LinuxMachine::Helpers() const {
  return HelperAnswers(helper_folder_.empty() ? HelperFolder() : helper_folder_,
                       timeouts_);
}

std::optional<std::string> LinuxMachine::Host() const {
  const auto host = host_.text();
  return host ? host : HostExecutable();
}

std::optional<FileEntry> LinuxMachine::FindFile(const std::string& path) {
  return FindEntry(path);
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
  return FindBundle(identifier, Host());
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

bool LinuxMachine::StartProgram(const std::string& program,
                                const Arguments& arguments) {
  return StartDetached(program, arguments) == StartResult::kRunning;
}

bool LinuxMachine::OpenInBrowser(const std::string& url) {
  return Helpers().OpenInBrowser(url);
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

std::chrono::milliseconds LinuxMachine::MonotonicTime() {
  return std::chrono::duration_cast<std::chrono::milliseconds>(
      std::chrono::steady_clock::now().time_since_epoch());
}

}  // namespace velmohelp
