// Closing what a started program must not have.
#ifndef PLATFORM_LINUX_CLOSE_FROM_H_
#define PLATFORM_LINUX_CLOSE_FROM_H_

namespace velmohelp {

/// Closes all descriptors of this process from a number upwards. For a process
/// that shares the host's memory: see RunIntermediate.
///
/// Where the system refuses close_range (an old kernel, a sandbox), it closes
/// those that /proc lists; without a /proc, one after the other up to the limit
/// of descriptors, at most 2^20, which is the system's own default for it.
void CloseFrom(int first);

/// The second and the third way. False when /proc cannot be read.
bool CloseListedFrom(int first);
void CloseEachFrom(int first);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_CLOSE_FROM_H_
