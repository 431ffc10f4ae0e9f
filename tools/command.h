// What every subcommand is made of.
#ifndef TOOLS_COMMAND_H_
#define TOOLS_COMMAND_H_

#include <CLI/CLI.hpp>
#include <functional>
#include <string>

#include "tools/console.h"

namespace velmohelp::tool {

enum class Color { kAuto, kAlways, kNever };

/// Options that every subcommand has.
struct CommonOptions {
  bool json = false;
  Color color = Color::kAuto;

  bool UsesColor(const Console& console) const {
    return color == Color::kAlways ||
           (color == Color::kAuto && console.out_is_terminal);
  }
};

/// What the chosen subcommand does; returns the exit status.
using Action = std::function<int(const Console&)>;

/// Adds a subcommand to app. Parsing its name sets action.
using AddCommand = void(CLI::App& app, Action& action);

/// A subcommand with the common options. examples: the end of its help text.
CLI::App* AddSubcommand(CLI::App& app, const std::string& name,
                        const std::string& summary, const std::string& examples,
                        CommonOptions& options);

}  // namespace velmohelp::tool

#endif  // TOOLS_COMMAND_H_
