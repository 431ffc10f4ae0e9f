#include <velmohelp/resolve.h>

#include "tests/support/on_scripted_machine.h"

namespace velmohelp::testing {
namespace {

using ITEMInternal::ValidateURL;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ValidUrl : public OnScriptedMachine {};

TEST_F(ValidUrl, WithoutAFetchIsAPathAtWhichSomethingExists) {
  machine.AddFile("/x/page.html");
  machine.AddText("/x/other.html");
  EXPECT_TRUE(ValidateURL("/x/page.html", false));
  EXPECT_TRUE(ValidateURL("/x", false));
  EXPECT_FALSE(ValidateURL("/x/other.html", false));
  EXPECT_FALSE(ValidateURL("", false));
  EXPECT_THAT(machine.Questions(),
              ElementsAre("FindFile /x/page.html", "FindFile /x",
                          "FindFile /x/other.html", "FindFile \"\""));
}

TEST_F(ValidUrl, WithoutAFetchNeverTouchesTheNetwork) {
  machine.AddText("http://localhost/x");
  EXPECT_FALSE(ValidateURL("http://localhost/x", false));
  EXPECT_THAT(machine.Questions(), ElementsAre("FindFile http://localhost/x"));
}

TEST_F(ValidUrl, WithAFetchIsOneThatHasAText) {
  machine.AddText("http://localhost/x");
  machine.AddFile("/x");
  EXPECT_TRUE(ValidateURL("http://localhost/x", true));
  EXPECT_FALSE(ValidateURL("http://localhost/y", true));
  EXPECT_FALSE(ValidateURL("/x", true));
  EXPECT_THAT(machine.Questions(),
              ElementsAre("FetchText http://localhost/x",
                          "FetchText http://localhost/y", "FetchText /x"));
}

TEST_F(ValidUrl, WithAFetchEndsAtItsFirstZeroByte) {
  machine.AddText("http://localhost/x");
  EXPECT_TRUE(ValidateURL(std::string("http://localhost/x\0 y", 21), true));
  EXPECT_THAT(machine.Questions(), ElementsAre("FetchText http://localhost/x"));
}

TEST_F(ValidUrl, WithAFetchIsNeverAnInvalidUri) {
  for (const char* text :
       {"", "http://a b/", "http://a/\xC3\xA4", "http://a/\"", "http://a/%",
        "http://a/%2", "http://a/%zz", "http://a/<b>", "http://a/\xFF",
        "http://a/{b}"}) {
    machine.AddText(text);
    EXPECT_FALSE(ValidateURL(text, true)) << text;
  }
  EXPECT_THAT(machine.Questions(), IsEmpty());
}

}  // namespace
}  // namespace velmohelp::testing
