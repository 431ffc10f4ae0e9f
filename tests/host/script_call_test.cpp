#include <velmohelp/script_host.h>

#include "tests/host/lua_state.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

/// Returns its second argument as the plug-in would see it.
int Second(lua_State* state) {
  LxLua_checkString(state, 1);
  lua_pushstring(state, LxLua_checkString(state, 2));
  return 1;
}

int Other(lua_State* state) {
  lua_pushliteral(state, "other");
  return 1;
}

const LxRegistration kSecond[] = {{"second", Second}, {nullptr, nullptr}};
const LxRegistration kOther[] = {{"other", Other}, {nullptr, nullptr}};
const LxRegistration kReplaced[] = {{"second", Other}, {nullptr, nullptr}};
const LxRegistration kNone[] = {{nullptr, nullptr}};

int ExportIntoNumber(lua_State* state) {
  LxNamespace_exportFunctions(state, "taken", kSecond);
  return 0;
}

struct Row {
  std::string sentence;
  std::string script;
  std::string expected;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.script; }

class CheckString : public ::testing::TestWithParam<Row> {
 protected:
  CheckString() { LxNamespace_exportFunctions(state_, "Space", kSecond); }
  LuaState state_;
};

TEST_P(CheckString, Returns) {
  EXPECT_EQ(state_.Run(GetParam().script), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Accepts, CheckString,
    ::testing::ValuesIn(std::vector<Row>{
        {"a string", "return Space.second('', 'page')", "page"},
        {"an empty string", "return Space.second('x', '') == ''", "true"},
        {"bytes that are not text",
         "return Space.second('', '\\xff\\x80') == '\\xff\\x80'", "true"},
        {"an integer as its numeral", "return Space.second('', 12) == '12'",
         "true"},
        {"a fraction as its numeral", "return Space.second(0, 1.5) == '1.5'",
         "true"},
        {"more arguments than it takes", "return Space.second('', 'b', {})",
         "b"}}),
    SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Refuses, CheckString,
    ::testing::ValuesIn(std::vector<Row>{
        {"nothing", "Space.second('x')",
         "error: t:1: bad argument #2 to 'second' (string expected, got no "
         "value)"},
        {"the first wrong argument first", "Space.second()",
         "error: t:1: bad argument #1 to 'second' (string expected, got no "
         "value)"},
        {"nil", "Space.second('x', nil)",
         "error: t:1: bad argument #2 to 'second' (string expected, got nil)"},
        {"a boolean", "Space.second(true)",
         "error: t:1: bad argument #1 to 'second' (string expected, got "
         "boolean)"},
        {"a table that could be printed",
         "Space.second(setmetatable({}, {__tostring = function() return 'x' "
         "end}))",
         "error: t:1: bad argument #1 to 'second' (string expected, got "
         "table)"},
        {"a function", "Space.second('x', print)",
         "error: t:1: bad argument #2 to 'second' (string expected, got "
         "function)"},
        {"a zero byte that would cut the text", "Space.second('x', 'a\\0b')",
         "error: t:1: bad argument #2 to 'second' (string contains zeros)"},
        {"a zero byte at the end", "Space.second('a\\0', 'x')",
         "error: t:1: bad argument #1 to 'second' (string contains zeros)"},
        {"the namespace of a call with a colon", "Space:second('x')",
         "error: t:1: calling 'second' on bad self (string expected, got "
         "table)"},
        {"a wrong argument of a call without a name",
         "local ok, why = pcall(Space.second) return why",
         "bad argument #1 to 'Space.second' (string expected, got no value)"}}),
    SentenceOf());

class ExportFunctions : public ::testing::Test {
 protected:
  LuaState state_;
};

TEST_F(ExportFunctions, MakesTheGlobalTable) {
  LxNamespace_exportFunctions(state_, "Space", kSecond);
  EXPECT_EQ(state_.Run("return type(Space), Space.second('a', 'b')"),
            "table b");
}

TEST_F(ExportFunctions, LeavesTheStackAsItWas) {
  LxNamespace_exportFunctions(state_, "Space", kSecond);
  EXPECT_EQ(lua_gettop(state_), 0);
}

TEST_F(ExportFunctions, ExtendsAnExistingTable) {
  state_.Run("Space = {mine = 1}");
  LxNamespace_exportFunctions(state_, "Space", kSecond);
  LxNamespace_exportFunctions(state_, "Space", kOther);
  EXPECT_EQ(
      state_.Run("return Space.mine, Space.second('', 'b'), Space.other()"),
      "1 b other");
}

TEST_F(ExportFunctions, RegistersAgainWhenCalledAgain) {
  LxNamespace_exportFunctions(state_, "Space", kSecond);
  state_.Run("kept, Space.second = Space, nil");
  LxNamespace_exportFunctions(state_, "Space", kSecond);
  EXPECT_EQ(state_.Run("return Space == kept, Space.second('', 'b')"),
            "true b");
}

TEST_F(ExportFunctions, ReplacesAFunctionOfTheSameName) {
  LxNamespace_exportFunctions(state_, "Space", kSecond);
  LxNamespace_exportFunctions(state_, "Space", kReplaced);
  EXPECT_EQ(state_.Run("return Space.second()"), "other");
}

TEST_F(ExportFunctions, OfAnEmptyTableMakesAnEmptyNamespace) {
  LxNamespace_exportFunctions(state_, "Space", kNone);
  EXPECT_EQ(state_.Run("return type(Space), next(Space)"), "table nil");
}

TEST_F(ExportFunctions, WorksWhereUndeclaredGlobalsAreForbidden) {
  state_.Run(
      "local function guard() error('undeclared') end "
      "setmetatable(_G, {__index = guard, __newindex = guard})");
  LxNamespace_exportFunctions(state_, "Space", kSecond);
  EXPECT_EQ(state_.Run("return Space.second('', 'b')"), "b");
}

TEST_F(ExportFunctions, RefusesANameThatIsTaken) {
  lua_register(state_, "export", ExportIntoNumber);
  EXPECT_EQ(state_.Run("taken = 1 export()"),
            "error: t:1: the global 'taken' is not a table");
}

TEST_F(ExportFunctions, KeepsStatesApart) {
  LuaState other;
  LxNamespace_exportFunctions(state_, "Space", kSecond);
  EXPECT_EQ(other.Run("return Space"), "nil");
}

}  // namespace
}  // namespace velmohelp::testing
