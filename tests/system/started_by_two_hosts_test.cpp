// Two applications of one desktop session that start requests at the same time:
// neither sees anything of the other's.
#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>
#include <set>

#include "tests/support/start_facts.h"
#include "tests/system/routes.h"

namespace velmohelp::testing {
namespace {

namespace fs = std::filesystem;

/// The pipes and sockets that a process has open.
std::set<std::string> ConnectionsOf(pid_t process) {
  std::set<std::string> connections;
  std::error_code ended;
  const fs::path folder = "/proc/" + std::to_string(process) + "/fd";
  for (const auto& entry : fs::directory_iterator(folder, ended)) {
    const std::string target = fs::read_symlink(entry, ended);
    if (target.starts_with("pipe:") || target.starts_with("socket:")) {
      connections.insert(target);
    }
  }
  return connections;
}

/// An application with a viewer of its own, whose tool waits to be let go.
class Application {
 public:
  void HangTool() {
    for (const char* name : {"{bin}/runs", "{bin}/go"}) {
      ASSERT_EQ(mkfifo(world_.Expanded(name).c_str(), S_IRWXU), 0);
    }
    world_.WriteTool(
        world_.Expanded(
            "if [ $1 = -isRuntimeInstalled ]\nthen\n"
            "echo $PPID > '{bin}/runs'\nread x < '{bin}/go'\nfi\n") +
        FileText(world_.Expanded("{tool}")));
  }

  void Begin(const std::string& product, const std::string& locale,
             const std::string& token) {
    ASSERT_EQ(world_.Ask({"initialise", product, locale}), "0");
    EXPECT_EQ(world_.Ask({"set token", token}), "0");
    descriptor_ = world_.Ask({"start display", "intro"});
  }
  /// Waits until the tool runs.
  void AwaitTool() { std::ifstream(world_.Expanded("{bin}/runs")) >> worker_; }
  void LetToolGo() { std::ofstream(world_.Expanded("{bin}/go")) << "\n"; }

  bool HasResult() { return world_.Ask({"is readable", descriptor_}) == "yes"; }
  std::string Finish() { return world_.Ask({"finish", descriptor_}); }
  void Cancel() { EXPECT_EQ(world_.Ask({"cancel", descriptor_}), "closed"); }

  /// What the viewer was given: its arguments after its name, its token.
  Words GivenToViewer() {
    const std::string report = world_.Report();
    Words given = Facts(report, "argument");
    if (!given.empty()) given.erase(given.begin());
    for (const std::string& entry : Facts(report, "environment")) {
      if (entry.starts_with("XDG_ACTIVATION_TOKEN=")) given.push_back(entry);
    }
    return given;
  }

  /// Those of the host and of its worker.
  std::set<std::string> Connections() {
    auto connections = ConnectionsOf(world_.Host().pid());
    connections.merge(ConnectionsOf(worker_));
    return connections;
  }
  pid_t worker() const { return worker_; }
  HelpWorld& world() { return world_; }

 private:
  HelpWorld world_;
  std::string descriptor_;
  pid_t worker_ = -1;
};

class StartedByTwoHosts : public ::testing::Test {
 protected:
  void SetUp() override {
    HelpWorld& drawing = drawing_.world();
    HelpWorld& letters = letters_.world();
    drawing.Write("{installed}/intro.html", "<p>");
    letters.config().id = "de_DE_Bar";
    letters.config().folders.front().name = fs::path(guide_).filename();
    letters.Remove("{config}");
    letters.Write("{bin}/host.resources/help/de_DE/Bar.helpcfg",
                  letters.config().Text());
    letters.Write(guide_ + "/intro.html", "<p>");
    // One person, one session.
    letters.start().environment = drawing.start().environment;
    drawing_.HangTool();
    letters_.HangTool();
    drawing_.Begin("Foo", "en_US", "drawing's");
    letters_.Begin("Bar", "de_DE", "letters'");
    drawing_.AwaitTool();
    letters_.AwaitTool();
  }

  /// Both hosts end before either world ends what is left.
  void TearDown() override {
    drawing_.world().EndHost();
    letters_.world().EndHost();
    fs::remove_all(guide_);
  }

  void ExpectDrawingsResult() {
    EXPECT_EQ(drawing_.Finish(), "0");
    EXPECT_EQ(drawing_.GivenToViewer(),
              drawing_.world().Expanded(Words{
                  "HELP", "Foo", "en_US", "\"{url:installed}/intro.html\"",
                  "XDG_ACTIVATION_TOKEN=drawing's"}));
  }
  void ExpectLettersResult() {
    EXPECT_EQ(letters_.Finish(), "0");
    const Words given = letters_.GivenToViewer();
    ASSERT_EQ(given.size(), 5U);
    EXPECT_EQ(Words(given.begin(), given.begin() + 3),
              (Words{"HELP", "Bar", "de_DE"}));
    EXPECT_THAT(given[3],
                ::testing::EndsWith(fs::path(guide_).filename().string() +
                                    "/intro.html\""));
    EXPECT_EQ(given[4], "XDG_ACTIVATION_TOKEN=letters'");
  }

  Application drawing_, letters_;
  std::string guide_ = VELMO_TEST_INSTALLED_HELP + OwnName("/guide");
};

TEST_F(StartedByTwoHosts, EachHasItsOwnResultPageAndToken) {
  EXPECT_FALSE(drawing_.HasResult());
  EXPECT_FALSE(letters_.HasResult());
  letters_.LetToolGo();
  ExpectLettersResult();
  EXPECT_FALSE(drawing_.HasResult());
  drawing_.LetToolGo();
  ExpectDrawingsResult();
}

TEST_F(StartedByTwoHosts, NoDescriptorIsSeenByTheOther) {
  EXPECT_NE(drawing_.worker(), letters_.worker());
  const auto drawings = drawing_.Connections();
  EXPECT_THAT(drawings, ::testing::Not(::testing::IsEmpty()));
  for (const std::string& connection : letters_.Connections()) {
    EXPECT_FALSE(drawings.contains(connection)) << connection;
  }
  drawing_.Cancel();
  letters_.Cancel();
}

TEST_F(StartedByTwoHosts, OneThatIsCancelledLeavesTheOther) {
  drawing_.Cancel();
  AwaitEnd(drawing_.worker());
  letters_.LetToolGo();
  ExpectLettersResult();
  EXPECT_EQ(drawing_.GivenToViewer(), Nothing());
}

}  // namespace
}  // namespace velmohelp::testing
