#include "platform/linux/helpers/decoder.h"

#include <cerrno>
#include <utility>

namespace velmohelp {
namespace {

const iconv_t kNoState = reinterpret_cast<iconv_t>(-1);

/// More bytes than this cannot be the beginning of one character.
constexpr std::size_t kLongestRest = 32;

/// iconv takes a name apart: an empty one is the locale's, and "//IGNORE"
/// behind one lets everything pass.
bool IsPlainName(const std::string& charset) {
  return !charset.empty() && charset.find('/') == std::string::npos &&
         charset.find(',') == std::string::npos;
}

}  // namespace

Decoder::Decoder(const std::string& charset)
    : state_(IsPlainName(charset) ? iconv_open("UTF-32LE", charset.c_str())
                                  : kNoState),
      decodes_(state_ != kNoState) {}

Decoder::Decoder(Decoder&& other) noexcept
    : state_(std::exchange(other.state_, kNoState)),
      decodes_(other.decodes_),
      rest_(std::move(other.rest_)) {}

Decoder::~Decoder() {
  if (state_ != kNoState) iconv_close(state_);
}

void Decoder::Take(std::string_view piece) {
  if (!decodes_) return;
  std::string input = rest_.append(piece);
  char* in = input.data();
  std::size_t in_left = input.size();
  int error = E2BIG;
  while (error == E2BIG) {
    char discarded[8192];
    char* out = discarded;
    std::size_t out_left = sizeof discarded;
    const auto done = iconv(state_, &in, &in_left, &out, &out_left);
    error = done == static_cast<std::size_t>(-1) ? errno : 0;
  }
  rest_.assign(in, in_left);
  // EINVAL: the piece ends within a character.
  decodes_ = (error == 0 || error == EINVAL) && in_left <= kLongestRest;
}

}  // namespace velmohelp
