// Every result code, from the client's result to what a script sees.
#include <velmohelp/script_host.h>

#include "tests/exports/client_doubles.h"
#include "tests/host/lua_state.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

struct Row {
  std::string sentence;
  std::uint32_t result;
  std::string name;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.sentence; }

class ResultCode : public ::testing::TestWithParam<Row> {
 protected:
  ResultCode() {
    private_load_LxHelp(state_);
    private_load_LxHelpWorker(state_);
    client_result = GetParam().result;
  }

  std::string Seen(const std::string& call) {
    return state_.Run("local r = " + call +
                      " return r, r.name, r.value, r.type");
  }

  static std::string Expected(const std::string& type) {
    return GetParam().name + " " + GetParam().name + " " +
           std::to_string(GetParam().result) + " " + type;
  }

  LuaState state_;
};

class InitResultCode : public ResultCode {};
class DisplayResultCode : public ResultCode {};

TEST_P(InitResultCode, HasItsName) {
  EXPECT_EQ(Seen("LxHelpWorker.initializeClient('p', 'l')"),
            Expected("Init Return Code"));
}

TEST_P(DisplayResultCode, HasItsName) {
  EXPECT_EQ(Seen("LxHelp.displayClientPage('p')"),
            Expected("Display Page Return Code"));
}

INSTANTIATE_TEST_SUITE_P(
    Table, InitResultCode,
    ::testing::ValuesIn(std::vector<Row>{
        {"0 is success", 0, "success"},
        {"1 is invalidArgument", 1, "invalidArgument"},
        {"2 is missingHelpMap", 2, "missingHelpMap"},
        {"3 is invalidHelpMap", 3, "invalidHelpMap"},
        {"4 is missingOnlineUrlPrefix", 4, "missingOnlineUrlPrefix"},
        {"5 is invalidOnlineUrlPrefix", 5, "invalidOnlineUrlPrefix"},
        {"6 is missingConfig", 6, "missingConfig"},
        {"7 is invalidConfig", 7, "invalidConfig"}}),
    SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Table, DisplayResultCode,
    ::testing::ValuesIn(std::vector<Row>{
        {"0 is success", 0, "success"},
        {"1 is helpAppLaunchFailure", 1, "helpAppLaunchFailure"},
        {"2 is browserLaunchFailure", 2, "browserLaunchFailure"},
        {"3 is invalidArgument", 3, "invalidArgument"},
        {"4 is missingConfig", 4, "missingConfig"},
        {"5 is invalidConfig", 5, "invalidConfig"},
        {"6 is invalidInitialization", 6, "invalidInitialization"},
        {"7 is pageidDoesNotExist", 7, "pageidDoesNotExist"},
        {"8 is invalidOnlineUrlPrefix", 8, "invalidOnlineUrlPrefix"},
        {"9 is notAllowedOnline", 9, "notAllowedOnline"},
        {"10 is notOnline", 10, "notOnline"},
        {"11 is unexpectedResult", 11, "unexpectedResult"}}),
    SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
