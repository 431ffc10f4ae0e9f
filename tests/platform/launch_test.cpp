#include "platform/launch.h"

#include "platform/files.h"
#include "tests/support/scripted_test.h"

namespace velmohelp::testing {
namespace {

using namespace std::string_literals;
using enum LaunchResult;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Launch : public ScriptedTest {};

TEST_F(Launch, StartsAnApplicationWithFourArgumentsInOrder) {
  machine.AddFile("/x/Viewer");
  machine.OnStart("/x/Viewer");
  EXPECT_EQ(LaunchApplication(machine, "/x/Viewer",
                              {"HELP", "Foo", "en_US", "a.html"}),
            kLaunched);
  EXPECT_THAT(machine.Questions(),
              ElementsAre("FindFile /x/Viewer",
                          "StartProgram /x/Viewer HELP Foo en_US a.html"));
}

TEST_F(Launch, PassesArgumentsAsTheyAre) {
  machine.AddFile("/x/Viewer");
  LaunchApplication(machine, "/x/Viewer",
                    {"", "-v", " ", "\"file:///a b\"\n$(x)"});
  EXPECT_EQ(machine.Questions().back(),
            "StartProgram /x/Viewer \"\" -v \" \" \"\"file:///a b\"\n$(x)\"");
}

TEST_F(Launch, StartsNothingAtAPathWhereNothingExists) {
  machine.OnStart("/x/Viewer");
  EXPECT_EQ(LaunchApplication(machine, "/x/Viewer", {"a", "b", "c", "d"}),
            kViewerNotLaunched);
  EXPECT_EQ(LaunchApplication(machine, "", {"a", "b", "c", "d"}),
            kViewerNotLaunched);
  EXPECT_THAT(machine.Questions(),
              ElementsAre("FindFile /x/Viewer", "FindFile \"\""));
}

TEST_F(Launch, FailsWhenTheApplicationIsNotRunningAtOnceAndIsNotRepeated) {
  machine.AddFile("/x/Viewer");
  EXPECT_EQ(LaunchApplication(machine, "/x/Viewer", {"a", "b", "c", "d"}),
            kViewerNotLaunched);
  EXPECT_EQ(machine.Questions().size(), 2);
}

TEST_F(Launch, TriesADirectoryToo) {
  machine.AddDirectory("/x");
  EXPECT_EQ(LaunchApplication(machine, "/x", {"a", "b", "c", "d"}),
            kViewerNotLaunched);
  EXPECT_EQ(machine.Questions().size(), 2);
}

TEST_F(Launch, OpensAUrlInTheBrowserUnchanged) {
  machine.SetBrowserOpens(true);
  EXPECT_EQ(LaunchPlatformBrowser(machine, "file:///a%20b?x=[1]&y='(2)'#z"),
            kLaunched);
  EXPECT_THAT(machine.Questions(),
              ElementsAre("OpenInBrowser file:///a%20b?x=[1]&y='(2)'#z"));
}

TEST_F(Launch, OpensAUrlUpToItsFirstZeroByte) {
  machine.SetBrowserOpens(true);
  EXPECT_EQ(LaunchPlatformBrowser(machine, "http://h/\0 x"s), kLaunched);
  EXPECT_EQ(LaunchPlatformBrowser(machine, "\0http://h/"s),
            kBrowserNotLaunched);
  EXPECT_THAT(machine.Questions(), ElementsAre("OpenInBrowser http://h/"));
}

TEST_F(Launch, FailsWhenTheBrowserDoesNotOpenTheUrl) {
  EXPECT_EQ(LaunchPlatformBrowser(machine, "http://h/"), kBrowserNotLaunched);
  EXPECT_THAT(machine.Questions(), ElementsAre("OpenInBrowser http://h/"));
}

TEST_F(Launch, FailsForATextThatIsNotAUrlAndOpensNothing) {
  machine.SetBrowserOpens(true);
  for (const char* text :
       {"", " ", "http://a b", "\"http://h\"", "http://h/\xC3\xA4",
        "http://h/\xFF", "http://h/%", "http://h/%4", "http://h/%g0",
        "http://h/<", "http://h/>", "http://h/{", "http://h/}", "http://h/|",
        "http://h/\\", "http://h/^", "http://h/`", "http://h/\n",
        "http://h/\x7F"}) {
    EXPECT_EQ(LaunchPlatformBrowser(machine, text), kBrowserNotLaunched)
        << text;
  }
  EXPECT_THAT(machine.Questions(), IsEmpty());
}

TEST_F(Launch, TakesAUrlOfMegabytes) {
  machine.SetBrowserOpens(true);
  EXPECT_EQ(
      LaunchPlatformBrowser(machine, "http://h/" + std::string(8'000'000, 'a')),
      kLaunched);
}

TEST_F(Launch, FindsFilesAndDirectoriesAlike) {
  machine.AddFile("/x/y");
  EXPECT_TRUE(FileExists(machine, "/x/y"));
  EXPECT_TRUE(FileExists(machine, "/x"));
  EXPECT_FALSE(FileExists(machine, "/y"));
  EXPECT_FALSE(FileExists(machine, ""));
}

TEST_F(Launch, FindsNoFileWhoseNameIsNotUtf8) {
  machine.AddFile("/x\xFF");
  EXPECT_FALSE(FileExists(machine, "/x\xFF"));
  EXPECT_FALSE(FileExists(machine, "/\xED\xA0\x80"));
  EXPECT_THAT(machine.Questions(), IsEmpty());
}

}  // namespace
}  // namespace velmohelp::testing
