// What happens to a file while it is read.
#ifndef TESTS_FAULTS_READS_H_
#define TESTS_FAULTS_READS_H_

#include <functional>

namespace velmohelp::testing {

/// Called before each read of a file that this program makes, with its number
/// from 1 on. Returns 0, the error that the read ends with, or kZeroBytes.
using BeforeRead = std::function<int(int number)>;

/// The read gives as many bytes as it was asked for, all of them zero.
inline constexpr int kZeroBytes = -1;

/// While it exists, its function is called before every read. One at a time.
class Reads {
 public:
  explicit Reads(BeforeRead before);
  Reads(const Reads&) = delete;
  Reads& operator=(const Reads&) = delete;
  ~Reads();
};

}  // namespace velmohelp::testing

#endif  // TESTS_FAULTS_READS_H_
