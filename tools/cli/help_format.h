// SPDX-License-Identifier: MIT
//
// The form in which both programs show their help.
#ifndef ZTK_TOOLS_CLI_HELP_FORMAT_H_
#define ZTK_TOOLS_CLI_HELP_FORMAT_H_

#include <CLI/CLI.hpp>
#include <string>
#include <utility>

namespace ztk::cli {

// Commands are called commands, and what a command needs is told by the line of
// its usage alone.
class HelpFormat : public CLI::Formatter {
 public:
  explicit HelpFormat(std::size_t column) {
    column_width(column);
    label("SUBCOMMAND", "COMMAND");
    label("Positionals", "Words");
    label("REQUIRED", "");
  }

  std::string make_usage(const CLI::App *app, std::string name) const override {
    return "\n" + CLI::Formatter::make_usage(app, std::move(name));
  }
};

// What commands are listed under.
inline constexpr char kCommandGroup[] = "Commands";

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_CLI_HELP_FORMAT_H_
