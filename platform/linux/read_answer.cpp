#include "platform/linux/read_answer.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>

#include "platform/linux/retry_on_eintr.h"

namespace velmohelp {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

/// Digits of the longest length that is worth reading.
constexpr std::size_t kLengthDigits = 10;

constexpr Clock::time_point kNever = Clock::time_point::max();

/// For poll: -1 means no limit. Rounded up: poll must not return early and spin
/// through the last millisecond.
int MillisecondsUntil(Clock::time_point end) {
  if (end == kNever) return -1;
  const auto left = std::chrono::ceil<milliseconds>(end - Clock::now());
  return static_cast<int>(std::max(left, milliseconds(0)).count());
}

/// False after the end, however much there is to read.
bool IsReadableBefore(Clock::time_point end, const UniqueFd& pipe) {
  pollfd waited = {pipe.get(), POLLIN, 0};
  if (MillisecondsUntil(end) == 0) return false;
  return RetryOnEintr(
             [&] { return poll(&waited, 1, MillisecondsUntil(end)); }) > 0;
}

/// Appends what is there to text; false at the end of the file or on an error.
bool ReadMore(const UniqueFd& pipe, std::string& text) {
  char piece[1024];
  const ssize_t got =
      RetryOnEintr([&] { return read(pipe.get(), piece, sizeof piece); });
  if (got <= 0) return false;
  text.append(piece, static_cast<std::size_t>(got));
  return true;
}

/// The number that is the whole text.
std::optional<std::size_t> Length(std::string_view digits) {
  std::size_t length = 0;
  const char* end = digits.data() + digits.size();
  const auto result = std::from_chars(digits.data(), end, length);
  if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
  return length;
}

}  // namespace

AnswerState ParseAnswer(std::string_view text, std::size_t limit,
                        std::string_view& answer) {
  const std::size_t colon = text.substr(0, kLengthDigits + 1).find(':');
  if (colon == std::string_view::npos) {
    return text.size() > kLengthDigits ? AnswerState::kMalformed
                                       : AnswerState::kIncomplete;
  }
  const auto length = Length(text.substr(0, colon));
  if (!length || *length > limit) return AnswerState::kMalformed;
  const std::string_view rest = text.substr(colon + 1);
  if (rest.size() <= *length) return AnswerState::kIncomplete;
  if (rest[*length] != ',') return AnswerState::kMalformed;
  answer = rest.substr(0, *length);
  return AnswerState::kComplete;
}

std::optional<std::string> ReadAnswer(const UniqueFd& pipe,
                                      std::optional<milliseconds> timeout,
                                      std::size_t limit) {
  const Clock::time_point end = timeout ? Clock::now() + *timeout : kNever;
  AnswerState state = AnswerState::kIncomplete;
  std::string text;
  std::string_view answer;
  while (state == AnswerState::kIncomplete && IsReadableBefore(end, pipe) &&
         ReadMore(pipe, text)) {
    state = ParseAnswer(text, limit, answer);
  }
  if (state != AnswerState::kComplete) return std::nullopt;
  return std::string(answer);
}

}  // namespace velmohelp
