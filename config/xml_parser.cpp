#include <velmohelp/config.h>

#include <algorithm>
#include <ios>

#include "config/key_scanner.h"
#include "platform/open_file.h"
#include "util/file_text.h"

namespace {

/// A zero byte drops the rest of its piece of this size.
constexpr std::size_t kPieceSize = 1023;

std::string WithoutZeroes(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (; !bytes.empty();
       bytes.remove_prefix(std::min(kPieceSize, bytes.size()))) {
    const std::string_view piece = bytes.substr(0, kPieceSize);
    text += piece.substr(0, piece.find('\0'));
  }
  return text;
}

/// Half a file says nothing, and neither does one that grows beyond its limit.
bool ReadWhole(velmohelp::InputFile& file, velmohelp::FileText& text) {
  try {
    return text.AppendRest(file);
  } catch (const std::ios_base::failure&) {
    return false;
  }
}

}  // namespace

XMLParser::XMLParser() = default;

bool XMLParser::ReadFileToBuffer(std::string path) {
  buffer_.clear();
  const auto file =
      velmohelp::OpenInputFile(path, velmohelp::kSettingsFileLimit);
  velmohelp::FileText text;
  if (!file || !ReadWhole(*file, text)) return false;
  buffer_ = WithoutZeroes(text.bytes());
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
