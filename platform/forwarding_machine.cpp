#include "platform/forwarding_machine.h"

namespace velmohelp {

std::optional<FileEntry> ForwardingMachine::FindFile(const std::string& path) {
  return machine_.FindFile(path);
}

std::vector<std::string> ForwardingMachine::NamesIn(const std::string& path) {
  return machine_.NamesIn(path);
}

std::optional<std::string> ForwardingMachine::PreferencesFolder(bool create) {
  return machine_.PreferencesFolder(create);
}

bool ForwardingMachine::SetHost(const std::optional<std::string>& executable) {
  return machine_.SetHost(executable);
}

std::optional<std::string> ForwardingMachine::ResourcesDirectory() {
  return machine_.ResourcesDirectory();
}

std::optional<std::string> ForwardingMachine::BundleDirectory(
    const std::string& identifier) {
  return machine_.BundleDirectory(identifier);
}

std::optional<std::string> ForwardingMachine::ApplicationExecutable(
    const std::string& directory) {
  return machine_.ApplicationExecutable(directory);
}

std::optional<int> ForwardingMachine::RunToEnd(const std::string& program,
                                               const Arguments& arguments) {
  return machine_.RunToEnd(program, arguments);
}

std::optional<std::string> ForwardingMachine::FirstOutput(
    const std::string& program, const Arguments& arguments) {
  return machine_.FirstOutput(program, arguments);
}

bool ForwardingMachine::SetActivationToken(
    const std::optional<std::string>& token) {
  return machine_.SetActivationToken(token);
}

bool ForwardingMachine::StartProgram(const std::string& program,
                                     const Arguments& arguments) {
  return machine_.StartProgram(program, arguments);
}

bool ForwardingMachine::CanStart(const std::string& program) {
  return machine_.CanStart(program);
}

bool ForwardingMachine::OpenInBrowser(const std::string& url) {
  return machine_.OpenInBrowser(url);
}

std::optional<Arguments> ForwardingMachine::FindBrowser(
    const std::string& url) {
  return machine_.FindBrowser(url);
}

std::optional<Reachability> ForwardingMachine::HostReachability(
    const std::optional<std::string>& host) {
  return machine_.HostReachability(host);
}

std::optional<std::string> ForwardingMachine::Preference(
    const std::string& domain, const std::string& key, PreferenceScope scope) {
  return machine_.Preference(domain, key, scope);
}

bool ForwardingMachine::FetchText(const std::string& url,
                                  std::chrono::milliseconds timeout) {
  return machine_.FetchText(url, timeout);
}

int ForwardingMachine::StartWorker(const Arguments& words) {
  return machine_.StartWorker(words);
}

std::optional<std::string> ForwardingMachine::FinishWorker(int descriptor) {
  return machine_.FinishWorker(descriptor);
}

std::chrono::milliseconds ForwardingMachine::MonotonicTime() {
  return machine_.MonotonicTime();
}

}  // namespace velmohelp
