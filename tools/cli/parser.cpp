// SPDX-License-Identifier: MIT
#include "cli/parser.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "cli/assign.h"
#include "cli/completion.h"
#include "cli/help.h"
#include "cli/strings.h"
#include "cli/suggest.h"

namespace ztk::cli {

namespace {

constexpr char kVersionWord[] = "version";  // the same as --version

bool HasName(const std::vector<Option> &options, const std::string &word) {
  const std::string name = word.substr(0, word.find('='));
  return std::any_of(options.begin(), options.end(), [&](const Option &option) {
    const std::vector<std::string> names = NamesOf(option);
    return std::find(names.begin(), names.end(), name) != names.end();
  });
}

bool TakesCommand(const Command &command) {
  return std::any_of(
      command.options.begin(), command.options.end(),
      [](const Option &option) { return option.fill == Fill::Command; });
}

std::vector<std::string> LongNames(const std::vector<Option> &options) {
  std::vector<std::string> names;
  for (const Option &option : options) {
    if (!IsPositional(option)) names.push_back(KeyOf(option));
  }
  return names;
}

// Whether a shell passes the word on as it is typed.
bool IsPlain(const std::string &word) {
  return word.find_first_not_of(
             "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
             "0123456789-_./") == std::string::npos;
}

bool Concerns(const Advice &advice, const std::string &path,
              const std::string &word) {
  return advice.path == path && (advice.word == "*" || advice.word == word ||
                                 (advice.word == "N" && ParseNumber(word)));
}

// Returns the advice for the first of these words, which follow the path; empty
// if there is none, or if a word would have to be quoted.
std::string AdviceFor(const Program &program, const std::string &path,
                      const std::vector<std::string> &words) {
  if (program.advice == nullptr ||
      !std::all_of(words.begin(), words.end(), IsPlain)) {
    return "";
  }
  for (const auto &advice : program.advice()) {
    if (!Concerns(advice, path, words.front())) continue;
    std::string text = advice.text;
    if (advice.repeats == Advice::Repeats::Nothing) return text;
    const bool wordToo = advice.repeats == Advice::Repeats::WordToo;
    for (std::size_t i = wordToo ? 0 : 1; i < words.size(); ++i) {
      text += " " + words[i];
    }
    return text;
  }
  return "";
}

std::vector<std::string> WordsOf(const std::vector<Value> &values) {
  std::vector<std::string> words;
  for (const Value &value : values) words.push_back(value.word);
  return words;
}

// Finds the command by its words; what remains are its arguments.
class CommandLine {
 public:
  CommandLine(const Program &program, std::vector<std::string> words)
      : program_(program), words_(std::move(words)) {}

  Invocation Parse() {
    FindPath();
    Invocation call{.path = path_, .arguments = {}, .text = ""};
    const Command *command = FindCommand(program_, path_);
    if (command != nullptr) {
      ReadArguments(*command, &call.arguments);
    } else {
      for (const std::string &word : words_) {
        for (const Option &option : common_) {
          if (HasName({option}, word)) {
            call.arguments.given[KeyOf(option)] = {"true"};
          }
        }
      }
    }
    if (asksForHelp_ || call.arguments.Has(kHelpName)) {
      call.kind = Invocation::Kind::Help;
      call.text = Help(program_, path_);
    } else if (asksForVersion_ || call.arguments.Has(kVersionName)) {
      call.kind = Invocation::Kind::Version;
      call.text = program_.name + " " + program_.version + "\n";
    } else if (command == nullptr) {
      Fail("a command is missing" + Place() +
           "; accepted: " + Listed(WordsOf(NextWords(program_, path_))));
    } else {
      CheckRequired(*command, call.arguments);
      call.command = command;
    }
    return call;
  }

 private:
  [[noreturn]] void Fail(const std::string &message) const {
    throw UsageError(message + "; see " + program_.name +
                         (path_.empty() ? "" : " " + path_) + " --help",
                     path_);
  }

  // Fails with the advice for the words, if there is one. Nothing follows the
  // command in it.
  void FailWithAdvice(const std::string &message,
                      const std::vector<std::string> &words) const {
    const std::string advice = AdviceFor(program_, path_, words);
    if (!advice.empty()) throw UsageError(message + "; " + advice, path_);
  }

  std::string Place() const {
    return path_.empty() ? "" : " after \"" + path_ + "\"";
  }

  [[noreturn]] void FailOption(const std::string &word,
                               const std::vector<Option> &accepted) const {
    Fail("no option " + Quoted(word) + Place() +
         NearestAndAccepted(word, LongNames(accepted)));
  }

  // The accepted words of an option. If it accepts any word: the name of its
  // value in the help, or the description of a positional argument.
  static std::string AcceptedBy(const Option &option) {
    if (option.fill == Fill::Values)
      return Listed(WordsOf(option.values({}, "")));
    if (!IsPositional(option)) return option.value;
    std::string text = option.description;
    text.front() = LowerCase(text.front());
    return text;
  }

  [[noreturn]] void FailValue(const Option &option) const {
    Fail(KeyOf(option) +
         " needs exactly one value; accepted: " + AcceptedBy(option));
  }

  // Fails for an option of a command that was typed before the command.
  [[noreturn]] void FailEarlyOption(const std::string &word) const {
    for (const Command &command : program_.commands) {
      if (HasName(command.options, word)) {
        Fail("the option " + Quoted(word) + " has to follow its command");
      }
    }
    FailOption(word, common_);
  }

  // Reads the path of the command, and removes its words and a leading "help"
  // from words_.
  void FindPath() {
    auto word = words_.begin();
    while (word != words_.end() && *word != kEndOfOptions &&
           FindCommand(program_, path_) == nullptr) {
      if (IsOptionWord(*word)) {
        if (!HasName(common_, *word)) FailEarlyOption(*word);
        ++word;
        continue;
      }
      if (path_.empty() && !asksForHelp_ && *word == kHelpWord) {
        asksForHelp_ = true;
      } else if (path_.empty() && *word == kVersionWord) {
        asksForVersion_ = true;
      } else {
        AddToPath({word, words_.end()});
      }
      word = words_.erase(word);
    }
  }

  // Adds the first of the words that are left.
  void AddToPath(const std::vector<std::string> &words) {
    const std::string &word = words.front();
    const std::string path = path_.empty() ? word : path_ + " " + word;
    if (FindCommand(program_, path) == nullptr &&
        (!path_.empty() || FindGroup(program_, word) == nullptr)) {
      const std::string message = "no command " + Quoted(word) + Place();
      FailWithAdvice(message, words);
      Fail(message + NearestCommand(word));
    }
    path_ = path;
  }

  // If only the second word of commands was typed ("set"), the commands that
  // end with it ("input set") are better suggestions than similar words.
  std::string NearestCommand(const std::string &word) const {
    const std::vector<std::string> accepted =
        WordsOf(NextWords(program_, path_));
    std::vector<std::string> whole;
    for (const Command &command : program_.commands) {
      if (command.path.ends_with(" " + word)) whole.push_back(command.path);
    }
    if (whole.empty() || !path_.empty()) {
      return NearestAndAccepted(word, accepted);
    }
    return Suggestion(Listed(whole), accepted);
  }

  void ReadArguments(const Command &command, Arguments *arguments) {
    std::vector<Option> options = command.options;
    if (TakesCommand(command)) {
      const auto end = std::find(words_.begin(), words_.end(), kEndOfOptions);
      if (end != words_.end()) arguments->command.assign(end + 1, words_.end());
      words_.erase(end, words_.end());
      std::erase_if(options, [](const Option &option) {
        return option.fill == Fill::Command;
      });
    }
    options.insert(options.end(), common_.begin(), common_.end());
    Assignment assigned = Assign(options, words_);
    if (assigned.miscounted != nullptr) FailValue(*assigned.miscounted);
    arguments->given = std::move(assigned.given);
    if (!asksForHelp_ && !arguments->Has(kHelpName)) {
      CheckExtras(command, options, std::move(assigned.extras));
    }
  }

  // Fails when words are left over. An unknown option is reported first,
  // because another word that is left over may have been meant as its value.
  void CheckExtras(const Command &command, const std::vector<Option> &options,
                   std::vector<std::string> extras) const {
    std::erase(extras, kEndOfOptions);
    if (extras.empty()) return;
    const auto found = std::find_if(extras.begin(), extras.end(), IsOptionWord);
    if (found != extras.end()) FailOption(*found, options);
    const std::string message =
        "unexpected word " + Quoted(extras.front()) + Place();
    // The word may be an option that was typed without its dashes.
    const std::string nearest = Nearest(extras.front(), LongNames(options));
    if (nearest.empty()) FailWithAdvice(message, extras);
    Fail(message + (TakesCommand(command) ? "; put \"--\" before the command"
                    : nearest.empty()     ? OwnOptions(command)
                                          : "; nearest: " + nearest));
  }

  // Names the options of a command that takes nothing else.
  static std::string OwnOptions(const Command &command) {
    const std::vector<std::string> names = LongNames(command.options);
    const bool takesWords = std::any_of(command.options.begin(),
                                        command.options.end(), IsPositional);
    return takesWords || names.empty() ? "" : "; accepted: " + Listed(names);
  }

  void CheckRequired(const Command &command, const Arguments &arguments) const {
    for (const Option &option : command.options) {
      if (!option.required || arguments.Has(KeyOf(option))) continue;
      Fail(KeyOf(option) + " is missing" + Place() +
           "; accepted: " + AcceptedBy(option));
    }
  }

  const Program &program_;
  const std::vector<Option> common_ = CommonOptions(program_);
  std::vector<std::string> words_;
  std::string path_;
  bool asksForHelp_ = false;
  bool asksForVersion_ = false;
};

}  // namespace

std::string FirstWord(const std::vector<std::string> &words) {
  for (const std::string &word : words) {
    if (IsOptionWord(word)) continue;
    return word == kHelpWord || word == kCompletionCall ? "" : word;
  }
  return "";
}

Invocation Parse(const Program &program,
                 const std::vector<std::string> &words) {
  if (!words.empty() && words.front() == kCompletionCall) {
    return {.kind = Invocation::Kind::Completion,
            .path = "",
            .arguments = {},
            .text = Completions(program, {words.begin() + 1, words.end()})};
  }
  return CommandLine(program, words).Parse();
}

}  // namespace ztk::cli
