// lxhost: a host program for the help plug-in, which runs a Lua script. See
// lxhost.1.
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <span>

#include "host/line_editor.h"
#include "host/options.h"
#include "host/plugin.h"
#include "host/prompt.h"

namespace velmohelp {
namespace {

constexpr int kUsageError = 2;

/// What the script state's main function is given.
struct Job {
  const Plugin& plugin;
  std::span<char*> arguments;
  const Options& options;
};

/// Message handler: the error's text with a traceback.
int Explain(lua_State* state) {
  const char* message = luaL_tolstring(state, 1, nullptr);
  luaL_traceback(state, state, message, 1);
  return 1;
}

/// The global "arg": the script at 0, its arguments from 1, what comes before
/// it on the command line below 0. Without a script the program is at 0.
void SetArgTable(lua_State* state, const Job& job) {
  const std::size_t before =
      job.options.script.empty()
          ? 0
          : job.arguments.size() - job.options.script.size();
  lua_Integer index = -static_cast<lua_Integer>(before);
  lua_newtable(state);
  for (const char* argument : job.arguments) {
    lua_pushstring(state, argument);
    lua_rawseti(state, -2, index++);
  }
  lua_setglobal(state, "arg");
}

void SetModule(lua_State* state, const Plugin& plugin) {
  luaL_getsubtable(state, LUA_REGISTRYINDEX, LUA_LOADED_TABLE);
  PushHelpModule(state, plugin);
  lua_setfield(state, -2, "velmohelp");
  lua_pop(state, 1);
}

/// Runs the chunk on top of the stack, or raises the error that is there
/// instead. status: what loading the chunk returned.
void RunChunk(lua_State* state, int status) {
  if (status != LUA_OK) lua_error(state);
  lua_call(state, 0, 0);
}

void RunStatement(lua_State* state, const char* text) {
  RunChunk(state,
           luaL_loadbuffer(state, text, std::strlen(text), "=(command line)"));
}

/// The script's arguments are its "..." too. "-" is standard input, which
/// luaL_loadfile calls null.
void RunScript(lua_State* state, std::span<char*> script) {
  const char* name = std::strcmp(script[0], "-") == 0 ? nullptr : script[0];
  if (luaL_loadfile(state, name) != LUA_OK) lua_error(state);
  const auto own = script.subspan(1);
  luaL_checkstack(state, static_cast<int>(own.size()), "too many arguments");
  for (const char* argument : own) lua_pushstring(state, argument);
  lua_call(state, static_cast<int>(own.size()), 0);
}

void RunPrompt(lua_State* state) {
  const int status =
      luaL_loadbuffer(state, kPrompt, sizeof kPrompt - 1, "=prompt");
  if (status != LUA_OK) lua_error(state);
  PushLineReader(state);
  lua_call(state, 1, 0);
}

void RunStandardInput(lua_State* state) {
  if (isatty(STDIN_FILENO) != 0) return RunPrompt(state);
  RunChunk(state, luaL_loadfile(state, nullptr));
}

void RunAll(lua_State* state, const Options& options) {
  for (const char* text : options.statements) RunStatement(state, text);
  if (!options.script.empty()) RunScript(state, options.script);
  if (options.prompts) return RunPrompt(state);
  if (options.script.empty() && options.statements.empty()) {
    RunStandardInput(state);
  }
}

/// Runs protected: every error of the script, of the preparation and of the
/// memory ends here, with no C++ object alive.
int RunJob(lua_State* state) {
  const Job& job = *static_cast<const Job*>(lua_touserdata(state, 1));
  luaL_openlibs(state);
  SetModule(state, job.plugin);
  SetArgTable(state, job);
  RunAll(state, job.options);
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

int RunHost(std::span<char*> arguments, const Options& options) {
  const auto plugin = LoadPlugin();
  if (!plugin) return EXIT_FAILURE;
  lua_State* state = luaL_newstate();
  if (state == nullptr) {
    std::fputs("lxhost: not enough memory\n", stderr);
    return EXIT_FAILURE;
  }
  const bool done = Run(state, {*plugin, arguments, options});
  return done ? EXIT_SUCCESS : EXIT_FAILURE;
}

int Refuse(const char* argument) {
  std::fprintf(stderr, "lxhost: bad option '%s'; see lxhost --help\n",
               argument);
  return kUsageError;
}

int Main(std::span<char*> arguments) {
  const Options options = ParseOptions(arguments);
  switch (options.action) {
    case Options::Action::kPrintUsage:
      std::fputs(kUsage, stdout);
      return EXIT_SUCCESS;
    case Options::Action::kPrintVersion:
      std::puts("lxhost " VELMO_VERSION ", " LUA_RELEASE);
      return EXIT_SUCCESS;
    case Options::Action::kRefuse:
      return Refuse(options.refused);
    case Options::Action::kRun:
      return RunHost(arguments, options);
  }
  return EXIT_FAILURE;
}

}  // namespace
}  // namespace velmohelp

int main(int argc, char** argv) {
  return velmohelp::Main({argv, static_cast<std::size_t>(argc)});
}
