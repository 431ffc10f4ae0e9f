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

void ReadPieces(std::ifstream& file, std::string& text) {
  std::array<char, kPieceSize * kPiecesAtOnce> bytes;
  std::size_t size = 0;
  do {
    size = velmohelp::ReadPiece(file, bytes.data(), bytes.size());
    AppendPieces(text, bytes.data(), size);
  } while (size == bytes.size());
}

}  // namespace

XMLParser::XMLParser() = default;

bool XMLParser::ReadFileToBuffer(std::string path) {
  buffer_.clear();
  std::ifstream file = velmohelp::OpenInputFile(path);
  if (!file.is_open()) return false;
  buffer_.reserve(velmohelp::FileSizeHint(path));
  try {
    ReadPieces(file, buffer_);
  } catch (const std::ios_base::failure&) {
    buffer_.clear();
    return false;
  }
  return true;
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
