// SPDX-License-Identifier: MIT
#include "cli/completion.h"

#include <algorithm>

#include "cli/help.h"
#include "cli/strings.h"

namespace ztk::cli {

namespace {

constexpr char kFiles[] = ":files\n";
constexpr char kCommand[] = ":command\n";

bool Begins(const std::string &word, const std::string &begun) {
  return word.size() >= begun.size() &&
         std::equal(begun.begin(), begun.end(), word.begin(),
                    [](char one, char other) {
                      return LowerCase(one) == LowerCase(other);
                    });
}

// Reads a command line up to the word that is to be completed.
class CompletionReader {
 public:
  explicit CompletionReader(const Program &program)
      : program_(program), common_(CommonOptions(program)) {}

  void Take(const std::string &word) {
    if (option_ != nullptr) {
      before_.given[KeyOf(*option_)] = {word};
      option_ = nullptr;
    } else if (!optionsEnded_ && word == "--") {
      optionsEnded_ = true;
    } else if (!optionsEnded_ && TakeOption(word)) {
      return;
    } else if (command_ == nullptr) {
      if (path_.empty() && !asksForHelp_ && word == kHelpWord) {
        asksForHelp_ = true;
        return;
      }
      path_ += (path_.empty() ? "" : " ") + word;
      command_ = FindCommand(program_, path_);
    } else {
      TakePositional(word);
    }
  }

  std::string Offered(const std::string &begun) {
    if (option_ != nullptr) return ValuesOf(*option_, "", begun);
    const std::size_t sign = begun.find('=');
    if (!optionsEnded_ && begun.starts_with("--") &&
        sign != std::string::npos) {
      const Option *option = Find(begun.substr(0, sign));
      if (option == nullptr || option->value.empty()) return "";
      return ValuesOf(*option, begun.substr(0, sign + 1),
                      begun.substr(sign + 1));
    }
    std::string offered = command_ == nullptr ? Words(begun) : "";
    offered += Positionals(begun);
    if (!optionsEnded_ && (begun.starts_with('-') || offered.empty())) {
      offered += Options(begun);
    }
    return offered;
  }

 private:
  static std::string Line(const std::string &word, const std::string &meaning,
                          const std::string &lead, const std::string &begun) {
    if (!Begins(word, begun)) return "";
    return lead + word + "\t" + meaning + "\n";
  }

  bool TakeOption(const std::string &word) {
    const std::size_t sign = word.find('=');
    const Option *option = Find(word.substr(0, sign));
    if (option == nullptr) return false;
    before_.given[KeyOf(*option)] = {
        sign == std::string::npos ? "" : word.substr(sign + 1)};
    if (!option->value.empty() && sign == std::string::npos) option_ = option;
    return true;
  }

  void TakePositional(const std::string &word) {
    const Option *positional = NextPositional();
    if (positional == nullptr) return;
    std::vector<std::string> &values = before_.given[KeyOf(*positional)];
    if (values.empty()) {
      values.push_back(word);
    } else {
      values.front() += " " + word;
    }
    if (!positional->repeats) ++positionalsDone_;
  }

  const Option *Find(const std::string &name) const {
    if (!name.starts_with('-')) return nullptr;
    for (const std::vector<Option> *options : OptionLists()) {
      for (const Option &option : *options) {
        const std::vector<std::string> names = NamesOf(option);
        if (std::find(names.begin(), names.end(), name) != names.end()) {
          return &option;
        }
      }
    }
    return nullptr;
  }

  // The positional argument that is typed next; null if all were typed.
  const Option *NextPositional() const {
    if (command_ == nullptr || asksForHelp_) return nullptr;
    std::size_t number = 0;
    for (const Option &option : command_->options) {
      if (IsPositional(option) && number++ == positionalsDone_) return &option;
    }
    return nullptr;
  }

  std::string Positionals(const std::string &begun) const {
    const Option *positional = NextPositional();
    if (positional == nullptr) return "";
    if (positional->fill == Fill::Command) {
      return optionsEnded_ ? kCommand
                           : Line("--", positional->description, "", begun);
    }
    if (positional->fill == Fill::File && begun.starts_with('-')) return "";
    return ValuesOf(*positional, "", begun);
  }

  std::string ValuesOf(const Option &option, const std::string &lead,
                       const std::string &begun) const {
    if (option.fill == Fill::File) return kFiles;
    if (option.fill != Fill::Values) return "";
    std::string offered;
    for (const Value &value : option.values(before_, begun)) {
      offered += Line(value.word, value.meaning, lead, begun);
    }
    return offered;
  }

  std::string Words(const std::string &begun) const {
    std::string offered;
    for (const Value &next : NextWords(program_, path_)) {
      offered += Line(next.word, next.meaning, "", begun);
    }
    if (path_.empty() && !asksForHelp_) {
      offered += Line(kHelpWord, "Show the help of a command", "", begun);
    }
    return offered;
  }

  std::string Options(const std::string &begun) const {
    std::string offered;
    for (const std::vector<Option> *options : OptionLists()) {
      for (const Option &option : *options) {
        if (IsPositional(option)) continue;
        if (!option.repeats && before_.Has(KeyOf(option))) continue;
        for (const std::string &name : NamesOf(option)) {
          offered += Line(name, option.description, "", begun);
        }
      }
    }
    return offered;
  }

  std::vector<const std::vector<Option> *> OptionLists() const {
    if (command_ == nullptr) return {&common_};
    return {&command_->options, &common_};
  }

  const Program &program_;
  std::vector<Option> common_;
  bool asksForHelp_ = false;
  std::string path_;
  const Command *command_ = nullptr;
  const Option *option_ = nullptr;   // the next word is its value
  bool optionsEnded_ = false;        // "--" was typed
  std::size_t positionalsDone_ = 0;  // the number of them that are complete
  Arguments before_;                 // before the word that is completed
};

}  // namespace

std::string Completions(const Program &program,
                        const std::vector<std::string> &words) {
  CompletionReader reader(program);
  if (words.empty()) return reader.Offered("");
  for (std::size_t i = 0; i + 1 < words.size(); ++i) reader.Take(words[i]);
  return reader.Offered(words.back());
}

}  // namespace ztk::cli
