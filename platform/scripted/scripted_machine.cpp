#include "platform/scripted/scripted_machine.h"

#include <algorithm>

namespace velmohelp {
namespace {

using namespace std::chrono_literals;

constexpr char kBrowser[] = "/usr/bin/browser";

std::string Quoted(const std::string& word) {
  const bool plain =
      !word.empty() && word.find_first_of(" \"") == std::string::npos;
  return plain ? word : '"' + word + '"';
}

Arguments Question(const char* verb, const std::string& program,
                   const Arguments& arguments) {
  Arguments words = {verb, program};
  words.insert(words.end(), arguments.begin(), arguments.end());
  return words;
}

template <typename Facts>
std::optional<typename Facts::mapped_type> Lookup(
    const Facts& facts, const typename Facts::key_type& key) {
  const auto fact = facts.find(key);
  if (fact == facts.end()) return std::nullopt;
  return fact->second;
}

}  // namespace

void ScriptedMachine::SetPreferencesFolder(const std::string& path) {
  AddDirectory(path);
  preferences_folder_ = path;
}

void ScriptedMachine::SetResourcesDirectory(const std::string& path) {
  AddDirectory(path);
  resources_directory_ = path;
}

void ScriptedMachine::SetBundle(const std::string& identifier,
                                const std::string& directory) {
  AddDirectory(directory);
  bundles_[identifier] = directory;
}

void ScriptedMachine::SetExecutable(const std::string& directory,
                                    const std::string& path) {
  AddFile(path);
  executables_[WithSingleSlashes(directory)] = path;
}

void ScriptedMachine::OnRun(const std::string& program,
                            const Arguments& arguments, int exit_status) {
  exit_statuses_[{WithSingleSlashes(program), arguments}] = exit_status;
}

void ScriptedMachine::OnOutput(const std::string& program,
                               const Arguments& arguments,
                               const std::string& text) {
  outputs_[{WithSingleSlashes(program), arguments}] = text;
}

void ScriptedMachine::OnStart(const std::string& program) {
  startable_.insert(WithSingleSlashes(program));
}

void ScriptedMachine::SetReachability(const std::string& host,
                                      Reachability reachability) {
  hosts_[host] = reachability;
}

void ScriptedMachine::SetPreference(const std::string& domain,
                                    const std::string& key,
                                    PreferenceScope scope,
                                    const std::string& value) {
  preferences_[{domain, key, scope}] = value;
}

void ScriptedMachine::Record(const Arguments& words) {
  std::string question = words.front();
  for (auto word = words.begin() + 1; word != words.end(); ++word) {
    question += ' ' + Quoted(*word);
  }
  questions_.push_back(question);
}

std::optional<FileEntry> ScriptedMachine::FindFile(const std::string& path) {
  Record({"FindFile", path});
  return files_.Find(path);
}

std::vector<std::string> ScriptedMachine::NamesIn(const std::string& path) {
  Record({"NamesIn", path});
  return files_.NamesIn(path);
}

std::optional<std::string> ScriptedMachine::PreferencesFolder(bool create) {
  Record({"PreferencesFolder", create ? "create" : "find"});
  return preferences_folder_;
}

bool ScriptedMachine::SetHost(const std::optional<std::string>& executable) {
  Record({"SetHost", executable.value_or("")});
  return true;
}

std::optional<std::string> ScriptedMachine::ResourcesDirectory() {
  Record({"ResourcesDirectory"});
  return resources_directory_;
}

std::optional<std::string> ScriptedMachine::BundleDirectory(
    const std::string& identifier) {
  Record({"BundleDirectory", identifier});
  return Lookup(bundles_, identifier);
}

std::optional<std::string> ScriptedMachine::ApplicationExecutable(
    const std::string& directory) {
  Record({"ApplicationExecutable", directory});
  return Lookup(executables_, WithSingleSlashes(directory));
}

std::optional<int> ScriptedMachine::RunToEnd(const std::string& program,
                                             const Arguments& arguments) {
  Record(Question("RunToEnd", program, arguments));
  return Lookup(exit_statuses_, {WithSingleSlashes(program), arguments});
}

std::optional<std::string> ScriptedMachine::FirstOutput(
    const std::string& program, const Arguments& arguments) {
  Record(Question("FirstOutput", program, arguments));
  return Lookup(outputs_, {WithSingleSlashes(program), arguments});
}

bool ScriptedMachine::SetActivationToken(
    const std::optional<std::string>& token) {
  Record({"SetActivationToken", token.value_or("")});
  return true;
}

bool ScriptedMachine::StartProgram(const std::string& program,
                                   const Arguments& arguments) {
  Record(Question("StartProgram", program, arguments));
  return startable_.contains(WithSingleSlashes(program));
}

bool ScriptedMachine::CanStart(const std::string& program) {
  Record({"CanStart", program});
  return (browser_opens_ && program == kBrowser) ||
         startable_.contains(WithSingleSlashes(program));
}

bool ScriptedMachine::OpenInBrowser(const std::string& url) {
  Record({"OpenInBrowser", url});
  return browser_opens_;
}

std::optional<Arguments> ScriptedMachine::FindBrowser(const std::string& url) {
  Record({"FindBrowser", url});
  if (!browser_opens_) return std::nullopt;
  return Arguments{kBrowser, url};
}

std::optional<Reachability> ScriptedMachine::HostReachability(
    const std::optional<std::string>& host) {
  if (!host) {
    Record({"HostReachability"});
    return std::nullopt;
  }
  Record({"HostReachability", *host});
  return Lookup(hosts_, *host);
}

std::optional<std::string> ScriptedMachine::Preference(
    const std::string& domain, const std::string& key, PreferenceScope scope) {
  const bool admin = scope == PreferenceScope::kAnyUserCurrentHost;
  Record({"Preference", admin ? "admin" : "user", domain, key});
  return Lookup(preferences_, {domain, key, scope});
}

bool ScriptedMachine::FetchText(const std::string& url,
                                std::chrono::milliseconds timeout) {
  Record({"FetchText", url});
  const auto time = Lookup(fetch_times_, url).value_or(0ms);
  clock_ += std::min(time, timeout);
  return time <= timeout && texts_.contains(url);
}

/// It has no processes.
int ScriptedMachine::StartWorker(const Arguments&) {
  Record({"StartWorker"});
  return -1;
}

std::optional<std::string> ScriptedMachine::FinishWorker(int) {
  Record({"FinishWorker"});
  return std::nullopt;
}

std::chrono::milliseconds ScriptedMachine::MonotonicTime() { return clock_; }

}  // namespace velmohelp
