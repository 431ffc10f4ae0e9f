// A pipe that started programs do not inherit.
#ifndef PLATFORM_LINUX_PIPE_H_
#define PLATFORM_LINUX_PIPE_H_

#include <optional>

#include "platform/linux/unique_fd.h"

namespace velmohelp {

struct Pipe {
  UniqueFd read_end;
  UniqueFd write_end;
};

/// Both ends are close-on-exec, and their numbers are above those of the
/// standard streams: what a host that runs without these prints meanwhile must
/// not end up in the pipe. nullopt when the descriptor table is full.
std::optional<Pipe> MakePipe();

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_PIPE_H_
