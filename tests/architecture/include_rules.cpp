#include "tests/architecture/include_rules.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace velmohelp::testing {
namespace {

/// A folder, and those that its files may include from. A header lies in the
/// longest folder that its path begins with.
struct Layer {
  std::string_view folder;
  std::vector<std::string_view> from;
};

const std::vector<Layer>& Layers() {
  static const std::vector<Layer> layers = {
      {"exports/",
       {"exports/", "client/", "config/", "resolve/", "online/", "platform/",
        "util/"}},
      {"client/",
       {"client/", "exports/", "config/", "resolve/", "online/", "platform/",
        "util/"}},
      {"config/", {"config/", "platform/", "util/"}},
      {"resolve/", {"resolve/", "client/", "platform/", "util/"}},
      {"online/", {"online/", "platform/", "util/"}},
      {"platform/", {"platform/", "util/"}},
      // The library and its helper programs share the words they speak in.
      {"platform/linux/",
       {"platform/linux/", "platform/linux/helpers/", "platform/", "util/"}},
      {"platform/linux/helpers/",
       {"platform/linux/helpers/", "platform/linux/", "platform/", "util/"}},
      {"platform/scripted/", {"platform/scripted/", "platform/", "util/"}},
      {"platform/unsupported/",
       {"platform/unsupported/", "platform/", "util/"}},
      {"util/", {"util/"}},
  };
  return layers;
}

/// Null for a path in no layer.
const Layer* LayerOf(std::string_view path) {
  const Layer* found = nullptr;
  for (const Layer& layer : Layers()) {
    if (!path.starts_with(layer.folder)) continue;
    if (found == nullptr || found->folder.size() < layer.folder.size()) {
      found = &layer;
    }
  }
  return found;
}

bool MayIncludeOwn(const Layer& layer, std::string_view header) {
  const Layer* other = LayerOf(header);
  return other != nullptr && std::ranges::count(layer.from, other->folder) > 0;
}

/// A header of the C++ library: <map>, <cstdio>.
bool IsStandard(std::string_view header) {
  return header.find_first_of("./") == std::string_view::npos;
}

bool IsPublic(std::string_view header) {
  return header.starts_with("velmohelp/") || header == "velmohelp_locations.h";
}

bool IsForHelpers(std::string_view header) {
  return header.starts_with("gio/") || header.starts_with("glib") ||
         header.starts_with("curl/");
}

/// The processor's own instructions, which the text routines alone may use.
bool IsForTextRoutines(std::string_view header) {
  return header == "immintrin.h";
}

bool MayIncludeSystem(const Layer& layer, std::string_view header) {
  if (IsStandard(header) || IsPublic(header)) return true;
  if (IsForHelpers(header)) return layer.folder == "platform/linux/helpers/";
  if (IsForTextRoutines(header)) return layer.folder == "util/";
  return layer.folder.starts_with("platform/linux/");
}

}  // namespace

bool MayInclude(const std::string& file, const std::string& header) {
  const Layer* layer = LayerOf(file);
  if (layer == nullptr || header.size() < 3) return false;
  const std::string name = header.substr(1, header.size() - 2);
  return header.starts_with('<') ? MayIncludeSystem(*layer, name)
                                 : MayIncludeOwn(*layer, name);
}

}  // namespace velmohelp::testing
