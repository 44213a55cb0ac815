// SPDX-License-Identifier: MIT
#include "cli/assign.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace ztk::cli {

namespace {

// No option is a digit, so "-5" is a number.
bool IsNegativeNumber(const std::string &word) {
  return word.size() > 1 && word[0] == '-' && word[1] >= '0' && word[1] <= '9';
}

class Assigner {
 public:
  Assigner(const std::vector<Option> &options,
           const std::vector<std::string> &words)
      : options_(options), words_(words) {}

  Assignment Run() {
    bool optionsEnded = false;
    while (next_ < words_.size()) {
      const std::string &word = words_[next_++];
      if (optionsEnded || !IsOptionWord(word) || IsNegativeNumber(word)) {
        TakePositional(word);
      } else if (word == kEndOfOptions) {
        optionsEnded = true;
      } else if (word.starts_with("--")) {
        TakeLong(word);
      } else {
        TakeShort(word);
      }
    }
    FindRepeated();
    return std::move(result_);
  }

 private:
  // The option of this name, with its dashes; null if there is none.
  const Option *Named(const std::string &name) const {
    for (const Option &option : options_) {
      const std::vector<std::string> names = NamesOf(option);
      if (std::find(names.begin(), names.end(), name) != names.end()) {
        return &option;
      }
    }
    return nullptr;
  }

  // "--json", "--mixer=2"
  void TakeLong(const std::string &word) {
    const std::size_t end = std::min(word.find('='), word.size());
    const Option *const option = Named(word.substr(0, end));
    const std::string value = word.substr(std::min(end + 1, word.size()));
    if (option == nullptr) {
      result_.extras.push_back(word);
    } else if (IsFlag(*option)) {
      SetFlag(*option, value.empty() || value == "true");
    } else {
      TakeValue(*option, value);
    }
  }

  // "-q", "-m2", "-qm2"
  void TakeShort(const std::string &word) {
    const Option *const option = Named(word.substr(0, 2));
    const std::string rest = word.substr(2);
    if (option == nullptr) {
      result_.extras.push_back(word);
    } else if (IsFlag(*option)) {
      SetFlag(*option, true);
      if (!rest.empty()) TakeShort("-" + rest);
    } else {
      TakeValue(*option, rest);
    }
  }

  void SetFlag(const Option &option, bool isSet) {
    if (isSet) {
      result_.given[KeyOf(option)] = {"true"};
    } else {
      result_.given.erase(KeyOf(option));
    }
  }

  // Without a value in the same word, the next word is the value.
  void TakeValue(const Option &option, const std::string &value) {
    if (!value.empty()) {
      result_.given[KeyOf(option)].push_back(value);
    } else if (next_ < words_.size()) {
      result_.given[KeyOf(option)].push_back(words_[next_++]);
    } else {
      result_.miscounted = &option;
    }
  }

  void TakePositional(const std::string &word) {
    for (const Option &option : options_) {
      if (!IsPositional(option)) continue;
      std::vector<std::string> &values = result_.given[KeyOf(option)];
      if (values.empty()) {
        values.push_back(word);
        return;
      }
      if (option.repeats) {
        values.front() += " " + word;
        return;
      }
    }
    result_.extras.push_back(word);
  }

  void FindRepeated() {
    for (const Option &option : options_) {
      if (result_.miscounted != nullptr || option.repeats) continue;
      const auto given = result_.given.find(KeyOf(option));
      if (given != result_.given.end() && given->second.size() > 1) {
        result_.miscounted = &option;
      }
    }
  }

  const std::vector<Option> &options_;
  const std::vector<std::string> &words_;
  std::size_t next_ = 0;
  Assignment result_;
};

}  // namespace

bool IsOptionWord(const std::string &word) {
  return word.size() > 1 && word.front() == '-';
}

Assignment Assign(const std::vector<Option> &options,
                  const std::vector<std::string> &words) {
  return Assigner(options, words).Run();
}

}  // namespace ztk::cli
