// Scripts over the whole client, on a scripted machine.
#include <gtest/gtest.h>
#include <velmohelp/script_host.h>

#include "platform/scripted/scripted_machine.h"
#include "tests/host/lua_state.h"
#include "tests/support/temporary_directory.h"
#include "tests/support/this_machine.h"

namespace velmohelp::testing {
namespace {

constexpr char kConfiguration[] =
    R"(<help id="en_US_Product" path="content" appId="NULL" pubId=""
        baseUrl="http://localhost/"/>)";

/// A host whose resources contain one product's help configuration.
class ScriptOverClient : public ::testing::Test {
 protected:
  ScriptOverClient() {
    resources_.Write("help/en_US/Product.helpcfg", kConfiguration);
    machine_.SetResourcesDirectory(resources_.path());
    private_load_LxHelp(script_);
    private_load_LxHelpWorker(script_);
  }

  /// A call's result as type, value and name.
  std::string Call(const std::string& call) {
    return script_.Run("local r = " + call + " return r.type, r.value, r.name");
  }

  TemporaryDirectory resources_;
  ScriptedMachine machine_;
  const OnMachine on_machine_{machine_};
  LuaState script_;
};

TEST_F(ScriptOverClient, AnEmptyProductIsAnInvalidArgument) {
  EXPECT_EQ(Call("LxHelpWorker.initializeClient('', 'x')"),
            "Init Return Code 1 invalidArgument");
}

TEST_F(ScriptOverClient, EveryDisplayBeforeAnInitialisationIsRefused) {
  EXPECT_EQ(Call("LxHelp.displayClientPage('page')"),
            "Display Page Return Code 6 invalidInitialization");
  EXPECT_EQ(Call("LxHelp.displayClientPage('')"),
            "Display Page Return Code 6 invalidInitialization");
}

TEST_F(ScriptOverClient, EveryDisplayAfterAFailedInitialisationIsRefused) {
  EXPECT_EQ(Call("LxHelpWorker.initializeClient('Other', 'en_US')"),
            "Init Return Code 6 missingConfig");
  EXPECT_EQ(Call("LxHelp.displayClientPage('')"),
            "Display Page Return Code 6 invalidInitialization");
}

TEST_F(ScriptOverClient, AnEmptyPageIsAnInvalidArgumentOnceInitialised) {
  EXPECT_EQ(Call("LxHelpWorker.initializeClient('Product', 'en_US')"),
            "Init Return Code 0 success");
  EXPECT_EQ(Call("LxHelp.displayClientPage('')"),
            "Display Page Return Code 3 invalidArgument");
}

TEST_F(ScriptOverClient, AProductKeepsItsPathSeparators) {
  resources_.Write(
      "help/en_US/a/b.helpcfg",
      R"(<help id="en_US_a/b" path="content" baseUrl="http://x/"/>)");
  EXPECT_EQ(Call("LxHelpWorker.initializeClient('a/b', 'en_US')"),
            "Init Return Code 0 success");
}

}  // namespace
}  // namespace velmohelp::testing
