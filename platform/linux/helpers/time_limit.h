/* A helper's own clock. */
#ifndef PLATFORM_LINUX_HELPERS_TIME_LIMIT_H_
#define PLATFORM_LINUX_HELPERS_TIME_LIMIT_H_

#include <sys/time.h>
#include <unistd.h>

/* SIGALRM ends this process after this many seconds, whatever it waits for
 * then: a name service and a network file system can hang for minutes, long
 * after the host has gone. A timer that was set before and ends sooner stays.
 */
static inline void velmo_limit_time(unsigned seconds) {
  struct itimerval set = {{0, 0}, {0, 0}};
  getitimer(ITIMER_REAL, &set);
  const int is_set = set.it_value.tv_sec != 0 || set.it_value.tv_usec != 0;
  if (!is_set || set.it_value.tv_sec >= (long)seconds) alarm(seconds);
}

#endif /* PLATFORM_LINUX_HELPERS_TIME_LIMIT_H_ */
