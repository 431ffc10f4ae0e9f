#include <velmohelp/platform.h>

#include "tests/support/on_scripted_machine.h"

namespace velmohelp::testing {
namespace {

using namespace std::string_literals;
using ITEMInternal::FileExists;
using ITEMInternal::LaunchApplication;
using ITEMInternal::LaunchPlatformBrowser;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Launch : public OnScriptedMachine {};

TEST_F(Launch, StartsAnApplicationWithFourArgumentsInOrder) {
  machine.AddFile("/x/Viewer");
  machine.OnStart("/x/Viewer");
  EXPECT_EQ(LaunchApplication("/x/Viewer", "HELP", "Foo", "en_US", "a.html"),
            0);
  EXPECT_THAT(machine.Questions(),
              ElementsAre("FileExists /x/Viewer",
                          "StartProgram /x/Viewer HELP Foo en_US a.html"));
}

TEST_F(Launch, PassesArgumentsAsTheyAre) {
  machine.AddFile("/x/Viewer");
  LaunchApplication("/x/Viewer", "", "-v", " ", "\"file:///a b\"\n$(x)");
  EXPECT_EQ(machine.Questions().back(),
            "StartProgram /x/Viewer \"\" -v \" \" \"\"file:///a b\"\n$(x)\"");
}

TEST_F(Launch, StartsNothingAtAPathWhereNothingExists) {
  machine.OnStart("/x/Viewer");
  EXPECT_EQ(LaunchApplication("/x/Viewer", "a", "b", "c", "d"), 1);
  EXPECT_EQ(LaunchApplication("", "a", "b", "c", "d"), 1);
  EXPECT_THAT(machine.Questions(),
              ElementsAre("FileExists /x/Viewer", "FileExists \"\""));
}

TEST_F(Launch, IsOneWhenTheApplicationIsNotRunningAtOnceAndIsNotRepeated) {
  machine.AddFile("/x/Viewer");
  EXPECT_EQ(LaunchApplication("/x/Viewer", "a", "b", "c", "d"), 1);
  EXPECT_EQ(machine.Questions().size(), 2);
}

TEST_F(Launch, TriesADirectoryToo) {
  machine.AddDirectory("/x");
  EXPECT_EQ(LaunchApplication("/x", "a", "b", "c", "d"), 1);
  EXPECT_EQ(machine.Questions().size(), 2);
}

TEST_F(Launch, OpensAUrlInTheBrowserAsItStands) {
  machine.SetBrowserOpens(true);
  EXPECT_EQ(LaunchPlatformBrowser("file:///a%20b?x=[1]&y='(2)'#z"), 0);
  EXPECT_THAT(machine.Questions(),
              ElementsAre("OpenInBrowser file:///a%20b?x=[1]&y='(2)'#z"));
}

TEST_F(Launch, OpensAUrlUpToItsFirstZeroByte) {
  machine.SetBrowserOpens(true);
  EXPECT_EQ(LaunchPlatformBrowser("http://h/\0 x"s), 0);
  EXPECT_EQ(LaunchPlatformBrowser("\0http://h/"s), 2);
  EXPECT_THAT(machine.Questions(), ElementsAre("OpenInBrowser http://h/"));
}

TEST_F(Launch, IsTwoWhenTheBrowserDoesNotOpenTheUrl) {
  EXPECT_EQ(LaunchPlatformBrowser("http://h/"), 2);
  EXPECT_THAT(machine.Questions(), ElementsAre("OpenInBrowser http://h/"));
}

TEST_F(Launch, IsTwoForATextThatIsNoUrlAndNothingIsOpened) {
  machine.SetBrowserOpens(true);
  for (const char* text :
       {"", " ", "http://a b", "\"http://h\"", "http://h/\xC3\xA4",
        "http://h/\xFF", "http://h/%", "http://h/%4", "http://h/%g0",
        "http://h/<", "http://h/>", "http://h/{", "http://h/}", "http://h/|",
        "http://h/\\", "http://h/^", "http://h/`", "http://h/\n",
        "http://h/\x7F"}) {
    EXPECT_EQ(LaunchPlatformBrowser(text), 2) << text;
  }
  EXPECT_THAT(machine.Questions(), IsEmpty());
}

TEST_F(Launch, TakesAUrlOfMegabytes) {
  machine.SetBrowserOpens(true);
  EXPECT_EQ(LaunchPlatformBrowser("http://h/" + std::string(8'000'000, 'a')),
            0);
}

TEST_F(Launch, FindsFilesAndDirectoriesAlike) {
  machine.AddFile("/x/y");
  EXPECT_TRUE(FileExists("/x/y"));
  EXPECT_TRUE(FileExists("/x"));
  EXPECT_FALSE(FileExists("/y"));
  EXPECT_FALSE(FileExists(""));
}

}  // namespace
}  // namespace velmohelp::testing
