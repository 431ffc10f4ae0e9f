#include "tools/explain/tracing_machine.h"

#include <utility>

#include "tools/explain/file_facts.h"

namespace velmohelp::tool {
namespace {

Arguments Command(const std::string& program, const Arguments& arguments) {
  Arguments words = {program};
  words.insert(words.end(), arguments.begin(), arguments.end());
  return words;
}

std::string YesOrNo(bool yes) { return yes ? "yes" : "no"; }

std::string TextOf(const std::optional<Reachability>& answer) {
  if (!answer) return "unknown";
  if (!answer->reachable) return "unreachable";
  return answer->connection_required ? "a connection must be made first"
                                     : "reachable";
}

/// A helper's reason is one line.
std::string FirstLine(const std::string& text) {
  return text.substr(0, text.find('\n'));
}

}  // namespace

Step& TracingMachine::Add(const char* verb, Arguments arguments, bool ok,
                          std::string answer) {
  trail_.push_back({.kind = Step::Kind::kQuestion,
                    .name = verb,
                    .subject = std::move(arguments),
                    .ok = ok,
                    .answer = std::move(answer)});
  return trail_.back();
}

std::optional<std::string> TracingMachine::Add(
    const char* verb, Arguments arguments, std::optional<std::string> answer) {
  Add(verb, std::move(arguments), answer.has_value(), answer.value_or("none"));
  return answer;
}

/// A helper that is asked why writes a line, perhaps an empty one. One that is
/// late has been ended, which gives the reason late.
std::string TracingMachine::AskWhy(const char* helper, const std::string& about,
                                   const char* late) {
  const auto line =
      machine().FirstOutput(helper_folder_ + "/" + helper, {"--why", about});
  if (!line) return "";
  return line->empty() ? late : FirstLine(*line);
}

std::optional<FileEntry> TracingMachine::FindFile(const std::string& path) {
  const auto entry = machine().FindFile(path);
  Step& step = Add("FindFile", {path}, entry.has_value(), YesOrNo(!!entry));
  if (!entry) step.reason = WhyNotFound(path);
  return entry;
}

std::optional<std::string> TracingMachine::PreferencesFolder(bool create) {
  return Add("PreferencesFolder", {}, machine().PreferencesFolder(create));
}

std::optional<std::string> TracingMachine::ResourcesDirectory() {
  return Add("ResourcesDirectory", {}, machine().ResourcesDirectory());
}

std::optional<std::string> TracingMachine::BundleDirectory(
    const std::string& identifier) {
  return Add("BundleDirectory", {identifier},
             machine().BundleDirectory(identifier));
}

std::optional<std::string> TracingMachine::ApplicationExecutable(
    const std::string& directory) {
  return Add("ApplicationExecutable", {directory},
             machine().ApplicationExecutable(directory));
}

std::optional<int> TracingMachine::RunToEnd(const std::string& program,
                                            const Arguments& arguments) {
  const auto status = machine().RunToEnd(program, arguments);
  Step& step = Add("RunToEnd", Command(program, arguments), status == 0,
                   status ? std::to_string(*status) : "did not run");
  if (!status) step.reason = WhyNotRun(program);
  return status;
}

std::optional<std::string> TracingMachine::FirstOutput(
    const std::string& program, const Arguments& arguments) {
  return Add("FirstOutput", Command(program, arguments),
             machine().FirstOutput(program, arguments));
}

bool TracingMachine::StartProgram(const std::string& program,
                                  const Arguments& arguments) {
  const bool starts = machine().StartProgram(program, arguments);
  Step& step =
      Add("StartProgram", Command(program, arguments), starts, YesOrNo(starts));
  if (!starts) step.reason = WhyNotRun(program);
  return starts;
}

bool TracingMachine::OpenInBrowser(const std::string& url) {
  const bool opens = machine().OpenInBrowser(url);
  Step& step = Add("OpenInBrowser", {url}, opens, YesOrNo(opens));
  const auto words = opens ? std::nullopt : machine().FindBrowser(url);
  if (words && !words->empty()) {
    step.reason = words->front() + ": " + WhyNotRun(words->front());
  }
  return opens;
}

std::optional<Reachability> TracingMachine::HostReachability(
    const std::optional<std::string>& host) {
  const auto answer = machine().HostReachability(host);
  const bool ok = answer && answer->reachable && !answer->connection_required;
  Step& step = Add("HostReachability", {host.value_or("")}, ok, TextOf(answer));
  if (!ok && host) {
    // Only the look-up of the name takes time.
    step.reason =
        AskWhy("velmohelp-reach", *host, "the name server does not answer");
  }
  return answer;
}

std::optional<std::string> TracingMachine::Preference(const std::string& domain,
                                                      const std::string& key,
                                                      PreferenceScope scope) {
  const bool admin = scope == PreferenceScope::kAnyUserCurrentHost;
  return Add("Preference", {admin ? "administrator" : "user", domain, key},
             machine().Preference(domain, key, scope));
}

bool TracingMachine::FetchText(const std::string& url,
                               std::chrono::milliseconds timeout) {
  const bool is_text = machine().FetchText(url, timeout);
  Step& step = Add("FetchText", {url}, is_text, YesOrNo(is_text));
  if (!is_text) {
    step.reason = AskWhy("velmohelp-fetch", url, "no answer in time");
  }
  return is_text;
}

}  // namespace velmohelp::tool
