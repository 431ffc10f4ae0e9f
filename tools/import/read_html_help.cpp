#include <algorithm>
#include <map>
#include <optional>
#include <set>

#include "tools/files.h"
#include "tools/import/readers.h"
#include "tools/lines.h"
#include "tools/printable.h"

namespace velmohelp::tool {
namespace {

constexpr std::string_view kSpace = " \t";

std::string_view Trim(std::string_view text) {
  const std::size_t start = text.find_first_not_of(kSpace);
  if (start == std::string_view::npos) return {};
  return text.substr(start, text.find_last_not_of(kSpace) - start + 1);
}

std::string_view WithoutComment(std::string_view line) {
  return Trim(line.substr(0, std::min(line.find(';'), line.find("//"))));
}

/// Removes the first word of text and returns it.
std::string_view PopWord(std::string_view& text) {
  const std::string_view word = text.substr(0, text.find_first_of(kSpace));
  text.remove_prefix(word.size());
  text = Trim(text);
  return word;
}

std::string Lowered(std::string_view text) {
  std::string lowered(text);
  std::ranges::transform(lowered, lowered.begin(), [](char c) {
    return 'A' <= c && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
  return lowered;
}

/// "1000", "0x3e8" and "(1000)" are the number 1000, which an application
/// passes in decimal; nullopt when the text is not a number.
std::optional<std::string> DecimalOf(std::string_view text) {
  if (text.starts_with('(') && text.ends_with(')')) {
    text = Trim(text.substr(1, text.size() - 2));
  }
  try {
    std::size_t used = 0;
    const unsigned long number = std::stoul(std::string(text), &used, 0);
    const std::string_view suffix = text.substr(used);
    if (suffix.find_first_not_of("uUlL") != std::string_view::npos) return {};
    return std::to_string(number);
  } catch (const std::logic_error&) {
    return std::nullopt;
  }
}

std::string ForwardSlashes(std::string_view path) {
  std::string text(path);
  std::ranges::replace(text, '\\', '/');
  return text;
}

/// The project's sections that matter here.
enum class Section { kOther, kMap, kAlias };

struct Alias {
  std::string name;
  std::string page;
  std::size_t line;
};

class Project {
 public:
  explicit Project(const std::filesystem::path& file)
      : folder_(std::filesystem::weakly_canonical(file).parent_path()) {
    read_.emplace(std::filesystem::weakly_canonical(file), Section::kMap);
    Read(file, Section::kMap, 0);
  }

  IdTable ToTable() {
    if (aliases_.empty()) throw ImportError("no [ALIAS] section with a page");
    for (const Alias& alias : aliases_) {
      table_.rows.push_back({alias.name, alias.page, alias.line});
      const auto number = numbers_.find(alias.name);
      if (number == numbers_.end()) continue;
      table_.rows.push_back({number->second, alias.page, alias.line});
    }
    return std::move(table_);
  }

 private:
  /// Each file that is being read takes a part of the stack.
  static constexpr int kDeepestInclude = 16;

  void Read(const std::filesystem::path& file, Section section, int depth) {
    const std::string text = ReadWholeFile(file);
    ForEachLine(text, [&](std::string_view whole, std::size_t number) {
      std::string_view line = Trim(whole);
      if (line.starts_with('[')) {
        section = SectionOf(line);
      } else if (line.starts_with('#')) {
        ReadDirective(line.substr(1), section, number, depth);
      } else if (section == Section::kAlias) {
        ReadAlias(WithoutComment(line), number);
      }
    });
  }

  static Section SectionOf(std::string_view line) {
    const std::string name = Lowered(line.substr(0, line.find(']')));
    if (name == "[map") return Section::kMap;
    return name == "[alias" ? Section::kAlias : Section::kOther;
  }

  void ReadDirective(std::string_view text, Section section, std::size_t line,
                     int depth) {
    text = Trim(text);
    const std::string_view word = PopWord(text);
    if (word == "define") {
      Define(WithoutComment(text));
    } else if (word == "include" && section != Section::kOther) {
      Include(WithoutComment(text), section, line, depth);
    }
  }

  void Define(std::string_view text) {
    const std::string name(PopWord(text));
    const auto number = DecimalOf(text);
    if (number) numbers_.emplace(name, *number);
  }

  void Include(std::string_view name, Section section, std::size_t line,
               int depth) {
    if (name.size() > 2 && (name.front() == '"' || name.front() == '<')) {
      name = name.substr(1, name.size() - 2);
    }
    std::error_code error;
    const auto file = std::filesystem::weakly_canonical(
        folder_ / ForwardSlashes(name), error);
    if (depth == kDeepestInclude || !IsInside(file)) {
      table_.remarks.push_back(
          {line,
           "#include of a file outside the project's folder, or too "
           "deep; skipped"});
      return;
    }
    if (!std::filesystem::exists(file, error)) {
      table_.remarks.push_back(
          {line, "there is no file " + Printable(file.string())});
      return;
    }
    // A second time has nothing new; a few files that include each other often
    // would be read forever.
    if (read_.emplace(file, section).second) Read(file, section, depth + 1);
  }

  bool IsInside(const std::filesystem::path& file) const {
    const auto [end, unused] = std::ranges::mismatch(folder_, file);
    return end == folder_.end();
  }

  void ReadAlias(std::string_view text, std::size_t line) {
    if (text.empty()) return;
    const std::size_t equals = text.find('=');
    const std::string_view name = Trim(text.substr(0, equals));
    const std::string_view page =
        equals == std::string_view::npos ? "" : Trim(text.substr(equals + 1));
    if (name.empty() || page.empty()) {
      table_.remarks.push_back({line, "is not NAME=PAGE; skipped"});
      return;
    }
    aliases_.push_back({std::string(name), ForwardSlashes(page), line});
  }

  std::filesystem::path folder_;
  std::set<std::pair<std::filesystem::path, Section>> read_;
  std::map<std::string, std::string, std::less<>> numbers_;
  std::vector<Alias> aliases_;
  IdTable table_;
};

}  // namespace

IdTable ReadHtmlHelp(const std::filesystem::path& file) {
  return Project(file).ToTable();
}

}  // namespace velmohelp::tool
