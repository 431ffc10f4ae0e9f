#include "tests/support/answer_oracle.h"

#include <iconv.h>

#include <sstream>

#include "tests/support/key_oracle.h"
#include "tests/support/uri_oracle.h"

namespace velmohelp::testing {
namespace {

/// The pieces between separators; the text after the last one is a piece.
std::vector<std::string> Pieces(const std::string& text, char separator) {
  std::vector<std::string> pieces(1);
  for (const char byte : text) {
    if (byte == separator) {
      pieces.emplace_back();
    } else {
      pieces.back() += byte;
    }
  }
  return pieces;
}

std::string Trimmed(std::string text, const std::string& spaces) {
  while (!text.empty() && spaces.find(text.front()) != std::string::npos) {
    text.erase(0, 1);
  }
  while (!text.empty() && spaces.find(text.back()) != std::string::npos) {
    text.pop_back();
  }
  return text;
}

/// All of it at once, where the real check sees it in pieces.
bool Decodes(const std::string& charset, std::string body) {
  if (charset.empty() || charset.find_first_of("/,") != std::string::npos) {
    return false;
  }
  iconv_t state = iconv_open("UTF-32LE", charset.c_str());
  if (state == reinterpret_cast<iconv_t>(-1)) return false;
  std::string text(16 * body.size() + 16, '\0');
  char* in = body.data();
  char* out = text.data();
  std::size_t in_left = body.size();
  std::size_t out_left = text.size();
  const auto done = iconv(state, &in, &in_left, &out, &out_left);
  iconv_close(state);
  return done != static_cast<std::size_t>(-1) && in_left == 0;
}

bool BeginsWith(const std::string& start, const std::string& text) {
  return text.compare(0, start.size(), start) == 0;
}

}  // namespace

std::optional<std::string> OraclePreference(const std::string& file,
                                            const std::string& key) {
  const std::string spaces = " \t\r\v\f";
  const bool is_marked = BeginsWith("\xEF\xBB\xBF", file);
  std::string group;
  std::optional<std::string> value;
  for (const std::string& piece :
       Pieces(file.substr(is_marked ? 3 : 0), '\n')) {
    const std::string line = Trimmed(piece, spaces);
    const std::size_t sign = line.find('=');
    if (BeginsWith("[", line)) {
      group = line;
    } else if (sign != std::string::npos && !BeginsWith("#", line) &&
               group == "[Preferences]" &&
               Trimmed(line.substr(0, sign), spaces) == key) {
      value = Trimmed(line.substr(sign + 1), spaces);
    }
  }
  const bool is_text =
      value && OracleIsUtf8(*value) && value->find('\0') == std::string::npos;
  return is_text ? value : std::nullopt;
}

std::string OracleToolPath(const std::string& output) {
  for (const char byte : output) {
    if (byte <= '\0') return "";
  }
  if (output.size() >= 1024) return "";
  const bool ends_line = !output.empty() && output.back() == '\n';
  return output.substr(0, output.size() - (ends_line ? 1 : 0));
}

std::optional<std::vector<std::string>> OracleBrowserWords(
    const std::string& answer) {
  std::vector<std::string> records = Pieces(answer, '\0');
  if (!records.back().empty()) return std::nullopt;
  records.pop_back();
  if (records.size() == 1 && records[0] == "opened") return {{}};
  if (records.size() < 3 || records[0] != "start") return std::nullopt;
  std::ostringstream count;
  count << records.size() - 2;
  if (records[1] != count.str()) return std::nullopt;
  if (!BeginsWith("/", records[2])) return std::nullopt;
  return std::vector<std::string>(records.begin() + 2, records.end());
}

std::string OracleCharset(const std::string& content_type) {
  std::vector<std::string> parameters = Pieces(content_type, ';');
  parameters.erase(parameters.begin());
  for (const std::string& parameter : parameters) {
    const std::size_t sign = parameter.find('=');
    if (sign == std::string::npos) continue;
    const std::string name = Trimmed(parameter.substr(0, sign), " \t");
    if (OracleUpper(name) != "CHARSET") continue;
    const std::string value = Trimmed(parameter.substr(sign + 1), " \t");
    if (value.size() < 2 || value[0] != '"') return value;
    return Pieces(value, '"')[1];
  }
  return "";
}

bool OracleIsText(const std::string& charset, const std::string& body) {
  using namespace std::string_literals;
  return OracleIsUtf8(body) || Decodes(charset, body) ||
         (BeginsWith("\xFF\xFE\0\0"s, body) && Decodes("UTF-32LE", body)) ||
         (BeginsWith("\0\0\xFE\xFF"s, body) && Decodes("UTF-32BE", body)) ||
         (BeginsWith("\xFF\xFE", body) && Decodes("UTF-16LE", body)) ||
         (BeginsWith("\xFE\xFF", body) && Decodes("UTF-16BE", body));
}

}  // namespace velmohelp::testing
