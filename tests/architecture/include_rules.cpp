#include "tests/architecture/include_rules.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace velmohelp::testing {
namespace {

/// A folder, the folders that its files may include from, and the public
/// headers that they may include: those of a type that both sides must share. A
/// header is in the longest folder that its path begins with.
struct Layer {
  std::string_view folder;
  std::vector<std::string_view> from;
  std::vector<std::string_view> public_headers;
};

const std::vector<Layer>& Layers() {
  static const std::vector<Layer> layers = {
      {"exports/",
       {"exports/", "client/", "config/", "resolve/", "online/", "platform/",
        "util/"},
       {"velmohelp/config.h", "velmohelp/embed.h", "velmohelp/export.h",
        "velmohelp/online.h", "velmohelp/platform.h", "velmohelp/resolve.h",
        "velmohelp/script_host.h", "velmohelp/state.h", "velmohelp/text.h",
        "velmohelp/velmohelp.h"}},
      {"client/",
       {"client/", "config/", "resolve/", "online/", "platform/", "util/"},
       {"velmohelp/velmohelp.h"}},
      {"config/", {"config/", "platform/", "util/"}, {}},
      {"resolve/", {"resolve/", "platform/", "util/"}, {}},
      {"online/", {"online/", "platform/", "util/"}, {"velmohelp/online.h"}},
      {"platform/", {"platform/", "util/"}, {}},
      {"platform/linux/", {"platform/linux/", "platform/", "util/"}, {}},
      // Programs: they use what the library uses, which knows none of them.
      {"platform/linux/helpers/",
       {"platform/linux/helpers/", "platform/linux/", "platform/", "util/"},
       {}},
      {"platform/scripted/", {"platform/scripted/", "platform/", "util/"}, {}},
      {"platform/unsupported/",
       {"platform/unsupported/", "platform/", "util/"},
       {}},
      {"util/", {"util/", "util/unicode/"}, {}},
      {"util/unicode/", {"util/unicode/", "util/"}, {"velmohelp/unicode.h"}},
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
  return header.starts_with("velmohelp/");
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
  if (IsStandard(header)) return true;
  if (IsPublic(header)) {
    return std::ranges::count(layer.public_headers, header) > 0;
  }
  if (IsForHelpers(header)) return layer.folder == "platform/linux/helpers/";
  if (IsForTextRoutines(header)) return layer.folder == "util/unicode/";
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
