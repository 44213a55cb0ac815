// SPDX-License-Identifier: MIT
#include "cli/help.h"

#include "cli/strings.h"
#include "cli/terminal.h"

namespace ztk::cli {

namespace {

// The column in which meanings begin: the middle of a narrow terminal.
constexpr std::size_t kColumn = 20;
constexpr char kIndentation[] = "  ";

// "  name      meaning"; a long name has a line of its own.
std::string Row(const std::string &name, const std::string &meaning,
                std::size_t column = kColumn) {
  std::string row = kIndentation + name;
  if (row.size() + 2 > column) {
    row += "\n";
    row += std::string(column, ' ');
  } else {
    row = Padded(row, column);
  }
  return row + OneLine(meaning) + "\n";
}

std::string NameColumn(const Option &option) {
  std::string column;
  for (const std::string &name : NamesOf(option)) {
    column += (column.empty() ? "" : ", ") + name;
  }
  if (!option.value.empty()) column += " " + option.value;
  return column;
}

std::string Rows(const char *title, const std::vector<Option> &options,
                 bool positional) {
  std::string rows;
  for (const Option &option : options) {
    if (IsPositional(option) != positional) continue;
    rows += Row(NameColumn(option), option.description);
  }
  return rows.empty() ? "" : std::string("\n") + title + ":\n" + rows;
}

std::string Examples(const std::vector<std::string> &examples) {
  if (examples.size() == 1) {
    return std::string("\n") + kUnwrapped + "Example: " + examples.front() +
           "\n";
  }
  std::string lines;
  for (const std::string &example : examples) {
    lines += std::string(1, kUnwrapped) + kIndentation + example + "\n";
  }
  return lines.empty() ? "" : "\nExamples:\n" + lines;
}

std::string CommandRows(const Program &program, const std::string &path) {
  std::string rows = "\nCommands:\n";
  for (const Value &word : NextWords(program, path)) {
    rows += Row(word.word, word.meaning);
  }
  return rows;
}

std::string Usage(const Program &program, const Command &command) {
  std::string usage = program.name + " " + command.path + " [OPTIONS]";
  for (const Option &option : command.options) {
    if (!IsPositional(option)) continue;
    std::string word =
        (option.fill == Fill::Command ? "-- " : "") + option.names;
    if (option.repeats) word += "...";
    usage += option.required ? " " + word : " [" + word + "]";
  }
  return usage;
}

std::string UsageLine(const std::string &usage) {
  return std::string("\n") + kUnwrapped + "Usage: " + usage + "\n";
}

std::string Note(const std::string &note) {
  return note.empty() ? "" : "\n" + note + "\n";
}

std::string OfCommand(const Program &program, const Command &command) {
  std::vector<Option> options = command.options;
  for (Option &option : CommonOptions(program)) options.push_back(option);
  return command.summary + "\n" + UsageLine(Usage(program, command)) +
         Rows("Arguments", command.options, true) +
         Rows("Options", options, false) + Note(command.note) +
         Examples(command.examples);
}

std::string OfProgram(const Program &program) {
  constexpr std::size_t kStatusColumn = 7;
  std::string statuses;
  for (const Term &status : program.exitStatuses()) {
    const std::size_t width = status.name.size();
    statuses +=
        Row((width < 3 ? std::string(3 - width, ' ') : "") + status.name,
            status.meaning, kStatusColumn);
  }
  return program.about + "\n" + UsageLine(program.name + " [OPTIONS] COMMAND") +
         CommandRows(program, "") +
         Rows("Options", CommonOptions(program), false) + "\nExit status:\n" +
         statuses + Examples(program.examples);
}

}  // namespace

std::string Help(const Program &program, const std::string &path) {
  if (const Command *command = FindCommand(program, path)) {
    return OfCommand(program, *command);
  }
  const Group *group = FindGroup(program, path);
  if (group == nullptr) return OfProgram(program);
  return group->summary + "\n" +
         UsageLine(program.name + " " + group->name + " [OPTIONS] COMMAND") +
         CommandRows(program, path) +
         Rows("Options", CommonOptions(program), false) + Note(group->note) +
         Examples({group->example});
}

}  // namespace ztk::cli
