/* velmohelp-run: keeps a tool's exit status from a host that would lose it.
 * See protocol.h. Started with every signal at its default, so that its own
 * child's status cannot be lost. */
#include <errno.h>
#include <fcntl.h>
#include <spawn.h>
#include <stddef.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/linux/helpers/protocol.h"

static int wait_for(pid_t process, int* status) {
  pid_t ended = -1;
  do {
    ended = waitpid(process, status, 0);
  } while (ended == -1 && errno == EINTR);
  return ended == process && WIFEXITED(*status);
}

int main(int argc, char* argv[]) {
  /* The tool has no business with it, and may leave children of its own that
   * would hold it open. */
  if (fcntl(VELMO_RUN_STATUS_DESCRIPTOR, F_SETFD, FD_CLOEXEC) != 0) return 1;
  pid_t process = -1;
  int status = 0;
  if (argc < 2 ||
      posix_spawn(&process, argv[1], NULL, NULL, argv + 1, environ) != 0 ||
      !wait_for(process, &status)) {
    return 1;
  }
  const unsigned char answer = (unsigned char)WEXITSTATUS(status);
  return write(VELMO_RUN_STATUS_DESCRIPTOR, &answer, 1) == 1 ? 0 : 1;
}
