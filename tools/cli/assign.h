// SPDX-License-Identifier: MIT
//
// Assigns the words of a command line to options and positional arguments, with
// getopt_long() of the C library.
#ifndef ZTK_TOOLS_CLI_ASSIGN_H_
#define ZTK_TOOLS_CLI_ASSIGN_H_

#include <map>
#include <string>
#include <vector>

#include "cli/program.h"

namespace ztk::cli {

// All words after it are positional arguments.
inline constexpr char kEndOfOptions[] = "--";

// Whether a word has the form of an option: "-m", "--mixer=2", "--".
bool IsOptionWord(const std::string &word);

struct Assignment {
  // As in Arguments.
  std::map<std::string, std::vector<std::string>> given;
  // Unknown options, and words for which no positional argument is left.
  std::vector<std::string> extras;
  // An option that needs a value and has none, or that has several values and
  // accepts one; null if there is no such option. Points into the options that
  // were passed to Assign().
  const Option *miscounted = nullptr;
};

// Options have the forms of getopt_long(): "--mixer 2", "--mixer=2", "-m 2",
// "-m2", several flags in one word ("-qv"), and a part of a long name that fits
// only one option. A negative number is no option. The word after an option
// with a value is this value, even if it begins with a dash. A flag can be
// cancelled:
// "--json=false". Not thread-safe, as getopt_long() is not.
Assignment Assign(const std::vector<Option> &options,
                  const std::vector<std::string> &words);

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_CLI_ASSIGN_H_
