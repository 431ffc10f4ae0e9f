#include "util/lines.h"

namespace velmohelp {
namespace {

using Traits = std::char_traits<char>;

bool IsEnd(Traits::int_type byte) {
  return Traits::eq_int_type(byte, Traits::eof());
}

void SkipLineFeed(std::streambuf& input) {
  if (Traits::eq_int_type(input.sgetc(), Traits::to_int_type('\n'))) {
    input.sbumpc();
  }
}

}  // namespace

bool ReadLine(std::istream& stream, std::string& line) {
  const std::istream::sentry good(stream, true);
  if (!good) return true;
  line.clear();
  std::streambuf& input = *stream.rdbuf();
  while (line.size() < line.max_size()) {
    const Traits::int_type byte = input.sbumpc();
    if (IsEnd(byte)) return !line.empty();
    const char c = Traits::to_char_type(byte);
    if (c == '\r') SkipLineFeed(input);
    if (c == '\r' || c == '\n') return true;
    line += c;
  }
  return true;
}

int SplitFields(char delimiter, std::string_view text,
                std::deque<std::string>& out) {
  constexpr std::size_t kNone = std::string_view::npos;
  if (text.empty()) return 0;
  std::size_t start = text.find_first_not_of(delimiter);
  std::size_t end = text.find(delimiter, start);
  if (start == kNone || end == kNone) {
    out.emplace_back(text);
    return 1;
  }
  int count = 0;
  while (start < end) {
    out.emplace_back(text.substr(start, end - start));
    ++count;
    start = text.find_first_not_of(delimiter, end);
    end = start == kNone ? kNone : text.find(delimiter, start);
  }
  return count;
}

}  // namespace velmohelp
