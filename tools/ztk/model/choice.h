// SPDX-License-Identifier: MIT
//
// Finding the choice that a user means.
#ifndef ZTK_TOOLS_ZTK_MODEL_CHOICE_H_
#define ZTK_TOOLS_ZTK_MODEL_CHOICE_H_

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ztk::program {

// One of a setting's choices, as it is listed.
struct Choice {
  std::uint32_t number;  // counts from 1
  std::string text;
};

struct Match {
  std::optional<Choice> choice;
  // When none was found: those that the words could mean, if any.
  std::vector<Choice> candidates;
};

// Looks for a choice by its number, by its text, or by the beginning of its
// text. Upper and lower case are the same and spaces do not count. A text that
// starts with a minus sign is also found without it, because shells and users
// stumble over it, but not by its bare number: "10 dB" can only be a level, and
// "4" is the fourth choice.
Match FindChoice(const std::vector<Choice> &choices, const std::string &words);

// "; nearest: 6 MIC" for words that no choice begins with; empty where none is
// near.
std::string NearestChoice(const std::string &words,
                          const std::vector<Choice> &choices);

// "1 REC OUT", for lists on one line.
std::string Described(const Choice &choice);
std::string Described(const std::vector<Choice> &choices);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_MODEL_CHOICE_H_
