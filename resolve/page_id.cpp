#include <velmohelp/resolve.h>

#include "util/ascii.h"

namespace {

/// A byte that stands for itself in file systems and in URLs alike.
bool IsAllowed(char byte) {
  return velmohelp::IsAsciiAlnum(byte) || byte == '_' || byte == '-' ||
         byte == '.';
}

}  // namespace

bool isUrl(std::string text) {
  return text.starts_with("http://") || text.starts_with("https://") ||
         text.starts_with("file://");
}

bool ITEMInternal::isUrl(std::string text) { return ::isUrl(std::move(text)); }

bool isHTMLPage(std::string name) {
  return name.ends_with(".html") || name.ends_with(".htm");
}

void NormalizePageID(std::string& id) {
  if (isUrl(id) || isHTMLPage(id)) return;
  for (char& byte : id) {
    if (!IsAllowed(byte)) byte = '_';
  }
  id += ".html";
}
