// SPDX-License-Identifier: MIT
#include "cli/man_page.h"

#include <algorithm>

#include "cli/roff.h"

namespace ztk::cli {

namespace {

constexpr int kCommandsSection = 1;

std::string NamesMarkup(const Option &option) {
  std::string markup;
  for (const std::string &name : NamesOf(option)) {
    if (!markup.empty()) markup += ", ";
    markup += IsPositional(option) ? Italic(name) : Bold(name);
  }
  if (!option.value.empty()) markup += " " + Italic(option.value);
  return markup;
}

// An option in a synopsis: in brackets where it may be left out.
std::string UseMarkup(const Option &option) {
  std::string use =
      IsPositional(option) ? Italic(option.names) : Bold(KeyOf(option));
  if (option.fill == Fill::Command) use = Bold("--") + " " + use;
  if (!option.value.empty()) use += " " + Italic(option.value);
  if (option.repeats) use += "...";
  return option.required ? use : "[" + use + "]";
}

// Options first, as readers look for them; positional arguments in their order.
std::string Synopsis(const Program &program, const Command &command) {
  std::string synopsis = Bold(program.name + " " + command.path);
  for (const bool positional : {false, true}) {
    for (const Option &option : command.options) {
      if (IsPositional(option) == positional) {
        synopsis += " " + UseMarkup(option);
      }
    }
  }
  return synopsis;
}

std::string ExampleLines(const std::vector<std::string> &examples) {
  std::string lines;
  for (const std::string &example : examples) lines += "  " + example + "\n";
  return lines;
}

void AddTerms(const std::vector<Option> &options, Page *page) {
  for (const Option &option : options) {
    page->Term(NamesMarkup(option), option.description + ".");
  }
}

bool AreSame(const Option &option, const Option &other) {
  return option.names == other.names && option.description == other.description;
}

// The options that at least three commands have with the same description. The
// page describes them once, not with each command.
std::vector<Option> SharedOptions(const Program &program) {
  constexpr int kLeast = 3;
  std::vector<Option> all;
  for (const Command &command : program.commands) {
    all.insert(all.end(), command.options.begin(), command.options.end());
  }
  std::vector<Option> shared;
  for (const Option &option : all) {
    const auto same = [&option](const Option &other) {
      return AreSame(option, other);
    };
    if (std::count_if(all.begin(), all.end(), same) >= kLeast &&
        std::none_of(shared.begin(), shared.end(), same)) {
      shared.push_back(option);
    }
  }
  return shared;
}

std::vector<Option> Without(std::vector<Option> options,
                            const std::vector<Option> &others) {
  std::erase_if(options, [&others](const Option &option) {
    return std::any_of(
        others.begin(), others.end(),
        [&option](const Option &other) { return AreSame(option, other); });
  });
  return options;
}

// The options of several commands, each description once.
std::vector<Option> OptionsOf(const std::vector<const Command *> &commands) {
  std::vector<Option> options;
  for (const Command *command : commands) {
    for (const Option &option : command->options) {
      const auto known = std::find_if(
          options.begin(), options.end(),
          [&](const Option &other) { return other.names == option.names; });
      if (known == options.end()) {
        options.push_back(option);
      } else if (known->description.find(option.description) ==
                 std::string::npos) {
        known->description += ".\n" + command->path + ": " + option.description;
      }
    }
  }
  return options;
}

void AddCommand(const Program &program, const Command &command,
                const std::vector<Option> &shared, Page *page) {
  page->Subsection(command.path);
  page->Line(Synopsis(program, command));
  page->Text("\n" + command.summary + ".");
  AddTerms(Without(command.options, shared), page);
  if (!command.note.empty()) page->Text("\n" + command.note);
  page->Text("\nExample:\n" + ExampleLines(command.examples));
}

// Adds a group and its commands. A note or an option that several of the
// commands have is described once.
void AddGroup(const Program &program, const Group &group,
              const std::vector<Option> &shared, Page *page) {
  std::vector<const Command *> commands;
  std::vector<std::string> examples;
  for (const Command &command : program.commands) {
    if (!command.path.starts_with(group.name + " ")) continue;
    commands.push_back(&command);
    examples.insert(examples.end(), command.examples.begin(),
                    command.examples.end());
  }
  page->Subsection(group.name);
  page->Text(group.summary + ".\n" + group.note);
  for (const Command *command : commands) {
    const bool isOwn = command->note != commands.front()->note;
    page->Term(Synopsis(program, *command),
               command->summary + "." + (isOwn ? "\n" + command->note : ""));
  }
  const std::vector<Option> options = Without(OptionsOf(commands), shared);
  if (!options.empty()) page->Text("\nArguments and options:");
  AddTerms(options, page);
  page->Text("\nExamples:\n" + ExampleLines(examples));
}

void AddCommands(const Program &program, const std::vector<Option> &shared,
                 Page *page) {
  page->Section("COMMANDS");
  std::string last;
  for (const Command &command : program.commands) {
    const std::string first = command.path.substr(0, command.path.find(' '));
    const Group *group = FindGroup(program, first);
    if (group == nullptr || first == command.path) {
      AddCommand(program, command, shared, page);
    } else if (first != last) {
      AddGroup(program, *group, shared, page);
    }
    last = first;
  }
}

void AddSections(const std::vector<Section> &sections, Page *page) {
  for (const Section &section : sections) {
    page->Section(section.title);
    page->Text(section.text);
    for (const Term &term : section.terms) {
      page->Term(Bold(term.name), term.meaning);
    }
  }
}

std::string SeeAlso(const Program &program) {
  std::string others;
  for (const std::string &other : program.seeAlso) {
    const std::size_t bracket = other.find('(');
    if (!others.empty()) others += ",\n";
    others += Bold(other.substr(0, bracket)) + other.substr(bracket);
  }
  return others;
}

std::string UpperCase(std::string text) {
  for (char &character : text) {
    const bool lower = character >= 'a' && character <= 'z';
    if (lower) character = static_cast<char>(character - 'a' + 'A');
  }
  return text;
}

}  // namespace

std::string ManPage(const Program &program, const std::string &date,
                    const std::string &source) {
  Page page(UpperCase(program.name), kCommandsSection, date, source);
  page.Section("NAME");
  page.Line(Escaped(program.name) + " \\- " + Escaped(program.summary));
  page.Section("SYNOPSIS");
  page.Line(Bold(program.name) + " " + Italic("COMMAND") + " [" +
            Italic("OPTION") + "]...");
  page.Section("EXAMPLES");
  page.Text(ExampleLines(program.examples));
  page.Section("DESCRIPTION");
  page.Text(program.about);
  AddSections(program.introduction(), &page);
  page.Section("OPTIONS");
  page.Text("These options are accepted with every command:");
  AddTerms(CommonOptions(program), &page);
  const std::vector<Option> shared = SharedOptions(program);
  if (!shared.empty()) {
    page.Text("\nThese belong to several commands:");
    AddTerms(shared, &page);
  }
  AddCommands(program, shared, &page);
  AddSections(
      {{.title = "EXIT STATUS", .text = "", .terms = program.exitStatuses()}},
      &page);
  AddSections(program.sections(), &page);
  page.Section("SEE ALSO");
  page.Line(SeeAlso(program));
  return page.text();
}

}  // namespace ztk::cli
