// A machine made of facts that a test states, and a record of what it was
// asked.
#ifndef PLATFORM_SCRIPTED_SCRIPTED_MACHINE_H_
#define PLATFORM_SCRIPTED_SCRIPTED_MACHINE_H_

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "platform/machine.h"
#include "platform/scripted/scripted_files.h"

namespace velmohelp {

/// Without facts nothing exists on it and everything fails. The last statement
/// of a fact counts. Programs are known by path and arguments and need no file
/// at that path.
class ScriptedMachine : public Machine {
 public:
  void AddFile(const std::string& path) { files_.AddFile(path); }
  void AddDirectory(const std::string& path) { files_.AddDirectory(path); }
  void Remove(const std::string& path) { files_.Remove(path); }

  /// The user's Preferences folder; it exists, created or not.
  void SetPreferencesFolder(const std::string& path);
  void SetResourcesDirectory(const std::string& path);
  void SetBundle(const std::string& identifier, const std::string& directory);
  /// The executable of an application directory.
  void SetExecutable(const std::string& directory, const std::string& path);

  /// A program that can be run to its end.
  void OnRun(const std::string& program, const Arguments& arguments,
             int exit_status);
  /// A program whose standard output can be read.
  void OnOutput(const std::string& program, const Arguments& arguments,
                const std::string& text);
  /// A program that is running right after its start, whatever its arguments.
  void OnStart(const std::string& program);
  /// Whether there is a browser, /usr/bin/browser, that opens what it is given.
  void SetBrowserOpens(bool opens) { browser_opens_ = opens; }

  void SetReachability(const std::string& host, Reachability reachability);
  void SetPreference(const std::string& domain, const std::string& key,
                     PreferenceScope scope, const std::string& value);
  /// A URL at which there is a text.
  void AddText(const std::string& url) { texts_.insert(url); }
  /// How far a fetch of the URL advances the clock, which otherwise does
  /// not move. One that takes longer than its timeout fails at its timeout.
  void SetFetchTime(const std::string& url, std::chrono::milliseconds time) {
    fetch_times_[url] = time;
  }

  /// Every question so far but those for the time, first to last: the
  /// function's name and its arguments, separated by a space. An argument that
  /// is empty or has a space or a double quote is enclosed in double quotes:
  ///
  ///   FindFile /x/QTV
  ///   NamesIn /x
  ///   PreferencesFolder create                 (or: find)
  ///   SetHost /x/host                          (the process's own: "")
  ///   ResourcesDirectory
  ///   BundleDirectory com.velmo.vxclientframework
  ///   ApplicationExecutable /x/Viewer.app
  ///   RunToEnd /x/QTV -isAppInstalled "" "a publisher"
  ///   FirstOutput /x/QTV -appLocation klh id.1
  ///   SetActivationToken token                 (none: "")
  ///   StartWorker                              (its words are left out)
  ///   FinishWorker
  ///   StartProgram /x/Viewer HELP product en_US page.html
  ///   CanStart /x/Viewer
  ///   OpenInBrowser file:///x/page.html
  ///   FindBrowser file:///x/page.html
  ///   HostReachability localhost               (no host: no second word)
  ///   Preference admin com.velmo.x HelpcfgName (or: user)
  ///   FetchText http://localhost/page.html     (its timeout is left out)
  const std::vector<std::string>& Questions() const { return questions_; }
  void ForgetQuestions() { questions_.clear(); }

#include "platform/machine_overrides.inc"

 protected:
  /// Called with the words of every question before the machine returns.
  virtual void Record(const Arguments& words);

 private:
  using Command = std::pair<std::string, Arguments>;
  using PreferenceName = std::tuple<std::string, std::string, PreferenceScope>;

  std::vector<std::string> questions_;
  ScriptedFiles files_;
  std::optional<std::string> preferences_folder_;
  std::optional<std::string> resources_directory_;
  std::map<std::string, std::string> bundles_;
  std::map<std::string, std::string> executables_;
  std::map<Command, int> exit_statuses_;
  std::map<Command, std::string> outputs_;
  std::set<std::string> startable_;
  bool browser_opens_ = false;
  std::map<std::string, Reachability> hosts_;
  std::map<PreferenceName, std::string> preferences_;
  std::set<std::string> texts_;
  std::map<std::string, std::chrono::milliseconds> fetch_times_;
  std::chrono::milliseconds clock_{0};
};

}  // namespace velmohelp

#endif  // PLATFORM_SCRIPTED_SCRIPTED_MACHINE_H_
