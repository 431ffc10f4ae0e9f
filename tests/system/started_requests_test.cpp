// Requests that do not block: what they show, and what becomes of them when the
// network, a tool or the helper program hangs or breaks, or nobody waits.
#include <sys/stat.h>

#include <atomic>
#include <future>

#include "tests/support/start_facts.h"
#include "tests/system/routes.h"
#include "tests/system/worker_gate.h"

namespace velmohelp::testing {
namespace {

const Change kPage = File("{installed}/intro.html");
const Words kInViewer = Viewer("HELP", "\"{url:installed}/intro.html\"");
constexpr char kNoDescriptor[] = "-1";
constexpr int kManyStarts = VELMO_TEST_SANITIZED ? 20 : 200;

class StartedRequests : public ::testing::Test {
 protected:
  /// Begins a request; its descriptor.
  std::string Start(const Words& request) {
    Words start = request;
    start.front() = "start " + request.front();
    return world_.Ask(start);
  }
  std::string Finish(const std::string& descriptor) {
    return world_.Ask({"finish", descriptor});
  }
  std::string StartAndFinish(const Words& request) {
    return Finish(Start(request));
  }

  /// The host's loop is free, and the result is not there.
  void ExpectFreeHostWithout(const std::string& descriptor) {
    EXPECT_EQ(world_.Ask({"version"}), "66816");
    EXPECT_EQ(world_.Ask({"is readable", descriptor}), "no");
  }

  /// Waits until each program that a worker has left has ended: a test that
  /// waits forever has found one that does not.
  void AwaitEndOfPrograms() {
    for (const pid_t program : world_.Programs()) AwaitEnd(program);
  }

  /// A tool that says when it runs, and never ends.
  void HangTool() {
    for (const char* name : {"{bin}/runs", "{bin}/never"}) {
      ASSERT_EQ(mkfifo(world_.Expanded(name).c_str(), S_IRWXU), 0);
    }
    world_.WriteTool(
        world_.Expanded("echo $$ > '{bin}/runs'; read x < '{bin}/never'\n"));
  }
  /// Waits until the tool runs; its process.
  pid_t AwaitTool() {
    pid_t tool = -1;
    std::ifstream(world_.Expanded("{bin}/runs")) >> tool;
    return tool;
  }

  HelpWorld world_;
};

class StartedRoute : public ::testing::TestWithParam<Route> {};

TEST_P(StartedRoute, LeadsWhereTheRequestDoes) {
  HelpWorld world;
  Apply(GetParam().changes, world);
  ASSERT_TRUE(world.Initialise());
  Words start = GetParam().request;
  start.front() = "start " + start.front();
  const std::string descriptor = world.Ask(start);
  EXPECT_EQ(world.Ask({"await", descriptor}), "readable");
  EXPECT_EQ(world.Ask({"finish", descriptor}), GetParam().code);
  EXPECT_EQ(world.Started(), world.Expanded(GetParam().started));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, StartedRoute,
    ::testing::Values(
        Route{
            "a page in the viewer", {kPage}, Display("intro"), "0", kInViewer},
        Route{"a page in the browser",
              {kPage, NoViewer()},
              Display("intro"),
              "0",
              Browser("{url:installed}/intro.html")},
        Route{"a page of the server",
              {Online(), Served("intro.html"), NoViewer()},
              Display("intro"),
              "0",
              Browser("{server}/{folder}/intro.html")},
        Route{"a page that is not there",
              {NoViewer()},
              Display("intro"),
              "7",
              {}},
        Route{"a page that nothing shows",
              {kPage, NoViewer(), NoBrowser()},
              Display("intro"),
              "2",
              {}},
        Route{"an empty page id", {}, Display(""), "3", {}},
        Route{"a URL",
              {},
              Open("http://localhost/a b"),
              "0",
              Viewer("URL", "\"http://localhost/a b\"")},
        Route{"a text that is not a URL", {}, Open("intro"), "3", {}},
        Route{"a search", {}, Search("a b"), "0", Viewer("SEARCH", "a%20b")},
        Route{"a search without a page", {NoViewer()}, Search("a"), "6", {}}),
    SentenceOf());

TEST_F(StartedRequests, AreRefusedLikeOthersBeforeTheInitialisation) {
  EXPECT_EQ(StartAndFinish(Display("intro")), "6");
  EXPECT_EQ(StartAndFinish(Open("http://localhost/")), "6");
}

TEST_F(StartedRequests, LeaveTheStateAsItWas) {
  EXPECT_EQ(StartAndFinish(Search("a")), "0");
  EXPECT_EQ(world_.Started(), world_.Expanded(Viewer("SEARCH", "a")));
  EXPECT_EQ(world_.Ask(Display("intro")), "6");
}

TEST_F(StartedRequests, MayBeOnTheirWayTogether) {
  ASSERT_TRUE(world_.Initialise());
  const std::string first = Start(Display(""));
  const std::string second = Start(Open(""));
  EXPECT_NE(first, second);
  EXPECT_EQ(Finish(second), "3");
  EXPECT_EQ(Finish(first), "3");
}

TEST_F(StartedRequests, ActForTheHostThatWasSet) {
  kPage(world_);
  const std::string folder = world_.Expanded("{bin}/../other");
  std::filesystem::create_directory(folder);
  std::filesystem::rename(world_.Expanded("{bin}/host.resources"),
                          folder + "/app.resources");
  EXPECT_FALSE(world_.Initialise());
  EXPECT_EQ(world_.Ask({"set host", folder + "/app"}), "0");
  EXPECT_TRUE(world_.Initialise());
  EXPECT_EQ(StartAndFinish(Display("intro")), "0");
  EXPECT_EQ(world_.Started(), world_.Expanded(kInViewer));
}

/// A help server that keeps its first request waiting until it is released.
class WithAHangingServer : public StartedRequests {
 protected:
  void SetUp() override {
    Apply({Online(), Served("intro.html"), NoViewer()}, world_);
    world_.OnRequest([this] {
      if (is_waiting_.exchange(true)) return;
      asked_.set_value();
      released_.get_future().wait();
    });
    ASSERT_TRUE(world_.Initialise());
    descriptor_ = Start(Display("intro"));
    asked_.get_future().wait();
  }

  std::promise<void> asked_, released_;
  std::atomic<bool> is_waiting_ = false;
  std::string descriptor_;
};

TEST_F(WithAHangingServer, LeaveTheHostFree) {
  ExpectFreeHostWithout(descriptor_);
  released_.set_value();
  EXPECT_EQ(Finish(descriptor_), "0");
  EXPECT_EQ(world_.Started(),
            world_.Expanded(Browser("{server}/{folder}/intro.html")));
}

TEST_F(WithAHangingServer, EndWithTheirDescriptor) {
  EXPECT_EQ(world_.Ask({"cancel", descriptor_}), "closed");
  AwaitEndOfPrograms();
  released_.set_value();
  EXPECT_EQ(world_.Started(), Nothing());
}

class WithAToolThatNeverEnds : public StartedRequests {
 protected:
  void SetUp() override {
    kPage(world_);
    ASSERT_TRUE(world_.Initialise());
    HangTool();
    descriptor_ = Start(Display("intro"));
    tool_ = AwaitTool();
  }

  std::string descriptor_;
  pid_t tool_ = -1;
};

TEST_F(WithAToolThatNeverEnds, LeaveTheHostFreeAndTakeTheToolWithThem) {
  ExpectFreeHostWithout(descriptor_);
  EXPECT_EQ(world_.Ask({"cancel", descriptor_}), "closed");
  AwaitEnd(tool_);
  AwaitEndOfPrograms();
}

TEST_F(WithAToolThatNeverEnds, DoNotOutliveTheHost) {
  world_.EndHost();
  AwaitEnd(tool_);
}

/// Each kind of request, in the viewer, whose tool it asks first.
struct Kind {
  const char* sentence;
  Words request;
  Words started;
};

void PrintTo(const Kind& row, std::ostream* out) { *out << row.sentence; }

class EachStartedKind : public StartedRequests,
                        public ::testing::WithParamInterface<Kind> {
 protected:
  void SetUp() override { kPage(world_); }
  void Cancel(const std::string& descriptor) {
    EXPECT_EQ(world_.Ask({"cancel", descriptor}), "closed");
  }
};

/// The tool hangs: without an end the helper would.
TEST_P(EachStartedKind, CanBeCancelledBeforeItsHelperRuns) {
  world_.CopyLibrary();
  const WorkerGate gate(world_);
  ASSERT_TRUE(world_.Initialise());
  HangTool();
  Cancel(Start(GetParam().request));
  gate.Open();
  AwaitEndOfPrograms();
  EXPECT_EQ(world_.Started(), Nothing());
}

TEST_P(EachStartedKind, CanBeCancelledWhileItsHelperRuns) {
  ASSERT_TRUE(world_.Initialise());
  HangTool();
  const std::string descriptor = Start(GetParam().request);
  const pid_t tool = AwaitTool();
  Cancel(descriptor);
  AwaitEnd(tool);
  AwaitEndOfPrograms();
}

TEST_P(EachStartedKind, KeepsWhatItHasStartedWhenCancelledWithItsResult) {
  ASSERT_TRUE(world_.Initialise());
  const std::string descriptor = Start(GetParam().request);
  EXPECT_EQ(world_.Ask({"await", descriptor}), "readable");
  Cancel(descriptor);
  EXPECT_EQ(world_.Started(), world_.Expanded(GetParam().started));
}

/// The number may by then be that of a file of the host's.
TEST_P(EachStartedKind, LeavesNothingToCancelAfterItsFinish) {
  ASSERT_TRUE(world_.Initialise());
  const std::string descriptor = Start(GetParam().request);
  EXPECT_EQ(Finish(descriptor), "0");
  EXPECT_EQ(world_.Ask({"cancel", descriptor}), "not open");
  EXPECT_EQ(world_.Started(), world_.Expanded(GetParam().started));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, EachStartedKind,
    ::testing::Values(Kind{"a display", Display("intro"), kInViewer},
                      Kind{"a URL", Open("http://localhost/"),
                           Viewer("URL", "\"http://localhost/\"")},
                      Kind{"a search", Search("a"), Viewer("SEARCH", "a")}),
    SentenceOf());

/// Whatever the helper program has come to by then.
TEST_F(StartedRequests, CanBeCancelledAtEveryMoment) {
  Apply({kPage, NoViewer(), NoBrowser()}, world_);
  ASSERT_TRUE(world_.Initialise());
  for (int moment = 0; moment < 30; ++moment) {
    const std::string descriptor = Start(Display("intro"));
    ASSERT_NE(descriptor, kNoDescriptor);
    for (int i = 0; i < moment * moment; ++i) world_.Ask({"version"});
    EXPECT_EQ(world_.Ask({"cancel", descriptor}), "closed");
  }
  AwaitEndOfPrograms();
  EXPECT_EQ(StartAndFinish(Display("intro")), "2");
}

TEST_F(StartedRequests, LeaveNoDescriptorChildOrProgramBehind) {
  Apply({kPage, NoViewer(), NoBrowser()}, world_);
  ASSERT_TRUE(world_.Initialise());
  ASSERT_EQ(StartAndFinish(Display("intro")), "2");
  const auto before = world_.Host().CountIn("fd");
  for (int i = 0; i < kManyStarts; ++i) {
    ASSERT_EQ(StartAndFinish(Display("intro")), "2");
  }
  EXPECT_EQ(world_.Host().CountIn("fd"), before);
  EXPECT_EQ(world_.Host().CountIn("task"), 1U);
  EXPECT_TRUE(ChildrenOf(world_.Host().pid()).empty());
  AwaitEndOfPrograms();
}

TEST_F(StartedRequests, CannotBeBegunWithoutDescriptors) {
  ASSERT_TRUE(world_.Initialise());
  EXPECT_EQ(world_.Ask({"fill descriptors", "1"}), "filled");
  EXPECT_EQ(Start(Display("")), kNoDescriptor);
  EXPECT_EQ(world_.Ask({"free descriptors"}), "freed");
  EXPECT_EQ(StartAndFinish(Display("")), "3");
}

struct BrokenWorker {
  const char* sentence;
  const char* script;
};

void PrintTo(const BrokenWorker& row, std::ostream* out) {
  *out << row.sentence;
}

class ABrokenWorker : public StartedRequests,
                      public ::testing::WithParamInterface<BrokenWorker> {};

TEST_P(ABrokenWorker, IsALaunchThatFailed) {
  const std::string helper = world_.CopyLibrary() + "/velmohelp-request";
  world_.Remove(helper);
  world_.WriteProgram(helper, GetParam().script);
  ASSERT_TRUE(world_.Initialise());
  for (const Words& request :
       {Display("intro"), Open("http://localhost/"), Search("a")}) {
    EXPECT_EQ(StartAndFinish(request), "1");
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ABrokenWorker,
    ::testing::Values(
        BrokenWorker{"that ends at once", "#!/bin/sh\n"},
        BrokenWorker{"that crashes", "#!/bin/sh\nkill -SEGV $$\n"},
        BrokenWorker{"that has nothing to say", "#!/bin/sh\nprintf 0:,\n"},
        BrokenWorker{"that says half a number", "#!/bin/sh\nprintf 2:1\n"},
        BrokenWorker{"that says a word", "#!/bin/sh\nprintf 3:yes,\n"}),
    SentenceOf());

TEST_F(StartedRequests, CannotBeBegunWithoutTheirHelper) {
  world_.Remove(world_.CopyLibrary() + "/velmohelp-request");
  ASSERT_TRUE(world_.Initialise());
  EXPECT_EQ(Start(Display("intro")), kNoDescriptor);
  EXPECT_EQ(Finish(kNoDescriptor), "1");
}

/// The variables by which a window system knows that a program was asked for.
class ActivationToken : public StartedRequests {
 protected:
  /// Initialises, with a tool that refuses to work with a token.
  void Begin(const std::string& own_token = "") {
    kPage(world_);
    if (!own_token.empty()) {
      world_.start().environment.push_back("XDG_ACTIVATION_TOKEN=" + own_token);
    }
    world_.WriteTool("test -z \"$XDG_ACTIVATION_TOKEN\" || exit 1\n" +
                     FileText(world_.Expanded("{tool}")));
    ASSERT_TRUE(world_.Initialise());
  }
  void SetToken(const char* token) {
    EXPECT_EQ(world_.Ask({"set token", token}), "0");
  }

  /// What a request's viewer was given; "" when both variables are missing.
  std::string TokenAfter(const std::string& verb) {
    EXPECT_EQ(verb == "start" ? StartAndFinish(Display("intro"))
                              : world_.Ask(Display("intro")),
              "0");
    const std::string report = world_.Report();
    EXPECT_EQ(Facts(report, "argument"), world_.Expanded(kInViewer));
    std::string tokens;
    for (const std::string& entry : Facts(report, "environment")) {
      if (entry.starts_with("XDG_ACTIVATION_TOKEN=")) tokens += entry + " ";
      if (entry.starts_with("DESKTOP_STARTUP_ID=")) tokens += entry;
    }
    return tokens;
  }

  static std::string Both(const std::string& token) {
    return "XDG_ACTIVATION_TOKEN=" + token + " DESKTOP_STARTUP_ID=" + token;
  }
};

TEST_F(ActivationToken, IsForOneStart) {
  Begin();
  for (const char* verb : {"display", "start"}) {
    SetToken("a-token");
    EXPECT_EQ(TokenAfter(verb), Both("a-token")) << verb;
    EXPECT_EQ(TokenAfter(verb), "") << verb;
  }
}

TEST_F(ActivationToken, OfTheHostsOwnStartIsPassedOnOnce) {
  Begin("old");
  EXPECT_EQ(TokenAfter("display"), Both("old"));
  EXPECT_EQ(TokenAfter("display"), "");
  EXPECT_EQ(TokenAfter("start"), "");
}

TEST_F(ActivationToken, OfTheHostsOwnStartIsPassedOnOnceByAWorker) {
  Begin("old");
  EXPECT_EQ(TokenAfter("start"), Both("old"));
  EXPECT_EQ(TokenAfter("start"), "");
  EXPECT_EQ(TokenAfter("display"), "");
}

TEST_F(ActivationToken, ComesBeforeThatOfTheHostsOwnStart) {
  Begin("old");
  SetToken("new");
  EXPECT_EQ(TokenAfter("display"), Both("new"));
  EXPECT_EQ(TokenAfter("display"), "");
}

TEST_F(ActivationToken, IsNotUsedByAFind) {
  Begin();
  SetToken("a-token");
  EXPECT_EQ(world_.Ask({"find display", "intro"}),
            world_.Expanded("0 1 {url:installed}/intro.html"));
  EXPECT_EQ(TokenAfter("display"), Both("a-token"));
}

TEST_F(ActivationToken, CanBeTakenBack) {
  Begin();
  SetToken("a-token");
  SetToken("");
  EXPECT_EQ(TokenAfter("display"), "");
}

TEST_F(ActivationToken, IsAShortText) {
  EXPECT_EQ(world_.Ask({"set token", std::string(1024, 'a')}), "0");
  EXPECT_EQ(world_.Ask({"set token", std::string(1025, 'a')}), "1");
  EXPECT_EQ(world_.Ask({"set token", "\xFF"}), "1");
}

}  // namespace
}  // namespace velmohelp::testing
