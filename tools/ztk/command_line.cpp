// SPDX-License-Identifier: MIT
#include "ztk/command_line.h"

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <deque>
#include <map>
#include <memory>

#include "build_config.h"
#include "cli/completion.h"
#include "cli/described.h"
#include "cli/help_format.h"
#include "cli/strings.h"
#include "cli/suggest.h"
#include "cli/terminal.h"
#include "ztk/commands/command_table.h"
#include "ztk/progress.h"

namespace ztk::program {

namespace {

// Half of a narrow terminal, and room for the longest option.
constexpr std::size_t kHelpColumn = 20;
constexpr char kExample[] = "ztk input set 2 \"post ch2 fader\"";

// The words of one option or position, until they are read.
struct Slot {
  Parameter parameter;
  bool required = false;
  CLI::Option *option = nullptr;
  std::vector<std::string> words;
};

std::string SeeHelp(const std::string &path) {
  return "; see ztk " + (path.empty() ? "" : path + " ") + "--help";
}

std::string Footer(const std::string &note, const std::string &example) {
  return note + "\n\n" + cli::kWhole + "Example: " + example;
}

std::string ProgramFooter() {
  constexpr std::size_t kColumn = 5;
  std::string text = "Exit status:";
  for (const ExitMeaning &meaning : ExitMeanings()) {
    const std::string number = std::to_string(static_cast<int>(meaning.exit));
    text += "\n" + std::string(kColumn - number.size(), ' ') + number + "  " +
            cli::OneLine(meaning.text);
  }
  return Footer(text, kExample);
}

// What a path starts with: a command, or the group that it is in.
std::string FirstWord(const std::string &path) {
  return path.substr(0, path.find(' '));
}

bool IsFirstWord(const std::string &word) {
  return std::any_of(
      Commands().begin(), Commands().end(),
      [&](const Command &command) { return FirstWord(command.path) == word; });
}

// The parser made from the table of commands. Nothing is required of it and
// extra words are let through: what is wrong is said better here.
class Parser {
 public:
  // When the first word leads to a command or group there is no way to another,
  // so those are left out: making them all takes longer than most commands do.
  explicit Parser(const std::vector<std::string> &words) : app_(kAbout, "ztk") {
    // The commands take it over.
    app_.formatter(std::make_shared<cli::HelpFormat>(kHelpColumn));
    const bool isClear = !words.empty() && IsFirstWord(words.front());
    Prepare(&app_, isClear ? "" : ProgramFooter());
    app_.set_version_flag(kVersionOption.names,
                          std::string("ztk ") + build::kVersion,
                          kVersionOption.description);
    for (const Command &command : Commands()) {
      if (!isClear || FirstWord(command.path) == words.front()) Add(command);
    }
  }

  // Throws what CLI11 throws.
  void Parse(std::vector<std::string> words) {
    std::reverse(words.begin(), words.end());
    app_.parse(words);
  }

  // The app that the words led to, checking on the way that all were used.
  const CLI::App *Selected() const {
    const CLI::App *app = &app_;
    while (true) {
      const std::vector<CLI::App *> chosen = app->get_subcommands();
      Check(*app, chosen.empty());
      if (chosen.empty()) return app;
      app = chosen.front();
    }
  }

  // Whether words were left over.
  bool HasMore() const { return app_.remaining_size(true) > 0; }

  // "input set", as far as it was recognised.
  std::string Path() const {
    std::string path;
    const CLI::App *app = &app_;
    while (!app->get_subcommands().empty()) {
      app = app->get_subcommands().front();
      path += (path.empty() ? "" : " ") + app->get_name();
    }
    return path;
  }

  // Shows what is required only now, as parsing must not insist on it.
  std::string Help() {
    for (auto &[app, slots] : slots_) {
      for (Slot &slot : slots) slot.option->required(slot.required);
    }
    return app_.help();
  }

  Arguments ArgumentsOf(const CLI::App *app) const {
    Arguments arguments;
    arguments.json = json_;
    const auto found = slots_.find(app);
    if (found == slots_.end()) return arguments;
    for (const Slot &slot : found->second) {
      if (slot.option->count() == 0) continue;
      std::string joined;
      for (const std::string &word : slot.option->results()) {
        joined += (joined.empty() ? "" : " ") + word;
      }
      arguments.given[slot.parameter] = joined;
    }
    return arguments;
  }

  const Command *CommandOf(const CLI::App *app) const {
    const auto found = commands_.find(app);
    return found == commands_.end() ? nullptr : found->second;
  }

 private:
  void Prepare(CLI::App *app, const std::string &footer) {
    app->allow_extras();
    app->require_subcommand(0, 1);
    app->group(cli::kCommandGroup);
    app->set_help_flag(kHelpOption.names, kHelpOption.description);
    app->add_flag(kJsonOption.names, json_, kJsonOption.description)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    app->footer(footer);
  }

  void Add(const Command &command) {
    CLI::App *parent = &app_;
    std::string name = command.path;
    if (const std::size_t space = name.find(' '); space != std::string::npos) {
      parent = GroupApp(name.substr(0, space));
      name = name.substr(space + 1);
    }
    CLI::App *app = parent->add_subcommand(name, command.summary);
    Prepare(app, Footer(command.note, command.example));
    commands_[app] = &command;
    for (const ParameterUse &use : command.parameters) AddUse(use, app);
  }

  CLI::App *GroupApp(const std::string &name) {
    for (CLI::App *known : app_.get_subcommands({})) {
      if (known->get_name() == name) return known;
    }
    for (const Group &group : Groups()) {
      if (group.name != name) continue;
      CLI::App *app = app_.add_subcommand(name, group.summary);
      Prepare(app, Footer(group.note, group.example));
      return app;
    }
    throw std::logic_error("a command without its group: " + name);
  }

  void AddUse(const ParameterUse &use, CLI::App *app) {
    // A deque keeps its members where they are; the parser fills them in.
    Slot &slot = slots_[app].emplace_back();
    slot.parameter = use.parameter;
    slot.required = use.required;
    if (IsFlag(use.parameter)) {
      slot.option =
          app->add_flag(ParameterName(use.parameter), use.description);
      return;
    }
    slot.option = app->add_option(ParameterName(use.parameter), slot.words,
                                  use.description);
    if (use.parameter != Parameter::Choice) {
      slot.option->expected(1)->allow_extra_args(false);
    }
    slot.option->type_name(ParameterValueName(use.parameter));
  }

  // Throws when words are left over or a command is missing.
  void Check(const CLI::App &app, bool isLast) const {
    std::vector<std::string> extras = app.remaining();
    // The mark before words that are no options is left over, and is no word.
    std::erase(extras, "--");
    const bool isGroup = CommandOf(&app) == nullptr;
    if (extras.empty() && !(isLast && isGroup)) return;
    const std::string path = Path();
    const std::string place = path.empty() ? "" : " after \"" + path + "\"";
    std::string message;
    if (extras.empty()) {
      message = "a command is missing" + place +
                "; accepted: " + cli::Listed(Below(app));
    } else if (extras.front().starts_with("-")) {
      message = "no option " + cli::Quoted(extras.front()) + place +
                cli::NearestAndAccepted(extras.front(), Options(app));
    } else if (isGroup) {
      message = "no command " + cli::Quoted(extras.front()) + place +
                NearestCommand(app, extras.front());
    } else {
      // It may be an option without its dashes.
      const std::string option = cli::Nearest(extras.front(), Options(app));
      message = "one word too many" + place + ": " +
                cli::Quoted(extras.front()) +
                (option.empty() ? "" : "; nearest: " + option);
    }
    throw Failure(ExitCode::Usage, message + SeeHelp(path));
  }

  // The words that go on from there.
  static std::vector<std::string> Below(const CLI::App &app) {
    std::vector<std::string> names;
    for (const CLI::App *child : app.get_subcommands({})) {
      names.push_back(child->get_name());
    }
    return names;
  }

  static std::vector<std::string> Options(const CLI::App &app) {
    std::vector<std::string> names;
    for (const CLI::Option *option : app.get_options()) {
      for (const std::string &name : option->get_lnames()) {
        names.push_back("--" + name);
      }
    }
    return names;
  }

  // A word that goes on from another one is nearer than any that is alike.
  static std::string NearestCommand(const CLI::App &app,
                                    const std::string &word) {
    std::vector<std::string> whole;
    for (const Command &command : Commands()) {
      if (command.path.ends_with(" " + word)) whole.push_back(command.path);
    }
    if (whole.empty() || app.get_parent() != nullptr) {
      return cli::NearestAndAccepted(word, Below(app));
    }
    return "; nearest: " + cli::Listed(whole) +
           "; accepted: " + cli::Listed(Below(app));
  }

  CLI::App app_;
  bool json_ = false;
  std::map<const CLI::App *, const Command *> commands_;
  std::map<const CLI::App *, std::deque<Slot>> slots_;
};

// The same question, in the form that people try first.
constexpr char kHelpWord[] = "help";

// Known before the words are understood, because errors are told in it too.
bool AsksForJson(const std::vector<std::string> &words) {
  const auto end = std::find(words.begin(), words.end(), "--");
  return std::find(words.begin(), end, "--json") != end;
}

Report Help(const std::string &text) {
  Report report;
  report.text = cli::Flowed(text, cli::Columns(STDOUT_FILENO));
  report.fields["help"] =
      cli::LaidOut(cli::Flowed(text, 0), {.columns = 0, .standsOut = false});
  return report;
}

Report Version() {
  Report report;
  report.text = std::string("ztk ") + build::kVersion + "\n";
  report.fields["version"] = build::kVersion;
  return report;
}

Report Completed(const std::vector<std::string> &words) {
  Report report;
  report.text = cli::Completions(cli::Described(), words);
  return report;
}

Report Interrupted() {
  Report report;
  report.problem = {.exit = ExitCode::Interrupted, .message = kInterrupted};
  return report;
}

// Takes the word out that asks for help; false where it is not there.
bool TakeHelpWord(std::vector<std::string> *words) {
  const auto first = std::find_if(
      words->begin(), words->end(),
      [](const std::string &word) { return !word.starts_with('-'); });
  if (first == words->end() || *first != kHelpWord) return false;
  words->erase(first);
  return true;
}

// Of the command that the words led to; throws what is wrong with words that
// are left over.
Report HelpOnPath(Parser *parser) {
  if (parser->HasMore()) parser->Selected();
  return Help(parser->Help());
}

}  // namespace

Report Run(std::vector<std::string> words, Call *call) {
  if (!words.empty() && words.front() == cli::kCompletionCall) {
    return Completed({words.begin() + 1, words.end()});
  }
  call->json = AsksForJson(words);
  const bool asksForHelp = TakeHelpWord(&words);
  Parser parser(words);
  try {
    parser.Parse(words);
    call->command = parser.Path();
    if (asksForHelp) return HelpOnPath(&parser);
  } catch (const CLI::CallForHelp &) {
    call->command = parser.Path();
    return Help(parser.Help());
  } catch (const CLI::CallForVersion &) {
    return Version();
  } catch (const CLI::ParseError &error) {
    call->command = parser.Path();
    throw Failure(ExitCode::Usage,
                  cli::OneLine(error.what()) + SeeHelp(call->command));
  }
  const CLI::App *selected = parser.Selected();
  Arguments arguments = parser.ArgumentsOf(selected);
  call->json = arguments.json;
  EndOnInterrupt(arguments.json ? JsonLine(call->command, Interrupted()) + "\n"
                                : "");
  return parser.CommandOf(selected)->run(arguments);
}

}  // namespace ztk::program
