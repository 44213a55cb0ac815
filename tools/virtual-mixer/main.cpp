// SPDX-License-Identifier: MIT
//
// ztk-virtual-mixer: programs among virtual mixers.
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <deque>
#include <iostream>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "build_config.h"
#include "cli/completion.h"
#include "cli/described.h"
#include "cli/help_format.h"
#include "cli/strings.h"
#include "cli/suggest.h"
#include "cli/terminal.h"
#include "virtual-mixer/commands/command_table.h"
#include "virtual-mixer/world_options.h"

namespace {

using ztk::virtual_mixer::Command;
using ztk::virtual_mixer::Commands;
using ztk::virtual_mixer::UsageError;
using ztk::virtual_mixer::Words;

constexpr int kFailed = 1;
constexpr int kUsage = 2;

bool TakesCommand(const Command &command) {
  for (const ztk::cli::Option &option : command.text.options) {
    if (option.fill == ztk::cli::Fill::Command) return true;
  }
  return false;
}

std::string Footer(const Command &command) {
  std::string footer;
  if (!command.text.note.empty()) footer += command.text.note + "\n\n";
  std::string title = "Example: ";
  for (const std::string &example : command.text.examples) {
    if (title != "Example: ") footer += "\n";
    footer += title + example;
    title = std::string(title.size(), ' ');
  }
  return footer;
}

// What follows "--" is no word of the parser's.
class Format : public ztk::cli::HelpFormat {
 public:
  Format() : HelpFormat(IsNarrow() ? kNarrowColumn : kColumn) {}

  std::string make_usage(const CLI::App *app, std::string name) const override {
    std::string usage = HelpFormat::make_usage(app, std::move(name));
    for (const Command &command : Commands()) {
      if (command.text.path != app->get_name() || !TakesCommand(command)) {
        continue;
      }
      usage.insert(usage.find_last_not_of('\n') + 1, " [-- COMMAND...]");
    }
    return usage;
  }

 private:
  static constexpr std::size_t kColumn = 30;
  // Longer options have a line of their own.
  static constexpr std::size_t kNarrowColumn = 20;

  static bool IsNarrow() {
    const std::size_t columns = ztk::cli::Columns(STDOUT_FILENO);
    return columns > 0 && columns < 2 * kColumn;
  }
};

// The parser made from the table of commands.
class Parser {
 public:
  Parser() : app_(ztk::virtual_mixer::kAbout, "ztk-virtual-mixer") {
    // The commands take them over.
    app_.formatter(std::make_shared<Format>());
    app_.set_help_flag("-h,--help", "Show this help");
    app_.set_version_flag(
        "--version", std::string("ztk-virtual-mixer ") + ztk::build::kVersion,
        "Show the version");
    app_.require_subcommand(1);
    app_.footer(std::string("Example: ") + ztk::virtual_mixer::kExample);
    for (const Command &command : Commands()) Add(command);
  }

  // Takes everything before "--"; what follows it is the command, untouched.
  // Throws what CLI11 throws.
  void Parse(const std::vector<std::string> &all) {
    const auto mark = std::find(all.begin(), all.end(), "--");
    if (mark != all.end()) command_.assign(mark + 1, all.end());
    // CLI11 wants the last argument first.
    std::vector<std::string> own(std::make_reverse_iterator(mark), all.rend());
    app_.parse(own);
  }

  int Run() const {
    const std::string name = app_.get_subcommands().front()->get_name();
    const auto command = std::find_if(
        Commands().begin(), Commands().end(),
        [&name](const Command &each) { return each.text.path == name; });
    Words words{.given = {}, .command = command_};
    for (const auto &[key, option] : options_.at(name)) {
      if (option->count() > 0) words.given[key] = option->results();
    }
    return command->run(words);
  }

  // As ztk shows its own, in a narrow terminal too.
  void ShowHelp() const {
    std::cout << ztk::cli::Flowed(app_.help(),
                                  ztk::cli::Columns(STDOUT_FILENO));
  }

  // What was wrong, the nearest right word, and what is accepted instead.
  std::string Explain(const CLI::ParseError &error) const {
    const std::vector<CLI::App *> chosen = app_.get_subcommands();
    const std::string extra = FirstExtra();
    if (chosen.empty() && extra.starts_with('-')) {
      return "no option " + ztk::cli::Quoted(extra) +
             ztk::cli::NearestAndAccepted(extra, OptionsOf(app_)) +
             "; see ztk-virtual-mixer --help";
    }
    if (chosen.empty()) {
      std::vector<std::string> accepted;
      for (const Command &command : Commands()) {
        accepted.push_back(command.text.path);
      }
      if (extra.empty()) {
        return "no command is given; accepted: " + ztk::cli::Listed(accepted);
      }
      return "unknown command " + ztk::cli::Quoted(extra) +
             ztk::cli::NearestAndAccepted(extra, accepted);
    }
    const std::string name = chosen.front()->get_name();
    const std::string help = "see ztk-virtual-mixer " + name + " --help";
    if (extra.empty()) return error.what() + ("; " + help);
    if (extra.starts_with('-')) {
      return "no option " + ztk::cli::Quoted(extra) + " after \"" + name +
             "\"" +
             ztk::cli::NearestAndAccepted(extra, OptionsOf(*chosen.front())) +
             "; " + help;
    }
    const bool forgotten = name == "run" || name == "serve";
    return "one word too many after \"" + name +
           "\": " + ztk::cli::Quoted(extra) +
           (forgotten ? "; put \"--\" before the command, " : "; ") + help;
  }

 private:
  // The first word that nothing took, an option before others: what stands
  // behind it may have been its value.
  std::string FirstExtra() const {
    const std::vector<std::string> extra = app_.remaining(true);
    for (const std::string &word : extra) {
      if (word.starts_with('-')) return word;
    }
    return extra.empty() ? "" : extra.front();
  }

  static std::vector<std::string> OptionsOf(const CLI::App &app) {
    std::vector<std::string> names;
    for (const CLI::Option *option : app.get_options()) {
      for (const std::string &name : option->get_lnames()) {
        names.push_back("--" + name);
      }
    }
    return names;
  }

  void Add(const Command &command) {
    CLI::App *const app =
        app_.add_subcommand(command.text.path, command.text.summary);
    app->group(ztk::cli::kCommandGroup);
    app->footer(Footer(command));
    options_[command.text.path];
    for (const ztk::cli::Option &option : command.text.options) {
      if (option.fill != ztk::cli::Fill::Command) AddOption(option, app);
    }
  }

  void AddOption(const ztk::cli::Option &option, CLI::App *app) {
    const std::string key = ztk::cli::KeyOf(option);
    if (option.value.empty() && !ztk::cli::IsPosition(option)) {
      options_[app->get_name()][key] =
          app->add_flag(option.names, option.description);
      return;
    }
    // Options write where they are told; the results are read from them.
    CLI::Option *const made = app->add_option(
        option.names, unused_.emplace_back(), option.description);
    made->type_name(option.value)->allow_extra_args(false);
    if (!option.repeats) made->expected(1);
    made->required(option.required);
    options_[app->get_name()][key] = made;
  }

  CLI::App app_;
  std::deque<std::vector<std::string>> unused_;
  // Of each command, by the name under which Words has them.
  std::map<std::string, std::map<std::string, CLI::Option *>> options_;
  std::vector<std::string> command_;
};

int Complain(const std::string &what, int status) {
  std::cerr << "ztk-virtual-mixer: " << what << "\n";
  return status;
}

int Main(const std::vector<std::string> &words) {
  if (!words.empty() && words.front() == ztk::cli::kCompletionCall) {
    std::cout << ztk::cli::Completions(ztk::cli::Described(),
                                       {words.begin() + 1, words.end()});
    return 0;
  }
  Parser parser;
  try {
    parser.Parse(words);
  } catch (const CLI::CallForHelp &) {
    parser.ShowHelp();
    return 0;
  } catch (const CLI::CallForVersion &version) {
    std::cout << version.what() << "\n";
    return 0;
  } catch (const CLI::ParseError &error) {
    return Complain(parser.Explain(error), kUsage);
  }
  return parser.Run();
}

}  // namespace

int main(int argc, char **argv) {
  try {
    return Main({argv + (argc > 0 ? 1 : 0), argv + argc});
  } catch (const UsageError &error) {
    return Complain(error.what(), kUsage);
  } catch (const std::exception &error) {
    return Complain(error.what(), kFailed);
  }
}
