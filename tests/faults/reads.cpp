#include "tests/faults/reads.h"

#include <sys/syscall.h>
#include <unistd.h>
#include <velmohelp/export.h>

#include <cerrno>
#include <cstring>
#include <utility>

namespace velmohelp::testing {
namespace {

BeforeRead before_read;
int number = 0;

}  // namespace

Reads::Reads(BeforeRead before) {
  before_read = std::move(before);
  number = 0;
}

Reads::~Reads() { before_read = nullptr; }

}  // namespace velmohelp::testing

/// Takes the place of the C library's, for the C++ library too.
extern "C" VELMOHELP_API ssize_t read(int fd, void* buf, size_t nbytes) {
  using namespace velmohelp::testing;
  const int answer = before_read ? before_read(++number) : 0;
  if (answer == 0) return syscall(SYS_read, fd, buf, nbytes);
  if (answer == kZeroBytes) {
    std::memset(buf, 0, nbytes);
    return static_cast<ssize_t>(nbytes);
  }
  errno = answer;
  return -1;
}
