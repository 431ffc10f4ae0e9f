// scripts/install-packages with fakes of the programs that it runs.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp {
namespace {

constexpr char kUpdate[] = "apt-get -qq update\n";
constexpr char kInstallB[] =
    "apt-get -qq install -y --no-install-recommends b\n";
constexpr char kInstallBc[] =
    "apt-get -qq install -y --no-install-recommends b c\n";

struct Situation {
  /// The package database: a line "NAME STATUS" each.
  std::string packages = "a installed\n";
  std::string user = "0";
  bool has_sudo = true;
  bool sudo_refuses = false;
  bool apt_fails = false;
};

struct Row {
  std::string sentence;
  Situation situation;
  std::string names;
  int status = 0;
  std::string calls;
  std::string output;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.sentence; }

// The fakes. They append what root is asked to do to a file.
constexpr char kDpkgQuery[] = R"(sed -n "s/^$4 //p" "$FOLDER/packages")";
constexpr char kSudo[] = R"(
  [ -e "$FOLDER/sudo-refuses" ] && exit 1
  printf 'sudo ' >>"$FOLDER/calls"
  shift 2  # env and its variable
  "$@")";
constexpr char kAptGet[] = R"(
  echo "apt-get $*" >>"$FOLDER/calls"
  echo "a line about progress"
  [ -e "$FOLDER/apt-fails" ] && exit 100
  for name; do echo "$name installed"; done >>"$FOLDER/packages")";

class InstallPackages : public ::testing::TestWithParam<Row> {
 protected:
  InstallPackages() {
    const Situation& situation = GetParam().situation;
    folder_.Write("packages", situation.packages);
    if (situation.sudo_refuses) folder_.Write("sudo-refuses", "");
    if (situation.apt_fails) folder_.Write("apt-fails", "");
    folder_.WriteScript("id", "echo " + situation.user);
    folder_.WriteScript("dpkg-query", kDpkgQuery);
    if (situation.has_sudo) folder_.WriteScript("sudo", kSudo);
    // Nothing else of the machine can be found.
    for (const std::string name :
         {"basename", "dirname", "env", "grep", "sed"}) {
      folder_.WriteScript(name, "exec /bin/" + name + R"( "$@")");
    }
    folder_.WriteScript("apt-get", kAptGet);
  }

  int Run() {
    const std::string command =
        "cd '" + folder_.path() + R"('; FOLDER=$PWD PATH=$PWD ')" +
        INSTALLER "' " + GetParam().names + " >output 2>&1";
    return WEXITSTATUS(std::system(command.c_str()));
  }

  testing::TemporaryDirectory folder_;
};

TEST_P(InstallPackages, DoesWhatIsNeeded) {
  EXPECT_EQ(Run(), GetParam().status);
  EXPECT_EQ(testing::FileText(folder_ / "calls"), GetParam().calls);
  EXPECT_EQ(testing::FileText(folder_ / "output"), GetParam().output);
}

INSTANTIATE_TEST_SUITE_P(
    Succeeds, InstallPackages,
    ::testing::Values(
        Row{"nothing happens when all are installed", {}, "a", 0, "", ""},
        Row{"nothing happens without names", {}, "", 0, "", ""},
        Row{"root installs those that are missing",
            {},
            "b a c",
            0,
            std::string(kUpdate) + kInstallBc,
            "Installing: b c\n"},
        Row{"another user installs through sudo",
            {.user = "1000"},
            "a b",
            0,
            std::string("sudo ") + kUpdate + "sudo " + kInstallB,
            "Installing: b\n"},
        Row{"a package whose installation broke off is missing",
            {.packages = "b half-installed\n"},
            "b",
            0,
            std::string(kUpdate) + kInstallB,
            "Installing: b\n"},
        Row{"a package of two architectures is installed",
            {.packages = "b installed\nb installed\n"},
            "b",
            0,
            "",
            ""}),
    testing::SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Fails, InstallPackages,
    ::testing::Values(
        Row{"on a machine without sudo a user learns it in a line",
            {.user = "1000", .has_sudo = false},
            "a b c",
            1,
            "",
            "Not installed, which takes root or sudo: b c\n"},
        Row{"a user whom sudo refuses learns what is missing",
            {.user = "1000", .sudo_refuses = true},
            "a b c",
            1,
            "",
            "Installing: b c\nNot installed: b c\n"},
        Row{"without a package server one learns it too",
            {.apt_fails = true},
            "a b",
            1,
            kUpdate,
            "Installing: b\nNot installed: b\n"}),
    testing::SentenceOf());

}  // namespace
}  // namespace velmohelp
