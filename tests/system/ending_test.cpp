// Calls at the host's end, and in a thread that is cancelled.
#include <fcntl.h>
#include <sys/stat.h>

#include "tests/support/sentence.h"
#include "tests/system/routes.h"

namespace velmohelp::testing {
namespace {

struct Row {
  const char* sentence;
  const char* mode;
  const char* output;
};

/// The first line of each is the initialisation.
constexpr char kRefusals[] = R"(Initialise() 0
DisplayVelmoHelpClientPage("intro") 0
Initialise() 6
GetVelmoHelpClientVersion() 66816
GetVelmoHelpClientOnlineStatus() 2
DisplayVelmoHelpClientPage("intro") 6
OpenURL("http://localhost/") 6
SearchHelp("Foo", "en_US", "x") 4
Search("a", "b", "en_US", "x") 4
VelmoHelpEncodeURIComponent("a b", text, sizeof text) 5
velmohelp_find_display("intro", nullptr, nullptr) 6
velmohelp_find_url("http://localhost/", nullptr, nullptr) 6
velmohelp_find_search("Foo", "en_US", "x", nullptr, nullptr) 4
velmohelp_start_display("intro") -1
velmohelp_start_url("http://localhost/") -1
velmohelp_start_search("Foo", "en_US", "x") -1
velmohelp_finish(-1) 1
velmohelp_set_activation_token("x") 1
velmohelp_set_host("/x") 1
velmohelp_choose_locale("Foo", "en_US", locale) 2
velmohelp_initialise("Foo", "en_US") 6
velmohelp_display("intro") 6
pushed 6
pushed 6
ReadHelpcfg("x") 6
UpdateHelpConfigInfo("en_US") 6
GetHelpConfigPath("Foo", "en_US") ""
GetDownloadedHelpConfigPath("a", "b") ""
GetHelpConfigName("a", "b") ""
ValidateID("intro.html", false, out) 3
GetSearchPage(out, "en_US", nullptr) 0
out "unchanged"
ITEMInternal::ValidateURL("/", false) 0
isHTMLPage("a.html") 1
GetOnlineDefault() 0
GetAdminOnlinePref() 0
GetUserOnlinePref() 0
GetOnlineStatus("http://localhost/") 0
GetNexletPreference(kUserPreference) ""
ITEMInternal::FileExists("/") 0
IsZAMRuntimePresent() 0
GetHelpApplicationPath() ""
LaunchApplication("/bin/true", "", "", "", "") 1
LaunchPlatformBrowser("http://localhost/") 2
StdStringFindFolder(-32763, 0x70726566, 0, folder) 0
folder "unchanged"
GetKLHPreferenceFilePath() ""
GetDownloadedContentPath() ""
GetFSRefFromPath("/etc/passwd", file) -43
urlencode("a b") "a%20b"
)";
constexpr char kInitialised[] = "Initialise() 0\n";
constexpr char kDisplayed[] =
    "Initialise() 0\nDisplayVelmoHelpClientPage(\"intro\") 0\n";
constexpr char kCancelledAfterTheCall[] =
    "Initialise() 0\nreturned 1\nwent on 0\n";
/// A thread that is cancelled asynchronously leaves the call's last line.
constexpr char kCancelledAtItsEnd[] = "Initialise() 0\nreturned 0\nwent on 0\n";

const std::vector<Row> kEnds = {
    {"a call after the state has ended is refused", "exit handler", kRefusals},
    {"a call before the state ends is answered", "late exit handler",
     kDisplayed},
    {"a thread that calls until the process has gone does no harm",
     "running thread", kInitialised}};

/// In these the tool waits for the host.
const std::vector<Row> kEndsDuringACall = {
    {"a call that lasts longer than the state finds it whole",
     "display in a thread", kDisplayed},
    {"a cancelled thread ends after its call", "cancel",
     kCancelledAfterTheCall},
    {"a thread cancelled asynchronously ends at the end of its call",
     "cancel asynchronous", kCancelledAtItsEnd},
    {"a cancelled thread ends after its typed call", "cancel typed",
     kCancelledAfterTheCall},
    {"a thread cancelled asynchronously ends at the end of its typed call",
     "cancel typed asynchronous", kCancelledAtItsEnd},
    {"a cancelled thread ends after a typed call that throws", "cancel thrown",
     kCancelledAfterTheCall},
    {"a thread cancelled asynchronously ends at the end of a typed call that "
     "throws",
     "cancel thrown asynchronous", kCancelledAtItsEnd}};

bool HasValgrind() {
  return std::system("valgrind --version >/dev/null 2>&1") == 0;
}

class EndingWorld {
 public:
  EndingWorld() {
    world_.Write("{installed}/intro.html", "<p>");
    std::filesystem::rename(world_.Expanded("{bin}/host.resources"),
                            world_.Expanded("{bin}/ending.resources"));
  }

  /// How a host ended that ran in a mode.
  int Run(const std::string& program, const Row& row) {
    std::filesystem::copy_file(program, world_.Expanded("{bin}/ending"));
    HostStart start = world_.start();
    start.program = runner_.empty() ? world_.Expanded("{bin}/ending") : runner_;
    start.plug_in = row.mode;
    start.environment.push_back(world_.Expanded("VELMO_TEST_PIPES={bin}"));
    // The search for leaks stops every thread, and one that is starting a
    // program cannot be stopped: where the host ends during a call, the search
    // would wait for the program, and the program waits for the host.
    start.environment.push_back("ASAN_OPTIONS=detect_leaks=0");
    const std::string output = world_.Expanded("{bin}/output");
    start.preparation = [&] {
      return dup2(open(output.c_str(), O_WRONLY | O_CREAT, S_IRWXU), 1) == 1;
    };
    const int status = HostProcess(start).End();
    EXPECT_EQ(FileText(output), row.output);
    EXPECT_EQ(FileText(start.errors), "");
    return status;
  }

  /// From now on hosts run under a checker of memory.
  void UseValgrind() {
    world_.WriteProgram("{bin}/run",
                        "#!/bin/sh\nexec valgrind -q --error-exitcode=99 "
                        "--fair-sched=yes '" +
                            world_.Expanded("{bin}/ending") + "' \"$1\"\n");
    runner_ = world_.Expanded("{bin}/run");
  }

  /// Makes the tool's last question wait for the host.
  void HoldTool() {
    for (const char* name : {"{bin}/started", "{bin}/go"}) {
      mkfifo(world_.Expanded(name).c_str(), S_IRWXU);
    }
    world_.WriteTool(world_.Expanded(
        "case $1 in\n-isRuntimeInstalled) echo x >'{bin}/started'; "
        "read line <'{bin}/go';;\n-appLocation) echo "
        "'{bin}/../Viewer.app';;\nesac\n"));
  }

 private:
  HelpWorld world_;
  std::string runner_;
};

using HostAndRow = std::tuple<const char*, Row>;

class Ending : public ::testing::TestWithParam<HostAndRow> {
 protected:
  void Check() {
    const auto& [host, row] = GetParam();
    EXPECT_EQ(world_.Run(host, row), 0);
  }

  EndingWorld world_;
};

class EndingInACall : public Ending {};

TEST_P(Ending, LeavesTheHostAlone) { Check(); }

TEST_P(Ending, TouchesNoDeadMemory) {
  if (VELMO_TEST_SANITIZED || !HasValgrind()) {
    GTEST_SKIP() << "no valgrind, or sanitized";
  }
  world_.UseValgrind();
  Check();
}

TEST_P(EndingInACall, LeavesTheHostAlone) {
  world_.HoldTool();
  Check();
}

struct Sentence {
  std::string operator()(
      const ::testing::TestParamInfo<HostAndRow>& info) const {
    const auto& [host, row] = info.param;
    const bool is_plug_in = std::string_view(host) != VELMO_TEST_ENDING_HOST;
    return AsTestName(row.sentence +
                      std::string(is_plug_in ? " of a plug in" : ""));
  }
};

const auto kHosts =
    ::testing::Values(VELMO_TEST_ENDING_HOST, VELMO_TEST_ENDING_PLUG_IN_HOST);
INSTANTIATE_TEST_SUITE_P(Each, Ending,
                         ::testing::Combine(kHosts, ::testing::ValuesIn(kEnds)),
                         Sentence());
INSTANTIATE_TEST_SUITE_P(
    Each, EndingInACall,
    ::testing::Combine(kHosts, ::testing::ValuesIn(kEndsDuringACall)),
    Sentence());

}  // namespace
}  // namespace velmohelp::testing
