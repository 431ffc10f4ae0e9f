#include "bench/unicode/corpora.h"

#include <random>

namespace velmohelp::bench {
namespace {

using Random = std::mt19937;

std::size_t Below(Random& random, std::size_t bound) {
  return random() % bound;
}

void Append(std::string& text, unsigned c) {
  const auto put = [&](unsigned byte) { text += static_cast<char>(byte); };
  if (c < 0x80) return put(c);
  if (c < 0x800) {
    put(0xC0 | (c >> 6));
  } else {
    if (c < 0x10000) {
      put(0xE0 | (c >> 12));
    } else {
      put(0xF0 | (c >> 18));
      put(0x80 | ((c >> 12) & 0x3F));
    }
    put(0x80 | ((c >> 6) & 0x3F));
  }
  put(0x80 | (c & 0x3F));
}

/// Lengths of words as in running text: many short, few long.
std::size_t WordLength(Random& random) {
  return 1 + Below(random, 6) + Below(random, 7);
}

void AppendSpace(std::string& text, Random& random) {
  switch (Below(random, 12)) {
    case 0:
      text += ", ";
      break;
    case 1:
      text += ".\n";
      break;
    default:
      text += ' ';
  }
}

void AppendAscii(std::string& text, Random& random) {
  for (std::size_t n = WordLength(random); n != 0; --n) {
    Append(text, 'a' + static_cast<unsigned>(Below(random, 26)));
  }
  AppendSpace(text, random);
}

/// About one letter of eight has an accent, as in French or Czech.
void AppendLatin(std::string& text, Random& random) {
  for (std::size_t n = WordLength(random); n != 0; --n) {
    const bool accent = Below(random, 8) == 0;
    Append(text, accent ? 0xE0 + static_cast<unsigned>(Below(random, 32))
                        : 'a' + static_cast<unsigned>(Below(random, 26)));
  }
  AppendSpace(text, random);
}

void AppendCyrillic(std::string& text, Random& random) {
  for (std::size_t n = WordLength(random); n != 0; --n) {
    Append(text, 0x430 + static_cast<unsigned>(Below(random, 32)));
  }
  AppendSpace(text, random);
}

/// Sentences without spaces between words; now and then a name in Latin script.
void AppendCjk(std::string& text, Random& random) {
  for (std::size_t n = 4 + Below(random, 24); n != 0; --n) {
    Append(text, 0x4E00 + static_cast<unsigned>(Below(random, 0x5000)));
  }
  if (Below(random, 6) == 0) {
    AppendAscii(text, random);
  } else {
    Append(text, Below(random, 2) == 0 ? 0x3002 : 0xFF0C);
  }
}

/// One to four emoji between spaces, and sometimes a word.
void AppendEmoji(std::string& text, Random& random) {
  for (std::size_t n = 1 + Below(random, 4); n != 0; --n) {
    Append(text, 0x1F300 + static_cast<unsigned>(Below(random, 0x350)));
  }
  text += ' ';
  if (Below(random, 8) == 0) AppendAscii(text, random);
}

/// A paragraph of a web page: markup, and text with an accent here and there.
void AppendHtml(std::string& text, Random& random) {
  text += "<p class=\"text\"><a href=\"/wiki/";
  AppendAscii(text, random);
  text += "\" title=\"\">";
  for (std::size_t n = 2 + Below(random, 12); n != 0; --n) {
    if (Below(random, 6) == 0) {
      AppendLatin(text, random);
    } else {
      AppendAscii(text, random);
    }
  }
  text += "</a></p>\n";
}

template <typename AppendSome>
Corpus Make(const char* name, std::size_t size, AppendSome append) {
  Random random(6);  // NOLINT: the same text every time
  Corpus corpus{name, {}};
  while (corpus.utf8.size() < size) append(corpus.utf8, random);
  std::size_t end = size;
  while ((corpus.utf8[end] & 0xC0) == 0x80) --end;
  corpus.utf8.resize(end);
  return corpus;
}

}  // namespace

std::vector<Corpus> MakeCorpora(std::size_t size) {
  return {
      Make("ASCII", size, AppendAscii),       Make("Latin", size, AppendLatin),
      Make("Cyrillic", size, AppendCyrillic), Make("CJK", size, AppendCjk),
      Make("emoji", size, AppendEmoji),       Make("HTML", size, AppendHtml)};
}

}  // namespace velmohelp::bench
