#include "platform/linux/helpers/text_check.h"

#include <strings.h>

#include <algorithm>

#include "util/trim.h"

namespace velmohelp {
namespace {

struct ByteOrderMark {
  std::string_view bytes;
  const char* charset;
};

/// UTF-8's own mark needs no row: it is valid UTF-8. The first bytes of a body
/// can be the mark of two charsets; both are tried.
constexpr ByteOrderMark kMarks[] = {
    {{"\xFF\xFE\x00\x00", 4}, "UTF-32LE"},
    {{"\x00\x00\xFE\xFF", 4}, "UTF-32BE"},
    {"\xFF\xFE", "UTF-16LE"},
    {"\xFE\xFF", "UTF-16BE"},
};
constexpr std::size_t kLongestMark = 4;

constexpr std::string_view kSpaces = " \t";

bool EqualNames(std::string_view a, std::string_view b) {
  return a.size() == b.size() && strncasecmp(a.data(), b.data(), a.size()) == 0;
}

std::string_view Unquoted(std::string_view value) {
  if (value.size() < 2 || !value.starts_with('"')) return value;
  return value.substr(1, value.find('"', 1) - 1);
}

/// Consumes the text up to the first ";" and that; returns the text before it.
std::string_view ConsumeParameter(std::string_view& text) {
  const std::string_view parameter = text.substr(0, text.find(';'));
  text.remove_prefix(std::min(parameter.size() + 1, text.size()));
  return parameter;
}

}  // namespace

std::string CharsetOf(std::string_view content_type) {
  ConsumeParameter(content_type);  // the media type itself
  while (!content_type.empty()) {
    const std::string_view parameter = ConsumeParameter(content_type);
    const std::size_t sign = parameter.find('=');
    if (sign == std::string_view::npos) continue;
    if (EqualNames(Trimmed(parameter.substr(0, sign), kSpaces), "charset")) {
      return std::string(
          Unquoted(Trimmed(parameter.substr(sign + 1), kSpaces)));
    }
  }
  return "";
}

TextCheck::TextCheck(const std::string& charset) {
  decoders_.emplace_back("UTF-8");
  decoders_.emplace_back(charset);
}

void TextCheck::Feed(std::string_view piece) {
  if (begun_) {
    Decode(piece);
    return;
  }
  start_ += piece;
  if (start_.size() >= kLongestMark) Begin();
}

bool TextCheck::MayBeText() const {
  return std::any_of(
      decoders_.begin(), decoders_.end(),
      [](const Decoder& decoder) { return decoder.DecodesSoFar(); });
}

bool TextCheck::IsText() {
  if (!begun_) Begin();
  return std::any_of(
      decoders_.begin(), decoders_.end(),
      [](const Decoder& decoder) { return decoder.DecodesWhole(); });
}

void TextCheck::Begin() {
  begun_ = true;
  for (const ByteOrderMark& mark : kMarks) {
    if (start_.starts_with(mark.bytes)) decoders_.emplace_back(mark.charset);
  }
  Decode(start_);
  start_.clear();
}

void TextCheck::Decode(std::string_view piece) {
  for (Decoder& decoder : decoders_) decoder.Feed(piece);
}

}  // namespace velmohelp
