// A Lua state for a test, with the standard libraries.
#ifndef TESTS_HOST_LUA_STATE_H_
#define TESTS_HOST_LUA_STATE_H_

#include <lua.hpp>
#include <string>

namespace velmohelp::testing {

class LuaState {
 public:
  LuaState() : state_(luaL_newstate()) { luaL_openlibs(state_); }
  ~LuaState() { lua_close(state_); }
  LuaState(const LuaState&) = delete;
  LuaState& operator=(const LuaState&) = delete;

  operator lua_State*() { return state_; }

  /// Returns the script's results as tostring shows them, separated by spaces,
  /// or "error: " and the message when it fails. The chunk is called "t".
  std::string Run(const std::string& script) {
    lua_settop(state_, 0);
    if (luaL_loadbuffer(state_, script.data(), script.size(), "=t") != LUA_OK ||
        lua_pcall(state_, 0, LUA_MULTRET, 0) != LUA_OK) {
      return "error: " + Text(-1);
    }
    std::string all;
    for (int i = 1, count = lua_gettop(state_); i <= count; ++i) {
      all += (i > 1 ? " " : "") + Text(i);
    }
    return all;
  }

 private:
  std::string Text(int index) {
    std::string text = luaL_tolstring(state_, index, nullptr);
    lua_pop(state_, 1);
    return text;
  }

  lua_State* state_;
};

}  // namespace velmohelp::testing

#endif  // TESTS_HOST_LUA_STATE_H_
