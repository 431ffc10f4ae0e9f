// What the helper programs know of the world outside.
#ifndef PLATFORM_LINUX_HELPER_ANSWERS_H_
#define PLATFORM_LINUX_HELPER_ANSWERS_H_

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>

#include "platform/linux/programs.h"
#include "platform/machine.h"

namespace velmohelp {

/// How long the host may be kept waiting for each helper.
struct Patience {
  std::chrono::milliseconds browser = std::chrono::seconds(10);
  std::chrono::milliseconds reach = std::chrono::seconds(5);
  /// Above the 60 s after which the helper gives up by itself.
  std::chrono::milliseconds fetch = std::chrono::seconds(65);
};

/// Runs a helper for every question and reads its answer. One that is missing,
/// fails, is late or talks nonsense reads as "this machine cannot": what breaks
/// in there, be it a name service, a desktop's registry or a hostile server,
/// breaks no host.
class HelperAnswers {
 public:
  /// folder: where the helpers lie, an absolute path. programs outlives this
  /// object.
  HelperAnswers(std::string folder, Programs& programs, Patience patience = {});

  /// See Machine for all three.
  bool OpenInBrowser(const std::string& url);
  std::optional<Reachability> HostReachability(
      const std::optional<std::string>& host);
  bool FetchText(const std::string& url);

 private:
  std::optional<std::string> Ask(const char* helper,
                                 const std::string& question,
                                 std::chrono::milliseconds patience,
                                 std::size_t limit);

  std::string folder_;
  Programs& programs_;
  Patience patience_;
};

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_HELPER_ANSWERS_H_
