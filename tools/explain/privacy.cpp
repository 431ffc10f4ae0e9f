#include "tools/explain/privacy.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstdlib>
#include <filesystem>
#include <map>

#include "util/ascii.h"
#include "util/percent_encoding.h"

namespace velmohelp::tool {
namespace {

char Lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// A byte that continues a name: "ann" is not in "annual".
bool IsNameByte(char c) {
  return IsAsciiAlnum(c) || static_cast<unsigned char>(c) >= 0x80;
}

bool MatchesAt(const std::string& text, std::size_t at,
               const std::string& name) {
  if (at + name.size() > text.size()) return false;
  for (std::size_t i = 0; i < name.size(); ++i) {
    if (Lower(text[at + i]) != Lower(name[i])) return false;
  }
  return true;
}

bool IsWholeWord(const std::string& text, std::size_t at, std::size_t size) {
  const bool begins = at == 0 || !IsNameByte(text[at - 1]);
  const std::size_t end = at + size;
  return begins && (end == text.size() || !IsNameByte(text[end]));
}

void Replace(std::string& text, const std::string& name,
             const std::string& by) {
  if (name.empty()) return;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (!MatchesAt(text, at, name) || !IsWholeWord(text, at, name.size())) {
      continue;
    }
    text.replace(at, name.size(), by);
    at += by.size() - 1;
  }
}

/// A home ends at a slash or where a path does.
void ReplaceHome(std::string& text, const std::string& home) {
  if (home.size() < 2) return;
  for (std::size_t at = 0; (at = text.find(home, at)) != std::string::npos;) {
    const std::size_t end = at + home.size();
    const bool whole = end == text.size() || !IsNameByte(text[end]);
    if (whole) text.replace(at, home.size(), "HOME");
    at += 1;
  }
}

/// Ends a host name in a URL.
constexpr char kAfterHost[] = "/:?#\"' \n\\,)";

void ReplaceUrlHosts(std::string& text, const std::string& kept) {
  std::map<std::string, std::string> numbered;
  for (const std::string scheme : {"http://", "https://"}) {
    for (std::size_t at = 0;
         (at = text.find(scheme, at)) != std::string::npos;) {
      at += scheme.size();
      const std::size_t end = text.find_first_of(kAfterHost, at);
      const std::string host = text.substr(at, end - at);
      if (host.empty() || host == kept || host == "localhost") continue;
      const auto [known, is_new] =
          numbered.emplace(host, "HOST" + std::to_string(numbered.size() + 1));
      text.replace(at, host.size(), known->second);
    }
  }
  // A host is also named outside of URLs, in a question for its address.
  for (const auto& [host, number] : numbered) Replace(text, host, number);
}

void Add(std::vector<std::string>& names, const std::string& name) {
  if (!name.empty() && std::ranges::count(names, name) == 0) {
    names.push_back(name);
  }
}

void AddHome(std::vector<std::string>& homes, std::string home) {
  while (home.size() > 1 && home.ends_with('/')) home.pop_back();
  if (home.size() < 2 || home.front() != '/') return;
  Add(homes, home);
  Add(homes, EncodeUriComponent(home));
  std::error_code error;
  const auto real = std::filesystem::canonical(home, error);
  if (!error) Add(homes, real.string());
}

}  // namespace

PrivateNames NamesOfHere() {
  PrivateNames names;
  if (const passwd* user = getpwuid(getuid())) {
    names.user = user->pw_name;
    AddHome(names.homes, user->pw_dir);
  }
  if (const char* home = std::getenv("HOME")) AddHome(names.homes, home);
  std::array<char, HOST_NAME_MAX + 1> host = {};
  if (gethostname(host.data(), host.size() - 1) == 0) {
    const std::string name = host.data();
    Add(names.hosts, name);
    Add(names.hosts, name.substr(0, name.find('.')));
  }
  return names;
}

std::string WithoutNames(const std::string& text, const PrivateNames& names,
                         const std::string& kept) {
  std::string clean = text;
  std::vector<std::string> homes = names.homes;
  std::ranges::sort(
      homes, [](const auto& a, const auto& b) { return a.size() > b.size(); });
  for (const std::string& home : homes) ReplaceHome(clean, home);
  ReplaceUrlHosts(clean, kept);
  for (const std::string& host : names.hosts) {
    if (host != "localhost") Replace(clean, host, "HOST");
  }
  Replace(clean, names.user, "USER");
  return clean;
}

}  // namespace velmohelp::tool
