#include "viewer/web/content_policy.h"

#include <glib.h>

#include <algorithm>
#include <string_view>

namespace viewer {
namespace {

// The two characters would end the source in a policy, the third the attribute.
std::string PolicySource(const ContentFolder& folder) {
  std::string source;
  for (const char c : folder.Prefix()) {
    if (c == ';') {
      source += "%3B";
    } else if (c == ',') {
      source += "%2C";
    } else if (c == '&') {
      source += "&amp;";
    } else {
      source += c;
    }
  }
  return source;
}

bool StartsWith(std::string_view text, std::string_view lower) {
  return text.size() >= lower.size() &&
         g_ascii_strncasecmp(text.data(), lower.data(), lower.size()) == 0;
}

std::size_t After(std::string_view page, std::string_view end,
                  std::size_t from) {
  const auto at = page.find(end, from);
  return at == std::string_view::npos ? page.size() : at + end.size();
}

// After the declarations at the start, or 0: before a document type, the policy
// would change how the page is laid out.
std::size_t PolicyPlace(std::string_view page) {
  constexpr std::string_view kMark = "\xef\xbb\xbf";
  std::size_t at = page.starts_with(kMark) ? kMark.size() : 0;
  std::size_t place = at;
  while (true) {
    at = std::min(page.find_first_not_of(" \t\r\n\f", at), page.size());
    const auto rest = page.substr(at);
    if (rest.starts_with("<!--")) {
      // Engines end a comment in more ways than one. Where one that is not
      // plain could hide a script, the policy comes before it.
      const auto end = After(page, ">", at);
      const auto comment = page.substr(at, end - at);
      if (comment.size() < 7 || !comment.ends_with("-->")) return place;
      at = end;
    } else if (rest.starts_with("<?")) {
      at = place = After(page, ">", at);
    } else if (StartsWith(rest, "<!doctype")) {
      return After(page, ">", at);
    } else {
      return place;
    }
  }
}

}  // namespace

// Help pages carry scripts and styles in their text, so those stay allowed.
std::string ContentPolicy(const ContentFolder& folder) {
  const std::string own = PolicySource(folder);
  const std::string script =
      folder.trusted ? own + " 'unsafe-inline' 'unsafe-eval'" : "'none'";
  return "default-src 'none'; script-src " + script + "; style-src " + own +
         " 'unsafe-inline'; img-src " + own + " data: blob:; font-src " + own +
         " data:; media-src " + own + " data: blob:; connect-src " +
         (folder.trusted ? own : "'none'") + "; frame-src " + own +
         "; worker-src 'none'; object-src 'none'; form-action " + own +
         "; base-uri " + own;
}

std::string WithPolicy(std::string page, const std::string& policy) {
  return page.insert(PolicyPlace(page),
                     "<meta http-equiv=\"Content-Security-Policy\" content=\"" +
                         policy + "\"/>");
}

}  // namespace viewer
