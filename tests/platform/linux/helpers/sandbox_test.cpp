// Opening URLs from inside a Flatpak sandbox, with the helper of this build and
// a portal of the test's own.
#include <gtest/gtest.h>

#include "platform/linux/linux_machine.h"
#include "tests/support/children.h"
#include "tests/support/portal.h"
#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"
#include "tests/system/own_machine.h"

namespace velmohelp {
namespace {

using testing::PortalDouble;

constexpr char kUrl[] = "http://localhost/a?b=c&d=e";

/// The file system of a copy of this process has the file by which a Flatpak
/// sandbox is known.
class Sandbox : public ::testing::Test {
 protected:
  Sandbox() {
    directory_.MakeDirectory("Library");
    directory_.MakeDirectory("velmo");
    directory_.Write("hosts", "127.0.0.1 localhost\n");
    directory_.Write("resolv.conf", "");
  }
  void SetUp() override {
    directory_.Write("info", info_);
    if (!testing::InACopy([&] { return Enter(); })) {
      GTEST_SKIP() << "this system lets the test make no file system";
    }
  }

  bool Opens(const std::string& url) { return Ask("open", url); }
  bool OpensWithToken(const std::string& url) {
    return Ask("open with token", url);
  }
  bool Finds(const std::string& url) { return Ask("find", url); }

 private:
  static constexpr char kBusAddress[] = "DBUS_SESSION_BUS_ADDRESS";

  bool Ask(const std::string& verb, const std::string& url) {
    directory_.Write("info", info_);
    return copy_.Run(std::string(getenv(kBusAddress)) + '\n' + verb + '\n' +
                     url);
  }

  /// The machine's own browsers are out of sight.
  bool Enter() {
    for (const char* name : {"XDG_DATA_DIRS", "XDG_DATA_HOME"}) {
      setenv(name, directory_.path().c_str(), 1);
    }
    return testing::EnterOwnFiles(directory_.path()) &&
           std::filesystem::copy_file(directory_.path() + "/info",
                                      "/.flatpak-info");
  }
  /// lines: the bus's address, what to do, and a URL.
  bool AskInside(const std::string& lines) {
    const std::size_t verb = lines.find('\n') + 1;
    const std::size_t url = lines.find('\n', verb) + 1;
    setenv(kBusAddress, lines.substr(0, verb - 1).c_str(), 1);
    if (!Enter()) return false;
    LinuxMachine machine(VELMO_TEST_HELPERS);
    if (lines.substr(verb).starts_with("open with token")) {
      machine.SetActivationToken("a-token");
    }
    if (lines.substr(verb).starts_with("open")) {
      return machine.OpenInBrowser(lines.substr(url));
    }
    return machine.FindBrowser(lines.substr(url)) == Arguments{};
  }

  testing::TemporaryDirectory directory_;
  /// The bus and the portal have threads.
  testing::CopyBeforeThreads copy_{
      [this](const std::string& text) { return AskInside(text); }};
  testing::PrivateBus bus_;

 protected:
  std::string info_ = "[Application]\nname=com.example.Host\n";
};

TEST_F(Sandbox, OpensWhatThePortalOpens) {
  const PortalDouble portal({});
  EXPECT_TRUE(Opens(kUrl));
  EXPECT_EQ(portal.target(), kUrl);
}

TEST_F(Sandbox, HandsThePortalTheActivationToken) {
  const PortalDouble portal({});
  EXPECT_TRUE(OpensWithToken(kUrl));
  EXPECT_EQ(portal.activation_token(), "a-token");
}

TEST_F(Sandbox, OpensNothingThatThePortalRefuses) {
  const PortalDouble portal({.response = 2});
  EXPECT_FALSE(Opens(kUrl));
  EXPECT_EQ(portal.target(), kUrl);
}

TEST_F(Sandbox, FindsThePortalWithoutCallingIt) {
  EXPECT_FALSE(Finds(kUrl));
  const PortalDouble portal({});
  EXPECT_TRUE(Finds(kUrl));
  EXPECT_FALSE(Finds("no URI"));
  EXPECT_FALSE(Finds("file:///nonexistent/page.html"));
  EXPECT_EQ(portal.method(), "");
}

/// A machine has such a file where root runs programs with sandboxes of their
/// own.
TEST_F(Sandbox, IsNotSeenInAnEmptyFile) {
  info_.clear();
  const PortalDouble portal({});
  EXPECT_FALSE(Opens(kUrl));
  EXPECT_EQ(portal.target(), "");
}

TEST_F(Sandbox, OpensNothingWithoutAPortal) { EXPECT_FALSE(Opens(kUrl)); }

/// The host gets its answer while the dialog is open. The helper stays on the
/// bus until the person has chosen.
TEST_F(Sandbox, HasOpenedNothingWhileThePersonChooses) {
  PortalDouble portal({.response = {}});
  EXPECT_FALSE(Opens(kUrl));
  // Another helper comes and goes meanwhile: this one had the time to leave.
  EXPECT_FALSE(Opens("no URI"));
  EXPECT_TRUE(portal.caller_is_on_the_bus());
  portal.Choose();
  while (portal.caller_is_on_the_bus()) std::this_thread::yield();
}

}  // namespace
}  // namespace velmohelp
