// One entry of a help map's text, found without parsing the text.
#include "resolve/help_map/entry_parser.h"
#include "util/word_scan.h"

namespace velmohelp {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

/// The position of first followed by second, at or after position at. Compares
/// eight pairs at once: the text, and the text moved on by one byte.
///
///   text          p  r  i  n  t  \t q  u        first 't'
///   text + 1      r  i  n  t  \t q  u  i        second '\t'
///   differing     .. .. .. .. 00 .. .. ..       0 in both: found at byte 4
std::size_t FindPair(std::string_view text, std::size_t at, char first,
                     char second) {
  const Word firsts = EightTimes(static_cast<unsigned char>(first));
  const Word seconds = EightTimes(static_cast<unsigned char>(second));
  for (; at + sizeof(Word) < text.size(); at += sizeof(Word)) {
    const char* bytes = text.data() + at;
    const Word differing =
        (LoadWord(bytes) ^ firsts) | (LoadWord(bytes + 1) ^ seconds);
    const Word marks = MarkBelow(differing, 1);
    if (marks != 0) return at + FirstMarked(marks);
  }
  const char pair[] = {first, second};
  return text.find(pair, at, sizeof pair);
}

/// Only tabs come between the start of position's line and position.
bool BeginsLine(std::string_view text, std::size_t position) {
  const std::size_t before = text.substr(0, position).find_last_not_of('\t');
  return before == kNone || EndsLine(text[before]);
}

/// The value of key's entry when key ends before position end. The cheap test
/// comes first, and the key is compared only at the start of a line, so that no
/// text, however repetitive, makes the search quadratic.
std::optional<std::string_view> ValueAt(std::string_view text, std::size_t end,
                                        std::string_view key) {
  if (end < key.size()) return std::nullopt;
  const std::size_t start = end - key.size();
  if (text[start] != key.front() || !BeginsLine(text, start)) return {};
  if (text.substr(start, key.size()) != key) return {};
  HelpMapEntry entry;
  if (!HelpMapParser(text.substr(start)).ParseLine(entry)) return {};
  return entry.value;
}

}  // namespace

/// Looks for the last byte of the key and the tab after it: few lines have
/// both, whereas the keys of a map often have the same beginning.
std::optional<std::string_view> FindEntry(std::string_view text,
                                          std::string_view key) {
  if (key.empty() || key.find_first_of("\t\r\n") != kNone) return {};
  const char last = key.back();
  for (std::size_t at = FindPair(text, 0, last, '\t'); at != kNone;
       at = FindPair(text, at + 1, last, '\t')) {
    if (const auto value = ValueAt(text, at + 1, key)) return value;
  }
  return std::nullopt;
}

}  // namespace velmohelp
