#include "platform/linux/helper_answers.h"

#include <algorithm>
#include <utility>

#include "platform/linux/browser_command.h"
#include "platform/linux/programs.h"
#include "platform/linux/protocol.h"

namespace velmohelp {
namespace {

using std::chrono::milliseconds;

/// Bytes of an answer. That of reach and fetch is a word; a browser's command
/// line contains the URL, perhaps more than once.
constexpr std::size_t kWordLimit = 64;
constexpr std::size_t kCommandLimit = 1U << 20U;

bool HasZeroByte(const std::string& word) {
  return word.find('\0') != std::string::npos;
}

/// nullopt when there is no answer.
std::optional<Arguments> CommandIn(const std::optional<std::string>& answer) {
  return answer ? ParseBrowserAnswer(*answer) : std::nullopt;
}

}  // namespace

HelperAnswers::HelperAnswers(std::string folder, Timeouts timeouts)
    : folder_(std::move(folder)), timeouts_(timeouts) {}

std::optional<std::string> HelperAnswers::Ask(
    const char* helper, const Arguments& question, milliseconds timeout,
    std::size_t limit,
    const std::optional<std::string>& activation_token) const {
  // The helper would see the part before the NUL alone.
  if (std::ranges::any_of(question, HasZeroByte)) return std::nullopt;
  return AskHelper(folder_ + "/" + helper, question, timeout, limit,
                   activation_token);
}

bool HelperAnswers::OpenInBrowser(
    const std::string& url,
    const std::optional<std::string>& activation_token) const {
  const auto command =
      CommandIn(Ask("velmohelp-browser", {url}, timeouts_.browser,
                    kCommandLimit, activation_token));
  if (!command) return false;
  if (command->empty()) return true;
  return StartDetached(command->front(), {command->begin() + 1, command->end()},
                       activation_token) != StartResult::kFailed;
}

std::optional<Arguments> HelperAnswers::FindBrowser(
    const std::string& url) const {
  return CommandIn(Ask("velmohelp-browser", {VELMO_BROWSER_FIND, url},
                       timeouts_.browser, kCommandLimit));
}

std::optional<Reachability> HelperAnswers::HostReachability(
    const std::optional<std::string>& host) const {
  if (!host) return std::nullopt;
  const auto answer =
      Ask("velmohelp-reach", {*host}, timeouts_.reach, kWordLimit);
  if (answer == VELMO_REACHABLE) return Reachability{true, false};
  if (answer == VELMO_REACHABLE_ON_CONNECTION) return Reachability{true, true};
  if (answer == VELMO_UNREACHABLE) return Reachability{false, false};
  return std::nullopt;
}

bool HelperAnswers::FetchText(const std::string& url,
                              milliseconds timeout) const {
  return Ask("velmohelp-fetch", {url}, timeout, kWordLimit) == VELMO_IS_TEXT;
}

}  // namespace velmohelp
