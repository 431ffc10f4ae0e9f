#include "viewer/web/page_bytes.h"

#include <glib.h>

#include <array>

#include "viewer/gobject_ptr.h"

namespace viewer {
namespace {

struct Type {
  std::string_view extension;
  const char* media_type;
};

constexpr auto kTypes = std::to_array<Type>({
    {"html", "text/html"},        {"htm", "text/html"},
    {"xhtml", "text/html"},       {"css", "text/css"},
    {"js", "text/javascript"},    {"mjs", "text/javascript"},
    {"json", "application/json"}, {"xml", "text/xml"},
    {"xsl", "text/xml"},          {"txt", "text/plain"},
    {"png", "image/png"},         {"jpg", "image/jpeg"},
    {"jpeg", "image/jpeg"},       {"gif", "image/gif"},
    {"svg", "image/svg+xml"},     {"webp", "image/webp"},
    {"ico", "image/x-icon"},      {"woff", "font/woff"},
    {"woff2", "font/woff2"},      {"ttf", "font/ttf"},
    {"otf", "font/otf"},          {"mp4", "video/mp4"},
    {"webm", "video/webm"},       {"ogg", "audio/ogg"},
    {"mp3", "audio/mpeg"},
});

std::string Lower(std::string_view text) {
  return Adopt(g_ascii_strdown(text.data(), static_cast<gssize>(text.size())));
}

// skip: the bytes of a mark that is not part of the text.
bool Convert(const char* charset, std::string& text, std::size_t skip = 0) {
  gsize size = 0;
  const TextPtr converted(g_convert(text.data() + skip,
                                    static_cast<gssize>(text.size() - skip),
                                    "UTF-8", charset, nullptr, &size, nullptr));
  if (!converted) return false;
  text.assign(converted.get(), size);
  return true;
}

bool IsUtf8(const std::string& text) {
  return g_utf8_validate_len(text.data(), text.size(), nullptr);
}

const char* ByteOrderMark(std::string_view text) {
  if (text.starts_with("\xff\xfe")) return "UTF-16LE";
  if (text.starts_with("\xfe\xff")) return "UTF-16BE";
  return nullptr;
}

}  // namespace

std::string MediaType(std::string_view name) {
  const auto dot = name.rfind('.');
  if (dot == std::string_view::npos) return {};
  const std::string extension = Lower(name.substr(dot + 1));
  for (const auto& type : kTypes) {
    if (type.extension == extension) return type.media_type;
  }
  return {};
}

bool IsPageName(std::string_view name) {
  return MediaType(name).find("html") != std::string::npos;
}

std::string DeclaredCharset(std::string_view page) {
  constexpr std::string_view kKey = "charset=";
  const std::string head = Lower(page.substr(0, 1024));
  auto at = head.find(kKey);
  if (at == std::string::npos) return {};
  at = head.find_first_not_of("\"' ", at + kKey.size());
  if (at == std::string::npos) return {};
  const auto end = head.find_first_of("\"' ;/>", at);
  return head.substr(at, end == std::string::npos ? end : end - at);
}

PageProblem MakeUtf8(std::string& text) {
  if (const char* charset = ByteOrderMark(text)) {
    return Convert(charset, text, 2) ? PageProblem::kNone
                                     : PageProblem::kEncoding;
  }
  if (text.find('\0') != std::string::npos) return PageProblem::kBinary;
  const std::string charset = DeclaredCharset(text);
  const bool claims_utf8 = charset.empty() || charset == "utf-8";
  if (!claims_utf8 && Convert(charset.c_str(), text)) return PageProblem::kNone;
  return IsUtf8(text) ? PageProblem::kNone : PageProblem::kEncoding;
}

}  // namespace viewer
