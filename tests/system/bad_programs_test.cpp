// Programs that are missing, crash or report nonsense: the tool, the viewer,
// the browser and the library's own helpers; and servers of that kind.
#include <csignal>

#include "tests/system/routes.h"

namespace velmohelp::testing {
namespace {

const Change kPage = File("{installed}/intro.html");
const Words kInViewer = Viewer("HELP", "\"{url:installed}/intro.html\"");
const Words kInBrowser = Browser("{url:installed}/intro.html");

/// A tool that runs these shell commands when it is asked for the viewer.
Change Location(const std::string& lines) {
  return [=](HelpWorld& world) {
    world.WriteTool("test $1 = -appLocation || exit 0\n" +
                    world.Expanded(lines) + "\n");
  };
}

Change ToolLines(const std::string& lines) {
  return [=](HelpWorld& world) { world.WriteTool(lines); };
}

Route WithTool(const char* sentence, const Change& tool,
               const Words& started = kInBrowser) {
  return {sentence, {tool, kPage}, Display("intro"), "0", started};
}

class ABadTool : public ::testing::TestWithParam<Route> {};

TEST_P(ABadTool, ShowsThePageAllTheSame) { Follow(GetParam()); }

const std::string kViewerFolder = "'{viewer}/../..'";

INSTANTIATE_TEST_SUITE_P(
    Rows, ABadTool,
    ::testing::Values(
        WithTool("one that prints nothing", Location("")),
        WithTool("one that prints a megabyte",
                 Location("head -c 1000000 /dev/zero | tr '\\0' x")),
        WithTool("one that prints no ASCII", Location("printf '/\\303\\244'")),
        WithTool("one that prints zero bytes", Location("printf '/tmp\\000x'")),
        WithTool("one that prints a line feed", Location("echo")),
        WithTool("one that prints two line feeds",
                 Location("printf '%s\\n\\n' '{bin}/../Viewer.app'")),
        WithTool("one that prints a relative path",
                 Location("echo Viewer.app")),
        WithTool("one that prints the root", Location("echo /")),
        WithTool("one that prints a file", Location("echo /etc/passwd")),
        WithTool("one that prints a device", Location("echo /dev/null")),
        WithTool("one that crashes after its answer",
                 Location("echo '{bin}'; kill -SEGV $$")),
        WithTool("one that crashes", ToolLines("kill -KILL $$\n")),
        WithTool("one that fails", ToolLines("exit 255\n")),
        WithTool("one that talks to its errors alone",
                 Location("echo '{bin}/../Viewer.app' >/dev/null"))),
    SentenceOf());

/// The person at the keyboard need not wait for a tool that has printed the
/// path.
TEST(AToolThatNeverEnds, IsNotWaitedForOnceItHasPrinted) {
  HelpWorld world;
  Location("echo '{bin}/../Viewer.app'; exec sleep 1000")(world);
  kPage(world);
  ASSERT_TRUE(world.Initialise());
  EXPECT_EQ(world.Ask(Display("intro")), "0");
  Words started = world.Expanded(kInViewer);
  started[0] = world.Expanded("{bin}/../Viewer.app/bin/Viewer");
  EXPECT_EQ(world.Started(), started);
}

struct Broken {
  const char* sentence;
  /// A script in the helper's place; empty for no helper.
  std::string script;
};

void PrintTo(const Broken& row, std::ostream* out) { *out << row.sentence; }

class ABrokenHelper : public ::testing::TestWithParam<Broken> {
 protected:
  void Break(const std::string& helper) {
    const std::string path = world_.CopyLibrary() + "/" + helper;
    world_.Remove(path);
    if (GetParam().script.empty()) return;
    world_.WriteProgram(path, GetParam().script);
  }

  HelpWorld world_;
};

TEST_P(ABrokenHelper, MeansThatNothingCanBeReached) {
  Break("velmohelp-reach");
  world_.SetUserPreference("1");
  ASSERT_TRUE(world_.Initialise());
  EXPECT_EQ(world_.Ask({"status"}), "1");
}

TEST_P(ABrokenHelper, MeansThatNothingCanBeFetched) {
  Break("velmohelp-fetch");
  Apply({Online(), NoViewer(), Served("intro.html")}, world_);
  ASSERT_TRUE(world_.Initialise());
  EXPECT_EQ(world_.Ask({"status"}), "0");
  EXPECT_EQ(world_.Ask(Display("intro")), "7");
}

TEST_P(ABrokenHelper, MeansThatThereIsNoBrowser) {
  Break("velmohelp-browser");
  Apply({NoViewer(), kPage}, world_);
  ASSERT_TRUE(world_.Initialise());
  EXPECT_EQ(world_.Ask(Display("intro")), "2");
  EXPECT_EQ(world_.Ask(Open("http://localhost/")), "1");
  EXPECT_EQ(world_.Started(), Nothing());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ABrokenHelper,
    ::testing::Values(
        Broken{"missing", ""}, Broken{"crashing", "#!/bin/sh\nkill -SEGV $$\n"},
        Broken{"silent", "#!/bin/sh\n"},
        Broken{"talking nonsense", "#!/bin/sh\necho nonsense\n"},
        Broken{"talking without end", "#!/bin/sh\nexec cat /dev/zero\n"},
        Broken{"promising words that do not come",
               "#!/bin/sh\nprintf '18:start\\0002\\000/bin/true\\000,'\n"},
        Broken{"no program", "no program"}),
    SentenceOf());

/// Takes the whole time that the host is willing to wait.
TEST(ALateHelper, IsEnded) {
  HelpWorld world;
  world.WriteProgram(world.CopyLibrary() + "/velmohelp-reach",
                     "#!/bin/sh\nexec sleep 1000\n");
  ASSERT_TRUE(world.Initialise());
  world.SetUserPreference("1");
  EXPECT_EQ(world.Ask({"status"}), "1");
  // Returns only when it has ended.
  for (const pid_t program : world.Programs()) AwaitEnd(program);
}

class ABadServer : public ::testing::TestWithParam<Route> {};

TEST_P(ABadServer, HasNoPage) { Follow(GetParam()); }

Route WithServer(const char* sentence, const std::string& response) {
  return {sentence,
          {Online(), NoViewer(), Served("intro.html", response)},
          Display("intro"),
          "7",
          Nothing()};
}

std::string Redirect(const std::string& location) {
  return Response("302 Found", "Location: " + location + "\r\n", "");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ABadServer,
    ::testing::Values(
        WithServer("one that resets", HttpServer::kReset),
        WithServer("one that says nothing", ""),
        WithServer("one that speaks no HTTP", "hello"),
        WithServer("one that redirects forever", Redirect("intro.html")),
        WithServer("one that redirects to a file",
                   Redirect("file:///etc/passwd")),
        WithServer("one that sends binary",
                   Response("200 OK", "", "\x89PNG\r\n\x1A\n")),
        WithServer("one that stops in the middle",
                   "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\n<p>"),
        WithServer("one that fails",
                   Response("500 Internal Server Error", "", ""))),
    SentenceOf());

/// The helper's own time is too long for a test: it ends here when the server
/// has its request, as it would then.
TEST(AServerThatHangs, HasNoPage) {
  HelpWorld world;
  Apply({Online(), NoViewer(), Served("intro.html", HttpServer::kHang)}, world);
  ASSERT_TRUE(world.Initialise());
  world.OnRequest([&] {
    for (const pid_t program : world.Programs()) {
      if (ProgramOf(program).ends_with("fetch")) kill(program, SIGKILL);
    }
  });
  EXPECT_EQ(world.Ask(Display("intro")), "7");
}

}  // namespace
}  // namespace velmohelp::testing
