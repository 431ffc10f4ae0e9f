// Cancellation of the calling thread.
#ifndef PLATFORM_CANCELLATION_H_
#define PLATFORM_CANCELLATION_H_

namespace velmohelp {

/// While it exists, nobody can cancel the thread that made it. A cancelled
/// thread unwinds from the system call that it is in; when that call is in a
/// destructor, as a close is, the C++ runtime ends the whole host.
///
/// Each system's folder defines the members. The destructor lets a cancellation
/// that came meanwhile take effect, at once when the thread is cancelled
/// asynchronously: the thread unwinds from it.
class CancellationDisabled {
 public:
  CancellationDisabled();
  CancellationDisabled(const CancellationDisabled&) = delete;
  CancellationDisabled& operator=(const CancellationDisabled&) = delete;
  ~CancellationDisabled() noexcept(false);

 private:
  int previous_ = 0;
};

}  // namespace velmohelp

#endif  // PLATFORM_CANCELLATION_H_
