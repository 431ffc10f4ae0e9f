// Running the programs of others: tools, the viewer, the browser, helpers.
#ifndef PLATFORM_LINUX_PROGRAMS_H_
#define PLATFORM_LINUX_PROGRAMS_H_

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/machine.h"

namespace velmohelp {

/// See Machine for both.
std::optional<int> RunToEnd(const std::string& program,
                            const Arguments& arguments);
std::optional<std::string> FirstOutput(const std::string& program,
                                       const Arguments& arguments);

enum class StartResult : std::uint8_t { kFailed, kEndedAtOnce, kRunning };

/// Starts a program in a session of its own and leaves it alone.
StartResult StartDetached(
    const std::string& program, const Arguments& arguments,
    const std::optional<std::string>& activation_token = {});

/// Runs a helper with its question and reads its answer, see ReadAnswer. The
/// system ends a helper that is still running when the time is up.
std::optional<std::string> AskHelper(
    const std::string& program, const Arguments& question,
    std::chrono::milliseconds timeout, std::size_t limit,
    const std::optional<std::string>& activation_token = {});

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_PROGRAMS_H_
