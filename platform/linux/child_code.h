// Code that runs in a process which shares the host's memory.
#ifndef PLATFORM_LINUX_CHILD_CODE_H_
#define PLATFORM_LINUX_CHILD_CODE_H_

/// Marks a function that runs between clone and exec: sanitizers would take its
/// stack for the host's.
#define VELMO_CHILD \
  __attribute__((no_sanitize("address", "undefined", "thread")))

#endif  // PLATFORM_LINUX_CHILD_CODE_H_
