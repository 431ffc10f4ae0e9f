// Checks of a help configuration.
#ifndef TOOLS_CHECK_CHECK_CONFIG_H_
#define TOOLS_CHECK_CHECK_CONFIG_H_

#include <filesystem>
#include <string>
#include <string_view>

#include "tools/check/finding.h"

namespace velmohelp::tool {

struct ConfigFile {
  /// As it is printed.
  std::string path;
  std::string_view text;
  /// The product and the locale that its place names; "" where that tells
  /// nothing.
  std::string product;
  std::string locale;
};

/// Appends what is wrong with a configuration.
void CheckConfigText(const ConfigFile& file, Findings& findings);

/// The same for the file at a path: its name is the product, and the folder
/// that it is in below a folder "help" is the locale.
void CheckConfig(const std::filesystem::path& path, Findings& findings);

}  // namespace velmohelp::tool

#endif  // TOOLS_CHECK_CHECK_CONFIG_H_
