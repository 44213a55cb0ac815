// SPDX-License-Identifier: MIT
//
// The table of ztk-virtual-mixer.
#include <utility>

#include "build_config.h"
#include "cli/parser.h"
#include "cli/strings.h"
#include "virtual-mixer/commands/command_parts.h"
#include "virtual-mixer/control/control_socket.h"

namespace ztk::virtual_mixer {

namespace {

std::vector<cli::Command> MakeCommands() {
  std::vector<cli::Command> commands = WorldCommands();
  for (cli::Command &command : InsideCommands()) {
    commands.push_back(std::move(command));
  }
  return commands;
}

std::vector<cli::Term> ExitStatuses() {
  return {{.name = "0", .meaning = "done"},
          {.name = "1", .meaning = "failed; see the message"},
          {.name = "2", .meaning = "invalid command line"},
          {.name = "126, 127",
           .meaning = "the command of run or serve cannot be run, "
                      "or is not found"}};
}

std::vector<cli::Section> ManualIntroduction() { return {}; }

std::vector<cli::Section> ManualSections() {
  return {
      {.title = "ENVIRONMENT",
       .text = "",
       .terms = {
           {.name = kControlVariable,
            .meaning = "The socket by which the other commands reach the "
                       "mixers; set inside run and serve."},
           {.name = "SHELL",
            .meaning = "The program that run starts without a command."},
           {.name = "XDG_CONFIG_HOME, XDG_STATE_HOME",
            .meaning = "Set inside run --private-settings, to folders of links "
                       "to the contents of\nyours, except for the settings of "
                       "the mixers. If the configuration of your\nshell sets "
                       "them again, your own settings are used."}}}};
}

}  // namespace

const char kFaultHelp[] =
    "FAULT has the form KIND[@REGISTER][*TIMES]. The kinds are:\n"
    "  stall      refuse the request\n"
    "  silence    never answer\n"
    "  delay:MS   answer MS milliseconds late, 1 to 60000\n"
    "  short:N    cut the reply to N bytes, 0 to 63\n"
    "  bytes:HEX  reply these bytes, 1 to 64 pairs of digits\n"
    "  unplug     detach the mixer during the request; without *TIMES\n"
    "@8002 limits the fault to one register, @r8002 to reads of it, @w8002\n"
    "to writes, *3 to the next three requests. A new fault replaces an\n"
    "earlier one for the same register. If several faults apply to a\n"
    "request, the newest one is used.";

unsigned Number(const char *what, const std::string &text, unsigned least,
                unsigned most) {
  if (const auto number = cli::ParseNumber(text, least, most)) return *number;
  throw cli::UsageError("bad " + std::string(what) + " " + cli::Quoted(text) +
                        "; accepted: " + std::to_string(least) + " to " +
                        std::to_string(most));
}

std::vector<cli::Value> FaultKinds() {
  return {{.word = "stall", .meaning = "refuse the request"},
          {.word = "silence", .meaning = "never answer"},
          {.word = "delay:", .meaning = "answer late, by milliseconds"},
          {.word = "short:", .meaning = "cut the reply, to bytes"},
          {.word = "bytes:", .meaning = "reply these bytes"},
          {.word = "unplug", .meaning = "detach the mixer during the request"}};
}

}  // namespace ztk::virtual_mixer

ztk::cli::Program ztk::cli::ThisProgram(const std::string & /*firstWord*/) {
  using namespace ztk::virtual_mixer;
  return {
      .name = "ztk-virtual-mixer",
      .version = build::kVersion,
      .summary = "run programs with virtual VRM-D6 mixers",
      .about =
          "Virtual VRM-D6 mixers for any program, no hardware needed.\n"
          "\n"
          "run and serve start the mixers and a command. While that command "
          "runs, the other\ncommands change the mixers. Programs use the "
          "real library; only the devices are\nvirtual. The mixers keep "
          "what they receive until the command ends.",
      .examples = {"ztk-virtual-mixer run -n 2 -- ztk status"},
      .options = {},
      .groups = {},
      .commands = MakeCommands(),
      .exitStatuses = ExitStatuses,
      .introduction = ManualIntroduction,
      .sections = ManualSections,
      .seeAlso = {"ztk(1)", "ZTKFunc(3)"}};
}
