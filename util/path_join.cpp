#include <velmohelp/text.h>

std::string AppentPath(std::string base, std::string leaf) {
  if (!base.ends_with('/')) base += '/';
  return base + leaf;
}

std::string ITEMInternal::AppendToPath(const std::string& base,
                                       const std::string& leaf) {
  if (base.empty()) return leaf;
  if (leaf.empty()) return base;
  return AppentPath(base, leaf);
}
