// The machine fails to answer one question of a request, each in turn: the
// request goes on or ends with a code of its own, and shows one thing at most.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <velmohelp/velmohelp.h>

#include "client/this_machine.h"
#include "platform/scripted/fault_machine.h"
#include "tests/support/client_world.h"
#include "tests/support/sentence.h"

namespace velmohelp {
namespace {

using ::testing::AnyOfArray;
using testing::ClientWorld;

struct Request {
  const char* sentence;
  std::uint32_t (*run)();
  /// The page can be shown in the viewer; else in the browser.
  bool has_viewer;
  std::vector<std::uint32_t> codes;
};

class OneQuestionFails : public ::testing::TestWithParam<Request> {
 protected:
  OneQuestionFails() {
    world_.Install();
    world_.AddFile(world_.DownloadedManual() + "/page.html");
    world_.AddFile(world_.DownloadedManual() + "/search.html");
    world_.machine().SetPreference("com.velmo.a.b", "HelpcfgName",
                                   PreferenceScope::kAnyUserCurrentHost, "Foo");
    world_.StartBrowsers();
    if (GetParam().has_viewer) world_.InstallWorkingViewer();
  }

  /// How many questions were asked.
  int RunWithFault(int question) {
    UseMachine(&world_.machine());
    InitializeVelmoHelpClient("Foo", "en_US", 0);
    world_.machine().ForgetQuestions();
    FaultMachine broken(world_.machine(), question);
    UseMachine(&broken);
    code_ = GetParam().run();
    UseMachine(&world_.machine());
    return broken.Asked();
  }

  ClientWorld world_;
  std::uint32_t code_ = 0;
};

TEST_P(OneQuestionFails, AndTheAnswerIsDefined) {
  const int questions = RunWithFault(0);
  ASSERT_EQ(code_, 0U);
  ASSERT_GT(questions, 0);
  for (int question = 1; question <= questions; ++question) {
    RunWithFault(question);
    EXPECT_THAT(code_, AnyOfArray(GetParam().codes)) << question;
    EXPECT_EQ(world_.Shown().size(), code_ == 0 ? 1U : 0U) << question;
  }
}

INSTANTIATE_TEST_SUITE_P(
    , OneQuestionFails,
    ::testing::Values(Request{"in a page display in the viewer",
                              [] { return DisplayVelmoHelpClientPage("page"); },
                              true,
                              {0, 1, 2, 4, 7}},
                      Request{"in a page display in the browser",
                              [] { return DisplayVelmoHelpClientPage("page"); },
                              false,
                              {0, 2, 4, 7}},
                      Request{"in the opening of a URL in the viewer",
                              [] { return OpenURL("http://x"); },
                              true,
                              {0, 2, 4}},
                      Request{"in the opening of a URL in the browser",
                              [] { return OpenURL("http://x"); },
                              false,
                              {0, 1, 4}},
                      Request{"in a search in the viewer",
                              [] { return SearchHelp("Foo", "en_US", "x"); },
                              true,
                              {0, 1, 4}},
                      Request{"in a search in the browser",
                              [] { return SearchHelp("Foo", "en_US", "x"); },
                              false,
                              {0, 1, 4, 6}},
                      Request{"in a search by names",
                              [] { return Search("a", "b", "en_US", "x"); },
                              true,
                              {0, 1, 4, 8}}),
    testing::SentenceOf());

}  // namespace
}  // namespace velmohelp
