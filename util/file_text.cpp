#include "util/file_text.h"

#include <algorithm>
#include <cstring>

#include "util/input_file.h"

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

bool FileText::AppendPiece(std::istream& file) {
  if (capacity_ - size_ < kPieceSize) {
    Reserve(std::max(2 * capacity_, 2 * kPieceSize));
  }
  const std::size_t size = ReadPiece(file, room_.get() + size_, kPieceSize);
  size_ += size;
  read_ += size;
  return size == kPieceSize && read_ <= kLongestFile;
}

}  // namespace velmohelp
