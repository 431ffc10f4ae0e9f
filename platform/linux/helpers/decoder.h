// Whether a stream of bytes is text in one character set.
#ifndef PLATFORM_LINUX_HELPERS_DECODER_H_
#define PLATFORM_LINUX_HELPERS_DECODER_H_

#include <iconv.h>

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
  Decoder(Decoder&& other) noexcept;
  Decoder& operator=(Decoder&&) = delete;
  Decoder(const Decoder&) = delete;
  Decoder& operator=(const Decoder&) = delete;
  ~Decoder();

  void Take(std::string_view piece);

  /// Everything so far decodes, as the beginning of a text.
  bool DecodesSoFar() const { return decodes_; }
  /// Everything so far decodes, as a whole text.
  bool DecodesWhole() const { return decodes_ && rest_.empty(); }

 private:
  iconv_t state_;
  bool decodes_;
  std::string rest_;
};

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_HELPERS_DECODER_H_
