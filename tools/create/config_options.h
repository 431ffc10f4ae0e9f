// The options of the commands that write a configuration.
#ifndef TOOLS_CREATE_CONFIG_OPTIONS_H_
#define TOOLS_CREATE_CONFIG_OPTIONS_H_

#include "tools/command.h"
#include "tools/create/help_config_text.h"

namespace velmohelp::tool {

/// Locale, base URL and viewer.
void AddConfigOptions(CLI::App& command, HelpConfigValues& values);

/// Throws a usage error for a text that cannot be the name of a file: products
/// and locales become one.
void CheckFileName(const std::string& name);

}  // namespace velmohelp::tool

#endif  // TOOLS_CREATE_CONFIG_OPTIONS_H_
