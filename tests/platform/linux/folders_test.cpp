// The places of files and folders.
#include "platform/linux/folders.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <pthread.h>
#include <pwd.h>
#include <sys/auxv.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>
#include <velmohelp/export.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <list>

#include "platform/linux/bundles.h"
#include "platform/linux/files.h"
#include "platform/linux/own_location.h"
#include "platform/linux/preference_store.h"
#include "platform/locations.h"
#include "tests/support/children.h"
#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp {
namespace {

namespace fs = std::filesystem;
using testing::TemporaryDirectory;

/// The home of the user's entry, and the bytes that the entry takes; the
/// system's entry while there is no home.
std::string home_in_database;
std::size_t bytes_of_entry = 0;

struct FolderRow {
  const char* sentence;
  const char* config_home;
  const char* home;
  std::string folder;
};

/// An absolute path of this length, valid until the end of the program.
const char* LongPath(std::size_t length) {
  static std::list<std::string> paths;
  paths.push_back("/" + std::string(length - 1, 'x'));
  return paths.back().c_str();
}

std::string HomeInDatabase() { return getpwuid(getuid())->pw_dir; }

class PreferencesPath : public ::testing::TestWithParam<FolderRow> {};

void SetOrUnset(const char* name, const char* value) {
  if (value == nullptr) {
    unsetenv(name);
  } else {
    setenv(name, value, 1);
  }
}

TEST_P(PreferencesPath, IsIn) {
  SetOrUnset("XDG_CONFIG_HOME", GetParam().config_home);
  SetOrUnset("HOME", GetParam().home);
  EXPECT_EQ(PreferencesFolderPath(), GetParam().folder);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PreferencesPath,
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
        FolderRow{"the longest path", LongPath(PATH_MAX - 1), "/home/a",
                  LongPath(PATH_MAX - 1)},
        FolderRow{"the home when the folder's path is too long",
                  LongPath(PATH_MAX), "/home/a", "/home/a/.config"},
        FolderRow{"the database when the home's path is too long", nullptr,
                  LongPath(PATH_MAX), HomeInDatabase() + "/.config"},
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

/// Run by the test below, in a program that has another user's rights.
TEST(DISABLED_SetUserIdHost, HasItsRealUsersSettings) {
  ASSERT_EQ(getauxval(AT_SECURE), 1U);
  EXPECT_EQ(PreferencesFolderPath(), HomeInDatabase() + "/.config");
  // Without exit handlers: a leak checker's may not trace such a program.
  _exit(HasFailure() ? 1 : 0);
}

/// Whoever starts such a host must not choose what it reads.
TEST(SetUserIdHost, IsMovedByNoVariable) {
  constexpr uid_t kNobody = 65534;
  const TemporaryDirectory directory;
  const std::string host = directory / "host";
  struct statvfs system = {};
  statvfs(directory.path().c_str(), &system);
  if (geteuid() != 0 || (system.f_flag & ST_NOSUID) != 0) {
    GTEST_SKIP() << "only root makes such a program, where they are allowed";
  }
  fs::copy_file("/proc/self/exe", host);
  ASSERT_EQ(chown(host.c_str(), kNobody, kNobody), 0);
  ASSERT_EQ(chmod(host.c_str(), S_ISUID | S_IRWXU), 0);
  setenv("XDG_CONFIG_HOME", "/x/y", 1);
  setenv("HOME", "/home/a", 1);
  EXPECT_TRUE(testing::InACopy([&] {
    execl(host.c_str(), host.c_str(), "--gtest_also_run_disabled_tests",
          "--gtest_filter=DISABLED_SetUserIdHost.*", nullptr);
    return false;
  }));
}

/// A host's thread may have a stack of 64 KiB.
TEST(PreferencesFolder, IsMadeWithoutRecursion) {
  const TemporaryDirectory directory;
  std::string folder = directory.path();
  while (folder.size() < PATH_MAX - 100) folder += "/x";
  setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
  const auto make = [](void* made) -> void* {
    *static_cast<bool*>(made) = PreferencesFolder(true).has_value();
    return nullptr;
  };
  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  pthread_attr_setstacksize(&attributes, 64U << 10U);
  pthread_t thread = {};
  bool made = false;
  ASSERT_EQ(pthread_create(&thread, &attributes, make, &made), 0);
  pthread_join(thread, nullptr);
  pthread_attr_destroy(&attributes);
  EXPECT_TRUE(made);
  EXPECT_TRUE(fs::is_directory(folder));
}

struct HomeRow {
  const char* sentence;
  /// "{folder}" is the test's folder.
  const char* config_home;
  const char* home;
  bool made;
};

class MissingHome : public ::testing::TestWithParam<HomeRow> {
 protected:
  std::string Expanded(std::string text) const {
    const std::size_t at = text.find("{folder}");
    return at == std::string::npos ? text
                                   : text.replace(at, 8, directory_.path());
  }

 private:
  TemporaryDirectory directory_;
};

TEST_P(MissingHome, IsNeverMade) {
  SetOrUnset("XDG_CONFIG_HOME", nullptr);
  if (GetParam().config_home != nullptr) {
    setenv("XDG_CONFIG_HOME", Expanded(GetParam().config_home).c_str(), 1);
  }
  setenv("HOME", Expanded(GetParam().home).c_str(), 1);
  EXPECT_EQ(PreferencesFolder(true).has_value(), GetParam().made);
  EXPECT_FALSE(fs::exists(Expanded("{folder}/home")));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, MissingHome,
    ::testing::Values(HomeRow{"for its own settings", nullptr,
                              "{folder}/home/a", false},
                      HomeRow{"for configured settings in it",
                              "{folder}/home/a/x/y", "{folder}/home/a", false},
                      HomeRow{"as the configured settings", "{folder}/home/a",
                              "{folder}/home/a", false},
                      HomeRow{"under another spelling", "{folder}/home//./a/x",
                              "{folder}/home/a/", false},
                      HomeRow{"when the settings are elsewhere", "{folder}/x/y",
                              "{folder}/home/a", true},
                      HomeRow{"when the settings have a similar name",
                              "{folder}/homes/ab", "{folder}/homes/a", true}),
    testing::SentenceOf());

TEST(PreferencesFolder, IsNotMadeInAMissingHomeOfTheDatabase) {
  unsetenv("XDG_CONFIG_HOME");
  unsetenv("HOME");
  const TemporaryDirectory directory;
  home_in_database = directory / "home";
  EXPECT_FALSE(PreferencesFolder(true));
  fs::create_directory(directory / "home");
  EXPECT_EQ(PreferencesFolder(true), directory / "home/.config");
  home_in_database.clear();
}

/// Some directories of users put photographs into their entries.
TEST(PasswordEntry, MayBeLongerThanTheFirstBuffers) {
  unsetenv("XDG_CONFIG_HOME");
  unsetenv("HOME");
  home_in_database = "/home/a";
  bytes_of_entry = 100'000;
  EXPECT_EQ(PreferencesFolderPath(), "/home/a/.config");
  bytes_of_entry = 10U << 20U;
  EXPECT_FALSE(PreferencesFolderPath());
  bytes_of_entry = 0;
  home_in_database.clear();
}

TEST(PreferencesFolder, IsNoneWhereAFileIs) {
  const TemporaryDirectory directory;
  const std::string file = directory.Write("file", "");
  setenv("XDG_CONFIG_HOME", file.c_str(), 1);
  EXPECT_FALSE(PreferencesFolder(true));
  setenv("XDG_CONFIG_HOME", (file + "/x").c_str(), 1);
  EXPECT_FALSE(PreferencesFolder(true));
}

/// The host may start a program of its own at any moment.
TEST(OpenedFile, PassesToNoProgram) {
  const UniqueFd file = OpenForReading("/proc/self/exe");
  EXPECT_EQ(fcntl(file.get(), F_GETFD), FD_CLOEXEC);
}

TEST(Resources, AreBesideTheHostBeforeTheyAreInShare) {
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

std::optional<std::string> Find(const std::string& identifier) {
  return FindBundle(identifier, OwnFolder(), HostExecutable());
}

TEST(Bundle, IsADirectory) {
  const std::string name = "com.example.file" + std::to_string(getpid());
  const std::string path = OwnFolder().value() + "/" + name + ".framework";
  std::ofstream(path) << "a file";
  EXPECT_FALSE(Find(name));
  fs::remove(path);
}

TEST(Bundle, IsBesideTheClientBeforeItIsBesideTheHost) {
  const std::string name = "com.example.order" + std::to_string(getpid());
  const std::string own = OwnFolder().value() + "/" + name + ".framework";
  const std::string host = Dirname(HostExecutable().value()) +
                           "/../Frameworks/" + name + ".framework";
  fs::create_directories(host);
  EXPECT_EQ(Find(name), host);
  fs::create_directory(own);
  EXPECT_EQ(Find(name), own);
  fs::remove(own);
  fs::remove(host);
}

/// Only a build that keeps the machine's folders in its own tree may be asked
/// to put something there.
bool IsInBuildTree(const std::string& folder) {
  return folder.starts_with(VELMO_TEST_BUILD "/");
}

/// The same name in two folders that a build knows of.
TEST(Bundle, IsBesideTheHostBeforeItIsInTheFolderOfTheBuild) {
  if (!IsInBuildTree(kFrameworksDir)) GTEST_SKIP() << kFrameworksDir;
  const std::string name = "com.example.two" + std::to_string(getpid());
  const std::string last = kFrameworksDir + ("/" + name) + ".framework";
  const std::string host = Dirname(HostExecutable().value()) +
                           "/../Frameworks/" + name + ".framework";
  fs::create_directories(last);
  fs::create_directories(host);
  EXPECT_EQ(Find(name), host);
  fs::remove(last);
  fs::remove(host);
}

TEST(Bundle, IsLastInTheFolderOfTheBuild) {
  if (!IsInBuildTree(kFrameworksDir)) GTEST_SKIP() << kFrameworksDir;
  const std::string name = "com.example.last" + std::to_string(getpid());
  const std::string path = kFrameworksDir + ("/" + name) + ".framework";
  fs::create_directories(path);
  EXPECT_EQ(Find(name), path);
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

TEST(Bundle, IsFoundByItsNameAloneNotByAPath) {
  EXPECT_FALSE(Find("../platform/x"));
  EXPECT_FALSE(Find(""));
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

/// A host may have other effective ids than its user: they decide, as they do
/// when the program is started.
TEST_F(Application, IsExecutableByTheEffectiveIds) {
  if (geteuid() != 0) GTEST_SKIP() << "only root changes its ids";
  Write("v/AppRun");
  const auto executable_for_nobody = [&] {
    return seteuid(65534) == 0 && Executable("v").has_value();
  };
  EXPECT_FALSE(testing::InACopy(executable_for_nobody));
  fs::permissions(directory().path(), fs::perms::all);
  fs::permissions(directory() / "v", fs::perms::all);
  EXPECT_FALSE(testing::InACopy(executable_for_nobody));
  fs::permissions(directory() / "v/AppRun", fs::perms::all);
  EXPECT_TRUE(testing::InACopy(executable_for_nobody));
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
        MapsRow{"after the end of a mapping",
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
  const testing::WorkingDirectory working_directory("/");
  EXPECT_EQ(OwnFolder(), folder);
}

}  // namespace
}  // namespace velmohelp

/// Takes the place of the C library's.
extern "C" VELMOHELP_API int getpwuid_r(uid_t user, struct passwd* entry,
                                        char* buffer, std::size_t size,
                                        struct passwd** found) {
  using velmohelp::bytes_of_entry;
  using velmohelp::home_in_database;
  static const auto system =
      reinterpret_cast<decltype(&getpwuid_r)>(dlsym(RTLD_NEXT, "getpwuid_r"));
  if (home_in_database.empty()) {
    return system(user, entry, buffer, size, found);
  }
  *found = nullptr;
  if (size < bytes_of_entry) return ERANGE;
  entry->pw_dir = home_in_database.data();
  *found = entry;
  return 0;
}
