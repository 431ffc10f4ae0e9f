// The places that are fixed when the library is built, and networks of every
// kind: on a machine that the host has for itself.
#include "tests/system/own_machine.h"

#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include "tests/platform/support/children.h"
#include "tests/system/routes.h"

namespace velmohelp::testing {
namespace {

constexpr char kHelp[] = "Application Support/Velmo/Help/{folder}/intro.html";
constexpr char kAdminFile[] = "com.velmo.VelmoOnlineHelp.conf";
constexpr char kServerAtHome[] = "127.0.0.1 localhost help.velmo.com\n";

class OwnMachine : public ::testing::Test {
 protected:
  OwnMachine() {
    world_.CopyLibrary(VELMO_TEST_FIXED_LIBRARY);
    world_.SetUserPreference("1");
    Put("hosts", kServerAtHome);
    Put("resolv.conf", "");
    Put("velmo/other.conf", "");
    Put("Library/other", "");
  }

  void SetUp() override {
    if (!InACopy(
            [&] { return EnterOwnMachine(Folder()) && RaiseLoopback(); })) {
      GTEST_SKIP() << "this system lets the test make no machine of its own";
    }
  }

  std::string Folder() const { return world_.Expanded("{bin}/machine"); }
  void Put(const std::string& name, const std::string& text) {
    world_.Write(Folder() + "/" + name, text);
  }

  /// Initialises a client on that machine, once this has been done there.
  void Start(const std::function<bool()>& step = &RaiseLoopback) {
    world_.start().preparation = [folder = Folder(), step] {
      return EnterOwnMachine(folder) && step();
    };
    ASSERT_TRUE(world_.Initialise());
  }

  HelpWorld world_;
};

TEST_F(OwnMachine, HasItsInstalledContent) {
  Put(std::string("Library/") + kHelp, "<p>");
  world_.SetUserPreference("0");
  Start();
  EXPECT_EQ(world_.Ask(Display("intro")), "0");
  EXPECT_EQ(world_.Started(),
            world_.Expanded(Viewer(
                "HELP",
                "\"file:///Library/Application%20Support/Velmo/Help//{folder}"
                "/intro.html\"")));
}

TEST_F(OwnMachine, HasItsFrameworks) {
  const std::string frameworks = world_.Expanded("{bin}/../Frameworks");
  world_.Remove(Folder() + "/Library");
  std::filesystem::create_directories(Folder() + "/Library");
  std::filesystem::rename(frameworks, Folder() + "/Library/Frameworks");
  Start();
  EXPECT_EQ(world_.Ask(Open("http://localhost/")), "0");
  EXPECT_EQ(world_.Started(),
            world_.Expanded(Viewer("URL", "\"http://localhost/\"")));
}

TEST_F(OwnMachine, ConfiguresAHostWithoutResources) {
  Put("Library/Application Support/Velmo/HelpCfg/help/en_US/Foo.helpcfg",
      world_.config().Text());
  world_.Remove("{bin}/host.resources");
  Start();
}

TEST_F(OwnMachine, IsOnlineWhereNobodyIsAgainstIt) {
  Start();
  EXPECT_EQ(world_.Ask({"status"}), "0");
  world_.SetUserPreference("0");
  EXPECT_EQ(world_.Ask({"status"}), "1");
}

struct Word {
  const char* sentence;
  const char* admin;
  const char* user;
  const char* status;
};

void PrintTo(const Word& row, std::ostream* out) { *out << row.sentence; }

class AdministratorsWord : public OwnMachine,
                           public ::testing::WithParamInterface<Word> {};

TEST_P(AdministratorsWord, Counts) {
  Put(std::string("velmo/") + kAdminFile,
      std::string("[Preferences]\nVelmoOnlineDefault=") + GetParam().admin);
  world_.SetUserPreference(GetParam().user);
  Start();
  EXPECT_EQ(world_.Ask({"status"}), GetParam().status);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, AdministratorsWord,
    ::testing::Values(Word{"no against the user s yes", "0", "1", "1"},
                      Word{"no and no", "0", "0", "1"},
                      Word{"yes against the user s no", "1", "0", "1"},
                      Word{"yes and yes", "1", "1", "0"}),
    SentenceOf());

TEST_F(OwnMachine, NamesTheHostsConfiguration) {
  Put("velmo/com.velmo.Big.Office.conf", "[Preferences]\nHelpcfgName=Foo\n");
  Start();
  EXPECT_EQ(world_.Ask({"search by name", "Big", "Office", "en_US", "x y"}),
            "0");
  EXPECT_EQ(world_.Started(), world_.Expanded(Viewer("SEARCH", "x y")));
}

TEST_F(OwnMachine, IsOfflineWithoutAnInterface) {
  Start([] { return true; });
  EXPECT_EQ(world_.Ask({"status"}), "1");
  EXPECT_EQ(world_.Ask(Display("intro")), "0");
  EXPECT_EQ(world_.Started(), world_.Expanded(Viewer("HELP", "intro")));
}

TEST_F(OwnMachine, IsOfflineWhereNobodyKnowsTheServer) {
  Put("hosts", "127.0.0.1 localhost\n");
  Start();
  EXPECT_EQ(world_.Ask({"status"}), "1");
}

/// A name server that takes every question and answers none.
bool HoldNameServer() {
  sockaddr_in address = {};
  address.sin_family = AF_INET;
  address.sin_port = htons(53);
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  const int server = socket(AF_INET, SOCK_DGRAM, 0);
  return RaiseLoopback() && bind(server, reinterpret_cast<sockaddr*>(&address),
                                 sizeof address) == 0;
}

TEST_F(OwnMachine, IsOfflineWithADeadNameServer) {
  Put("hosts", "127.0.0.1 localhost\n");
  Put("resolv.conf", "nameserver 127.0.0.1\n");
  world_.SetUserPreference("0");
  Start(&HoldNameServer);
  world_.SetUserPreference("1");
  EXPECT_EQ(world_.Ask({"status"}), "1");
  // Returns only when the helper that asked has been ended.
  for (const pid_t child : ChildrenOf(world_.Host().pid())) AwaitEnd(child);
}

}  // namespace
}  // namespace velmohelp::testing
