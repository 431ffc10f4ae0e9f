#include "util/utf8.h"

#include "util/unicode/code_points.h"
#include "util/unicode/legality.h"

namespace velmohelp {
namespace {

/// text: legal UTF-8, so a byte follows each ED. A surrogate is ED A0 80 to
/// ED BF BF.
bool HasSurrogate(std::string_view text) {
  constexpr char kLead = '\xED';
  for (auto at = text.find(kLead); at != std::string_view::npos;
       at = text.find(kLead, at + 1)) {
    if (static_cast<unsigned char>(text[at + 1]) >= 0xA0) return true;
  }
  return false;
}

}  // namespace

bool IsUtf8(std::string_view text) {
  return unicode::IsLegalUtf8(text) && !HasSurrogate(text);
}

std::size_t Utf16Length(std::string_view text) {
  std::size_t units = 0;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (!unicode::IsTrailingByte(byte)) ++units;
    if (byte >= 0xF0) ++units;  // a surrogate pair
  }
  return units;
}

}  // namespace velmohelp
