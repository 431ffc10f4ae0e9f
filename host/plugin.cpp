#include "host/plugin.h"

#include <dlfcn.h>

#include <cstdio>

namespace velmohelp {
namespace {

constexpr char kLibrary[] = "libvelmohelp.so.1";

/// False when the library has no such name.
template <typename Function>
bool Find(void* library, const char* name, Function*& function) {
  function = reinterpret_cast<Function*>(dlsym(library, name));
  return function != nullptr;
}

bool FindAll(void* library, Plugin& plugin) {
  return Find(library, "private_load_LxHelp", plugin.load_help) &&
         Find(library, "private_load_LxHelpWorker", plugin.load_help_worker) &&
         Find(library, "OpenURL", plugin.open_url) &&
         Find(library, "SearchHelp", plugin.search) &&
         Find(library, "GetVelmoHelpClientOnlineStatus", plugin.online_status);
}

}  // namespace

std::optional<Plugin> LoadPlugin() {
  Plugin plugin = {};
  void* library = dlopen(kLibrary, RTLD_NOW | RTLD_LOCAL);
  if (library != nullptr && FindAll(library, plugin)) return plugin;
  const char* reason = dlerror();
  std::fprintf(stderr, "lxhost: cannot load %s: %s\n", kLibrary,
               reason != nullptr ? reason : "unknown error");
  return std::nullopt;
}

}  // namespace velmohelp
