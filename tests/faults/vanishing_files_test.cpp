// Files that are there when the machine is asked, and are not, or are others,
// when they are opened: another program has come in between.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <velmohelp/velmohelp.h>

#include <filesystem>

#include "tests/support/exported_world.h"
#include "tests/support/sentence.h"

namespace velmohelp {
namespace {

namespace fs = std::filesystem;

using testing::ClientWorld;
using testing::ExportedWorld;
using testing::Outcome;

/// Something happens to a file at the first question that ends with a word; the
/// machine returns what it would have without that.
class InterruptedMachine : public ScriptedMachine {
 public:
  void At(const std::string& word, void (*happen)(const std::string& path),
          const std::string& path) {
    word_ = word;
    happen_ = happen;
    path_ = path;
  }

 private:
  void Record(const Arguments& words) override {
    ScriptedMachine::Record(words);
    if (word_.empty() || !words.back().ends_with(word_)) return;
    word_.clear();
    happen_(path_);
  }

  std::string word_;
  void (*happen_)(const std::string& path) = nullptr;
  std::string path_;
};

void Vanish(const std::string& path) { fs::remove(path); }
void BecomeEmpty(const std::string& path) { fs::resize_file(path, 0); }
void BecomeADirectory(const std::string& path) {
  fs::remove(path);
  fs::create_directory(path);
}
void BecomeAPipe(const std::string& path) {
  fs::remove(path);
  mkfifo(path.c_str(), S_IRWXU);
}

std::string Map(const ClientWorld& world) {
  return world.DownloadedManual() + "/helpmap.txt";
}
std::string Download(const ClientWorld& world) {
  return world.DownloadedConfig();
}
std::string Preferences(const ClientWorld& world) {
  return world.PreferenceFile();
}

struct Interruption {
  const char* sentence;
  std::string (*file)(const ClientWorld&);
  void (*happen)(const std::string& path);
  Outcome outcome;
};

class BetweenQuestionAndOpening
    : public ::testing::TestWithParam<Interruption> {};

TEST_P(BetweenQuestionAndOpening, TheDisplayHasAnOutcome) {
  InterruptedMachine machine;
  ExportedWorld world(machine);
  world.Install();
  world.InstallWorkingViewer();
  world.StartBrowsers();
  world.Initialise();
  if (GetParam().file == Download) {
    world.Download({.folders = {{"a folder of its own"}}});
  }
  world.SetAccessibleMode("TRUE");
  world.AddFile(Map(world), "page\tmapped.html\nVX_HOME\thome.html\n");
  const std::string path = GetParam().file(world);
  machine.At(fs::path(path).filename(), GetParam().happen, path);
  const Outcome outcome{DisplayVelmoHelpClientPage("page"), world.Shown()};
  EXPECT_EQ(outcome, GetParam().outcome);
}

const Outcome kPageInBrowser = {
    0,
    {"OpenInBrowser file://~/Preferences/reader.VELMO.1/Local%20Store/Help/"
     "manual/mapped.html"}};
const Outcome kPageInViewer = {
    0,
    {"StartProgram ~/Viewer HELP Foo en_US \"\"file://~/Preferences/"
     "reader.VELMO.1/Local%20Store/Help/manual/mapped.html\"\""}};
const Outcome kIdInViewer = {0, {"StartProgram ~/Viewer HELP Foo en_US page"}};
const Outcome kUnexpected = {11, {}};

void StayAsItIs(const std::string& /*path*/) {}

// The installed configuration replaces a downloaded one, preferences that are
// gone refuse nothing, and the last resort shows an unknown page.
const Interruption kInterruptions[] = {
    {"a help map stays", Map, StayAsItIs, kPageInBrowser},
    {"a download stays", Download, StayAsItIs, kIdInViewer},
    {"a download vanishes", Download, Vanish, kPageInBrowser},
    {"a download becomes empty", Download, BecomeEmpty, kPageInBrowser},
    {"a download becomes a directory", Download, BecomeADirectory,
     kPageInBrowser},
    {"a download becomes a pipe", Download, BecomeAPipe, kPageInBrowser},
    {"the preferences vanish", Preferences, Vanish, kPageInViewer},
    {"the preferences become empty", Preferences, BecomeEmpty, kPageInViewer},
    {"the preferences become a directory", Preferences, BecomeADirectory,
     kPageInViewer},
    {"the preferences become a pipe", Preferences, BecomeAPipe, kPageInViewer},
    {"a help map vanishes", Map, Vanish, kIdInViewer},
    {"a help map becomes empty", Map, BecomeEmpty, kIdInViewer},
    {"a help map becomes a directory", Map, BecomeADirectory, kUnexpected},
    {"a help map becomes a pipe", Map, BecomeAPipe, kIdInViewer},
};

INSTANTIATE_TEST_SUITE_P(, BetweenQuestionAndOpening,
                         ::testing::ValuesIn(kInterruptions),
                         testing::SentenceOf());

struct SecondRead {
  const char* sentence;
  void (*happen)(const std::string& path);
  std::uint32_t code;
};

class BetweenTheReadsOfAnInitialisation
    : public ::testing::TestWithParam<SecondRead> {};

TEST_P(BetweenTheReadsOfAnInitialisation, TheSecondDecides) {
  InterruptedMachine machine;
  ExportedWorld world(machine);
  world.Install();
  machine.At("VelmoOnlineDefault", GetParam().happen, world.InstalledConfig());
  EXPECT_EQ(InitializeVelmoHelpClient("Foo", "en_US", 0), GetParam().code);
  EXPECT_EQ(OpenURL("http://x"), GetParam().code == 0 ? 1U : 6U);
}

constexpr SecondRead kSecondReads[] = {
    {"nothing happens", StayAsItIs, 0},
    {"the configuration vanishes", Vanish, 6},
    {"the configuration becomes a directory", BecomeADirectory, 6},
    {"the configuration becomes a pipe", BecomeAPipe, 6},
    {"the configuration becomes empty", BecomeEmpty, 7},
};

INSTANTIATE_TEST_SUITE_P(, BetweenTheReadsOfAnInitialisation,
                         ::testing::ValuesIn(kSecondReads),
                         testing::SentenceOf());

}  // namespace
}  // namespace velmohelp
