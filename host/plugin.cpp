#include "host/plugin.h"

#include <dlfcn.h>

#include <cstdio>

namespace velmohelp {
namespace {

constexpr char kLibrary[] = "libvelmohelp.so.1";

lua_CFunction Find(void* library, const char* name) {
  return reinterpret_cast<lua_CFunction>(dlsym(library, name));
}

}  // namespace

std::optional<LoadEntryPoints> LoadPlugin() {
  void* library = dlopen(kLibrary, RTLD_NOW | RTLD_LOCAL);
  if (library != nullptr) {
    const LoadEntryPoints found = {Find(library, "private_load_LxHelp"),
                                   Find(library, "private_load_LxHelpWorker")};
    if (found.help != nullptr && found.help_worker != nullptr) return found;
  }
  const char* reason = dlerror();
  std::fprintf(stderr, "lxhost: cannot load %s: %s\n", kLibrary,
               reason != nullptr ? reason : "no load entry points");
  return std::nullopt;
}

}  // namespace velmohelp
