// What the fuzz targets share: taking an input apart, and comparing.
#ifndef TESTS_FUZZ_INPUT_H_
#define TESTS_FUZZ_INPUT_H_

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <string>
#include <utility>

namespace velmohelp::testing {

/// Inputs are texts, so that a corpus can be read and written by hand.
class Input {
 public:
  explicit Input(std::string bytes) : rest_(std::move(bytes)) {}

  /// Takes the first line off, and drops its line feed.
  std::string Line() {
    const std::string line = rest_.substr(0, rest_.find('\n'));
    rest_.erase(0, line.size() + 1);
    return line;
  }
  const std::string& Rest() const { return rest_; }

 private:
  std::string rest_;
};

/// A file in memory: the fuzzer writes no disk.
class FileInMemory {
 public:
  /// Replaces the bytes; returns the path of the file.
  std::string Write(const std::string& bytes) {
    if (ftruncate(file_, 0) != 0 ||
        pwrite(file_, bytes.data(), bytes.size(), 0) < 0) {
      std::abort();
    }
    return "/proc/self/fd/" + std::to_string(file_);
  }

 private:
  int file_ = memfd_create("fuzz", MFD_CLOEXEC);
};

/// Prints both values and ends the program when they differ: a finding.
template <typename Got, typename Expected>
void Same(const Got& got, const Expected& expected) {
  if (got == expected) return;
  std::cerr << "got      " << ::testing::PrintToString(got) << "\nexpected "
            << ::testing::PrintToString(expected) << "\n";
  std::abort();
}

/// A fuzz target: compares what is made of the input with what should be. Each
/// program has one.
void Check(Input input);

}  // namespace velmohelp::testing

#endif  // TESTS_FUZZ_INPUT_H_
