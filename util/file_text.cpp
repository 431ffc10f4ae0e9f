#include "util/file_text.h"

#include <algorithm>
#include <cstring>

namespace velmohelp {

void FileText::KeepLast(std::size_t size) {
  if (size > 0) std::memmove(room_.get(), room_.get() + size_ - size, size);
  size_ = size;
}

void FileText::Reserve(std::size_t size) {
  if (size <= capacity_) return;
  auto room = std::make_unique_for_overwrite<char[]>(size);
  if (size_ > 0) std::memcpy(room.get(), room_.get(), size_);
  room_ = std::move(room);
  capacity_ = size;
}

/// Little at first: most files are read in chunks of lines, which fit. What
/// does not fit is one long line, and then all of the file gets room at once,
/// which costs nothing until it is read into.
void FileText::Grow(const InputFile& file) {
  const std::size_t doubled = std::max(2 * capacity_, 2 * kPieceSize);
  const std::size_t whole = capacity_ == 0 ? 0 : file.size() + kPieceSize;
  Reserve(std::max(doubled, whole));
}

bool FileText::AppendPiece(InputFile& file) {
  if (capacity_ - size_ < kPieceSize) Grow(file);
  const std::size_t end = size_ + kPieceSize;
  while (size_ < end) {
    const std::size_t got = file.Read(room_.get() + size_, end - size_);
    if (got == 0) return false;
    size_ += got;
    read_ += got;
  }
  return read_ <= file.limit();
}

bool FileText::AppendRest(InputFile& file) {
  Reserve(size_ + file.size() + kPieceSize);
  while (AppendPiece(file)) continue;
  return read_ <= file.limit();
}

}  // namespace velmohelp
