// SPDX-License-Identifier: MIT
#include "cli/completion.h"

#include <algorithm>

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
class Reader {
 public:
  explicit Reader(const Program &program) : program_(program) {}

  void Take(const std::string &word) {
    if (option_ != nullptr) {
      typed_[KeyOf(*option_)] = word;
      option_ = nullptr;
    } else if (!marked_ && word == "--") {
      marked_ = true;
    } else if (!marked_ && TakeOption(word)) {
      return;
    } else if (command_ == nullptr) {
      path_ += (path_.empty() ? "" : " ") + word;
      FindCommand();
    } else {
      TakePosition(word);
    }
  }

  std::string Offered(const std::string &begun) {
    if (option_ != nullptr) return ValuesOf(*option_, "", begun);
    const std::size_t sign = begun.find('=');
    if (!marked_ && begun.starts_with("--") && sign != std::string::npos) {
      const Option *option = Find(begun.substr(0, sign));
      if (option == nullptr || option->value.empty()) return "";
      return ValuesOf(*option, begun.substr(0, sign + 1),
                      begun.substr(sign + 1));
    }
    std::string offered = command_ == nullptr ? Commands(begun) : "";
    const Option *position = NextPosition();
    if (position != nullptr && position->fill == Fill::Command) {
      if (marked_) return kCommand;
      offered += Line("--", position->description, "", begun);
    } else if (position != nullptr &&
               (position->fill != Fill::File || !begun.starts_with('-'))) {
      offered += ValuesOf(*position, "", begun);
    }
    if (!marked_ && (begun.starts_with('-') || offered.empty())) {
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
    typed_[KeyOf(*option)] =
        sign == std::string::npos ? "" : word.substr(sign + 1);
    if (!option->value.empty() && sign == std::string::npos) option_ = option;
    return true;
  }

  void TakePosition(const std::string &word) {
    const Option *position = NextPosition();
    if (position == nullptr) return;
    std::string &known = typed_[KeyOf(*position)];
    known += (known.empty() ? "" : " ") + word;
    if (!position->repeats) ++positions_;
  }

  void FindCommand() {
    for (const Command &command : program_.commands) {
      if (command.path == path_) command_ = &command;
    }
  }

  const Option *Find(const std::string &name) const {
    if (!name.starts_with('-')) return nullptr;
    for (const Option &option : program_.options) {
      if (HasName(option, name)) return &option;
    }
    if (command_ == nullptr) return nullptr;
    for (const Option &option : command_->options) {
      if (HasName(option, name)) return &option;
    }
    return nullptr;
  }

  static bool HasName(const Option &option, const std::string &name) {
    const std::vector<std::string> names = NamesOf(option);
    return std::find(names.begin(), names.end(), name) != names.end();
  }

  // Null when all were typed.
  const Option *NextPosition() const {
    if (command_ == nullptr) return nullptr;
    std::size_t number = 0;
    for (const Option &option : command_->options) {
      if (IsPosition(option) && number++ == positions_) return &option;
    }
    return nullptr;
  }

  std::string ValuesOf(const Option &option, const std::string &lead,
                       const std::string &begun) const {
    if (option.fill == Fill::File) return kFiles;
    if (option.fill != Fill::Values) return "";
    std::string offered;
    for (const Value &value : option.values(typed_, begun)) {
      offered += Line(value.word, value.meaning, lead, begun);
    }
    return offered;
  }

  std::string Commands(const std::string &begun) const {
    std::string offered;
    if (path_.empty()) {
      for (const Group &group : program_.groups) {
        offered += Line(group.name, group.summary, "", begun);
      }
    }
    const std::string before = path_.empty() ? "" : path_ + " ";
    for (const Command &command : program_.commands) {
      if (!command.path.starts_with(before)) continue;
      const std::string rest = command.path.substr(before.size());
      if (rest.find(' ') != std::string::npos) continue;
      offered += Line(rest, command.summary, "", begun);
    }
    return offered;
  }

  std::string Options(const std::string &begun) const {
    std::string offered;
    const auto offer = [&](const std::vector<Option> &options) {
      for (const Option &option : options) {
        if (IsPosition(option)) continue;
        if (!option.repeats && typed_.count(KeyOf(option)) > 0) continue;
        for (const std::string &name : NamesOf(option)) {
          offered += Line(name, option.description, "", begun);
        }
      }
    };
    if (command_ != nullptr) offer(command_->options);
    offer(program_.options);
    return offered;
  }

  const Program &program_;
  std::string path_;
  const Command *command_ = nullptr;
  const Option *option_ = nullptr;  // whose value comes next
  bool marked_ = false;             // "--" was typed
  std::size_t positions_ = 0;       // that are complete
  Typed typed_;
};

}  // namespace

std::string Completions(const Program &program,
                        const std::vector<std::string> &words) {
  Reader reader(program);
  if (words.empty()) return reader.Offered("");
  for (std::size_t i = 0; i + 1 < words.size(); ++i) reader.Take(words[i]);
  return reader.Offered(words.back());
}

}  // namespace ztk::cli
