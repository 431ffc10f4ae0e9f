// Reading a helper's answer, which may never come.
#ifndef PLATFORM_LINUX_READ_ANSWER_H_
#define PLATFORM_LINUX_READ_ANSWER_H_

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/linux/unique_fd.h"

namespace velmohelp {

/// Reads one answer, a netstring ("5:hello,"), from a pipe. Returns as soon as
/// the answer is complete, whoever else holds the other end of the pipe.
/// nullopt when the answer is malformed, longer than limit bytes, cut short by
/// the end of the file, or not complete within timeout (on the monotonic
/// clock: setting the time of day changes nothing; nullopt: no timeout).
std::optional<std::string> ReadAnswer(
    const UniqueFd& pipe, std::optional<std::chrono::milliseconds> timeout,
    std::size_t limit);

/// How much of an answer a text is.
enum class AnswerState { kIncomplete, kMalformed, kComplete };

/// Looks at what has been read so far. On kComplete, answer is the part of
/// text between the length and the final comma; otherwise it is left alone.
AnswerState ParseAnswer(std::string_view text, std::size_t limit,
                        std::string_view& answer);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_READ_ANSWER_H_
