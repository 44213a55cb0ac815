// SPDX-License-Identifier: MIT
//
// Parses a command line by the table of a program.
#ifndef ZTK_TOOLS_CLI_PARSER_H_
#define ZTK_TOOLS_CLI_PARSER_H_

#include <stdexcept>
#include <string>
#include <vector>

#include "cli/program.h"

namespace ztk::cli {

// An invalid command line. The message says what is wrong, what is accepted
// and what to do, on one line.
class UsageError : public std::runtime_error {
 public:
  explicit UsageError(const std::string &message, std::string path = "")
      : std::runtime_error(message), path_(std::move(path)) {}
  // "input set", as far as it was recognised.
  const std::string &path() const { return path_; }

 private:
  std::string path_;
};

// What a command line asks for.
struct Invocation {
  enum class Kind { Run, Help, Version, Completion };

  Kind kind = Kind::Run;
  std::string path;  // "input set"; of a group or empty when help is asked for
  const Command *command = nullptr;  // to run
  Arguments arguments;
  // To show instead of running a command. Help is not laid out yet: see
  // FillParagraphs().
  std::string text;
};

// The first word that is not an option, for ThisProgram(). Empty if there is no
// such word, and if it is "help" or kCompletionCall, which need all commands.
std::string FirstWord(const std::vector<std::string> &words);

// Parses the words that follow the name of the program. Throws UsageError.
Invocation Parse(const Program &program, const std::vector<std::string> &words);

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_CLI_PARSER_H_
