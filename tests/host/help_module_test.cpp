// The functions of the module, over doubles of the plug-in's.
#include "host/help_module.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/host/lua_state.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

std::uint32_t result = 0;
std::string call;

/// Registers what the module expects to find.
int Load(lua_State* state) {
  for (const char* name : {"LxHelp", "LxHelpWorker"}) {
    lua_newtable(state);
    lua_setglobal(state, name);
  }
  return 0;
}

std::uint32_t OpenUrl(const char* url) {
  call = std::string("open ") + url;
  return result;
}

std::uint32_t Search(const char* product, const char* locale,
                     const char* text) {
  call = std::string("search ") + product + "|" + locale + "|" + text;
  return result;
}

std::uint32_t Status() {
  call = "status";
  return result;
}

class ModuleState : public LuaState {
 public:
  ModuleState() {
    PushHelpModule(*this, {Load, Load, OpenUrl, Search, Status});
    lua_setglobal(*this, "help");
  }
};

TEST(HelpModule, PassesTheArgumentsOn) {
  ModuleState state;
  state.Run("help.openURL('https://host/a b')");
  EXPECT_EQ(call, "open https://host/a b");
  state.Run("help.search('product', 'en_US', 'line width')");
  EXPECT_EQ(call, "search product|en_US|line width");
  state.Run("help.status('not looked at')");
  EXPECT_EQ(call, "status");
}

TEST(HelpModule, HoldsExactlyWhatTheDocumentsList) {
  ModuleState state;
  EXPECT_EQ(state.Run("local all = {} "
                      "for name in pairs(help) do all[#all + 1] = name end "
                      "table.sort(all) return table.unpack(all)"),
            "DisplayPageReturnCode InitReturnCode LxHelp LxHelpWorker "
            "OnlineStatusReturnCode OpenUrlReturnCode SearchReturnCode openURL "
            "search status");
}

struct Row {
  std::string sentence;
  std::string script;
  std::uint32_t result = 0;
  std::string seen;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.sentence; }

class ModuleResult : public ::testing::TestWithParam<Row> {};

TEST_P(ModuleResult, HasItsName) {
  ModuleState state;
  result = GetParam().result;
  EXPECT_EQ(state.Run("local r = " + GetParam().script +
                      " return r.value, r, r.type"),
            std::to_string(result) + " " + GetParam().seen);
}

constexpr char kOpen[] = "help.openURL('x')";
constexpr char kSearch[] = "help.search('p', 'l', 't')";
constexpr char kStatus[] = "help.status()";

INSTANTIATE_TEST_SUITE_P(
    OpenUrl, ModuleResult,
    ::testing::Values(
        Row{"an opened URL", kOpen, 0, "success Open URL Return Code"},
        Row{"a browser that did not start", kOpen, 1,
            "browserLaunchFailure Open URL Return Code"},
        Row{"a viewer that did not start", kOpen, 2,
            "helpAppLaunchFailure Open URL Return Code"},
        Row{"a text that is not a URL", kOpen, 3,
            "invalidArgument Open URL Return Code"},
        Row{"an unreadable configuration at a URL", kOpen, 4,
            "missingConfig Open URL Return Code"},
        Row{"an invalid configuration at a URL", kOpen, 5,
            "invalidConfig Open URL Return Code"},
        Row{"a URL before the initialisation", kOpen, 6,
            "invalidInitialization Open URL Return Code"},
        Row{"anything else at a URL", kOpen, 7,
            "unexpectedResult Open URL Return Code"},
        Row{"a number that has no name", kOpen, 8, "8 Open URL Return Code"}),
    SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Search, ModuleResult,
    ::testing::Values(Row{"a search that was started", kSearch, 0,
                          "success Search Return Code"},
                      Row{"a search that was not", kSearch, 1,
                          "launchFailure Search Return Code"},
                      Row{"an empty argument of a search", kSearch, 3,
                          "invalidArgument Search Return Code"},
                      Row{"an unreadable configuration at a search", kSearch, 4,
                          "missingConfig Search Return Code"},
                      Row{"an invalid configuration at a search", kSearch, 5,
                          "invalidConfig Search Return Code"},
                      Row{"no search page offline", kSearch, 6,
                          "noLocalPage Search Return Code"},
                      Row{"no search page online", kSearch, 7,
                          "noOnlinePage Search Return Code"}),
    SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Status, ModuleResult,
    ::testing::Values(
        Row{"online", kStatus, 0, "online Online Status Return Code"},
        Row{"offline", kStatus, 1, "offline Online Status Return Code"},
        Row{"not initialised", kStatus, 2,
            "notInitialized Online Status Return Code"}),
    SentenceOf());

class ModuleArgument : public ::testing::TestWithParam<Row> {};

TEST_P(ModuleArgument, IsAScriptError) {
  ModuleState state;
  call.clear();
  EXPECT_THAT(state.Run("local openURL, search = help.openURL, help.search " +
                        GetParam().script),
              ::testing::HasSubstr(GetParam().seen));
  EXPECT_EQ(call, "");
}

INSTANTIATE_TEST_SUITE_P(
    Refused, ModuleArgument,
    ::testing::Values(
        Row{.sentence = "a table for a URL",
            .script = "openURL({})",
            .seen =
                "bad argument #1 to 'openURL' (string expected, got table)"},
        Row{.sentence = "no URL",
            .script = "openURL()",
            .seen = "bad argument #1 to 'openURL' (string expected, got no"},
        Row{.sentence = "a URL with a zero byte",
            .script = "openURL('a\\0b')",
            .seen = "bad argument #1 to 'openURL' (string contains zeros)"},
        Row{.sentence = "no locale",
            .script = "search('p', nil, 't')",
            .seen = "bad argument #2 to 'search' (string expected, got nil)"},
        Row{.sentence = "no text",
            .script = "search('p', 'l')",
            .seen = "bad argument #3 to 'search' (string expected, got no"},
        Row{.sentence = "a name that no result has",
            .script = "return help.OnlineStatusReturnCode.onlime",
            .seen = "no \"onlime\" in \"Online Status Return Code\""}),
    SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
