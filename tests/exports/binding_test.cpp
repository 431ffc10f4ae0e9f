// The binding alone, between doubles of the host and of the client.
#include <gtest/gtest.h>
#include <velmohelp/script_host.h>

#include <stdexcept>

#include "tests/exports/client_doubles.h"

namespace velmohelp::testing {
namespace {

using Calls = std::vector<std::string>;

/// What the host got last.
LxState* seen_state = nullptr;
const LxRegistration* seen_functions = nullptr;
const LxNamedIntegerTable* seen_table = nullptr;

/// Arguments of the script's call, from 1; a call for another one fails.
Calls script_arguments;

LxState* SomeState() {
  static char state = 0;
  return reinterpret_cast<LxState*>(&state);
}

const LxRegistration* Load(int (*load)(LxState*)) {
  EXPECT_EQ(load(SomeState()), 0);
  EXPECT_EQ(seen_state, SomeState());
  return seen_functions;
}

int CallDisplay(const Calls& arguments) {
  const auto* function = Load(private_load_LxHelp);
  calls.clear();
  script_arguments = arguments;
  return function->function(SomeState());
}

int CallInitialize(const Calls& arguments) {
  const auto* function = Load(private_load_LxHelpWorker);
  calls.clear();
  script_arguments = arguments;
  return function->function(SomeState());
}

}  // namespace
}  // namespace velmohelp::testing

void LxNamespace_exportFunctions(LxState* state, const char* namespaceName,
                                 const LxRegistration* table) {
  using namespace velmohelp::testing;
  seen_state = state;
  seen_functions = table;
  calls.push_back("export " + std::string(namespaceName));
}

const char* LxLua_checkString(LxState* state, int index) {
  using namespace velmohelp::testing;
  seen_state = state;
  calls.push_back("check " + std::to_string(index));
  return script_arguments.at(static_cast<std::size_t>(index) - 1).c_str();
}

void LxLua_pushNamedInteger(LxState* state, int64_t value,
                            const LxNamedIntegerTable* table) {
  using namespace velmohelp::testing;
  seen_state = state;
  seen_table = table;
  calls.push_back("push " + std::to_string(value) + " " + table->typeName);
}

namespace velmohelp::testing {
namespace {

class Binding : public ::testing::Test {
 protected:
  Binding() { calls.clear(); }
};

TEST_F(Binding, LoadsOneFunctionInTheNamespaceLxHelp) {
  const auto* table = Load(private_load_LxHelp);
  EXPECT_EQ(calls, Calls{"export LxHelp"});
  EXPECT_STREQ(table[0].name, "displayClientPage");
  EXPECT_NE(table[0].function, nullptr);
  EXPECT_EQ(table[1].name, nullptr);
  EXPECT_EQ(table[1].function, nullptr);
}

TEST_F(Binding, LoadsOneFunctionInTheNamespaceLxHelpWorker) {
  const auto* table = Load(private_load_LxHelpWorker);
  EXPECT_EQ(calls, Calls{"export LxHelpWorker"});
  EXPECT_STREQ(table[0].name, "initializeClient");
  EXPECT_NE(table[0].function, nullptr);
  EXPECT_EQ(table[1].name, nullptr);
  EXPECT_EQ(table[1].function, nullptr);
}

TEST_F(Binding, LoadedTwiceRegistersTheSameTableAgain) {
  const auto* help = Load(private_load_LxHelp);
  EXPECT_EQ(Load(private_load_LxHelp), help);
  const auto* worker = Load(private_load_LxHelpWorker);
  EXPECT_EQ(Load(private_load_LxHelpWorker), worker);
  EXPECT_EQ(calls, (Calls{"export LxHelp", "export LxHelp",
                          "export LxHelpWorker", "export LxHelpWorker"}));
}

TEST_F(Binding, DisplaysThePageOfArgumentOne) {
  client_result = 7;
  EXPECT_EQ(CallDisplay({"page"}), 1);
  EXPECT_EQ(calls, (Calls{"check 1", "display page",
                          "push 7 Display Page Return Code"}));
  EXPECT_EQ(seen_state, SomeState());
}

TEST_F(Binding, InitialisesWithBothArgumentsAndCleansNothing) {
  client_result = 6;
  EXPECT_EQ(CallInitialize({"a/b", "en_US"}), 1);
  EXPECT_EQ(calls, (Calls{"check 1", "check 2", "initialize a/b en_US 0",
                          "push 6 Init Return Code"}));
  EXPECT_EQ(seen_state, SomeState());
}

TEST_F(Binding, PushesAnAnswerThatNoRowNames) {
  client_result = 0xffffffff;
  EXPECT_EQ(CallDisplay({"page"}), 1);
  EXPECT_EQ(calls.back(), "push 4294967295 Display Page Return Code");
}

TEST_F(Binding, LetsTheHostsErrorThroughBeforeAnythingIsDone) {
  EXPECT_THROW(CallDisplay({}), std::out_of_range);
  EXPECT_EQ(calls, Calls{"check 1"});
  EXPECT_THROW(CallInitialize({"product"}), std::out_of_range);
  EXPECT_EQ(calls, (Calls{"check 1", "check 2"}));
}

void ExpectListBehindHeader(const LxNamedIntegerTable* table,
                            std::size_t rows) {
  EXPECT_EQ(static_cast<const void*>(table->values),
            static_cast<const void*>(table + 1));
  for (std::size_t i = 0; i < rows; ++i) {
    EXPECT_NE(table->values[i].name, nullptr);
    EXPECT_EQ(table->values[i].value, static_cast<int64_t>(i));
  }
  EXPECT_EQ(table->values[rows].name, nullptr);
  EXPECT_EQ(table->values[rows].value, 0);
}

TEST_F(Binding, HasEightRowsDirectlyBehindTheInitHeader) {
  CallInitialize({"product", "en_US"});
  ExpectListBehindHeader(seen_table, 8);
}

TEST_F(Binding, HasTwelveRowsDirectlyBehindTheDisplayHeader) {
  CallDisplay({"page"});
  ExpectListBehindHeader(seen_table, 12);
}

}  // namespace
}  // namespace velmohelp::testing
