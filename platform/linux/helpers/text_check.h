// Whether a resource is a text.
#ifndef PLATFORM_LINUX_HELPERS_TEXT_CHECK_H_
#define PLATFORM_LINUX_HELPERS_TEXT_CHECK_H_

#include <string>
#include <string_view>
#include <vector>

#include "platform/linux/helpers/decoder.h"

namespace velmohelp {

/// The "charset" of a Content-Type ("text/html; charset=\"utf-8\""), "" when
/// it names none.
std::string CharsetOf(std::string_view content_type);

/// Checks a body as it comes, in pieces cut anywhere. It is text when it
/// decodes in the character set that it was declared to be in, or in the one
/// that its Unicode byte order mark announces, or as UTF-8. An empty body is
/// text. Holds a few bytes, however long the body.
class TextCheck {
 public:
  /// charset: the declared one, "" for none.
  explicit TextCheck(const std::string& charset);

  void Take(std::string_view piece);

  /// False when nothing that may follow makes a text of it.
  bool MayBeText() const;
  /// What came was the whole body, and is text. Nothing follows this call.
  bool IsText();

 private:
  /// Chooses the decoders, once the first bytes or all of them are there.
  void Begin();
  void Decode(std::string_view piece);

  std::vector<Decoder> decoders_;
  std::string start_;
  bool begun_ = false;
};

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_HELPERS_TEXT_CHECK_H_
