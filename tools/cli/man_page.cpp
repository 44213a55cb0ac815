// SPDX-License-Identifier: MIT
#include "cli/man_page.h"

#include "cli/roff.h"

namespace ztk::cli {

namespace {

constexpr int kCommandsSection = 1;

std::string OptionMarkup(const Option &option) {
  std::string markup;
  for (const std::string &name : NamesOf(option)) {
    if (!markup.empty()) markup += ", ";
    markup += IsPosition(option) ? Italic(name) : Bold(name);
  }
  if (!option.value.empty()) markup += " " + Italic(option.value);
  return markup;
}

// As it stands in a synopsis: in brackets where it may be left out.
std::string UseMarkup(const Option &option) {
  std::string use =
      IsPosition(option) ? Italic(option.names) : Bold(KeyOf(option));
  if (!option.value.empty()) use += " " + Italic(option.value);
  if (option.repeats) use += "...";
  return option.required ? use : "[" + use + "]";
}

// Options first, as they are looked for; positions in their order.
std::string Synopsis(const Program &program, const Command &command) {
  std::string synopsis = Bold(program.name + " " + command.path);
  for (const Option &option : command.options) {
    if (!IsPosition(option)) synopsis += " " + UseMarkup(option);
  }
  for (const Option &option : command.options) {
    if (IsPosition(option)) synopsis += " " + UseMarkup(option);
  }
  return synopsis;
}

void AddTerms(const std::vector<Option> &options, Page *page) {
  for (const Option &option : options) {
    page->Term(OptionMarkup(option), option.description + ".");
  }
}

void AddCommand(const Program &program, const Command &command, Page *page) {
  page->Subsection(command.path);
  page->Line(Synopsis(program, command));
  page->Text("\n" + command.summary + ".");
  AddTerms(command.options, page);
  if (!command.note.empty()) page->Text("\n" + command.note);
  std::string examples;
  for (const std::string &example : command.examples) {
    examples += "  " + example + "\n";
  }
  page->Text("\nExample:\n" + examples);
}

}  // namespace

std::string ManPage(const Program &program, const std::string &date,
                    const std::string &source) {
  std::string title;
  for (const char character : program.name) {
    const bool lower = character >= 'a' && character <= 'z';
    title += lower ? static_cast<char>(character - 'a' + 'A') : character;
  }
  Page page(title, kCommandsSection, date, source);
  page.Section("NAME");
  page.Line(Escaped(program.name) + " \\- " + Escaped(program.summary));
  page.Section("SYNOPSIS");
  page.Line(Bold(program.name) + " " + Italic("COMMAND") + " [" +
            Italic("OPTION") + "]...");
  page.Section("DESCRIPTION");
  page.Text(program.about);
  page.Section("OPTIONS");
  page.Text("These go with every command, but --version with none:");
  AddTerms(program.options, &page);
  if (!program.groups.empty()) {
    page.Section("SETTINGS");
    for (const Group &group : program.groups) {
      if (!group.isSetting) continue;
      page.Term(Bold(group.name), group.summary + ".\n" + group.note);
    }
  }
  page.Section("COMMANDS");
  for (const Command &command : program.commands) {
    AddCommand(program, command, &page);
  }
  for (const Section &section : program.sections) {
    page.Section(section.title);
    page.Text(section.text);
    for (const Term &term : section.terms) {
      page.Term(Bold(term.name), term.meaning);
    }
  }
  page.Section("SEE ALSO");
  std::string others;
  for (const std::string &other : program.seeAlso) {
    const std::size_t bracket = other.find('(');
    if (!others.empty()) others += ",\n";
    others += Bold(other.substr(0, bracket)) + other.substr(bracket);
  }
  page.Line(others);
  return page.text();
}

}  // namespace ztk::cli
