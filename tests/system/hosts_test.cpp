// Hosts of every kind, and what is left in them.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "tests/support/children.h"
#include "tests/support/start_facts.h"
#include "tests/system/routes.h"

namespace velmohelp::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Kind {
  const char* sentence;
  std::function<bool()> preparation;
};

void PrintTo(const Kind& row, std::ostream* out) { *out << row.sentence; }

bool BlockAllSignals() {
  sigset_t all;
  sigfillset(&all);
  return sigprocmask(SIG_BLOCK, &all, nullptr) == 0;
}

/// An ordinary user's limit is often a thousand at first.
bool OpenThousands() {
  rlimit limit = {};
  getrlimit(RLIMIT_NOFILE, &limit);
  limit.rlim_cur = limit.rlim_max;
  setrlimit(RLIMIT_NOFILE, &limit);
  for (int i = 0; i < 5000; ++i) {
    if (open("/dev/null", O_RDONLY) == -1) return false;
  }
  return true;
}

bool LoseWorkingDirectory() {
  std::string folder = "/tmp/velmo-gone-XXXXXX";
  return mkdtemp(folder.data()) != nullptr && chdir(folder.c_str()) == 0 &&
         rmdir(folder.c_str()) == 0;
}

class AHost : public ::testing::TestWithParam<Kind> {
 protected:
  void SetUp() override {
    if (!InACopy(GetParam().preparation)) {
      GTEST_SKIP() << "this system lets no host be like that";
    }
    world_.start().preparation = GetParam().preparation;
    world_.Write("{installed}/intro.html", "<p>");
  }

  HelpWorld world_;
};

TEST_P(AHost, ShowsHelpInTheViewer) {
  ASSERT_TRUE(world_.Initialise());
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(world_.Ask(Display("intro")), "0");
    EXPECT_EQ(world_.Started(), world_.Expanded(Viewer(
                                    "HELP", "\"{url:installed}/intro.html\"")));
  }
}

TEST_P(AHost, ShowsHelpInTheBrowser) {
  world_.Remove("{viewer}");
  ASSERT_TRUE(world_.Initialise());
  EXPECT_EQ(world_.Ask(Display("intro")), "0");
  EXPECT_EQ(world_.Started(),
            world_.Expanded(Browser("{url:installed}/intro.html")));
}

TEST_P(AHost, LearnsThatTheServerCanBeReached) {
  world_.SetUserPreference("1");
  ASSERT_TRUE(world_.Initialise());
  EXPECT_EQ(world_.Ask({"status"}), "0");
}

/// The person's programs end at logout, are told when their children end, hold
/// no lock file of the host's, and print into none of its files.
TEST_P(AHost, PassesNothingOfItsOwnOn) {
  ASSERT_TRUE(world_.Initialise());
  for (const char* program : {"{viewer}", "{browser}"}) {
    SCOPED_TRACE(program);
    EXPECT_EQ(world_.Ask(Display("intro")), "0");
    const std::string report = world_.Report();
    EXPECT_EQ(Facts(report, "argument").front(), world_.Expanded(program));
    EXPECT_THAT(Facts(report, "descriptor"), ElementsAre("0", "1", "2"));
    EXPECT_THAT(Facts(report, "blocked"), IsEmpty());
    EXPECT_THAT(Facts(report, "ignored"), IsEmpty());
    EXPECT_THAT(report, ::testing::HasSubstr("own session"));
    EXPECT_EQ(Facts(report, "environment"), world_.start().environment);
    world_.Remove("{viewer}");
  }
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, AHost,
    ::testing::Values(
        Kind{"like any other", [] { return true; }},
        Kind{"that ignores its children",
             [] { return std::signal(SIGCHLD, SIG_IGN) != SIG_ERR; }},
        Kind{"that ignores broken pipes",
             [] { return std::signal(SIGPIPE, SIG_IGN) != SIG_ERR; }},
        Kind{"that blocks all signals", BlockAllSignals},
        Kind{"without standard streams",
             [] { return close(0) + close(1) + close(2) == 0; }},
        Kind{"with thousands of descriptors", OpenThousands},
        Kind{"whose working directory is gone", LoseWorkingDirectory}),
    SentenceOf());

/// Nothing can be read, and nothing breaks.
TEST(AHostWithAFullDescriptorTable, IsServed) {
  if (VELMO_TEST_SANITIZED) GTEST_SKIP() << "the sanitizer needs descriptors";
  HelpWorld world;
  ASSERT_TRUE(world.Initialise());
  ASSERT_EQ(world.Ask({"fill descriptors", "0"}), "filled");
  EXPECT_EQ(world.Ask({"status"}), "1");
  EXPECT_EQ(world.Ask(Display("intro")), "4");
  EXPECT_EQ(world.Ask(Display("intro")), "6");
  EXPECT_EQ(world.Ask({"initialise", "Foo", "en_US"}), "6");
  ASSERT_EQ(world.Ask({"free descriptors"}), "freed");
  EXPECT_TRUE(world.Initialise());
}

/// Files can be read, and the viewer can be found and started.
TEST(AHostWithOneDescriptorLeft, ShowsHelpInTheViewer) {
  HelpWorld world;
  Apply({File("{installed}/intro.html")}, world);
  ASSERT_TRUE(world.Initialise());
  ASSERT_EQ(world.Ask({"fill descriptors", "1"}), "filled");
  EXPECT_EQ(world.Ask(Display("intro")), "0");
  EXPECT_NE(world.Started(), Nothing());
}

/// No helper can be asked for the browser.
TEST(AHostWithOneDescriptorLeft, OpensNoBrowser) {
  if (VELMO_TEST_SANITIZED) GTEST_SKIP() << "the sanitizer needs descriptors";
  HelpWorld world;
  Apply({NoViewer(), File("{installed}/intro.html")}, world);
  ASSERT_TRUE(world.Initialise());
  ASSERT_EQ(world.Ask({"fill descriptors", "1"}), "filled");
  EXPECT_EQ(world.Ask(Display("intro")), "2");
  EXPECT_EQ(world.Ask({"initialise", "Foo", "en_US"}), "0");
  ASSERT_EQ(world.Ask({"free descriptors"}), "freed");
  EXPECT_EQ(world.Ask(Display("intro")), "0");
  EXPECT_NE(world.Started(), Nothing());
}

/// What docs/embedding.md promises.
constexpr std::size_t kDocumentedStack = std::size_t{24} << 10U;

Words OnSmallStack(const Words& request) {
  Words words = {"on stack", std::to_string(kDocumentedStack)};
  words.insert(words.end(), request.begin(), request.end());
  return words;
}

/// Some hosts give their threads little. A call that needs more ends the host
/// or overwrites its memory.
TEST(AHostWithSmallStacks, GetsEveryAnswer) {
  if (VELMO_TEST_SANITIZED) GTEST_SKIP() << "its frames are not those shipped";
  HelpWorld world;
  Apply({Online(), File("{installed}/intro.html"),
         File("{installed}/search.html"), Served("intro.html"),
         Served("search.html")},
        world);
  EXPECT_EQ(world.Ask(OnSmallStack({"initialise", "Foo", "en_US"})), "0");
  for (const char* program : {"{viewer}", "{browser}"}) {
    for (const Words& request :
         {Display("intro"), Open("http://localhost/"), Search("x")}) {
      EXPECT_EQ(world.Ask(OnSmallStack(request)), "0");
      const Words started = world.Started();
      ASSERT_FALSE(started.empty());
      EXPECT_EQ(started.front(), world.Expanded(program));
    }
    world.Remove("{viewer}");
  }
  EXPECT_EQ(world.Ask(OnSmallStack({"search by name", "", "", "en_US", "x"})),
            "8");
  EXPECT_EQ(world.Ask(OnSmallStack({"status"})), "0");
  RecordProperty("bytes", world.Ask({"stack used"}));
}

/// A copy of such a host's memory, made for every start, would take seconds and
/// might not fit.
TEST(AHostWithFourGigabytes, IsServedAtOnce) {
  HelpWorld world;
  world.Write("{installed}/intro.html", "<p>");
  ASSERT_TRUE(world.Initialise());
  if (world.Ask({"take memory", "4096"}) != "taken") {
    GTEST_SKIP() << "this machine has no four gigabytes to spare";
  }
  EXPECT_GE(std::stol(world.Host().StatusLine("VmRSS")), 4L << 20);
  for (const Words& request : {Display("intro"), Open("http://localhost/")}) {
    EXPECT_EQ(world.Ask(request), "0");
    EXPECT_NE(world.Started(), Nothing());
  }
}

TEST(AHostWithAChild, KeepsItsExitStatus) {
  HelpWorld world;
  ASSERT_TRUE(world.Initialise());
  ASSERT_EQ(world.Ask({"start child"}), "started");
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(world.Ask(Display("intro")), "0");
    EXPECT_NE(world.Started(), Nothing());
  }
  EXPECT_EQ(world.Ask({"take child"}), "7");
}

class AHostWithNames : public ::testing::TestWithParam<const char*> {};

TEST_P(AHostWithNames, OfOurVariablesKeepsItsOwn) {
  HelpWorld world;
  world.Write("{installed}/intro.html", "<p>");
  std::filesystem::remove(world.Expanded("{bin}/host"));
  std::filesystem::copy_file(GetParam(), world.Expanded("{bin}/host"));
  EXPECT_EQ(HostProcess(world.start()).End(), 0);
}

INSTANTIATE_TEST_SUITE_P(Each, AHostWithNames,
                         ::testing::Values(VELMO_TEST_NAMES_HOST,
                                           VELMO_TEST_NAMES_PLUG_IN_HOST));

std::string InProc(HelpWorld& world, const char* name) {
  return "/proc/" + std::to_string(world.Host().pid()) + "/" + name;
}

/// What a host can see of itself, without its memory.
Words Facts(HelpWorld& world) {
  const HostProcess& host = world.Host();
  Words facts = {
      world.Ask({"self"}), std::filesystem::read_symlink(InProc(world, "cwd")),
      std::to_string(host.CountIn("task")), std::to_string(host.CountIn("fd"))};
  for (const char* line : {"SigBlk", "SigIgn", "SigCgt", "Umask"}) {
    facts.push_back(host.StatusLine(line));
  }
  return facts;
}

class Loading : public ::testing::Test {
 protected:
  bool IsMapped() {
    return FileText(InProc(world_, "maps")).find("libvelmohelp") !=
           std::string::npos;
  }

  HelpWorld world_;
};

TEST_F(Loading, LeavesTheHostAsItWas) {
  world_.Ask({"unload"});
  EXPECT_FALSE(IsMapped());
  const Words before = Facts(world_);
  EXPECT_EQ(world_.Ask({"load"}), "loaded");
  EXPECT_TRUE(IsMapped());
  EXPECT_EQ(Facts(world_), before);
  EXPECT_EQ(world_.Ask({"unload"}), "unloaded");
  EXPECT_FALSE(IsMapped());
  EXPECT_EQ(Facts(world_), before);
}

TEST_F(Loading, LeavesTheHostAsItWasAfterRequests) {
  world_.Write("{installed}/search.html", "<p>");
  const Words before = Facts(world_);
  ASSERT_TRUE(world_.Initialise());
  for (const Words& request :
       {Display("intro"), Open("http://localhost/"), Search("x")}) {
    EXPECT_EQ(world_.Ask(request), "0");
    EXPECT_NE(world_.Started(), Nothing());
    EXPECT_EQ(Facts(world_), before);
  }
  world_.SetUserPreference("1");
  EXPECT_EQ(world_.Ask({"status"}), "0");
  EXPECT_EQ(Facts(world_), before);
  world_.Ask({"unload"});
  EXPECT_FALSE(IsMapped());
}

/// What was known of one load is not known of the next.
TEST_F(Loading, BeginsAnew) {
  ASSERT_TRUE(world_.Initialise());
  EXPECT_EQ(world_.Ask({"reload", "1"}), "loaded");
  EXPECT_EQ(world_.Ask({"status"}), "2");
  EXPECT_TRUE(world_.Initialise());
}

/// The dynamic loader keeps some memory of its own at first.
TEST_F(Loading, LeaksNothingInAThousandLoads) {
  EXPECT_EQ(world_.Ask({"reload", "200"}), "loaded");
  const Words before = Facts(world_);
  const std::string memory = world_.Host().StatusLine("VmData");
  EXPECT_EQ(world_.Ask({"reload", "1000"}), "loaded");
  EXPECT_EQ(Facts(world_), before);
  if (!VELMO_TEST_SANITIZED) {
    EXPECT_EQ(world_.Host().StatusLine("VmData"), memory);
  }
  EXPECT_TRUE(world_.Initialise());
}

#ifdef VELMO_TEST_LUA_STATES_HOST

TEST(AHostWithTwoScriptStates, HasOneClient) {
  HelpWorld world;
  std::filesystem::rename(world.Expanded("{bin}/host.resources"),
                          world.Expanded("{bin}/states.resources"));
  std::filesystem::copy_file(VELMO_TEST_LUA_STATES_HOST,
                             world.Expanded("{bin}/states"));
  HostStart start = world.start();
  start.program = world.Expanded("{bin}/states");
  const std::string output = world.Expanded("{bin}/output");
  start.preparation = [&] {
    return dup2(open(output.c_str(), O_WRONLY | O_CREAT, S_IRWXU), 1) == 1;
  };
  EXPECT_EQ(HostProcess(start).End(), 0);
  EXPECT_EQ(FileText(output),
            "invalidInitialization\nsuccess\ninvalidArgument\n"
            "invalidArgument\n");
}

#endif

}  // namespace
}  // namespace velmohelp::testing
