#include "platform/linux/helpers/exec_line.h"

#include <glib.h>

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

#include "platform/linux/helpers/gobject_ptr.h"

namespace velmohelp {
namespace {

using Words = std::vector<std::string>;

bool IsOneOf(std::string_view characters, char c) {
  return characters.find(c) != std::string_view::npos;
}

/// Follows a line's words and their quoting, by the rules of
/// g_shell_parse_argv.
class Quoting {
 public:
  /// Steps over the next character.
  void Step(char c) {
    if (std::exchange(escaped_, false)) return;
    if (open_ == '\0' && IsOneOf(" \t\n", c)) {
      word_is_quoted_ = word_has_code_ = false;
    } else if (c == '\\' && open_ != '\'') {
      word_is_quoted_ = escaped_ = true;
    } else if (c == open_) {
      open_ = '\0';
    } else if (open_ == '\0' && IsOneOf("\"'", c)) {
      word_is_quoted_ = true;
      open_ = c;
    }
  }

  void StepOverCode() { word_has_code_ = true; }

  /// A part of the word is quoted, and a part of it is a field code: with
  /// sh -c 'browser '%u the address would become part of a program.
  bool HasCodeInQuotedWord() const { return word_is_quoted_ && word_has_code_; }

 private:
  char open_ = '\0';
  bool escaped_ = false;
  bool word_is_quoted_ = false;
  bool word_has_code_ = false;
};

bool IsUrlCode(char code) { return IsOneOf("uUfF", code); }

std::string Quoted(const std::string& value) {
  return Text(TextPtr(g_shell_quote(value.c_str())));
}

/// A value as a word; no word, not an empty one, for a value that is missing.
std::string WordOf(const std::string& value) {
  return value.empty() ? "" : Quoted(value);
}

/// Replaces field codes one by one, from the start of a line to its end.
class FieldCodes {
 public:
  explicit FieldCodes(const FieldValues& values) : values_(values) {}

  std::string Expand(char code) {
    if (IsUrlCode(code)) {
      return std::exchange(url_given_, true) ? "" : Quoted(values_.url);
    }
    switch (code) {
      case 'i':
        return values_.icon.empty() ? "" : "--icon " + Quoted(values_.icon);
      case 'c':
        return WordOf(values_.name);
      case 'k':
        return WordOf(values_.file);
      case '%':
        return "%";
      default:
        return "";
    }
  }

  bool url_given() const { return url_given_; }

 private:
  const FieldValues& values_;
  bool url_given_ = false;
};

/// The line with its codes replaced; nullopt when one is in a quoted word.
std::optional<std::string> Expanded(const std::string& line,
                                    FieldCodes& codes) {
  std::string expanded;
  Quoting quoting;
  for (std::size_t i = 0; i < line.size(); ++i) {
    quoting.Step(line[i]);
    if (line[i] != '%' || i + 1 == line.size()) {
      expanded += line[i];
    } else {
      const char code = line[++i];
      if (code != '%') quoting.StepOverCode();
      expanded += codes.Expand(code);
    }
    if (quoting.HasCodeInQuotedWord()) return std::nullopt;
  }
  return expanded;
}

Words Split(const std::string& line) {
  int count = 0;
  char** split = nullptr;
  if (g_shell_parse_argv(line.c_str(), &count, &split, nullptr) == 0) return {};
  Words words(split, split + count);
  g_strfreev(split);
  return words;
}

/// Some word has the URL in it: a code in a comment of the line gives none.
bool GivesUrl(const Words& words, const std::string& url) {
  return std::any_of(words.begin(), words.end(), [&](const std::string& word) {
    return word.find(url) != std::string::npos;
  });
}

}  // namespace

Words ExpandExecLine(const std::string& line, const FieldValues& values) {
  FieldCodes codes(values);
  const auto expanded = Expanded(line, codes);
  Words words = expanded ? Split(*expanded) : Words();
  if (!words.empty() && !codes.url_given()) words.push_back(values.url);
  return GivesUrl(words, values.url) ? words : Words();
}

}  // namespace velmohelp
