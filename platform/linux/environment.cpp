#include "platform/linux/environment.h"

#include <unistd.h>

#include <cstdlib>
#include <string_view>

namespace velmohelp {
namespace {

constexpr std::string_view kLoaderPath = "LD_LIBRARY_PATH=";

}  // namespace

ChildEnvironment::ChildEnvironment() {
  const char* saved = secure_getenv("LD_LIBRARY_PATH_ORIG");
  for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
    const bool replace =
        saved != nullptr && std::string_view(*entry).starts_with(kLoaderPath);
    if (!replace) pointers_.push_back(*entry);
  }
  if (saved != nullptr && *saved != '\0') {
    loader_path_ = std::string(kLoaderPath) + saved;
    pointers_.push_back(loader_path_.data());
  }
  pointers_.push_back(nullptr);
}

}  // namespace velmohelp
