// What a request tells its observer between its questions, and in which order.
#include "platform/observer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/client_world.h"

namespace velmohelp {
namespace {

using testing::ClientWorld;
using ::testing::ElementsAre;
using Steps = std::vector<std::string>;

std::string NameIn(const std::string& path) {
  return path.substr(path.rfind('/') + 1);
}

std::string YesOrNo(bool yes) { return yes ? "yes" : "no"; }

/// Writes down each call in a few words.
class Recorder : public RequestObserver {
 public:
  explicit Recorder(Steps& steps) : steps_(steps) {}

  void OnKeyFile(const std::string& path, const std::string* text) override {
    Add("file " + NameIn(path) + ": " + YesOrNo(text != nullptr));
  }
  void BeforeScan(std::string_view text, std::string_view key) override {
    EXPECT_FALSE(text.empty());
    Add("scan " + std::string(key));
  }
  void OnLookUp(const std::string& page, std::string_view key) override {
    Add("look up " + page + " as " + std::string(key));
  }
  void OnHelpMap(const std::string& path,
                 const std::string_view* text) override {
    Add("map " + NameIn(path) + ": " + YesOrNo(text != nullptr));
  }
  void OnContentFolder(const std::string& path, bool accepted,
                       const std::string& target) override {
    const bool is_download = path.find("Local Store") != std::string::npos;
    Add(std::string(is_download ? "downloaded" : "installed") + " folder, " +
        NameIn(target) + ": " + YesOrNo(accepted));
  }

 private:
  void Add(std::string step) { steps_.push_back(std::move(step)); }

  Steps& steps_;
};

/// Writes each question down in the same list.
class AskedMachine : public ScriptedMachine {
 public:
  explicit AskedMachine(Steps& steps) : steps_(steps) {}

 protected:
  void Record(const Arguments& words) override {
    ScriptedMachine::Record(words);
    std::string step = "ask " + words[0];
    if (words.size() > 1) step += " " + NameIn(words[1]);
    steps_.push_back(step);
  }

 private:
  Steps& steps_;
};

class AnObserver : public ::testing::Test {
 protected:
  AnObserver() {
    world_.Install();
    world_.InstallWorkingViewer();
  }

  Steps Display(const char* page) {
    world_.Initialise();
    steps_.clear();
    DisplayPage({machine_, world_.state(), &recorder_}, page);
    return steps_;
  }

  /// The first search for a page alone.
  Steps Search(const char* page) {
    const Steps steps = Display(page);
    const auto is_search = [](const std::string& step) {
      return step.starts_with("look up");
    };
    const auto first = std::ranges::find_if(steps, is_search);
    if (first == steps.end()) return {};
    return {first, std::find_if(first + 1, steps.end(), is_search)};
  }

  Steps steps_;
  Recorder recorder_{steps_};
  AskedMachine machine_{steps_};
  ClientWorld world_{machine_};
};

TEST_F(AnObserver, SeesADisplayBetweenItsQuestions) {
  world_.AddFile(world_.DownloadedManual() + "/page.html");
  EXPECT_THAT(
      Display("page"),
      ElementsAre(
          // The configuration.
          "ask ResourcesDirectory", "file Foo.helpcfg: yes", "scan path",
          "scan appId", "scan pubId", "ask PreferencesFolder create",
          "ask FindFile Foo.helpcfg", "file Foo.helpcfg: yes", "scan id",
          "scan baseUrl", "ask PreferencesFolder create",
          // The viewer's path.
          "ask BundleDirectory com.velmo.vxclientframework", "ask FindFile QTV",
          "ask RunToEnd QTV", "ask FirstOutput QTV",
          "ask ApplicationExecutable Viewer.app",
          // Online or not; viewer or browser.
          "ask Preference admin", "ask Preference user",
          "ask HostReachability localhost", "ask FindFile klh-pref.xml",
          "ask FindFile Viewer",
          "ask BundleDirectory com.velmo.vxclientframework", "ask FindFile QTV",
          "ask RunToEnd QTV",
          // The page, and its start.
          "look up page.html as page", "ask PreferencesFolder create",
          "ask FindFile helpmap.txt", "ask FindFile page.html",
          "downloaded folder, page.html: yes", "ask FindFile Viewer",
          "ask StartProgram Viewer"));
}

TEST_F(AnObserver, SeesWhyAFolderIsRefused) {
  world_.AddFile(world_.DownloadedManual() + "//helpmap.txt", "a\tb.html\n");
  EXPECT_THAT(
      Search("page"),
      ElementsAre("look up page.html as page", "ask PreferencesFolder create",
                  "ask FindFile helpmap.txt", "map helpmap.txt: yes",
                  "downloaded folder, page.html: no",
                  "ask FindFile helpmap.txt", "ask FindFile page.html",
                  "installed folder, page.html: no"));
}

TEST_F(AnObserver, SeesAPageThatTheNetworkDoesNotGive) {
  world_.GoOnline();
  EXPECT_THAT(
      Search("page"),
      ElementsAre("look up page.html as page", "ask PreferencesFolder create",
                  "ask FindFile helpmap.txt", "ask FetchText page.html",
                  "downloaded folder, page.html: no",
                  "ask FindFile helpmap.txt", "ask FetchText page.html",
                  "installed folder, page.html: no"));
}

TEST_F(AnObserver, SeesViewerPreferencesThatAreRead) {
  world_.SetAccessibleMode("true");
  EXPECT_THAT(Display("page"),
              ::testing::IsSupersetOf(
                  {"file klh-pref.xml: yes", "scan accessibleMode"}));
}

}  // namespace
}  // namespace velmohelp
