// SPDX-License-Identifier: MIT
#include "cli/program.h"

#include <utility>

namespace ztk::cli {

std::vector<Option> CommonOptions(const Program &program) {
  std::vector<Option> options = program.options;
  options.push_back(
      {.names = "-h,--help", .value = "", .description = "Show this help"});
  options.push_back({.names = "-V,--version",
                     .value = "",
                     .description = "Show the version"});
  return options;
}

std::vector<std::string> NamesOf(const Option &option) {
  std::vector<std::string> names;
  std::size_t begin = 0;
  while (begin <= option.names.size()) {
    const std::size_t end = option.names.find(',', begin);
    names.push_back(option.names.substr(begin, end - begin));
    if (end == std::string::npos) break;
    begin = end + 1;
  }
  return names;
}

std::string KeyOf(const Option &option) {
  return option.names.substr(option.names.rfind(',') + 1);
}

bool IsPositional(const Option &option) { return option.names[0] != '-'; }

bool IsFlag(const Option &option) {
  return !IsPositional(option) && option.value.empty();
}

const Command *FindCommand(const Program &program, const std::string &path) {
  for (const Command &command : program.commands) {
    if (command.path == path) return &command;
  }
  return nullptr;
}

const Group *FindGroup(const Program &program, const std::string &name) {
  for (const Group &group : program.groups) {
    if (group.name == name) return &group;
  }
  return nullptr;
}

std::vector<Value> NextWords(const Program &program, const std::string &path) {
  std::vector<Value> words;
  const std::string before = path.empty() ? "" : path + " ";
  for (const Command &command : program.commands) {
    if (!command.path.starts_with(before)) continue;
    const std::string word = command.path.substr(
        before.size(), command.path.find(' ', before.size()) - before.size());
    if (!words.empty() && words.back().word == word) continue;
    const Group *group = path.empty() ? FindGroup(program, word) : nullptr;
    words.push_back(
        {.word = word,
         .meaning = group == nullptr ? command.summary : group->summary});
  }
  return words;
}

Option Offering(Option option, std::function<std::vector<Value>()> values) {
  option.fill = Fill::Values;
  option.values = [values = std::move(values)](const Arguments & /*before*/,
                                               const std::string & /*begun*/) {
    return values();
  };
  return option;
}

}  // namespace ztk::cli
