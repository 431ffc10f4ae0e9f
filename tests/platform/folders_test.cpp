// Where things lie.
#include "platform/linux/folders.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

#include "platform/linux/bundles.h"
#include "platform/linux/own_location.h"
#include "tests/platform/support/temporary_directory.h"
#include "tests/support/sentence.h"

namespace velmohelp {
namespace {

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

TEST(PreferencesFolder, IsMadeForTheUserAloneWhenAskedFor) {
  const TemporaryDirectory directory;
  const std::string folder = directory / "a/b";
  setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
  EXPECT_FALSE(PreferencesFolder(false));
  EXPECT_FALSE(std::filesystem::exists(directory / "a"));
  EXPECT_EQ(PreferencesFolder(true), folder);
  EXPECT_EQ(PreferencesFolder(false), folder);
  EXPECT_EQ(PreferencesFolder(true), folder);
  for (const std::string& made : {directory / "a", folder}) {
    EXPECT_EQ(std::filesystem::status(made).permissions(),
              std::filesystem::perms::owner_all);
  }
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
  std::filesystem::remove(directory / "bin/host.resources");
  directory.MakeDirectory("bin/host.resources");
  EXPECT_EQ(ResourcesOf(host), directory / "bin/host.resources");
}

TEST(Bundle, IsADirectory) {
  const std::string name = "com.example.bundle" + std::to_string(getpid());
  const std::string path = OwnFolder().value() + "/" + name + ".framework";
  std::ofstream(path) << "a file";
  EXPECT_FALSE(FindBundle(name));
  std::filesystem::remove(path);
  std::filesystem::create_directory(path);
  EXPECT_EQ(FindBundle(name), path);
  std::filesystem::remove(path);
}

TEST(Bundle, IsNamedAndNoPath) {
  EXPECT_FALSE(FindBundle("../platform/x"));
  EXPECT_FALSE(FindBundle(""));
}

class Application : public ::testing::Test {
 protected:
  void Write(const std::string& name) { directory_.WriteScript(name, ""); }
  std::optional<std::string> Executable(const std::string& name) {
    const auto path = ExecutableOf(directory_ / name);
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
  EXPECT_EQ(HostExecutable(),
            std::filesystem::read_symlink("/proc/self/exe").string());
}

TEST(OwnLocation, IsFoundWhereverTheHostWorks) {
  const std::string folder =
      std::filesystem::read_symlink("/proc/self/exe").parent_path();
  std::filesystem::current_path("/");
  EXPECT_EQ(OwnFolder(), folder);
}

}  // namespace
}  // namespace velmohelp
