// Out of memory at each allocation in turn: a script error every time, and the
// state works as before once there is memory again.
#include <gtest/gtest.h>

#include <cstdlib>

#include "host/help_module.h"
#include "host/named_integer.h"

namespace velmohelp::testing {
namespace {

/// Allocations left before every further one fails.
struct Budget {
  bool limited = false;
  int left = 0;
};

void* Allocate(void* data, void* block, std::size_t old_size,
               std::size_t new_size) {
  auto& budget = *static_cast<Budget*>(data);
  if (new_size == 0) {
    std::free(block);
    return nullptr;
  }
  const bool grows = block == nullptr || new_size > old_size;
  if (budget.limited && grows && budget.left-- <= 0) return nullptr;
  return std::realloc(block, new_size);
}

const LxNamedValue kColours[] = {{"red", 1}, {nullptr, 0}};
const LxNamedIntegerTable kColour = {"Colour", kColours};

int TakePage(lua_State* state) {
  LxLua_checkString(state, 1);
  LxLua_pushNamedInteger(state, 1, &kColour);
  return 1;
}

const LxRegistration kFunctions[] = {{"take", TakePage}, {nullptr, nullptr}};

int LoadHelp(lua_State* state) {
  LxNamespace_exportFunctions(state, "LxHelp", kFunctions);
  return 0;
}

int LoadHelpWorker(lua_State* state) {
  LxNamespace_exportFunctions(state, "LxHelpWorker", kFunctions);
  return 0;
}

constexpr char kScript[] =
    "local r = LxHelp.take(12) "
    "assert(tostring(r) == 'red' and r .. r == 'redred' and r + 1 == 2 and "
    "r < 2 and r.name == 'red' and r.type == 'Colour' and r == "
    "LxHelpWorker.take('x'))";

std::uint32_t OpenUrl(const char*) { return 0; }

std::uint32_t Search(const char*, const char*, const char*) { return 0; }

std::uint32_t Status() { return 0; }

/// Everything that the host does for a script.
int UseEverything(lua_State* state) {
  PushHelpModule(state, {LoadHelp, LoadHelpWorker, OpenUrl, Search, Status});
  if (luaL_dostring(state, kScript) != LUA_OK) return lua_error(state);
  return 0;
}

int Use(lua_State* state) {
  lua_settop(state, 0);
  lua_pushcfunction(state, UseEverything);
  return lua_pcall(state, 0, 0, 0);
}

/// Whether the work was done with that many allocations.
bool WorksWithin(int allocations) {
  Budget budget;
  lua_State* state = lua_newstate(Allocate, &budget);
  luaL_openlibs(state);
  budget = {true, allocations};
  const int status = Use(state);
  budget.limited = false;
  EXPECT_TRUE(status == LUA_OK || status == LUA_ERRMEM) << allocations;
  EXPECT_EQ(Use(state), LUA_OK)
      << allocations << ": " << lua_tostring(state, -1);
  lua_close(state);
  return status == LUA_OK;
}

TEST(ScriptMemory, RunningOutIsAScriptErrorThatLeavesNothingHalfMade) {
  int allocations = 0;
  while (!WorksWithin(allocations)) ++allocations;
  EXPECT_GT(allocations, 50);
}

}  // namespace
}  // namespace velmohelp::testing
