#include <velmohelp/config.h>

#include <algorithm>
#include <array>

#include "config/key_scanner.h"
#include "util/input_file.h"

namespace {

/// A file is taken in pieces of this size; a zero byte drops the rest of its
/// piece.
constexpr std::size_t kPieceSize = 1023;
constexpr std::size_t kPiecesAtOnce = 64;

void AppendUpToZero(std::string& text, const char* piece, std::size_t size) {
  const std::string_view bytes(piece, size);
  text += bytes.substr(0, bytes.find('\0'));
}

void AppendPieces(std::string& text, const char* bytes, std::size_t size) {
  for (std::size_t at = 0; at < size; at += kPieceSize) {
    AppendUpToZero(text, bytes + at, std::min(kPieceSize, size - at));
  }
}

/// False when the file is too long to be read to its end.
bool ReadPieces(std::ifstream& file, std::string& text) {
  std::array<char, kPieceSize * kPiecesAtOnce> bytes;
  for (std::size_t at = 0; at <= velmohelp::kLongestFile; at += bytes.size()) {
    const std::size_t size =
        velmohelp::ReadPiece(file, bytes.data(), bytes.size());
    AppendPieces(text, bytes.data(), size);
    if (size < bytes.size()) return true;
  }
  return false;
}

}  // namespace

XMLParser::XMLParser() = default;

bool XMLParser::ReadFileToBuffer(std::string path) {
  buffer_.clear();
  std::size_t size = 0;
  std::ifstream file = velmohelp::OpenInputFile(path, &size);
  if (!file.is_open()) return false;
  buffer_.reserve(size);
  try {
    if (ReadPieces(file, buffer_)) return true;
  } catch (const std::ios_base::failure&) {
    // Half a file says nothing, as one that is too long does.
  }
  buffer_.clear();
  return false;
}

std::string XMLParser::GetKey(std::string key) const {
  std::string value(velmohelp::ScanKey(buffer_, key));
  const bool is_setting = key == "accessibleMode" || key == "localHelp";
  return is_setting ? StringToUpper(value) : value;
}

std::string XMLParser::StringToUpper(std::string text) {
  return ::StringToUpper(std::move(text));
}

void XMLParser::PopulatePathArray(std::string (*table)[2], int& count) const {
  velmohelp::ScanPathTable(buffer_, table, count);
}
