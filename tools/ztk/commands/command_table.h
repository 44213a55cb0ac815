// SPDX-License-Identifier: MIT
//
// Every command of the program, in one table: the parser, the help and
// whatever else describes the program are made from it.
#ifndef ZTK_TOOLS_ZTK_COMMANDS_COMMAND_TABLE_H_
#define ZTK_TOOLS_ZTK_COMMANDS_COMMAND_TABLE_H_

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "ztk/report.h"

namespace ztk::program {

// What can follow the name of a command. Named after what users read.
enum class Parameter : std::uint8_t {
  Channel,    // N
  Choice,     // CHOICE, one word or several
  High,       // HIGH
  Source,     // SOURCE
  Product,    // --product MODEL
  OfChannel,  // --channel N
  Language,   // --language L
  DryRun,     // --dry-run
  File,       // FILE
  ReportFile  // --report FILE
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
  // For what is either said or not.
  bool Has(Parameter parameter) const {
    const std::string *word = Find(parameter);
    return word != nullptr && *word == "true";
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

// An option that every command takes.
struct OptionForAll {
  const char *names;
  const char *description;
};

// What the program is, in a few sentences.
inline constexpr char kAbout[] =
    "Settings of the USB DJ mixer VRM-D6 and its sister models.\n"
    "Channels and choices count from 1, as they are listed.";

inline constexpr OptionForAll kHelpOption{.names = "-h,--help",
                                          .description =
                                              "Show this help, as ztk help "
                                              "[COMMAND] does"};
inline constexpr OptionForAll kJsonOption{.names = "--json",
                                          .description = "Answer in JSON"};
// Of the program alone.
inline constexpr OptionForAll kVersionOption{.names = "--version",
                                             .description = "Show the version"};

const std::vector<Command> &Commands();
const std::vector<Group> &Groups();

// True where no word follows the name.
bool IsFlag(Parameter parameter);
// "N", "CHOICE", "--product"
const char *ParameterName(Parameter parameter);
// "MODEL" for "--product"; empty for what stands without a name.
const char *ParameterValueName(Parameter parameter);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_COMMANDS_COMMAND_TABLE_H_
