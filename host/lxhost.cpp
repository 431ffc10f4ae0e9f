// lxhost [SCRIPT [ARGUMENT...]]: a host program for the help plug-in, which
// runs a Lua script. Without a script it reads one from standard input, or
// prompts for statements when that is a terminal; the script "-" is standard
// input too. Exit status 1 on an error.
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <span>

#include "host/plugin.h"
#include "host/prompt.h"

namespace velmohelp {
namespace {

/// What the script state's main function is handed.
struct Job {
  LoadEntryPoints plugin;
  std::span<char*> arguments;
};

/// Message handler: the error's text with a traceback.
int Explain(lua_State* state) {
  const char* message = luaL_tolstring(state, 1, nullptr);
  luaL_traceback(state, state, message, 1);
  return 1;
}

/// The global "arg": the script at 0, its arguments from 1, the program before.
void SetArgTable(lua_State* state, std::span<char*> arguments) {
  const lua_Integer script = arguments.size() > 1 ? 1 : 0;
  lua_Integer index = -script;
  lua_newtable(state);
  for (const char* argument : arguments) {
    lua_pushstring(state, argument);
    lua_rawseti(state, -2, index++);
  }
  lua_setglobal(state, "arg");
}

void SetModule(lua_State* state, const LoadEntryPoints& plugin) {
  luaL_getsubtable(state, LUA_REGISTRYINDEX, LUA_LOADED_TABLE);
  PushHelpModule(state, plugin);
  lua_setfield(state, -2, "velmohelp");
  lua_pop(state, 1);
}

/// The name "-" is standard input, so that a script from there can have
/// arguments; luaL_loadfile calls it null.
int PushChunk(lua_State* state, std::span<char*> arguments) {
  const char* script = arguments.size() > 1 ? arguments[1] : "-";
  if (std::strcmp(script, "-") != 0) return luaL_loadfile(state, script);
  if (arguments.size() > 1 || isatty(STDIN_FILENO) == 0) {
    return luaL_loadfile(state, nullptr);
  }
  return luaL_loadbuffer(state, kPrompt, sizeof kPrompt - 1, "=prompt");
}

/// The script gets its arguments as "..." too.
int PushScriptArguments(lua_State* state, std::span<char*> arguments) {
  const auto own =
      arguments.subspan(arguments.size() > 2 ? 2 : arguments.size());
  luaL_checkstack(state, static_cast<int>(own.size()), "too many arguments");
  for (const char* argument : own) lua_pushstring(state, argument);
  return static_cast<int>(own.size());
}

/// Runs protected: every error of the script, of the preparation and of the
/// memory ends here, with no C++ object alive.
int RunJob(lua_State* state) {
  const Job& job = *static_cast<const Job*>(lua_touserdata(state, 1));
  luaL_openlibs(state);
  SetModule(state, job.plugin);
  SetArgTable(state, job.arguments);
  if (PushChunk(state, job.arguments) != LUA_OK) return lua_error(state);
  lua_call(state, PushScriptArguments(state, job.arguments), 0);
  return 0;
}

bool Report(lua_State* state, int status) {
  if (status == LUA_OK) return true;
  const char* message = lua_tostring(state, -1);
  std::fprintf(stderr, "lxhost: %s\n",
               message != nullptr ? message : "an error without a message");
  return false;
}

bool Run(lua_State* state, Job job) {
  lua_pushcfunction(state, Explain);
  lua_pushcfunction(state, RunJob);
  lua_pushlightuserdata(state, &job);
  const bool done = Report(state, lua_pcall(state, 1, 0, 1));
  lua_close(state);
  return done;
}

bool RunHost(std::span<char*> arguments) {
  const auto plugin = LoadPlugin();
  if (!plugin) return false;
  lua_State* state = luaL_newstate();
  if (state == nullptr) {
    std::fputs("lxhost: not enough memory\n", stderr);
    return false;
  }
  return Run(state, {*plugin, arguments});
}

}  // namespace
}  // namespace velmohelp

int main(int argc, char** argv) {
  const std::span arguments(argv, static_cast<std::size_t>(argc));
  return velmohelp::RunHost(arguments) ? EXIT_SUCCESS : EXIT_FAILURE;
}
