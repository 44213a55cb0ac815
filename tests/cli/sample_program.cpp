// SPDX-License-Identifier: MIT
#include "sample_program.h"

namespace ztk::test {

namespace {

using cli::Arguments;
using cli::Fill;

std::vector<cli::Section> Introduction() {
  return {{.title = "TERMS",
           .text = "",
           .terms = {{.name = "sent", .meaning = "Sent to a mixer."}}}};
}

std::vector<cli::Section> Sections() {
  return {{.title = "FILES", .text = "No files.", .terms = {}}};
}

std::vector<cli::Term> ExitStatuses() {
  return {{.name = "0", .meaning = "done"},
          {.name = "126, 127", .meaning = "cannot run"}};
}

cli::Command Show() {
  return {.path = "show",
          .summary = "Show the mixers",
          .options = {cli::Offering({.names = "-m,--mixer",
                                     .value = "M",
                                     .description = "Number of the mixer"},
                                    [] {
                                      return std::vector<cli::Value>{
                                          {.word = "1", .meaning = "first"},
                                          {.word = "2", .meaning = "second"}};
                                    }),
                      {.names = "--log",
                       .value = "FILE",
                       .description = "Log file",
                       .repeats = true,
                       .fill = Fill::File}},
          .note = "Mixers are numbered.",
          .examples = {"mix show", "mix show -m 2"},
          .run = [](const Arguments &) { return 10; }};
}

cli::Command InputSet() {
  return {.path = "input set",
          .summary = "Choose a source",
          .options = {cli::Offering({.names = "CHANNEL",
                                     .value = "",
                                     .description = "Channel, 1 to 4",
                                     .required = true},
                                    [] {
                                      return std::vector<cli::Value>{
                                          {.word = "1", .meaning = "CH1"},
                                          {.word = "2", .meaning = "CH2"}};
                                    }),
                      {.names = "CHOICE",
                       .value = "",
                       .description = "Text of the choice",
                       .repeats = true},
                      {.names = "--dry-run",
                       .value = "",
                       .description = "Do nothing"}},
          .note = "Inputs are inputs.",
          .examples = {"mix input set 1 mic"},
          .run = [](const Arguments &) { return 11; }};
}

cli::Command Run() {
  return {.path = "run",
          .summary = "Run a command",
          .options = {{.names = "COMMAND",
                       .value = "",
                       .description = "Command to run",
                       .repeats = true,
                       .fill = Fill::Command}},
          .note = "",
          .examples = {"mix run -- true"},
          .run = [](const Arguments &) { return 12; }};
}

}  // namespace

cli::Program SampleProgram() {
  return {.name = "mix",
          .version = "1.2.3",
          .summary = "settings of a mixer",
          .about = "Settings of a mixer.",
          .examples = {"mix show"},
          .options = {{.names = "--json",
                       .value = "",
                       .description = "Write JSON"}},
          .groups = {{.name = "input",
                      .summary = "The inputs",
                      .note = "Inputs are inputs.",
                      .example = "mix input set 1 mic"}},
          .commands = {Show(), InputSet(), Run()},
          .exitStatuses = ExitStatuses,
          .introduction = Introduction,
          .sections = Sections,
          .seeAlso = {"other(1)"}};
}

}  // namespace ztk::test
