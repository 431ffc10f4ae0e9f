// The bytes of a file, as they are read.
#ifndef UTIL_FILE_TEXT_H_
#define UTIL_FILE_TEXT_H_

#include <cstddef>
#include <istream>
#include <memory>
#include <string_view>

namespace velmohelp {

/// Takes files in piece by piece. Its memory is neither cleared before it is
/// read into nor given back between two files: the first touch of memory costs
/// more than reading into it.
class FileText {
 public:
  static constexpr std::size_t kPieceSize = 32768;

  /// Valid until anything else is called.
  std::string_view bytes() const { return {room_.get(), size_}; }

  /// Drops all, for another file.
  void Clear() { size_ = read_ = 0; }

  /// Drops all but the last size bytes.
  void KeepLast(std::size_t size);

  /// Drops all but the first size bytes.
  void KeepFirst(std::size_t size) { size_ = size; }

  /// Makes room for so many bytes in all; keeps those that are there.
  void Reserve(std::size_t size);

  /// Appends the file's next piece; false when the file ends with it, or has
  /// become longer than kLongestFile: one that grows without an end has its
  /// end there. What is thrown when the file breaks leaves the pieces before.
  bool AppendPiece(std::istream& file);

 private:
  std::unique_ptr<char[]> room_;
  std::size_t capacity_ = 0;
  std::size_t size_ = 0;
  /// How many bytes of the file have come, those included that were dropped.
  std::size_t read_ = 0;
};

}  // namespace velmohelp

#endif  // UTIL_FILE_TEXT_H_
