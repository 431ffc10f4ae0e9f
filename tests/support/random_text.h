// Texts for comparisons with a slow oracle: the same ones at every run.
#ifndef TESTS_SUPPORT_RANDOM_TEXT_H_
#define TESTS_SUPPORT_RANDOM_TEXT_H_

#include <cstddef>
#include <random>
#include <string>

namespace velmohelp::testing {

class RandomText {
 public:
  /// Texts of bytes out of an alphabet; a byte that is there twice comes
  /// twice as often.
  explicit RandomText(std::string alphabet) : alphabet_(std::move(alphabet)) {}

  std::string Next(std::size_t length) {
    std::string text;
    while (text.size() < length) text += alphabet_[Below(alphabet_.size())];
    return text;
  }
  std::size_t Below(std::size_t limit) { return random_() % limit; }

 private:
  std::string alphabet_;
  std::mt19937 random_;
};

/// All 256 bytes, in order.
inline std::string AllBytes() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  return bytes;
}

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_RANDOM_TEXT_H_
