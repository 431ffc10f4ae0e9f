#include "tools/command_line.h"

#include <algorithm>
#include <map>
#include <vector>

#include "tools/commands.h"
#include "tools/files.h"
#include "tools/import/id_table.h"

namespace velmohelp::tool {
namespace {

constexpr char kDescription[] =
    "Explains what the velmohelp client does, and keeps its content right.";
constexpr char kFooter[] =
    "velmo-help COMMAND --help describes a command and its options.\n"
    "Exit status: that of the request, or 0 success, 1 findings of check, 64\n"
    "usage error, 65 bad input, 74 a file that cannot be read or written.";

/// --help and --version end the parse as errors of status 0 do.
int Report(const CLI::App& app, const CLI::ParseError& error,
           const Console& console) {
  const bool asked = error.get_exit_code() == 0;
  app.exit(error, console.out, console.err);
  return asked ? 0 : kExitUsage;
}

int Fail(const Console& console, const std::exception& error, int status) {
  console.err << "velmo-help: " << error.what() << "\n";
  return status;
}

int Run(const Action& action, const Console& console) {
  try {
    return action(console);
  } catch (const ImportError& error) {
    return Fail(console, error, kExitBadInput);
  } catch (const FileError& error) {
    return Fail(console, error, kExitFile);
  } catch (const std::filesystem::filesystem_error& error) {
    return Fail(console, error, kExitFile);
  } catch (const std::exception& error) {
    return Fail(console, error, kExitInternal);
  }
}

}  // namespace

CLI::App* AddSubcommand(CLI::App& app, const std::string& name,
                        const std::string& summary, const std::string& examples,
                        CommonOptions& options) {
  CLI::App* command = app.add_subcommand(name, summary);
  command->footer(examples);
  command->add_flag("--json", options.json, "Print the result as JSON");
  static const std::map<std::string, Color> kColors = {
      {"auto", Color::kAuto},
      {"always", Color::kAlways},
      {"never", Color::kNever}};
  command
      ->add_option("--color", options.color,
                   "Colour the result: auto, always or never")
      ->transform(CLI::CheckedTransformer(kColors).description(""))
      ->option_text("WHEN");
  return command;
}

int RunCommandLine(std::span<const std::string> arguments,
                   const Console& console) {
  CLI::App app(kDescription, "velmo-help");
  app.footer(kFooter);
  app.set_version_flag("--version", "velmo-help " VELMO_VERSION);
  app.require_subcommand(1);
  Action action;
  for (AddCommand* add : kCommands) add(app, action);
  try {
    std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
    app.parse(reversed);
  } catch (const CLI::ParseError& error) {
    return Report(app, error, console);
  }
  return Run(action, console);
}

}  // namespace velmohelp::tool
