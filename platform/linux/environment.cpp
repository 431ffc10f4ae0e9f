#include "platform/linux/environment.h"

#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <string_view>

namespace velmohelp {
namespace {

constexpr std::string_view kLoaderPath = "LD_LIBRARY_PATH=";
constexpr std::string_view kActivationToken = "XDG_ACTIVATION_TOKEN=";
constexpr std::string_view kStartupId = "DESKTOP_STARTUP_ID=";

bool IsActivationToken(std::string_view entry) {
  return entry.starts_with(kActivationToken) || entry.starts_with(kStartupId);
}

}  // namespace

ChildEnvironment::ChildEnvironment(
    const std::optional<std::string>& activation_token) {
  const char* saved = secure_getenv("LD_LIBRARY_PATH_ORIG");
  for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
    const bool replace =
        saved != nullptr && std::string_view(*entry).starts_with(kLoaderPath);
    if (!replace && !IsActivationToken(*entry)) pointers_.push_back(*entry);
  }
  if (saved != nullptr && *saved != '\0') {
    loader_path_ = std::string(kLoaderPath) + saved;
    pointers_.push_back(loader_path_.data());
  }
  if (activation_token) {
    activation_token_ = std::string(kActivationToken) + *activation_token;
    startup_id_ = std::string(kStartupId) + *activation_token;
    pointers_.push_back(activation_token_.data());
    pointers_.push_back(startup_id_.data());
  }
  pointers_.push_back(nullptr);
}

std::optional<std::string> ConsumeOwnActivationToken() {
  static constinit std::atomic_flag was_used;
  if (was_used.test_and_set()) return std::nullopt;
  for (const char* name : {"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"}) {
    const char* token = secure_getenv(name);
    if (token != nullptr && *token != '\0') return token;
  }
  return std::nullopt;
}

}  // namespace velmohelp
