#include "platform/linux/helper_answers.h"

#include <utility>

#include "platform/linux/browser_command.h"
#include "platform/linux/helpers/protocol.h"

namespace velmohelp {
namespace {

/// The answers of reach and fetch are a word; a browser's command line has
/// the URL in it, and perhaps more than once.
constexpr std::size_t kWordLimit = 64;
constexpr std::size_t kCommandLimit = 1U << 20U;

}  // namespace

HelperAnswers::HelperAnswers(std::string folder, Programs& programs,
                             Patience patience)
    : folder_(std::move(folder)), programs_(programs), patience_(patience) {}

std::optional<std::string> HelperAnswers::Ask(
    const char* helper, const std::string& question,
    std::chrono::milliseconds patience, std::size_t limit) {
  // Behind a NUL the helper would not see the rest of the question.
  if (question.find('\0') != std::string::npos) return std::nullopt;
  return programs_.Answer(folder_ + "/" + helper, {question}, patience, limit);
}

bool HelperAnswers::OpenInBrowser(const std::string& url) {
  const auto answer =
      Ask("velmohelp-browser", url, patience_.browser, kCommandLimit);
  if (!answer) return false;
  const auto command = ParseBrowserAnswer(*answer);
  if (!command) return false;
  if (command->empty()) return true;
  return programs_.Start(command->front(),
                         {command->begin() + 1, command->end()});
}

std::optional<Reachability> HelperAnswers::HostReachability(
    const std::optional<std::string>& host) {
  if (!host) return std::nullopt;
  const auto answer =
      Ask("velmohelp-reach", *host, patience_.reach, kWordLimit);
  if (answer == VELMO_REACHABLE) return Reachability{true, false};
  if (answer == VELMO_REACHABLE_ON_CONNECTION) return Reachability{true, true};
  if (answer == VELMO_UNREACHABLE) return Reachability{false, false};
  return std::nullopt;
}

bool HelperAnswers::FetchText(const std::string& url) {
  return Ask("velmohelp-fetch", url, patience_.fetch, kWordLimit) ==
         VELMO_IS_TEXT;
}

}  // namespace velmohelp
