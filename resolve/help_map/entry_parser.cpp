#include "resolve/help_map/entry_parser.h"

#include <cstring>

#include "util/word_scan.h"

namespace velmohelp {
namespace {

bool EndsField(char c) { return c == '\t' || EndsLine(c); }

/// All three bytes that end a field are below this one; the other bytes below
/// it are rare in help maps.
constexpr unsigned char kAboveFieldEnds = '\r' + 1;

/// Marks each byte that ends a field; only the first mark is to be trusted. For
/// the few words with another low byte before it.
Word MarkFieldEnds(Word word) {
  return MarkBelow(word ^ EightTimes('\t'), 1) |
         MarkBelow(word ^ EightTimes('\n'), 1) |
         MarkBelow(word ^ EightTimes('\r'), 1);
}

/// The first byte that ends a field, or end. Compares eight bytes at once:
///
///   bytes   i  n  t  r  o  \t p  a
///   marks   00 00 00 00 00 80 00 00    first mark: byte 5
///
/// A mark only says "below '\r' + 1", so the byte itself decides.
inline const char* FieldEnd(const char* at, const char* end) {
  while (static_cast<std::size_t>(end - at) >= sizeof(Word)) {
    const Word word = LoadWord(at);
    const Word low = MarkBelow(word, kAboveFieldEnds);
    if (low != 0 && EndsField(at[FirstMarked(low)])) {
      return at + FirstMarked(low);
    }
    const Word ends = low == 0 ? 0 : MarkFieldEnds(word);
    if (ends != 0) return at + FirstMarked(ends);
    at += sizeof(Word);
  }
  while (at != end && !EndsField(*at)) ++at;
  return at;
}

}  // namespace

std::string_view WholeLines(std::string_view text) {
  while (!text.empty() && !EndsLine(text.back())) text.remove_suffix(1);
  return text;
}

std::string_view LinesBeforeError(std::string_view text) {
  if (text.ends_with('\r')) text.remove_suffix(1);
  return WholeLines(text);
}

bool HelpMapParser::Next(HelpMapEntry& entry) {
  while (at_ != end_) {
    if (ParseLine(entry)) return true;
    SkipLinesWithoutTab();
  }
  return false;
}

bool HelpMapParser::ParseLine(HelpMapEntry& entry) {
  entry.key = ParseField();
  entry.value = ParseField();
  SkipLine();
  return !entry.value.empty();
}

std::string_view HelpMapParser::ParseField() {
  while (at_ != end_ && *at_ == '\t') ++at_;
  const char* start = at_;
  at_ = FieldEnd(at_, end_);
  return {start, at_};
}

void HelpMapParser::SkipLine() {
  while (at_ != end_ && !EndsLine(*at_)) at_ = FieldEnd(at_ + 1, end_);
  if (at_ == end_) return;
  const bool is_cr = *at_++ == '\r';
  if (is_cr && at_ != end_ && *at_ == '\n') ++at_;
}

/// A line without a tab has no entry. A file of line feeds alone is skipped as
/// fast as memchr looks through it.
void HelpMapParser::SkipLinesWithoutTab() {
  const auto left = static_cast<std::size_t>(end_ - at_);
  const auto* tab =
      left == 0 ? nullptr
                : static_cast<const char*>(std::memchr(at_, '\t', left));
  const char* start = tab == nullptr ? end_ : tab;
  while (tab != nullptr && start != at_ && !EndsLine(start[-1])) --start;
  at_ = start;
}

}  // namespace velmohelp
