#include "util/search_term.h"

#include <algorithm>
#include <cstring>

namespace velmohelp {
namespace {

/// GCC and Clang compile it to vector instructions where the processor has
/// them.
using Block __attribute__((vector_size(16))) = unsigned char;

/// The counters are bytes: more blocks would overflow them.
constexpr std::size_t kMostBlocks = 255;

std::size_t CountInBlocks(const char* text, std::size_t blocks) {
  Block counts = {};
  for (const char* end = text + blocks * sizeof(Block); text != end;
       text += sizeof(Block)) {
    Block bytes;
    std::memcpy(&bytes, text, sizeof bytes);
    // A byte that stays gives -1.
    counts -= reinterpret_cast<Block>(StaysInSearchTerm(bytes));
  }
  std::size_t count = 0;
  for (std::size_t i = 0; i < sizeof(Block); ++i) count += counts[i];
  return count;
}

}  // namespace

std::size_t CountStaying(std::string_view text) {
  std::size_t count = 0;
  while (text.size() >= sizeof(Block)) {
    const auto blocks = std::min(text.size() / sizeof(Block), kMostBlocks);
    count += CountInBlocks(text.data(), blocks);
    text.remove_prefix(blocks * sizeof(Block));
  }
  for (const char byte : text) {
    count += StaysInSearchTerm(static_cast<unsigned char>(byte)) ? 1 : 0;
  }
  return count;
}

}  // namespace velmohelp
