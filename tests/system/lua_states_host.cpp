// A host with two script states: loads the client that its argument names into
// both, and prints the result in each.
#include <dlfcn.h>
#include <velmohelp/script_host.h>

#include <cstdio>
#include <lua.hpp>
#include <memory>

namespace {

struct CloseState {
  void operator()(lua_State* state) const { lua_close(state); }
};
using State = std::unique_ptr<lua_State, CloseState>;

State NewState(void* library) {
  State state(luaL_newstate());
  luaL_openlibs(state.get());
  for (const char* name :
       {"private_load_LxHelp", "private_load_LxHelpWorker"}) {
    reinterpret_cast<int (*)(lua_State*)>(dlsym(library, name))(state.get());
  }
  return state;
}

void Run(const State& state, const char* script) {
  if (luaL_dostring(state.get(), script) != LUA_OK) {
    std::puts(lua_tostring(state.get(), -1));
  }
}

}  // namespace

int main(int, char* argv[]) {
  void* library = dlopen(argv[1], RTLD_NOW);
  if (library == nullptr) return 1;
  State first = NewState(library);
  const State second = NewState(library);
  Run(first, "print(LxHelp.displayClientPage(''))");
  Run(second, "print(LxHelpWorker.initializeClient('Foo', 'en_US'))");
  Run(first, "print(LxHelp.displayClientPage(''))");
  first.reset();
  Run(second, "print(LxHelp.displayClientPage(''))");
}
