#include "viewer/content/search_query.h"

namespace viewer {
namespace {

bool IsUpper(char c) { return c >= 'A' && c <= 'Z'; }
bool IsLower(char c) { return c >= 'a' && c <= 'z'; }

bool IsWordByte(char c) {
  return IsUpper(c) || IsLower(c) || (c >= '0' && c <= '9') ||
         static_cast<unsigned char>(c) >= 0x80;
}

int HexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  const char lower = static_cast<char>(c | 0x20);
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

std::vector<std::string> Split(std::string_view text, bool at_capitals) {
  std::vector<std::string> words;
  bool in_word = false;
  char last = '\0';
  for (const char c : text) {
    const bool begins =
        !in_word || (at_capitals && IsUpper(c) && IsLower(last));
    in_word = IsWordByte(c);
    last = c;
    if (!in_word) continue;
    if (begins) words.emplace_back();
    words.back() += c;
  }
  return words;
}

// Quoted, no word is an operator of the query language.
std::string Joined(const std::vector<std::string>& words, const char* between) {
  std::string query;
  for (const auto& word : words) {
    if (!query.empty()) query += between;
    query += '"' + word + '"';
  }
  return query.empty() ? query : query + "*";
}

}  // namespace

std::vector<std::string> WordsOf(std::string_view text) {
  return Split(text, false);
}

std::vector<std::string> WordsOfId(std::string_view id) {
  return Split(id, true);
}

std::string AllWords(const std::vector<std::string>& words) {
  return Joined(words, " ");
}

std::string AnyWord(const std::vector<std::string>& words) {
  return Joined(words, " OR ");
}

std::string DecodeSearchTerm(const std::string& term) {
  std::string text;
  for (std::size_t i = 0; i < term.size(); ++i) {
    const bool has_digits = term[i] == '%' && i + 2 < term.size();
    const int high = has_digits ? HexValue(term[i + 1]) : -1;
    const int low = has_digits ? HexValue(term[i + 2]) : -1;
    if (high < 0 || low < 0) {
      text += term[i];
    } else {
      text += static_cast<char>(static_cast<unsigned char>(high * 16 + low));
      i += 2;
    }
  }
  return text;
}

}  // namespace viewer
