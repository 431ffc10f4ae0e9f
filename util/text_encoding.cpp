#include "util/text_encoding.h"

#include <algorithm>
#include <cstdlib>

#include "util/c_string.h"
#include "util/mac_roman.h"
#include "util/text_buffer.h"
#include "util/utf8.h"

namespace velmohelp {
namespace {

/// What the platform allows for a UTF-16 unit in UTF-8.
constexpr std::size_t kMaximumBytesPerUnit = 3;

bool IsAscii(std::string_view text) {
  return std::ranges::all_of(
      text, [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

std::optional<std::string> CopyIf(bool valid, std::string_view text) {
  return valid ? std::optional<std::string>(text) : std::nullopt;
}

std::optional<std::string> Decode(std::string_view bytes,
                                  TextEncoding encoding) {
  switch (encoding) {
    case TextEncoding::kMacRoman:
      return MacRomanToUtf8(bytes);
    case TextEncoding::kAscii:
      return CopyIf(IsAscii(bytes), bytes);
    case TextEncoding::kUtf8:
      return CopyIf(IsUtf8(bytes), bytes);
  }
  return std::nullopt;
}

/// ASCII and UTF-8 are the same both ways.
std::optional<std::string> Encode(std::string_view utf8,
                                  TextEncoding encoding) {
  return encoding == TextEncoding::kMacRoman ? Utf8ToMacRoman(utf8)
                                             : Decode(utf8, encoding);
}

}  // namespace

std::optional<std::string> DecodeText(std::string_view bytes,
                                      TextEncoding encoding) {
  return Decode(UpToZero(bytes), encoding);
}

std::string EncodeText(std::string_view utf8, TextEncoding encoding) {
  const auto bytes = Encode(utf8, encoding);
  if (!bytes || !FitsTextBuffer(*bytes)) return "";
  return std::string(UpToZero(*bytes));
}

bool FitsMaximumSize(std::string_view utf8) {
  return utf8.size() < kMaximumBytesPerUnit * Utf16Length(utf8);
}

char* AllocateUtf8(std::string_view utf8) {
  if (!FitsMaximumSize(utf8)) return nullptr;
  const std::size_t size = kMaximumBytesPerUnit * Utf16Length(utf8) + 1;
  auto* buffer = static_cast<char*>(std::calloc(size, 1));
  if (buffer != nullptr) utf8.copy(buffer, utf8.size());
  return buffer;
}

}  // namespace velmohelp
