// What the client makes of the path that the tool prints for the viewer.
#include "platform/help_tool.h"
#include "tests/support/scripted_test.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

using namespace std::string_literals;
using ::testing::ElementsAre;

const std::string kTool = "/fw//Versions/A/Resources/QTV";
constexpr char kApp[] = "/apps/Viewer.app";
constexpr char kViewer[] = "/apps/Viewer.app/bin/Viewer";

/// The tool exists, and says that the viewer "klh" of "id.1" is installed.
class ViewerPath : public ScriptedTest {
 protected:
  ViewerPath() {
    machine.SetBundle("com.velmo.vxclientframework", "/fw");
    machine.AddFile(kTool);
    machine.OnRun(kTool, {"-isAppInstalled", "klh", "id.1"}, 0);
    machine.SetExecutable(kApp, kViewer);
  }
  std::string Path() {
    return HelpApplicationPath(machine, {app_id, publisher_id});
  }
  void SetOutput(const std::string& output) {
    machine.OnOutput(kTool, {"-appLocation", "klh", "id.1"}, output);
  }

  std::string app_id = "klh";
  std::string publisher_id = "id.1";
};

TEST_F(ViewerPath, TakesTwoRunsOfTheTool) {
  SetOutput(kApp);
  EXPECT_EQ(Path(), kViewer);
  EXPECT_THAT(machine.Questions(),
              ElementsAre("BundleDirectory com.velmo.vxclientframework",
                          "FindFile " + kTool,
                          "RunToEnd " + kTool + " -isAppInstalled klh id.1",
                          "FirstOutput " + kTool + " -appLocation klh id.1",
                          "ApplicationExecutable /apps/Viewer.app"));
}

TEST_F(ViewerPath, IsNotAskedForWhenTheViewerIsNotInstalled) {
  SetOutput(kApp);
  machine.OnRun(kTool, {"-isAppInstalled", "klh", "id.1"}, 1);
  EXPECT_EQ(Path(), "");
  EXPECT_EQ(machine.Questions().back(),
            "RunToEnd " + kTool + " -isAppInstalled klh id.1");
}

TEST_F(ViewerPath, IsNotAskedForWhenTheFirstRunFails) {
  SetOutput(kApp);
  publisher_id = "other";
  machine.OnOutput(kTool, {"-appLocation", "klh", "other"}, kApp);
  EXPECT_EQ(Path(), "");
  EXPECT_EQ(machine.Questions().size(), 3);
}

TEST_F(ViewerPath, IsAskedForWithEmptyIdsToo) {
  app_id = publisher_id = "";
  machine.OnRun(kTool, {"-isAppInstalled", "", ""}, 0);
  machine.OnOutput(kTool, {"-appLocation", "", ""}, kApp);
  EXPECT_EQ(Path(), kViewer);
  EXPECT_EQ(machine.Questions()[2],
            "RunToEnd " + kTool + R"( -isAppInstalled "" "")");
  EXPECT_EQ(machine.Questions()[3],
            "FirstOutput " + kTool + R"( -appLocation "" "")");
}

TEST_F(ViewerPath, TakesIdsThatLookLikeOptionsAsOneArgumentEach) {
  app_id = "-x y";
  publisher_id = "\"";
  Path();
  EXPECT_EQ(machine.Questions()[2],
            "RunToEnd " + kTool + " -isAppInstalled \"-x y\" \"\"\"");
}

TEST_F(ViewerPath, IsEmptyWhenTheToolCannotBeRead) {
  EXPECT_EQ(Path(), "");
  EXPECT_EQ(machine.Questions().size(), 4);
}

TEST_F(ViewerPath, IsEmptyForAnExecutableOf1024Bytes) {
  SetOutput(kApp);
  const std::string longest = "/" + std::string(1022, 'a');
  machine.SetExecutable(kApp, longest);
  EXPECT_EQ(Path(), longest);
  machine.SetExecutable(kApp, longest + "a");
  EXPECT_EQ(Path(), "");
}

struct Row {
  const char* sentence;
  std::string output;
  /// The application asked for; "" for none.
  std::string application;
};

class ToolOutput : public ViewerPath,
                   public ::testing::WithParamInterface<Row> {};

TEST_P(ToolOutput, NamesAnApplication) {
  const std::string& application = GetParam().application;
  if (!application.empty()) machine.SetExecutable(application, kViewer);
  SetOutput(GetParam().output);
  EXPECT_EQ(Path(), application.empty() ? "" : kViewer);
  EXPECT_EQ(machine.Questions().size(), application.empty() ? 4 : 5);
  if (application.empty()) return;
  const bool plain = application.find_first_of(" \"") == std::string::npos;
  const std::string quote = plain ? "" : "\"";
  EXPECT_EQ(machine.Questions().back(),
            "ApplicationExecutable " + quote + application + quote);
}

const std::string kLongest = "/" + std::string(1022, 'a');

const Row kPaths[] = {
    {"a path without an end", "/apps/Viewer.app", "/apps/Viewer.app"},
    {"a path with one line feed loses it", "/x.app\n", "/x.app"},
    {"a path with two line feeds keeps one", "/x.app\n\n", "/x.app\n"},
    {"a carriage return is kept", "/x.app\r\n", "/x.app\r"},
    {"spaces are kept", " /x y.app \n", " /x y.app "},
    {"a line feed inside is kept", "/x\n/y", "/x\n/y"},
    {"a line feed at the start is kept", "\n/x\n", "\n/x"},
    {"quotes are kept", "\"/x.app\"\n", "\"/x.app\""},
    {"all bytes of ASCII are taken", "/\x01\x1B\x7F\n", "/\x01\x1B\x7F"},
    {"1023 bytes fit", kLongest, kLongest},
    {"1023 bytes with a line feed among them fit",
     kLongest.substr(0, 1022) + "\n", kLongest.substr(0, 1022)},
};

const Row kNoPaths[] = {
    {"nothing", "", ""},
    {"a line feed alone", "\n", ""},
    {"letters beyond ASCII", "/\xC3\xA4.app\n", ""},
    {"a byte beyond ASCII", "/x\x80", ""},
    {"a NUL byte inside", "/x\0y"s, ""},
    {"a NUL byte at the end", "/x\0"s, ""},
    {"1023 bytes and a line feed", kLongest + "\n", ""},
    {"1024 bytes", kLongest + "a", ""},
    {"megabytes", std::string(8'000'000, 'a'), ""},
};

INSTANTIATE_TEST_SUITE_P(Paths, ToolOutput, ::testing::ValuesIn(kPaths),
                         SentenceOf());
INSTANTIATE_TEST_SUITE_P(NoPaths, ToolOutput, ::testing::ValuesIn(kNoPaths),
                         SentenceOf());

TEST_F(ViewerPath, IsEmptyForTwoLineFeedsAfterARealApplication) {
  SetOutput(kApp + "\n\n"s);
  EXPECT_EQ(Path(), "");
}

}  // namespace
}  // namespace velmohelp::testing
