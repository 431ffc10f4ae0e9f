#include "tools/page_key.h"

#include "resolve/page_id.h"

namespace velmohelp::tool {

std::string PageKey(const std::string& page_id) {
  std::string normalised = page_id;
  NormalizePageId(normalised);
  return std::string(HelpMapKey(normalised));
}

}  // namespace velmohelp::tool
