// SPDX-License-Identifier: MIT
//
// A program as its user meets it: commands, options, what they mean. Each
// program fills it from its own table; manual pages and completions are made
// from it.
#ifndef ZTK_TOOLS_CLI_PROGRAM_H_
#define ZTK_TOOLS_CLI_PROGRAM_H_

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace ztk::cli {

// A word that can stand somewhere, and what it means.
struct Value {
  std::string word;
  std::string meaning;
};

// What was typed before: by the long name of an option, "--product", or the
// name of a position, "N". Words of a position that takes several are joined by
// single spaces.
using Typed = std::map<std::string, std::string>;

enum class Fill : std::uint8_t {
  Nothing,  // anything can stand there
  Values,   // what `values` gives
  File,     // the name of a file
  Command   // a program and its own arguments, up to the end
};

struct Option {
  // "-n,--mixers"; the name of a position has no dashes.
  std::string names;
  std::string value;  // "MODEL"; empty for a flag and for a position
  std::string description;
  bool required = false;
  bool repeats = false;  // may be given again; a position: takes several words
  Fill fill = Fill::Nothing;
  // What can stand there, after what was typed before, for a word that begins
  // so far; more may be given, as only what begins so is offered.
  std::function<std::vector<Value>(const Typed &before,
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
};

// A word that stands for several commands: the first of their paths.
struct Group {
  std::string name;
  std::string summary;
  std::string note;
  bool isSetting;  // else its commands alone tell of it
};

// What one exit status, variable or file means.
struct Term {
  std::string name;
  std::string meaning;
};

struct Section {
  std::string title;
  std::string text;  // paragraphs, parted by empty lines
  std::vector<Term> terms;
};

struct Program {
  std::string name;
  std::string summary;          // goes on after "ztk - "
  std::string about;            // paragraphs
  std::vector<Option> options;  // of every command
  std::vector<Group> groups;
  std::vector<Command> commands;
  std::vector<Section> sections;
  std::vector<std::string> seeAlso;  // "ztk-virtual-mixer(1)"
};

// The names of an option, one by one.
std::vector<std::string> NamesOf(const Option &option);
// The name by which Typed knows it: the last of them.
std::string KeyOf(const Option &option);
bool IsPosition(const Option &option);

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_CLI_PROGRAM_H_
