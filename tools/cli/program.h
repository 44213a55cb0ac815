// SPDX-License-Identifier: MIT
//
// The command-line interface of a program as one table: commands, options,
// exit statuses, and the functions that run the commands. Parser, help,
// completions and manual page are made from this table.
#ifndef ZTK_TOOLS_CLI_PROGRAM_H_
#define ZTK_TOOLS_CLI_PROGRAM_H_

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace ztk::cli {

// The arguments of one call, by the long name of the option ("--product") or
// the name of the positional argument ("CHANNEL").
struct Arguments {
  // The words of a positional argument that takes several of them are joined
  // by single spaces. A flag has the value "true".
  std::map<std::string, std::vector<std::string>> given;
  // A program and its own arguments, which follow "--".
  std::vector<std::string> command;

  bool Has(const std::string &name) const { return given.count(name) > 0; }
  // The last value; null when the argument was left out.
  const std::string *Find(const std::string &name) const {
    const auto found = given.find(name);
    return found == given.end() ? nullptr : &found->second.back();
  }
  // The last value; empty when the argument was left out.
  std::string One(const std::string &name) const {
    return Has(name) ? given.at(name).back() : "";
  }
  std::vector<std::string> All(const std::string &name) const {
    return Has(name) ? given.at(name) : std::vector<std::string>();
  }
};

// An accepted word and its meaning, offered by completions.
struct Value {
  std::string word;
  std::string meaning;
};

enum class Fill : std::uint8_t {
  Nothing,  // any word
  Values,   // what `values` returns
  File,     // a file name
  Command   // a program and its own arguments, which follow "--"
};

// An option, or a positional argument, whose name has no dashes.
struct Option {
  std::string names;  // "-n,--mixers", "CHANNEL"
  std::string value;  // "MODEL"; empty for a flag and for a positional argument
  std::string description;
  bool required = false;
  // The option may be given again; the positional argument takes several words.
  bool repeats = false;
  Fill fill = Fill::Nothing;
  // Returns the words that can follow the arguments `before`. `begun` is the
  // part of the word that the user has typed. The function may also return
  // words that do not begin with this part; they are not offered.
  std::function<std::vector<Value>(const Arguments &before,
                                   const std::string &begun)>
      values = {};
};

struct Command {
  std::string path;  // "status", "input set"
  std::string summary;
  std::vector<Option> options;
  std::string
      note;  // sentences; lines that start with a space stay as they are
  std::vector<std::string> examples;
  // Returns the exit status.
  std::function<int(const Arguments &arguments)> run;
};

// The first word of commands with two words.
struct Group {
  std::string name;
  std::string summary;
  std::string note;
  std::string example;
};

// An exit status, a variable or a file, and its meaning.
struct Term {
  std::string name;
  std::string meaning;
};

struct Section {
  std::string title;
  std::string text;  // paragraphs, separated by empty lines
  std::vector<Term> terms;
};

// What to say when a user types a word that no command has, but that many users
// expect.
struct Advice {
  std::string path;  // the command before the word; may be empty
  std::string word;  // "N" is any number, "*" any word
  std::string text;  // "run: ztk reset"
  enum class Repeats : std::uint8_t {
    Nothing,
    Rest,     // the text is continued with the words after the word
    WordToo,  // also with the word itself
  } repeats;
};

struct Program {
  std::string name;
  std::string version;
  std::string summary;  // continues "ztk - "
  std::string about;    // the first paragraph of help and manual page
  std::vector<std::string> examples;
  std::vector<Option> options;  // of every command
  std::vector<Group> groups;
  std::vector<Command> commands;
  std::vector<Term> (*exitStatuses)();
  // Sections of the manual page before its commands, and after them.
  std::vector<Section> (*introduction)();
  std::vector<Section> (*sections)();
  std::vector<std::string> seeAlso;  // "ztk-virtual-mixer(1)"
  std::vector<Advice> (*advice)() = nullptr;
};

// Defined by each program: its table. With the first word of a command line,
// the table may lack the commands that begin with another word, to save time.
Program ThisProgram(const std::string &firstWord = "");

inline constexpr char kHelpName[] = "--help";
inline constexpr char kVersionName[] = "--version";

// The options of every command: those of the program, --help and --version.
std::vector<Option> CommonOptions(const Program &program);

// All names of an option.
std::vector<std::string> NamesOf(const Option &option);
// The name of an option in Arguments: the last of its names.
std::string KeyOf(const Option &option);
bool IsPositional(const Option &option);
bool IsFlag(const Option &option);

// Null where there is none.
const Command *FindCommand(const Program &program, const std::string &path);
const Group *FindGroup(const Program &program, const std::string &name);

// The words that can follow the path, which is empty or names a group.
std::vector<Value> NextWords(const Program &program, const std::string &path);

// An option that offers these words, whatever stands before it. The function is
// called only for completions and for error messages.
Option Offering(Option option, std::function<std::vector<Value>()> values);

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_CLI_PROGRAM_H_
