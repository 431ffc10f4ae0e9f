// What the helper programs know about the outside world.
#ifndef PLATFORM_LINUX_HELPER_ANSWERS_H_
#define PLATFORM_LINUX_HELPER_ANSWERS_H_

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>

#include "platform/linux/timeouts.h"
#include "platform/machine.h"

namespace velmohelp {

/// Runs a helper for each question and reads its answer. A helper that is
/// missing, fails, is late or sends nonsense reads as "this machine cannot":
/// what breaks a helper (a name service, a desktop's registry, a hostile
/// server) does not break the host.
class HelperAnswers {
 public:
  /// folder: an absolute path, where the helpers are.
  explicit HelperAnswers(std::string folder, Timeouts timeouts = {});

  /// See Machine for all of them.
  bool OpenInBrowser(
      const std::string& url,
      const std::optional<std::string>& activation_token = {}) const;
  std::optional<Arguments> FindBrowser(const std::string& url) const;
  std::optional<Reachability> HostReachability(
      const std::optional<std::string>& host) const;
  bool FetchText(const std::string& url,
                 std::chrono::milliseconds timeout) const;

 private:
  std::optional<std::string> Ask(
      const char* helper, const Arguments& question,
      std::chrono::milliseconds timeout, std::size_t limit,
      const std::optional<std::string>& activation_token = {}) const;

  std::string folder_;
  Timeouts timeouts_;
};

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_HELPER_ANSWERS_H_
