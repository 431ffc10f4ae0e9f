#include "platform/scripted/fault_machine.h"

namespace velmohelp {

std::optional<FileEntry> FaultMachine::FindFile(const std::string& path) {
  if (Fails()) return std::nullopt;
  return machine_.FindFile(path);
}

std::vector<std::string> FaultMachine::NamesIn(const std::string& path) {
  if (Fails()) return {};
  return machine_.NamesIn(path);
}

std::optional<std::string> FaultMachine::PreferencesFolder(bool create) {
  if (Fails()) return std::nullopt;
  return machine_.PreferencesFolder(create);
}

bool FaultMachine::SetHost(const std::optional<std::string>& executable) {
  return !Fails() && machine_.SetHost(executable);
}

std::optional<std::string> FaultMachine::ResourcesDirectory() {
  if (Fails()) return std::nullopt;
  return machine_.ResourcesDirectory();
}

std::optional<std::string> FaultMachine::BundleDirectory(
    const std::string& identifier) {
  if (Fails()) return std::nullopt;
  return machine_.BundleDirectory(identifier);
}

std::optional<std::string> FaultMachine::ApplicationExecutable(
    const std::string& directory) {
  if (Fails()) return std::nullopt;
  return machine_.ApplicationExecutable(directory);
}

std::optional<int> FaultMachine::RunToEnd(const std::string& program,
                                          const Arguments& arguments) {
  if (Fails()) return std::nullopt;
  return machine_.RunToEnd(program, arguments);
}

std::optional<std::string> FaultMachine::FirstOutput(
    const std::string& program, const Arguments& arguments) {
  if (Fails()) return std::nullopt;
  return machine_.FirstOutput(program, arguments);
}

bool FaultMachine::SetActivationToken(const std::optional<std::string>& token) {
  return !Fails() && machine_.SetActivationToken(token);
}

bool FaultMachine::StartProgram(const std::string& program,
                                const Arguments& arguments) {
  return !Fails() && machine_.StartProgram(program, arguments);
}

bool FaultMachine::CanStart(const std::string& program) {
  return !Fails() && machine_.CanStart(program);
}

bool FaultMachine::OpenInBrowser(const std::string& url) {
  return !Fails() && machine_.OpenInBrowser(url);
}

std::optional<Arguments> FaultMachine::FindBrowser(const std::string& url) {
  if (Fails()) return std::nullopt;
  return machine_.FindBrowser(url);
}

std::optional<Reachability> FaultMachine::HostReachability(
    const std::optional<std::string>& host) {
  if (Fails()) return std::nullopt;
  return machine_.HostReachability(host);
}

std::optional<std::string> FaultMachine::Preference(const std::string& domain,
                                                    const std::string& key,
                                                    PreferenceScope scope) {
  if (Fails()) return std::nullopt;
  return machine_.Preference(domain, key, scope);
}

bool FaultMachine::FetchText(const std::string& url,
                             std::chrono::milliseconds timeout) {
  return !Fails() && machine_.FetchText(url, timeout);
}

int FaultMachine::StartWorker(const Arguments& words) {
  return Fails() ? -1 : machine_.StartWorker(words);
}

std::optional<std::string> FaultMachine::FinishWorker(int descriptor) {
  if (Fails()) return std::nullopt;
  return machine_.FinishWorker(descriptor);
}

/// A clock does not fail.
std::chrono::milliseconds FaultMachine::MonotonicTime() {
  return machine_.MonotonicTime();
}

}  // namespace velmohelp
