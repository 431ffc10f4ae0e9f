#include "host/named_integer.h"

#include "tests/host/lua_state.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

const LxNamedValue kColours[] = {{"red", 1},          {"green", 2},
                                 {"grass", 2},        {"debt", -5},
                                 {"last", INT64_MAX}, {nullptr, 0}};
const LxNamedIntegerTable kColour = {"Colour", kColours};

const LxNamedValue kSizes[] = {{"small", 1}, {nullptr, 0}};
const LxNamedIntegerTable kSize = {"Size", kSizes};

int Colour(lua_State* state) {
  LxLua_pushNamedInteger(state, luaL_checkinteger(state, 1), &kColour);
  return 1;
}

int Size(lua_State* state) {
  LxLua_pushNamedInteger(state, luaL_checkinteger(state, 1), &kSize);
  return 1;
}

int Constants(lua_State* state) {
  PushConstants(state, kColour);
  return 1;
}

void OfferNamedIntegers(lua_State* state) {
  lua_register(state, "colour", Colour);
  lua_register(state, "size", Size);
  lua_register(state, "constants", Constants);
}

struct Row {
  std::string sentence;
  std::string script;
  std::string expected;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.script; }

class NamedInteger : public ::testing::TestWithParam<Row> {
 protected:
  NamedInteger() { OfferNamedIntegers(state_); }
  LuaState state_;
};

class NamedIntegerRefuses : public NamedInteger {};

TEST_P(NamedInteger, Gives) {
  EXPECT_EQ(state_.Run(GetParam().script), GetParam().expected);
}

TEST_P(NamedIntegerRefuses, WithItsLine) {
  EXPECT_EQ(state_.Run(GetParam().script),
            "error: t:1: " + GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Fields, NamedInteger,
    ::testing::ValuesIn(std::vector<Row>{
        {"its value is a plain integer",
         "return colour(2).value == 2, math.type(colour(2).value)",
         "true integer"},
        {"its name is a string", "return colour(1).name == 'red'", "true"},
        {"of two names for a value it has the first", "return colour(2).name",
         "green"},
        {"a value in no row has no name", "return colour(7).name", "nil"},
        {"a value in no row keeps its value and its type",
         "return colour(7).value, colour(7).type", "7 Colour"},
        {"zero does not get the name of the row that ends the list",
         "return colour(0).name, colour(0)", "nil 0"},
        {"its type is the table's name", "return colour(1).type", "Colour"},
        {"the greatest value is kept",
         "return colour(math.maxinteger).value == math.maxinteger, "
         "colour(math.maxinteger).name",
         "true last"},
        {"its metatable is protected", "return getmetatable(colour(1))",
         "named integer"}}),
    SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Text, NamedInteger,
    ::testing::ValuesIn(std::vector<Row>{
        {"tostring gives its name", "return tostring(colour(1)) == 'red'",
         "true"},
        {"string format gives its name",
         "return string.format('<%s>', colour(1))", "<red>"},
        {"a value in no row is printed as its number",
         "return tostring(colour(-7)) == '-7'", "true"},
        {"it is joined with a string on its right", "return colour(1) .. '!'",
         "red!"},
        {"it is joined with a string on its left", "return 'is ' .. colour(1)",
         "is red"},
        {"it is joined with a number", "return 1 .. colour(1) .. 2", "1red2"},
        {"two of them are joined", "return colour(1) .. colour(7)", "red7"},
        {"a table with a concatenation of its own does the joining",
         "return colour(1) .. setmetatable({}, {__concat = function(a, b) "
         "return type(a) .. type(b) end})",
         "stringtable"}}),
    SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Comparison, NamedInteger,
    ::testing::ValuesIn(std::vector<Row>{
        {"it is equal to one of the same value",
         "return colour(2) == colour(2)", "true"},
        {"it is not equal to one of another value",
         "return colour(2) == colour(1), colour(2) ~= colour(1)", "false true"},
        {"the value alone counts between two tables",
         "return colour(1) == size(1)", "true"},
        {"no plain number is equal to it",
         "return colour(1) == 1, 1 == colour(1)", "false false"},
        {"it is not equal to its name", "return colour(1) == 'red'", "false"},
        {"it is not equal to another userdata",
         "return colour(1) == io.stdout, io.stdout == colour(1)",
         "false false"},
        {"it is less than a number", "return colour(1) < 2, colour(1) < 1",
         "true false"},
        {"a number is less than it", "return 0 < colour(1), 1 < colour(1)",
         "true false"},
        {"it is at most a number", "return colour(1) <= 1, colour(1) <= 0",
         "true false"},
        {"a number is at most it", "return 1 <= colour(1), 2 <= colour(1)",
         "true false"},
        {"it is greater than a number",
         "return colour(2) > 1, colour(2) >= 2, colour(2) > 2",
         "true true false"},
        {"it compares with a fraction",
         "return colour(1) < 1.5, 1.5 <= colour(1)", "true false"},
        {"NaN is neither less nor greater",
         "return colour(1) < 0/0, colour(1) >= 0/0", "false false"},
        {"two of them compare",
         "return colour(1) < colour(2), colour(2) <= size(1)", "true false"},
        {"a negative one compares", "return colour(-5) < 0", "true"},
        {"a table with a comparison of its own does the comparing",
         "return colour(1) < setmetatable({}, {__lt = function(a) return a "
         "== 1 end})",
         "true"}}),
    SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Arithmetic, NamedInteger,
    ::testing::ValuesIn(std::vector<Row>{
        {"it adds on both sides", "return colour(2) + 1, 1 + colour(2)", "3 3"},
        {"it subtracts in order", "return colour(2) - 5, 5 - colour(2)",
         "-3 3"},
        {"it multiplies", "return colour(2) * 4, 4 * colour(2)", "8 8"},
        {"it divides in order", "return colour(2) / 4, 4 / colour(2)",
         "0.5 2.0"},
        {"it divides to an integer in order",
         "return colour(2) // 4, 5 // colour(2)", "0 2"},
        {"it has a remainder in order", "return colour(2) % 4, 5 % colour(2)",
         "2 1"},
        {"it is raised in order", "return colour(2) ^ 3, 3 ^ colour(2)",
         "8.0 9.0"},
        {"it is negated", "return -colour(2), -colour(-5)", "-2 5"},
        {"its bits are combined",
         "return colour(2) & 3, 3 & colour(2), colour(2) | 1, 1 | colour(2), "
         "colour(2) ~ 3, 3 ~ colour(2)",
         "2 2 3 3 1 1"},
        {"its bits are shifted in order",
         "return colour(2) << 1, 1 << colour(2), colour(2) >> 1, 8 >> "
         "colour(2)",
         "4 4 1 2"},
        {"its bits are inverted", "return ~colour(2)", "-3"},
        {"two of them add", "return colour(2) + size(1)", "3"},
        {"a numeral counts as a number",
         "return colour(2) + '10', '10' - colour(2)", "12 8"},
        {"the result is a plain number",
         "return colour(2) + 0 == 2, math.type(colour(2) + 0)", "true integer"},
        {"a table with arithmetic of its own does the arithmetic",
         "return colour(2) * setmetatable({}, {__mul = function(a) return "
         "a == 2 end})",
         "true"}}),
    SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Constants, NamedInteger,
    ::testing::ValuesIn(std::vector<Row>{
        {"a result compares with a constant",
         "return colour(1) == constants().red, colour(2) == constants().red",
         "true false"},
        {"every name is a constant",
         "local n = 0 for k in pairs(constants()) do n = n + 1 end "
         "return n, constants().grass.value, constants().debt.value",
         "5 2 -5"}}),
    SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Misuse, NamedIntegerRefuses,
    ::testing::ValuesIn(std::vector<Row>{
        {"an unknown field", "return colour(1).nmae",
         "a named integer has no field 'nmae'"},
        {"a field that is not a string", "return colour(1)[nil]",
         "a named integer has no field 'nil'"},
        {"a constant that does not exist", "return constants().rde",
         "no \"rde\" in \"Colour\""},
        {"a new value", "local r = colour(1) r.value = 2",
         "attempt to index a named integer value (local 'r')"},
        {"its length", "local r = colour(1) return #r",
         "attempt to get length of a named integer value (local 'r')"},
        {"a call", "local r = colour(1) return r()",
         "attempt to call a named integer value (local 'r')"},
        {"arithmetic with nothing", "return colour(1) + nil",
         "attempt to perform arithmetic on a nil value"},
        {"arithmetic on nothing", "return nil - colour(1)",
         "attempt to perform arithmetic on a nil value"},
        {"bits of a table", "return colour(1) & {}",
         "attempt to perform arithmetic on a table value"},
        {"comparison with a string", "return colour(1) < '2'",
         "attempt to compare a named integer with a string value"},
        {"comparison of nothing", "return nil <= colour(1)",
         "attempt to compare a named integer with a nil value"},
        {"joining with nothing", "return colour(1) .. nil",
         "attempt to concatenate a nil value"},
        {"joining a table", "return {} .. colour(1)",
         "attempt to concatenate a table value"},
        {"another metatable", "setmetatable(colour(1), {})",
         "bad argument #1 to 'setmetatable' (table expected, got named "
         "integer)"},
        {"itself where a number is required", "return math.abs(colour(1))",
         "bad argument #1 to 'abs' (number expected, got named integer)"},
        {"another userdata passed to its operators",
         "local m = debug.getmetatable(colour(1)) m.__index({}, 'value')",
         "bad argument #1 to '__index' (velmohelp.NamedInteger expected, got "
         "table)"}}),
    SentenceOf());

TEST(NamedIntegerStates, AreIndependent) {
  LuaState spoilt;
  LuaState whole;
  OfferNamedIntegers(spoilt);
  OfferNamedIntegers(whole);
  spoilt.Run("debug.getmetatable(colour(1)).__tostring = nil");
  EXPECT_NE(spoilt.Run("return colour(1)"), "red");
  EXPECT_EQ(whole.Run("return colour(1)"), "red");
}

TEST(NamedIntegerStates, ShareOperatorsBetweenCoroutines) {
  LuaState state;
  OfferNamedIntegers(state);
  EXPECT_EQ(state.Run("local r = coroutine.wrap(function() return colour(2) "
                      "end)() return r == colour(2), r + 1"),
            "true 3");
}

}  // namespace
}  // namespace velmohelp::testing
