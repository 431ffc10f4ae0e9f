#include "resolve/help_map/entry_parser.h"

#include "util/word_scan.h"

namespace velmohelp {
namespace {

bool EndsField(char c) { return c == '\t' || EndsLine(c); }

/// All three bytes that end a field lie below this one, and no others that one
/// meets in a help map.
constexpr unsigned char kAboveFieldEnds = '\r' + 1;

/// The first byte that ends a field, or end.
inline const char* FieldEnd(const char* at, const char* end) {
  while (static_cast<std::size_t>(end - at) >= sizeof(Word)) {
    const Word marks = MarkBelow(LoadWord(at), kAboveFieldEnds);
    if (marks == 0) {
      at += sizeof(Word);
      continue;
    }
    at += FirstMarked(marks);
    if (EndsField(*at)) return at;
    ++at;
  }
  while (at != end && !EndsField(*at)) ++at;
  return at;
}

}  // namespace

std::string_view WholeLines(std::string_view text) {
  while (!text.empty() && !EndsLine(text.back())) text.remove_suffix(1);
  return text;
}

bool HelpMapReader::Next(HelpMapEntry& entry) {
  while (at_ != end_) {
    if (TakeLine(entry)) return true;
  }
  return false;
}

bool HelpMapReader::TakeLine(HelpMapEntry& entry) {
  entry.key = TakeField();
  entry.value = TakeField();
  SkipLine();
  return !entry.value.empty();
}

std::string_view HelpMapReader::TakeField() {
  while (at_ != end_ && *at_ == '\t') ++at_;
  const char* start = at_;
  at_ = FieldEnd(at_, end_);
  return {start, at_};
}

/// The LF of a CR LF is left to be an empty line, which holds no entry.
void HelpMapReader::SkipLine() {
  while (at_ != end_ && !EndsLine(*at_)) at_ = FieldEnd(at_ + 1, end_);
  if (at_ != end_) ++at_;
}

}  // namespace velmohelp
