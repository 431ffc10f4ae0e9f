#include "util/platform_string.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "util/mac_roman.h"
#include "util/text_buffer.h"
#include "util/utf8.h"

namespace velmohelp {
namespace {

/// Platform calls take C strings: they do not see what follows a zero byte.
std::string UpToZero(const std::string& text) {
  return text.substr(0, text.find('\0'));
}

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
  });
}

std::optional<std::string> Decoded(const std::string& bytes,
                                   std::uint32_t encoding) {
  switch (encoding) {
    case ITEMInternal::kTextEncodingMacRoman:
      return MacRomanToUtf8(bytes);
    case ITEMInternal::kTextEncodingAscii:
      return IsAscii(bytes) ? std::optional(bytes) : std::nullopt;
    case ITEMInternal::kTextEncodingUtf8:
      return IsUtf8(bytes) ? std::optional(bytes) : std::nullopt;
    default:
      return std::nullopt;
  }
}

std::optional<std::string> Encoded(const std::string& text,
                                   std::uint32_t encoding) {
  return encoding == ITEMInternal::kTextEncodingMacRoman
             ? Utf8ToMacRoman(text)
             : Decoded(text, encoding);
}

}  // namespace

PlatformStringPtr MakePlatformString(const std::string& bytes,
                                     std::uint32_t encoding) {
  auto text = Decoded(UpToZero(bytes), encoding);
  if (!text) return nullptr;
  return std::make_unique<const ITEMInternal::PlatformString>(std::move(*text));
}

}  // namespace velmohelp

namespace ITEMInternal {

std::string GetString(const PlatformString* text, std::uint32_t encoding) {
  if (text == nullptr) return "";
  auto bytes = velmohelp::Encoded(text->utf8(), encoding);
  if (!bytes || !velmohelp::FitsTextBuffer(*bytes)) return "";
  return velmohelp::UpToZero(*bytes);
}

char* GetCharFromCFStringRef(const PlatformString* text) {
  if (text == nullptr) return nullptr;
  const std::string& utf8 = text->utf8();
  const std::size_t room = 3 * velmohelp::Utf16Length(utf8);
  // The NUL has to fit too, although the buffer has one byte more than `room`:
  // a text of exactly that length is refused, on purpose.
  if (utf8.size() + 1 > room) return nullptr;
  auto* buffer = static_cast<char*>(std::calloc(room + 1, 1));
  if (buffer != nullptr) utf8.copy(buffer, utf8.size());
  return buffer;
}

std::unique_ptr<const PlatformString> CstrToNSstr(const char* text) {
  if (text == nullptr) return nullptr;
  return velmohelp::MakePlatformString(text, kTextEncodingUtf8);
}

}  // namespace ITEMInternal
