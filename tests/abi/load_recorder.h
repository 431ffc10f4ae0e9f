// Listens to what a library that is loaded and unloaded makes and destroys.
//
// An object of static storage has its destructor registered, with its address,
// the moment it is made: this program's own __cxa_atexit sees each of them, and
// again when the destructor runs. Freed memory passes through this program's
// own operator delete.
#ifndef TESTS_ABI_LOAD_RECORDER_H_
#define TESTS_ABI_LOAD_RECORDER_H_

#include <vector>

namespace velmohelp::testing {

/// Addresses in the order of events since StartRecording.
struct Recording {
  std::vector<const void*> made;
  std::vector<const void*> destroyed;
  std::vector<const void*> freed;
};

void StartRecording();
/// Stops, and returns what was recorded.
Recording StopRecording();

}  // namespace velmohelp::testing

#endif  // TESTS_ABI_LOAD_RECORDER_H_
