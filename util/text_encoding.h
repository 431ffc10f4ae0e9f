// Conversion between UTF-8 and the encodings in which the platform's calls
// take and give texts.
#ifndef UTIL_TEXT_ENCODING_H_
#define UTIL_TEXT_ENCODING_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velmohelp {

/// The numbers by which encodings are known. No byte is valid in any other.
enum class TextEncoding : std::uint32_t {
  kMacRoman = 0,
  kAscii = 0x0600,
  kUtf8 = 0x08000100,
};

/// The bytes up to their first zero byte, as UTF-8; nullopt when they are not
/// valid in the encoding.
std::optional<std::string> DecodeText(std::string_view bytes,
                                      TextEncoding encoding);

/// A UTF-8 text in an encoding, up to its first zero byte; "" when the encoding
/// cannot express it or it does not fit the text buffer.
std::string EncodeText(std::string_view utf8, TextEncoding encoding);

/// Whether a text fits a buffer of the maximum size that the platform reports
/// for it: three bytes per UTF-16 unit, with the NUL. So an empty text and one
/// of three-byte characters alone do not fit. utf8: valid UTF-8.
bool FitsMaximumSize(std::string_view utf8);

/// A copy of the text for free(); null when it does not fit its maximum size or
/// when out of memory. utf8: valid UTF-8.
char* AllocateUtf8(std::string_view utf8);

}  // namespace velmohelp

#endif  // UTIL_TEXT_ENCODING_H_
