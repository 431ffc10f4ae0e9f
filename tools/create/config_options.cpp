#include "tools/create/config_options.h"

#include "tools/printable.h"

namespace velmohelp::tool {

void AddConfigOptions(CLI::App& command, HelpConfigValues& values) {
  command
      .add_option("--locale", values.locale, "Five characters (default en_US)")
      ->option_text("LOCALE");
  command
      .add_option("--base-url", values.base_url,
                  "Where the content is online; ends with / (default "
                  "https://help.example.com/)")
      ->option_text("URL");
  command
      .add_option("--app-id", values.app_id,
                  "The help viewer (default NULL: the browser)")
      ->option_text("ID");
  command
      .add_option("--pub-id", values.publisher_id,
                  "The help viewer's publisher")
      ->option_text("ID");
}

void CheckFileName(const std::string& name) {
  const bool fits = !name.empty() && name != "." && name != ".." &&
                    name.find('/') == std::string::npos;
  if (fits) return;
  throw CLI::ValidationError(Quoted(name) + " cannot be the name of a file");
}

}  // namespace velmohelp::tool
