#include "platform/linux/pipe.h"

#include <fcntl.h>
#include <unistd.h>

namespace velmohelp {
namespace {

UniqueFd AboveStandardStreams(UniqueFd end) {
  if (end.get() > STDERR_FILENO) return end;
  return UniqueFd(fcntl(end.get(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

}  // namespace

std::optional<Pipe> MakePipe() {
  int ends[2] = {-1, -1};
  if (pipe2(ends, O_CLOEXEC) != 0) return std::nullopt;
  UniqueFd read_end(ends[0]);
  UniqueFd write_end(ends[1]);
  Pipe pipe{AboveStandardStreams(std::move(read_end)),
            AboveStandardStreams(std::move(write_end))};
  if (!pipe.read_end || !pipe.write_end) return std::nullopt;
  return pipe;
}

}  // namespace velmohelp
