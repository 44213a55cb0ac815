// SPDX-License-Identifier: MIT
//
// The program as its manual and the completions tell it, from the table of
// commands.
#include "cli/described.h"
#include "virtual-mixer/commands/command_table.h"
#include "virtual-mixer/control/control_socket.h"

ztk::cli::Program ztk::cli::Described() {
  Program program{
      .name = "ztk-virtual-mixer",
      .summary = "programs among virtual VRM-D6 mixers",
      .about = std::string(virtual_mixer::kAbout) +
               "\n\nThe library in this world is the real one; only the "
               "devices are not. They\nremember what they were sent until the "
               "command ends.\nrun and serve make such a world, the other "
               "commands change it from inside.",
      .options = {{.names = "-h,--help",
                   .value = "",
                   .description = "Show this help"},
                  {.names = "--version",
                   .value = "",
                   .description = "Show the version"}},
      .groups = {},
      .commands = {},
      .sections =
          {{.title = "EXIT STATUS",
            .text = "",
            .terms = {{.name = "0", .meaning = "done"},
                      {.name = "1", .meaning = "it failed"},
                      {.name = "2", .meaning = "the words were wrong"},
                      {.name = "126, 127",
                       .meaning = "the command of run or serve cannot be "
                                  "run, or is not found"}}},
           {.title = "ENVIRONMENT",
            .text = "",
            .terms = {{.name = virtual_mixer::kControlVariable,
                       .meaning = "How the other commands reach the "
                                  "mixers; set inside run and serve."},
                      {.name = "SHELL",
                       .meaning = "What run starts without a command."},
                      {.name = "XDG_CONFIG_HOME, XDG_STATE_HOME",
                       .meaning =
                           "Set inside run --private-settings, to folders of "
                           "links to what\nyours hold, except for the settings "
                           "of the mixers. A shell whose own\nfiles set them "
                           "undoes it."}}}},
      .seeAlso = {"ztk(1)", "ZTKFunc(3)"}};
  for (const virtual_mixer::Command &command : virtual_mixer::Commands()) {
    program.commands.push_back(command.text);
  }
  return program;
}
