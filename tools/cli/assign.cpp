// SPDX-License-Identifier: MIT
#include "cli/assign.h"

#include <getopt.h>

#include <cstddef>
#include <list>
#include <utility>

namespace ztk::cli {

namespace {

// What getopt_long() returns for a positional argument, for an unknown option,
// for a missing value, and for the long option number 0.
constexpr int kPositional = 1;
constexpr int kUnknown = '?';
constexpr int kNoValue = ':';
constexpr int kFirstLong = 256;

// No option is a digit, so "-5" is a number.
bool IsNegativeNumber(const std::string &word) {
  return word.size() > 1 && word[0] == '-' && word[1] >= '0' && word[1] <= '9';
}

class Assigner {
 public:
  Assigner(const std::vector<Option> &options,
           const std::vector<std::string> &words)
      : options_(options), words_(words) {
    for (std::size_t i = 0; i < options.size(); ++i) Describe(i);
    longOptions_.push_back({});
    // getopt_long() does not change the words, because "-" keeps their order.
    argv_.push_back(nullptr);
    for (std::string &word : words_) argv_.push_back(word.data());
    argv_.push_back(nullptr);
  }

  Assignment Run() {
    // The value 0 makes getopt_long() begin anew. The first call has no words:
    // it only moves optind to the first word.
    optind = 0;
    opterr = 0;
    getopt_long(1, argv_.data(), shortOptions_.c_str(), longOptions_.data(),
                nullptr);
    std::size_t word = 0;
    bool isWithinWord = false;  // several short options in one
    while (word < words_.size()) {
      if (!isWithinWord && IsNegativeNumber(words_[word])) {
        TakePositional(words_[word++]);
        optind = static_cast<int>(word) + 1;
        continue;
      }
      const int found =
          getopt_long(static_cast<int>(words_.size()) + 1, argv_.data(),
                      shortOptions_.c_str(), longOptions_.data(), nullptr);
      if (found < 0) break;
      Take(found, word);
      const auto next = static_cast<std::size_t>(optind) - 1;
      isWithinWord = next == word;
      word = next;
    }
    // The words after "--".
    for (auto i = static_cast<std::size_t>(optind) - 1; i < words_.size();
         ++i) {
      TakePositional(words_[i]);
    }
    FindRepeated();
    return std::move(result_);
  }

 private:
  // Adds an option in the form in which getopt_long() needs it.
  void Describe(std::size_t index) {
    const Option &option = options_[index];
    if (IsPositional(option)) return;
    names_.push_back(NamesOf(option));
    for (const std::string &name : names_.back()) {
      if (name.starts_with("--")) {
        longOptions_.push_back(
            {name.c_str() + 2,
             IsFlag(option) ? optional_argument : required_argument, nullptr,
             kFirstLong + static_cast<int>(index)});
      } else {
        shortOptions_ += name[1];
        if (!IsFlag(option)) shortOptions_ += ':';
        byLetter_[name[1]] = &option;
      }
    }
  }

  void Take(int found, std::size_t word) {
    if (found == kPositional) return TakePositional(optarg);
    if (found == kUnknown) {
      if (result_.extras.empty() || result_.extras.back() != words_[word]) {
        result_.extras.push_back(words_[word]);
      }
      unknownWord_ = word;
      return;
    }
    // The known letters of a word with an unknown letter are ignored too.
    if (unknownWord_ == word) return;
    const int name = found == kNoValue ? optopt : found;
    const Option &option =
        name < kFirstLong
            ? *byLetter_[static_cast<char>(name)]
            : options_[static_cast<std::size_t>(name - kFirstLong)];
    const std::string value = optarg == nullptr ? "" : optarg;
    if (IsFlag(option)) {
      SetFlag(option, value.empty() || value == "true");
    } else if (found == kNoValue) {
      result_.miscounted = &option;
    } else {
      result_.given[KeyOf(option)].push_back(value);
    }
  }

  void SetFlag(const Option &option, bool isSet) {
    if (isSet) {
      result_.given[KeyOf(option)] = {"true"};
    } else {
      result_.given.erase(KeyOf(option));
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
  std::vector<std::string> words_;
  std::vector<char *> argv_;
  // A list does not move its elements, to which longOptions_ points.
  std::list<std::vector<std::string>> names_;
  // "-" makes getopt_long() return positional arguments in their place. ":"
  // makes it tell a missing value from an unknown option.
  std::string shortOptions_ = "-:";
  std::vector<option> longOptions_;
  std::map<char, const Option *> byLetter_;
  // The last word that has an unknown option; -1 if there is none.
  std::size_t unknownWord_ = static_cast<std::size_t>(-1);
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
