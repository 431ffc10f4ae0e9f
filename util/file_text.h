// The bytes of a file, as they are read.
#ifndef UTIL_FILE_TEXT_H_
#define UTIL_FILE_TEXT_H_

#include <cstddef>
#include <memory>
#include <string_view>

#include "util/input_file.h"

namespace velmohelp {

/// A buffer that files are read into, piece by piece. Its memory is not cleared
/// before it is read into, and is kept for the next file: the first touch of
/// memory costs more than reading into it.
class FileText {
 public:
  static constexpr std::size_t kPieceSize = 32768;

  /// Valid until the next call of any other function.
  std::string_view bytes() const { return {room_.get(), size_}; }

  /// Drops all, for another file.
  void Clear() { size_ = read_ = 0; }

  /// Drops all but the last size bytes.
  void KeepLast(std::size_t size);

  /// Drops all but the first size bytes.
  void KeepFirst(std::size_t size) { size_ = size; }

  /// Makes room for this many bytes in all; keeps those that are there.
  void Reserve(std::size_t size);

  /// Appends the file's next piece; false when the file ends with it, or has
  /// grown beyond its limit. On a read error, throws std::ios_base::failure and
  /// keeps every byte that was read before it.
  bool AppendPiece(InputFile& file);

  /// Appends the rest of the file; false when it has grown beyond its limit.
  /// On a read error as AppendPiece.
  bool AppendRest(InputFile& file);

 private:
  void Grow(const InputFile& file);

  std::unique_ptr<char[]> room_;
  std::size_t capacity_ = 0;
  std::size_t size_ = 0;
  /// How many bytes of the file were read, dropped ones included.
  std::size_t read_ = 0;
};

}  // namespace velmohelp

#endif  // UTIL_FILE_TEXT_H_
