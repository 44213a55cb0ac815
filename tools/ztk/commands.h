// SPDX-License-Identifier: MIT
//
// Every command of the program, in one table: the parser, the help and
// whatever else describes the program are made from it.
#ifndef ZTK_TOOLS_ZTK_COMMANDS_H_
#define ZTK_TOOLS_ZTK_COMMANDS_H_

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "report.h"

namespace ztk::cli {

// What can follow the name of a command. Named after what users read.
enum class Parameter : std::uint8_t {
  Channel,    // N
  Choice,     // CHOICE, one word or several
  High,       // HIGH
  Source,     // SOURCE
  Product,    // --product MODEL
  OfChannel,  // --channel N
  Language,   // --language L
};

// A parameter as one command has it.
struct ParameterUse {
  Parameter parameter;
  bool required;
  std::string description;
};

// The words of one call. The words of a choice are joined by single spaces.
struct Arguments {
  std::map<Parameter, std::string> given;
  bool json = false;

  // Null when it was left out.
  const std::string *Find(Parameter parameter) const {
    const auto found = given.find(parameter);
    return found == given.end() ? nullptr : &found->second;
  }
};

struct Command {
  std::string path;  // "status", "input set"
  std::string summary;
  std::vector<ParameterUse> parameters;
  std::string note;  // sentences below the options
  std::string example;
  std::function<Report(const Arguments &)> run;
};

// What the first word of a path with two stands for.
struct Group {
  std::string name;
  std::string summary;
  std::string note;
  std::string example;
};

const std::vector<Command> &Commands();
const std::vector<Group> &Groups();

// "N", "CHOICE", "--product"
const char *ParameterName(Parameter parameter);
// "MODEL" for "--product"; empty for what stands without a name.
const char *ParameterValueName(Parameter parameter);

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_ZTK_COMMANDS_H_
