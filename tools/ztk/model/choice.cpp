// SPDX-License-Identifier: MIT
#include "ztk/model/choice.h"

#include <algorithm>

#include "cli/strings.h"

namespace ztk::model {

namespace {

bool IsSpace(char character) {
  return character == ' ' || (character >= '\t' && character <= '\r');
}

// The form that is compared: lower case without spaces. Only ASCII letters are
// converted, in every locale: the choices have no others.
std::string Folded(const std::string &text) {
  std::string folded;
  for (const char character : text) {
    if (!IsSpace(character)) folded += cli::LowerCase(character);
  }
  return folded;
}

// The choices whose folded text begins with the words. If one of these texts
// equals the words, returns only its choice. With `skipMinusSign`, a minus sign
// at the beginning of a text is ignored.
std::vector<Choice> BeginningWith(const std::vector<Choice> &choices,
                                  const std::string &words,
                                  bool skipMinusSign) {
  std::vector<Choice> found;
  for (const Choice &choice : choices) {
    std::string text = Folded(choice.text);
    if (skipMinusSign && text.starts_with('-')) text.erase(0, 1);
    if (text == words) return {choice};
    if (text.starts_with(words)) found.push_back(choice);
  }
  return found;
}

// Whether the words are in the text, at the beginning of a word. A word begins
// at the beginning of the text, after a space and after a slash.
bool BeginsAWord(const std::string &text, const std::string &words) {
  for (std::size_t place = 0; place < text.size(); ++place) {
    const bool begins =
        place == 0 || IsSpace(text[place - 1]) || text[place - 1] == '/';
    if (begins && Folded(text.substr(place)).starts_with(words)) return true;
  }
  return false;
}

// The choices whose text contains the words at the beginning of a word.
std::vector<Choice> Containing(const std::vector<Choice> &choices,
                               const std::string &words) {
  std::vector<Choice> found;
  for (const Choice &choice : choices) {
    if (BeginsAWord(choice.text, words)) found.push_back(choice);
  }
  return found;
}

// The words of a text in lower case. Spaces, dashes and slashes separate words.
std::vector<std::string> WordsOf(const std::string &text) {
  std::vector<std::string> words(1);
  for (const char character : text) {
    if (IsSpace(character) || character == '-' || character == '/') {
      if (!words.back().empty()) words.emplace_back();
    } else {
      words.back() += cli::LowerCase(character);
    }
  }
  if (words.back().empty()) words.pop_back();
  return words;
}

// Whether the typed words from `next` on are words of a text, in any order. A
// typed word can be the beginning of a word, and several words without spaces
// between them. `left` are the words of the text that are not used yet.
bool AreWords(const std::vector<std::string> &typed, std::size_t next,
              const std::vector<std::string> &left) {
  if (next == typed.size()) return true;
  for (std::size_t i = 0; i < left.size(); ++i) {
    std::vector<std::string> others = left;
    others.erase(others.begin() + static_cast<std::ptrdiff_t>(i));
    if (left[i].starts_with(typed[next])) {
      if (AreWords(typed, next + 1, others)) return true;
    } else if (typed[next].starts_with(left[i])) {
      std::vector<std::string> rest = typed;
      rest[next].erase(0, left[i].size());
      if (AreWords(rest, next, others)) return true;
    }
  }
  return false;
}

// The choices whose text has all these words, in any order.
std::vector<Choice> WithAllWords(const std::vector<Choice> &choices,
                                 const std::string &words) {
  std::vector<Choice> found;
  std::vector<std::string> typed = WordsOf(words);
  // People say "after the fader".
  std::replace(typed.begin(), typed.end(), std::string("after"),
               std::string("post"));
  std::erase(typed, "the");
  if (typed.empty()) return found;
  for (const Choice &choice : choices) {
    if (AreWords(typed, 0, WordsOf(choice.text))) found.push_back(choice);
  }
  return found;
}

// Whether the words are the choice as it is printed: "MIC (6)", or "6  MIC" in
// a list.
bool IsPrinted(const Choice &choice, const std::string &words) {
  return words == Folded(Described(choice)) ||
         words == Folded(std::to_string(choice.number) + choice.text);
}

bool IsNumber(const std::string &words) {
  return words.find_first_not_of("-0123456789") == std::string::npos;
}

}  // namespace

Match FindChoice(const std::vector<Choice> &choices, const std::string &words) {
  const std::string wanted = Folded(words);
  if (wanted.empty()) return {};

  const std::optional<std::uint32_t> number = cli::ParseNumber(words);
  for (const Choice &choice : choices) {
    if (number == choice.number || IsPrinted(choice, wanted)) {
      return {.choice = choice, .candidates = {}};
    }
  }
  std::vector<Choice> found = BeginningWith(choices, wanted, false);
  // A word that is only a number is always the number of a choice.
  if (found.empty() && !IsNumber(wanted)) {
    found = BeginningWith(choices, wanted, true);
    if (found.empty()) found = Containing(choices, wanted);
    if (found.empty()) found = WithAllWords(choices, words);
  }
  if (found.size() == 1) return {.choice = found.front(), .candidates = {}};
  return {.choice = std::nullopt, .candidates = std::move(found)};
}

std::string Described(const Choice &choice) {
  return choice.text + " (" + std::to_string(choice.number) + ")";
}

std::string Described(const std::vector<Choice> &choices) {
  std::vector<std::string> words;
  words.reserve(choices.size());
  for (const Choice &choice : choices) words.push_back(Described(choice));
  return cli::Listed(words);
}

}  // namespace ztk::model
