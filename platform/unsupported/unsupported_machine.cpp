#include "platform/unsupported/unsupported_machine.h"

namespace velmohelp {

std::optional<FileEntry> UnsupportedMachine::FindFile(const std::string&) {
  return std::nullopt;
}

std::vector<std::string> UnsupportedMachine::NamesIn(const std::string&) {
  return {};
}

std::optional<std::string> UnsupportedMachine::PreferencesFolder(bool) {
  return std::nullopt;
}

bool UnsupportedMachine::SetHost(const std::optional<std::string>&) {
  return false;
}

std::optional<std::string> UnsupportedMachine::ResourcesDirectory() {
  return std::nullopt;
}

std::optional<std::string> UnsupportedMachine::BundleDirectory(
    const std::string&) {
  return std::nullopt;
}

std::optional<std::string> UnsupportedMachine::ApplicationExecutable(
    const std::string&) {
  return std::nullopt;
}

std::optional<int> UnsupportedMachine::RunToEnd(const std::string&,
                                                const Arguments&) {
  return std::nullopt;
}

std::optional<std::string> UnsupportedMachine::FirstOutput(const std::string&,
                                                           const Arguments&) {
  return std::nullopt;
}

bool UnsupportedMachine::SetActivationToken(const std::optional<std::string>&) {
  return false;
}

bool UnsupportedMachine::StartProgram(const std::string&, const Arguments&) {
  return false;
}

bool UnsupportedMachine::CanStart(const std::string&) { return false; }

bool UnsupportedMachine::OpenInBrowser(const std::string&) { return false; }

std::optional<Arguments> UnsupportedMachine::FindBrowser(const std::string&) {
  return std::nullopt;
}

std::optional<Reachability> UnsupportedMachine::HostReachability(
    const std::optional<std::string>&) {
  return std::nullopt;
}

std::optional<std::string> UnsupportedMachine::Preference(const std::string&,
                                                          const std::string&,
                                                          PreferenceScope) {
  return std::nullopt;
}

bool UnsupportedMachine::FetchText(const std::string&,
                                   std::chrono::milliseconds) {
  return false;
}

int UnsupportedMachine::StartWorker(const Arguments&) { return -1; }

std::optional<std::string> UnsupportedMachine::FinishWorker(int) {
  return std::nullopt;
}

std::chrono::milliseconds UnsupportedMachine::MonotonicTime() {
  return std::chrono::milliseconds::zero();
}

}  // namespace velmohelp
