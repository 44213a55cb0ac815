// SPDX-License-Identifier: MIT
//
// Finds the choice that the words of a user name.
#ifndef ZTK_TOOLS_ZTK_MODEL_CHOICE_H_
#define ZTK_TOOLS_ZTK_MODEL_CHOICE_H_

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ztk::model {

// One of a setting's choices, as it is listed.
struct Choice {
  std::uint32_t number;  // counts from 1
  std::string text;
};

struct Match {
  std::optional<Choice> choice;
  // When none was found: the choices that the words could mean, if any.
  std::vector<Choice> candidates;
};

// Looks for a choice by its number, by its text, by both as they are printed,
// by the beginning of its text, by a later word of its text, or by several
// words of its text in any order: "post fader" and "after the fader" are "Post
// CH2 Fader". Upper and lower case are the same and spaces do not count. A text
// that starts with a minus sign is also found without it, because a shell may
// take such a word for an option, but not by its number alone: "10 dB" can only
// be a level, and "4" is the fourth choice.
Match FindChoice(const std::vector<Choice> &choices, const std::string &words);

// "REC OUT (1)". All sentences of ztk name a choice in this form, and a user
// can type it.
std::string Described(const Choice &choice);
std::string Described(const std::vector<Choice> &choices);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_CHOICE_H_
