#include "platform/linux/helpers/exec_line.h"

#include <glib.h>

#include <string_view>

namespace velmohelp {
namespace {

using Words = std::vector<std::string>;

bool IsUrlCode(char code) {
  return std::string_view("uUfF").find(code) != std::string_view::npos;
}

Words SplitLine(const std::string& line) {
  int count = 0;
  char** split = nullptr;
  if (g_shell_parse_argv(line.c_str(), &count, &split, nullptr) == 0) return {};
  Words words(split, split + count);
  g_strfreev(split);
  return words;
}

std::string ValueOf(char code, const FieldValues& values) {
  if (IsUrlCode(code)) return values.url;
  if (code == 'c') return values.name;
  if (code == 'k') return values.file;
  return code == '%' ? "%" : "";
}

/// Replaces the codes in one word. url_given: set when one was the URL's.
std::string ExpandWord(const std::string& word, const FieldValues& values,
                       bool& url_given) {
  std::string expanded;
  for (std::size_t i = 0; i < word.size(); ++i) {
    if (word[i] != '%' || i + 1 == word.size()) {
      expanded += word[i];
      continue;
    }
    const char code = word[++i];
    url_given = url_given || IsUrlCode(code);
    expanded += ValueOf(code, values);
  }
  return expanded;
}

void AppendWord(Words& words, const std::string& word,
                const FieldValues& values, bool& url_given) {
  if (word == "%i") {
    if (!values.icon.empty()) {
      words.insert(words.end(), {"--icon", values.icon});
    }
    return;
  }
  const std::string expanded = ExpandWord(word, values, url_given);
  // A word that was codes alone, all of them without a value, goes away.
  if (!expanded.empty() || word.empty()) words.push_back(expanded);
}

}  // namespace

Words ExpandExecLine(const std::string& line, const FieldValues& values) {
  Words words;
  bool url_given = false;
  for (const std::string& word : SplitLine(line)) {
    AppendWord(words, word, values, url_given);
  }
  if (!words.empty() && !url_given) words.push_back(values.url);
  return words;
}

}  // namespace velmohelp
