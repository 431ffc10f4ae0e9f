#include "platform/linux/pipe.h"

#include <fcntl.h>
#include <unistd.h>

namespace velmohelp {
namespace {

Descriptor AboveStandardStreams(Descriptor end) {
  if (end.number() > STDERR_FILENO) return end;
  return Descriptor(fcntl(end.number(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

}  // namespace

std::optional<Pipe> MakePipe() {
  int ends[2] = {-1, -1};
  if (pipe2(ends, O_CLOEXEC) != 0) return std::nullopt;
  Descriptor read_end(ends[0]);
  Descriptor write_end(ends[1]);
  Pipe pipe{AboveStandardStreams(std::move(read_end)),
            AboveStandardStreams(std::move(write_end))};
  if (!pipe.read_end || !pipe.write_end) return std::nullopt;
  return pipe;
}

}  // namespace velmohelp
