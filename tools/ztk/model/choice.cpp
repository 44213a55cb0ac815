// SPDX-License-Identifier: MIT
#include "ztk/model/choice.h"

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

// Whether the words are the choice as it is printed: "MIC (6)", or "6  MIC" in
// a list.
bool IsPrinted(const Choice &choice, const std::string &words) {
  return words == Folded(Described(choice)) ||
         words == Folded(std::to_string(choice.number) + choice.text);
}

bool IsDigits(const std::string &words) {
  return !words.empty() &&
         words.find_first_not_of("0123456789") == std::string::npos;
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
  if (found.empty() && !IsDigits(wanted)) {
    found = BeginningWith(choices, wanted, true);
    if (found.empty()) found = Containing(choices, wanted);
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
