#include "config/key_file.h"

#include <algorithm>
#include <ios>
#include <string_view>

#include "platform/open_file.h"
#include "util/c_string.h"
#include "util/file_text.h"

namespace velmohelp {
namespace {

/// A zero byte drops the rest of its piece of this size.
constexpr std::size_t kPieceSize = 1023;

std::string WithoutZeroes(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (; !bytes.empty();
       bytes.remove_prefix(std::min(kPieceSize, bytes.size()))) {
    text += UpToZero(bytes.substr(0, kPieceSize));
  }
  return text;
}

/// False for a read error, and for a file that grows beyond its limit.
bool ReadWhole(InputFile& file, FileText& text) {
  try {
    return text.AppendRest(file);
  } catch (const std::ios_base::failure&) {
    return false;
  }
}

bool ReadBytes(const std::string& path, std::string& text) {
  const auto file = OpenInputFile(path, kSettingsFileLimit);
  FileText bytes;
  if (!file || !ReadWhole(*file, bytes)) return false;
  text = WithoutZeroes(bytes.bytes());
  return true;
}

}  // namespace

bool ReadKeyFile(const std::string& path, std::string& text,
                 RequestObserver* observer) {
  text.clear();
  const bool is_read = ReadBytes(path, text);
  if (observer != nullptr) {
    observer->OnKeyFile(path, is_read ? &text : nullptr);
  }
  return is_read;
}

}  // namespace velmohelp
