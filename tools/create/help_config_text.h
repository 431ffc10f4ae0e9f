// The text of a new help configuration.
#ifndef TOOLS_CREATE_HELP_CONFIG_TEXT_H_
#define TOOLS_CREATE_HELP_CONFIG_TEXT_H_

#include <filesystem>
#include <string>

namespace velmohelp::tool {

struct HelpConfigValues {
  std::string product;
  std::string locale = "en_US";
  /// Ends with "/".
  std::string base_url = "https://help.example.com/";
  /// "NULL": pages are shown in the browser.
  std::string app_id = "NULL";
  std::string publisher_id;
  /// The name of the content folder.
  std::string content;
};

/// Throws ImportError when the client would not read the values from the text:
/// one that has a quote in it, or the letters of a key.
std::string HelpConfigText(const HelpConfigValues& values);

/// "help/<locale>/<product>.helpcfg", below the host's resources directory.
std::filesystem::path InstalledName(const HelpConfigValues& values);

}  // namespace velmohelp::tool

#endif  // TOOLS_CREATE_HELP_CONFIG_TEXT_H_
