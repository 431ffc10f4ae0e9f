// Whether a stream of bytes is text in one character set.
#ifndef PLATFORM_LINUX_HELPERS_DECODER_H_
#define PLATFORM_LINUX_HELPERS_DECODER_H_

#include <iconv.h>

#include <memory>
#include <string>
#include <string_view>

namespace velmohelp {

/// Takes the stream in pieces, cut anywhere, and keeps none of it but the
/// beginning of a character whose rest has not come.
class Decoder {
 public:
  /// charset: a name as the C library's iconv knows it. No stream decodes in a
  /// character set that it does not know.
  explicit Decoder(const std::string& charset);

  void Take(std::string_view piece);

  /// Everything so far decodes, as the beginning of a text.
  bool DecodesSoFar() const { return decodes_; }
  /// Everything so far decodes, as a whole text.
  bool DecodesWhole() const { return decodes_ && rest_.empty(); }

 private:
  /// iconv's state; null when it does not know the character set.
  std::unique_ptr<void, decltype(&iconv_close)> state_;
  bool decodes_;
  std::string rest_;
};

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_HELPERS_DECODER_H_
