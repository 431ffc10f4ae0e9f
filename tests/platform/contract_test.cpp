// The contract of Machine, for every machine that can do something.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/support/sentence.h"
#include "tests/support/world.h"

namespace velmohelp {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;
using testing::World;

constexpr PreferenceScope kUser = PreferenceScope::kCurrentUserAnyHost;
constexpr PreferenceScope kAdmin = PreferenceScope::kAnyUserCurrentHost;

struct Implementation {
  const char* sentence;
  std::unique_ptr<World> (*make)();
};

class EveryMachine : public ::testing::TestWithParam<Implementation> {
 protected:
  World& world() { return *world_; }
  Machine& machine() { return world_->machine(); }

 private:
  std::unique_ptr<World> world_ = GetParam().make();
};

INSTANTIATE_TEST_SUITE_P(
    Contract, EveryMachine,
    ::testing::Values(Implementation{"linux", &testing::MakeLinuxWorld},
                      Implementation{"scripted", &testing::MakeScriptedWorld}),
    testing::SentenceOf());

TEST_P(EveryMachine, SeesFilesAndDirectories) {
  EXPECT_TRUE(machine().FindFile(world().AddFile("a/file")));
  EXPECT_TRUE(machine().FindFile(world().AddDirectory("directory")));
  EXPECT_TRUE(machine().FindFile(world().root() + "/a"));
  EXPECT_TRUE(machine().FindFile(world().root() + "//a///file"));
  EXPECT_TRUE(machine().FindFile(world().root() + "/a/"));
}

TEST_P(EveryMachine, SeesNothingWhereNothingIs) {
  const std::string file = world().AddFile("file");
  EXPECT_FALSE(machine().FindFile(""));
  EXPECT_FALSE(machine().FindFile(world().root() + "/missing"));
  EXPECT_FALSE(machine().FindFile(file + "/"));
  EXPECT_FALSE(machine().FindFile(file + "\0"s));
  EXPECT_FALSE(machine().FindFile(file + "\0/x"s));
}

TEST_P(EveryMachine, TellsFilesApart) {
  const auto first = machine().FindFile(world().AddFile("first"));
  const auto again = machine().FindFile(world().root() + "//first");
  const auto second = machine().FindFile(world().AddFile("second"));
  ASSERT_TRUE(first && again && second);
  EXPECT_EQ(first->reference.inode, again->reference.inode);
  EXPECT_EQ(first->reference.device, again->reference.device);
  EXPECT_NE(first->reference.inode, second->reference.inode);
  EXPECT_FALSE(first->is_directory);
}

TEST_P(EveryMachine, TellsDirectoriesFromFiles) {
  const auto entry = machine().FindFile(world().AddDirectory("directory"));
  ASSERT_TRUE(entry);
  EXPECT_TRUE(entry->is_directory);
  EXPECT_FALSE(machine().FindFile(world().root() + "/missing"));
  EXPECT_FALSE(machine().FindFile(""));
}

TEST_P(EveryMachine, ListsADirectory) {
  const std::string file = world().AddFile("list/file");
  world().AddFile("list/deeper/other");
  EXPECT_THAT(machine().NamesIn(world().root() + "/list"),
              ::testing::UnorderedElementsAre("deeper", "file"));
  for (const std::string& path : {file, world().root() + "/missing", ""s}) {
    EXPECT_THAT(machine().NamesIn(path), ::testing::IsEmpty()) << path;
  }
}

TEST_P(EveryMachine, HasThePreferencesFolder) {
  const std::string folder = world().SetPreferencesFolder();
  for (const bool create : {false, true}) {
    EXPECT_EQ(machine().PreferencesFolder(create), folder);
  }
}

TEST_P(EveryMachine, FindsABundleByItsIdentifier) {
  const std::string identifier =
      "com.example.contract" + std::to_string(getpid());
  EXPECT_FALSE(machine().BundleDirectory(identifier));
  const std::string directory = world().AddBundle(identifier);
  EXPECT_EQ(machine().BundleDirectory(identifier), directory);
}

TEST_P(EveryMachine, FindsTheExecutableOfAnApplicationDirectory) {
  const std::string application = world().AddApplication("Viewer.app");
  EXPECT_EQ(machine().ApplicationExecutable(application),
            application + "/AppRun");
  EXPECT_FALSE(machine().ApplicationExecutable(world().AddDirectory("empty")));
  EXPECT_FALSE(machine().ApplicationExecutable(application + "\n"));
  EXPECT_FALSE(machine().ApplicationExecutable(""));
}

TEST_P(EveryMachine, RunsAProgramToItsEnd) {
  EXPECT_EQ(machine().RunToEnd(world().AddProgram("good", 0), {}), 0);
  EXPECT_EQ(machine().RunToEnd(world().AddProgram("bad", 255), {}), 255);
  EXPECT_FALSE(machine().RunToEnd(world().root() + "/missing", {}));
  EXPECT_FALSE(machine().RunToEnd("", {}));
}

TEST_P(EveryMachine, ReadsWhatAProgramSays) {
  EXPECT_EQ(
      machine().FirstOutput(world().AddSpeaker("one", "/a b\n"), {"speak"}),
      "/a b\n");
  EXPECT_EQ(machine().FirstOutput(world().AddSpeaker("none", ""), {"speak"}),
            "");
  EXPECT_FALSE(machine().FirstOutput(world().root() + "/missing", {"speak"}));
}

TEST_P(EveryMachine, StartsAProgram) {
  EXPECT_TRUE(machine().StartProgram(world().AddLastingProgram("viewer"),
                                     {"HELP", "product"}));
  EXPECT_FALSE(machine().StartProgram(world().root() + "/missing", {}));
}

TEST_P(EveryMachine, TellsWhatItCanStart) {
  EXPECT_TRUE(machine().CanStart(world().AddLastingProgram("viewer")));
  EXPECT_FALSE(machine().CanStart(world().AddFile("text")));
  EXPECT_FALSE(machine().CanStart(world().root()));
  EXPECT_FALSE(machine().CanStart(world().root() + "/missing"));
}

TEST_P(EveryMachine, ReadsAPreferenceInItsScope) {
  world().SetUserPreference("com.example.x", "Key", "a value");
  EXPECT_EQ(machine().Preference("com.example.x", "Key", kUser), "a value");
  EXPECT_FALSE(machine().Preference("com.example.x", "Key", kAdmin));
  EXPECT_FALSE(machine().Preference("com.example.x", "key", kUser));
  EXPECT_FALSE(machine().Preference("com.example.y", "Key", kUser));
  EXPECT_FALSE(machine().Preference("", "", kUser));
}

TEST_P(EveryMachine, TellsAnEmptyPreferenceFromNone) {
  world().SetUserPreference("com.example.x", "Key", "");
  EXPECT_EQ(machine().Preference("com.example.x", "Key", kUser), "");
}

TEST_P(EveryMachine, KnowsNoWayToNoHost) {
  EXPECT_FALSE(machine().HostReachability(std::nullopt));
  EXPECT_FALSE(machine().HostReachability(""));
}

TEST_P(EveryMachine, FetchesATextWhereThereIsOne) {
  EXPECT_TRUE(machine().FetchText(world().AddText("page.html"), 1min));
  EXPECT_FALSE(
      machine().FetchText("file://" + world().root() + "/missing", 1min));
  EXPECT_FALSE(machine().FetchText("", 1min));
}

TEST_P(EveryMachine, HasAClockThatNeverGoesBack) {
  const auto before = machine().MonotonicTime();
  EXPECT_GE(machine().MonotonicTime(), before);
}

TEST_P(EveryMachine, OpensNothingThatIsNoUrl) {
  EXPECT_FALSE(machine().OpenInBrowser(""));
  EXPECT_FALSE(machine().FindBrowser(""));
}

}  // namespace
}  // namespace velmohelp
