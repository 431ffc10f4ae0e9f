// Where things lie.
#include "platform/linux/folders.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>
#include <velmohelp_locations.h>

#include <cstdlib>

#include "platform/linux/bundles.h"
#include "platform/linux/files.h"
#include "platform/linux/own_location.h"
#include "platform/linux/preference_store.h"
#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp {
namespace {

namespace fs = std::filesystem;
using testing::TemporaryDirectory;

struct FolderRow {
  const char* sentence;
  const char* config_home;
  const char* home;
  std::string folder;
};

std::string HomeInDatabase() { return getpwuid(getuid())->pw_dir; }

class Preferences : public ::testing::TestWithParam<FolderRow> {};

void SetOrUnset(const char* name, const char* value) {
  if (value == nullptr) {
    unsetenv(name);
  } else {
    setenv(name, value, 1);
  }
}

TEST_P(Preferences, LieIn) {
  SetOrUnset("XDG_CONFIG_HOME", GetParam().config_home);
  SetOrUnset("HOME", GetParam().home);
  EXPECT_EQ(PreferencesFolderPath(), GetParam().folder);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Preferences,
    ::testing::Values(
        FolderRow{"the configured folder", "/x/y", "/home/a", "/x/y"},
        FolderRow{"the configured folder without its slash", "/x//", "/h",
                  "/x"},
        FolderRow{"the root", "/", "/h", "/"},
        FolderRow{"the home when the folder is relative", "x/y", "/home/a",
                  "/home/a/.config"},
        FolderRow{"the home when the folder is empty", "", "/home/a",
                  "/home/a/.config"},
        FolderRow{"the home", nullptr, "/home/a/", "/home/a/.config"},
        FolderRow{"a home that is the root", nullptr, "/", "/.config"},
        FolderRow{"the database when there is no home", nullptr, nullptr,
                  HomeInDatabase() + "/.config"},
        FolderRow{"the database when the home is empty", nullptr, "",
                  HomeInDatabase() + "/.config"},
        FolderRow{"the database when the home is relative", nullptr, "x",
                  HomeInDatabase() + "/.config"}),
    testing::SentenceOf());

fs::perms PermissionsOf(const std::string& path) {
  return fs::status(path).permissions();
}

TEST(PreferencesFolder, IsMadeForTheUserAloneWhenAskedFor) {
  const TemporaryDirectory directory;
  const std::string folder = directory / "a/b";
  setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
  EXPECT_FALSE(PreferencesFolder(false));
  EXPECT_FALSE(fs::exists(directory / "a"));
  EXPECT_EQ(PreferencesFolder(true), folder);
  EXPECT_EQ(PreferencesFolder(false), folder);
  EXPECT_EQ(PermissionsOf(directory / "a"), fs::perms::owner_all);
  EXPECT_EQ(PermissionsOf(folder), fs::perms::owner_all);
}

TEST(PreferencesFolder, IsNoneWhereAFileLies) {
  const TemporaryDirectory directory;
  const std::string file = directory.Write("file", "");
  setenv("XDG_CONFIG_HOME", file.c_str(), 1);
  EXPECT_FALSE(PreferencesFolder(true));
  setenv("XDG_CONFIG_HOME", (file + "/x").c_str(), 1);
  EXPECT_FALSE(PreferencesFolder(true));
}

TEST(Resources, LieBesideTheHostBeforeTheyLieInShare) {
  const TemporaryDirectory directory;
  const std::string host = directory / "bin/host";
  directory.MakeDirectory("bin");
  EXPECT_FALSE(ResourcesOf(host));
  directory.Write("bin/host.resources", "a file");
  EXPECT_FALSE(ResourcesOf(host));
  directory.MakeDirectory("share/host.resources");
  EXPECT_EQ(ResourcesOf(host), directory / "bin/../share/host.resources");
  fs::remove(directory / "bin/host.resources");
  directory.MakeDirectory("bin/host.resources");
  EXPECT_EQ(ResourcesOf(host), directory / "bin/host.resources");
}

TEST(Bundle, IsADirectory) {
  const std::string name = "com.example.file" + std::to_string(getpid());
  const std::string path = OwnFolder().value() + "/" + name + ".framework";
  std::ofstream(path) << "a file";
  EXPECT_FALSE(FindBundle(name));
  fs::remove(path);
}

TEST(Bundle, LiesBesideTheClientBeforeItLiesBesideTheHost) {
  const std::string name = "com.example.order" + std::to_string(getpid());
  const std::string own = OwnFolder().value() + "/" + name + ".framework";
  const std::string host = Dirname(HostExecutable().value()) +
                           "/../Frameworks/" + name + ".framework";
  fs::create_directories(host);
  EXPECT_EQ(FindBundle(name), host);
  fs::create_directory(own);
  EXPECT_EQ(FindBundle(name), own);
  fs::remove(own);
  fs::remove(host);
}

/// Only a build that keeps the machine's folders in its own tree may be asked
/// to put something there.
bool IsInBuildTree(const std::string& folder) {
  return folder.starts_with(VELMO_TEST_BUILD "/");
}

TEST(Bundle, LiesLastInTheFolderOfTheBuild) {
  if (!IsInBuildTree(kFrameworksDir)) GTEST_SKIP() << kFrameworksDir;
  const std::string name = "com.example.last" + std::to_string(getpid());
  const std::string path = kFrameworksDir + ("/" + name) + ".framework";
  fs::create_directories(path);
  EXPECT_EQ(FindBundle(name), path);
  fs::remove(path);
}

TEST(AdministratorsPreference, IsMovedByNoVariable) {
  if (!IsInBuildTree(kSysconfDir)) GTEST_SKIP() << kSysconfDir;
  const TemporaryDirectory directory;
  const std::string domain = "com.example.admin" + std::to_string(getpid());
  const std::string file = kSysconfDir + ("/" + domain) + ".conf";
  fs::create_directories(kSysconfDir);
  std::ofstream(file) << "[Preferences]\nKey=0\n";
  for (const char* variable : {"XDG_CONFIG_HOME", "XDG_CONFIG_DIRS", "HOME"}) {
    setenv(variable, directory.path().c_str(), 1);
  }
  EXPECT_EQ(ReadPreference(domain, "Key", PreferenceScope::kAnyUserCurrentHost),
            "0");
  EXPECT_FALSE(
      ReadPreference(domain, "Key", PreferenceScope::kCurrentUserAnyHost));
  fs::remove(file);
}

TEST(Bundle, IsNamedAndNoPath) {
  EXPECT_FALSE(FindBundle("../platform/x"));
  EXPECT_FALSE(FindBundle(""));
}

class Application : public ::testing::Test {
 protected:
  void Write(const std::string& name) { directory_.WriteScript(name, ""); }
  std::optional<std::string> Executable(const std::string& name) {
    auto path = ExecutableOf(directory_ / name);
    if (!path) return path;
    return path->substr(directory_.path().size() + 1);
  }
  const TemporaryDirectory& directory() const { return directory_; }

 private:
  TemporaryDirectory directory_;
};

TEST_F(Application, HasItsExecutableInBinFirst) {
  Write("Viewer.app/Viewer");
  EXPECT_EQ(Executable("Viewer.app"), "Viewer.app/Viewer");
  Write("Viewer.app/AppRun");
  EXPECT_EQ(Executable("Viewer.app"), "Viewer.app/AppRun");
  Write("Viewer.app/bin/Viewer");
  EXPECT_EQ(Executable("Viewer.app"), "Viewer.app/bin/Viewer");
}

TEST_F(Application, IsNamedWithoutAnEnding) {
  Write("viewer/viewer");
  EXPECT_EQ(Executable("viewer"), "viewer/viewer");
  EXPECT_EQ(Executable("viewer/"), "viewer//viewer");
  Write("v.app.app/v.app");
  EXPECT_EQ(Executable("v.app.app"), "v.app.app/v.app");
}

TEST_F(Application, NeedsARegularFileThatMayBeExecuted) {
  directory().MakeDirectory("v/bin/v");
  directory().Write("v/AppRun", "not executable");
  EXPECT_FALSE(Executable("v"));
  EXPECT_FALSE(Executable("missing"));
  EXPECT_FALSE(ExecutableOf("/"));
}

struct MapsRow {
  const char* sentence;
  const char* maps;
  std::optional<std::string> file;
};

class Maps : public ::testing::TestWithParam<MapsRow> {};

TEST_P(Maps, TellTheFileAtAnAddress) {
  EXPECT_EQ(MappedFile(GetParam().maps, 0x2000), GetParam().file);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Maps,
    ::testing::Values(
        MapsRow{"at the start of a mapping",
                "1000-2000 r--p 00000000 08:01 7      /x/a\n"
                "2000-3000 r-xp 00000000 08:01 8      /x/b c.so\n",
                "/x/b c.so"},
        MapsRow{"in the middle", "1000-3000 r--p 00000000 08:01 7 /x/a",
                "/x/a"},
        MapsRow{"of a file that was replaced",
                "1000-3000 r--p 00000000 08:01 7 /x/a (deleted)\n", "/x/a"},
        MapsRow{"behind the end of a mapping",
                "1000-2000 r--p 00000000 08:01 7 /x/a\n",
                {}},
        MapsRow{
            "without a file", "1000-3000 rw-p 00000000 00:00 0 [heap]\n", {}},
        MapsRow{"nonsense", "x\n\n-\n1000\n", {}}, MapsRow{"nothing", "", {}}),
    testing::SentenceOf());

TEST(HostProgram, IsThisOne) {
  EXPECT_EQ(HostExecutable(), fs::read_symlink("/proc/self/exe").string());
}

TEST(OwnLocation, IsFoundWhereverTheHostWorks) {
  const std::string folder = fs::read_symlink("/proc/self/exe").parent_path();
  fs::current_path("/");
  EXPECT_EQ(OwnFolder(), folder);
}

}  // namespace
}  // namespace velmohelp
