// A host that runs for weeks.
#include <sys/wait.h>

#include <csignal>

#include "tests/system/routes.h"

namespace velmohelp::testing {
namespace {

/// Under sanitizers every program takes many times as long to start.
constexpr int kRequests = VELMO_TEST_SANITIZED ? 500 : 10000;
constexpr int kFirstRequests = 200;
/// Each starts a helper program as well.
constexpr int kStartedRequests = VELMO_TEST_SANITIZED ? 100 : 1000;

class ALongLivedHost : public ::testing::Test {
 protected:
  void SetUp() override {
    world_.Write("{installed}/intro.html", "<p>");
    for (const char* program : {"{viewer}", "{tool}"}) {
      world_.Remove(program);
      std::filesystem::copy_file(VELMO_TEST_QUICK_PROGRAM,
                                 world_.Expanded(program));
    }
    world_.start().environment.push_back(
        world_.Expanded("QUICK_VIEWER={bin}/../Viewer.app"));
  }

  /// Requests of every kind; all but the last start a viewer.
  void MakeRequests(int count) {
    const std::vector<std::pair<Words, std::string>> requests = {
        {Display("intro"), "0"},
        {Open("http://localhost/"), "0"},
        {Search("x"), "0"},
        {{"status"}, "1"}};
    for (int i = 0; i < count; ++i) {
      const auto& [request, answer] = requests[static_cast<std::size_t>(i) % 4];
      ASSERT_EQ(world_.Ask(request), answer);
      ASSERT_TRUE(ChildrenOf(world_.Host().pid()).empty());
      EndPrograms();
    }
  }

  /// EndPrograms may come upon a helper that searches itself for leaks at its
  /// end, which then complains on the host's standard error.
  void StopHelpersSearchForLeaks() {
    world_.start().environment.push_back("ASAN_OPTIONS=detect_leaks=0");
  }

  /// The same without waiting.
  void StartRequests(int count) {
    const std::vector<Words> starts = {{"start display", "intro"},
                                       {"start open", "http://localhost/"},
                                       {"start search", "Foo", "en_US", "x"}};
    for (int i = 0; i < count; ++i) {
      const Words& start = starts[static_cast<std::size_t>(i) % 3];
      ASSERT_EQ(world_.Ask({"finish", world_.Ask(start)}), "0");
      ASSERT_TRUE(ChildrenOf(world_.Host().pid()).empty());
      EndPrograms();
    }
  }

  /// As the person at the keyboard ends a viewer.
  void EndPrograms() {
    for (const pid_t program : world_.Programs()) {
      kill(program, SIGKILL);
      waitpid(program, nullptr, 0);
    }
  }

  Words Facts() {
    const HostProcess& host = world_.Host();
    return {std::to_string(host.CountIn("task")),
            std::to_string(host.CountIn("fd")), host.StatusLine("VmData")};
  }
  long ResidentKilobytes() {
    return std::stol(world_.Host().StatusLine("VmRSS"));
  }

  /// Makes many requests after a few, and looks for anything that has grown. A
  /// sanitizer's own memory does.
  template <typename Make>
  void ExpectNothingMoreAfter(int count, Make make) {
    ASSERT_TRUE(world_.Initialise());
    make(kFirstRequests);
    const Words before = Facts();
    const long resident = ResidentKilobytes();
    make(count);
    EXPECT_EQ(world_.Host().CountIn("task"), 1U);
    if (VELMO_TEST_SANITIZED) return;
    EXPECT_EQ(Facts(), before);
    EXPECT_LE(ResidentKilobytes(), resident + 8);
  }

  HelpWorld world_;
};

TEST_F(ALongLivedHost, IsAsItWasAfterThousandsOfRequests) {
  ExpectNothingMoreAfter(kRequests, [&](int count) { MakeRequests(count); });
}

TEST_F(ALongLivedHost, IsAsItWasAfterAThousandStartedRequests) {
  StopHelpersSearchForLeaks();
  ExpectNothingMoreAfter(kStartedRequests,
                         [&](int count) { StartRequests(count); });
}

/// Takes minutes: scripts/check-all runs it.
TEST_F(ALongLivedHost, DISABLED_IsAsItWasAfterTenThousandStartedRequests) {
  StopHelpersSearchForLeaks();
  ExpectNothingMoreAfter(10000, [&](int count) { StartRequests(count); });
}

}  // namespace
}  // namespace velmohelp::testing
