#include "util/path_join.h"

#include "util/str_cat.h"

namespace velmohelp {

std::string JoinPath(std::string_view base, std::string_view leaf) {
  if (base.empty()) return std::string(leaf);
  if (leaf.empty()) return std::string(base);
  return JoinPathWithSlash(base, leaf);
}

std::string JoinPathWithSlash(std::string_view base, std::string_view leaf) {
  return StrCat({base, base.ends_with('/') ? "" : "/", leaf});
}

}  // namespace velmohelp
