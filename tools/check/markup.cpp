#include "tools/check/markup.h"

#include <algorithm>

namespace velmohelp::tool {
namespace {

constexpr std::string_view kSpace = " \t\r\n";
constexpr std::string_view kEndsName = " \t\r\n=>/\"'<";

class Reader {
 public:
  explicit Reader(std::string_view text) : rest_(text) {}

  Markup Read() {
    while (SkipTo("<")) {
      if (rest_.starts_with("<!--")) {
        markup_.comments.push_back(Pop(SizeTo("-->")));
      } else if (rest_.starts_with("<?") || rest_.starts_with("<!")) {
        Pop(SizeTo(">"));
      } else {
        Pop(1);
        ReadTag();
      }
    }
    return std::move(markup_);
  }

 private:
  bool SkipTo(std::string_view bytes) {
    Pop(std::min(rest_.find_first_of(bytes), rest_.size()));
    return !rest_.empty();
  }

  /// Up to the end of what ends with bytes, or of the text.
  std::size_t SizeTo(std::string_view bytes) const {
    const std::size_t end = rest_.find(bytes);
    return end == std::string_view::npos ? rest_.size() : end + bytes.size();
  }

  std::string_view Pop(std::size_t size) {
    const std::string_view popped = rest_.substr(0, size);
    rest_.remove_prefix(popped.size());
    return popped;
  }

  void SkipSpace() {
    Pop(std::min(rest_.find_first_not_of(kSpace), rest_.size()));
  }

  bool Skip(char c) {
    if (!rest_.starts_with(c)) return false;
    Pop(1);
    return true;
  }

  void ReadTag() {
    for (SkipSpace(); !rest_.empty() && !Skip('>'); SkipSpace()) {
      const std::string_view name =
          Pop(std::min(rest_.find_first_of(kEndsName), rest_.size()));
      SkipSpace();
      if (name.empty()) {
        Pop(1);
      } else if (Skip('=')) {
        ReadValue(name);
      }
    }
  }

  void ReadValue(std::string_view name) {
    SkipSpace();
    if (!rest_.starts_with('"') && !rest_.starts_with('\'')) return;
    const char quote = Pop(1).front();
    const std::string_view value =
        Pop(std::min(rest_.find(quote), rest_.size()));
    Skip(quote);
    markup_.attributes.push_back({name, value, quote});
  }

  std::string_view rest_;
  Markup markup_;
};

}  // namespace

Markup ReadMarkup(std::string_view text) { return Reader(text).Read(); }

}  // namespace velmohelp::tool
