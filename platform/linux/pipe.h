// A pipe that only this process holds.
#ifndef PLATFORM_LINUX_PIPE_H_
#define PLATFORM_LINUX_PIPE_H_

#include <optional>

#include "platform/linux/unique_fd.h"

namespace velmohelp {

struct Pipe {
  UniqueFd read_end;
  UniqueFd write_end;
};

/// Both ends are closed in programs that the host starts meanwhile, and have
/// numbers above those of the standard streams: a host may run with these
/// closed, and what it prints meanwhile would go into the pipe. nullopt when
/// the descriptor table is full.
std::optional<Pipe> MakePipe();

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_PIPE_H_
