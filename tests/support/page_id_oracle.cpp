#include "tests/support/page_id_oracle.h"

namespace velmohelp::testing {
namespace {

bool EndsWith(const std::string& end, const std::string& text) {
  return text.size() >= end.size() &&
         text.substr(text.size() - end.size()) == end;
}

}  // namespace

bool OracleIsUrl(const std::string& text) {
  return text.find("http://") == 0 || text.find("https://") == 0 ||
         text.find("file://") == 0;
}

bool OracleIsHtmlPage(const std::string& name) {
  return EndsWith(".html", name) || EndsWith(".htm", name);
}

/// Starts again at the first byte after each replacement.
std::string OraclePageId(std::string id) {
  const std::string allowed =
      "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ1234567890_-.";
  if (OracleIsUrl(id) || OracleIsHtmlPage(id)) return id;
  for (;;) {
    const int at = static_cast<int>(id.find_first_not_of(allowed));
    if (at < 0) return id + ".html";
    id[static_cast<std::size_t>(at)] = '_';
  }
}

std::string OracleAppendToPath(const std::string& base,
                               const std::string& leaf) {
  if (base.empty()) return leaf;
  if (leaf.empty()) return base;
  return EndsWith("/", base) ? base + leaf : base + "/" + leaf;
}

std::string OracleAppentPath(const std::string& base, const std::string& leaf) {
  return EndsWith("/", base) ? base + leaf : base + "/" + leaf;
}

std::string OracleUnquoted(const std::string& text) {
  std::string unquoted = text;
  if (unquoted.find('"') == 0) unquoted.erase(0, 1);
  if (EndsWith("\"", unquoted)) unquoted.erase(unquoted.size() - 1);
  return unquoted;
}

}  // namespace velmohelp::testing
