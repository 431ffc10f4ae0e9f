// Whether a resource is text.
#ifndef PLATFORM_LINUX_HELPERS_TEXT_CHECK_H_
#define PLATFORM_LINUX_HELPERS_TEXT_CHECK_H_

#include <string>
#include <string_view>
#include <vector>

#include "platform/linux/helpers/decoder.h"

namespace velmohelp {

/// The "charset" of a Content-Type ("text/html; charset=\"utf-8\""), "" when
/// there is none.
std::string CharsetOf(std::string_view content_type);

/// Checks a body as it arrives, in pieces cut anywhere. A body is text when it
/// decodes in its declared charset, in that of its Unicode byte order mark, or
/// as UTF-8. An empty body is text. Keeps a few bytes, however long the body.
class TextCheck {
 public:
  /// charset: the declared one, "" for none.
  explicit TextCheck(const std::string& charset);

  void Feed(std::string_view piece);

  /// False when it cannot be text, whatever follows.
  bool MayBeText() const;
  /// What was fed is the whole body, and is text. The last call.
  bool IsText();

 private:
  /// Chooses the decoders, once the first bytes or the whole body have arrived.
  void Begin();
  void Decode(std::string_view piece);

  std::vector<Decoder> decoders_;
  std::string start_;
  bool begun_ = false;
};

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_HELPERS_TEXT_CHECK_H_
