// Whether a stream of bytes is text in one charset.
#ifndef PLATFORM_LINUX_HELPERS_DECODER_H_
#define PLATFORM_LINUX_HELPERS_DECODER_H_

#include <iconv.h>

#include <memory>
#include <string>
#include <string_view>

namespace velmohelp {

/// Decodes a stream in pieces, cut anywhere. Keeps only the first bytes of a
/// character whose other bytes have not arrived.
class Decoder {
 public:
  /// charset: a name of the C library's iconv. Nothing decodes in a charset
  /// that iconv does not know.
  explicit Decoder(const std::string& charset);

  void Feed(std::string_view piece);

  /// What was fed decodes, as the start of a text.
  bool DecodesSoFar() const { return decodes_; }
  /// What was fed decodes, as a whole text.
  bool DecodesWhole() const { return decodes_ && rest_.empty(); }

 private:
  /// iconv's state; null for an unknown charset.
  std::unique_ptr<void, decltype(&iconv_close)> state_;
  bool decodes_;
  std::string rest_;
};

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_HELPERS_DECODER_H_
