#include "platform/linux/helpers/decoder.h"

#include <cerrno>
#include <cstdint>

namespace velmohelp {
namespace {

/// More bytes than this are never part of one character.
constexpr std::size_t kLongestRest = 32;

/// iconv parses a name: "" means the locale's charset, and a suffix "//IGNORE"
/// accepts every byte.
bool IsPlainName(const std::string& charset) {
  return !charset.empty() && charset.find('/') == std::string::npos &&
         charset.find(',') == std::string::npos;
}

iconv_t Open(const std::string& charset) {
  if (!IsPlainName(charset)) return nullptr;
  iconv_t state = iconv_open("UTF-32LE", charset.c_str());
  return reinterpret_cast<std::intptr_t>(state) == -1 ? nullptr : state;
}

}  // namespace

Decoder::Decoder(const std::string& charset)
    : state_(Open(charset), &iconv_close), decodes_(state_ != nullptr) {}

void Decoder::Feed(std::string_view piece) {
  if (!decodes_) return;
  std::string input = rest_.append(piece);
  char* in = input.data();
  std::size_t in_left = input.size();
  int error = E2BIG;
  while (error == E2BIG) {
    char discarded[8192];
    char* out = discarded;
    std::size_t out_left = sizeof discarded;
    const auto done = iconv(state_.get(), &in, &in_left, &out, &out_left);
    error = done == static_cast<std::size_t>(-1) ? errno : 0;
  }
  rest_.assign(in, in_left);
  // EINVAL: the piece ends inside a character.
  decodes_ = (error == 0 || error == EINVAL) && in_left <= kLongestRest;
}

}  // namespace velmohelp
