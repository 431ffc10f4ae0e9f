// Handing an answer back to the library.
#ifndef PLATFORM_LINUX_HELPERS_ANSWER_H_
#define PLATFORM_LINUX_HELPERS_ANSWER_H_

#include <unistd.h>

#include <string_view>

namespace velmohelp {

/// Writes all of an answer to standard output and closes it: the library goes
/// on at once, and does not wait for what a program's end takes (that of file
/// watches takes longer than the answer). False when nobody reads it.
inline bool GiveAnswer(std::string_view answer) {
  while (!answer.empty()) {
    const ssize_t written = write(STDOUT_FILENO, answer.data(), answer.size());
    if (written <= 0) return false;
    answer.remove_prefix(static_cast<std::size_t>(written));
  }
  return close(STDOUT_FILENO) == 0;
}

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_HELPERS_ANSWER_H_
