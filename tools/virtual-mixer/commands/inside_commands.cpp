// SPDX-License-Identifier: MIT
//
// The commands that change running mixers. Arguments are checked here first, so
// that an error is known before the mixers are reached.
#include <cstdlib>
#include <iostream>

#include "cli/parser.h"
#include "cli/strings.h"
#include "virtual-mixer/commands/command_parts.h"
#include "virtual-mixer/control/control_commands.h"
#include "virtual-mixer/control/control_socket.h"
#include "virtual-mixer/mixer/fault.h"
#include "virtual-mixer/world_options.h"

namespace ztk::virtual_mixer {
namespace {

using cli::Command;
using cli::Option;
using cli::UsageError;
using cli::Value;
using Values = std::vector<Value>;

std::string Ask(const std::string &line) {
  const std::string path = cli::Variable(kControlVariable);
  if (path.empty()) {
    throw std::runtime_error(
        "there are no virtual mixers here; start some with: ztk-virtual-mixer "
        "run; for mixers of \"serve\", first type the export line that it "
        "prints");
  }
  const std::string answer = AskControl(path, line);
  if (answer.compare(0, 2, "ok") != 0) {
    throw std::runtime_error(answer.substr(answer.find(' ') + 1));
  }
  return answer.size() > 3 ? answer.substr(3) : "";
}

// `mixers` is the answer of the control socket, `what` their new state.
int PrintState(const std::string &mixers, const std::string &what) {
  std::cout << mixers << ": " << what << "\n";
  return 0;
}

// The number of the mixer: an option, or alone ("unplug 1").
std::string Mixer(const Arguments &arguments) {
  const std::string name = arguments.Has("M") ? "M" : "--mixer";
  if (!arguments.Has(name)) return "all";
  if (arguments.Has("M") && arguments.Has("--mixer")) {
    throw UsageError("the mixer is given twice, as M and with --mixer");
  }
  Number("mixer", arguments.One(name), 1, kMostMixers);
  return arguments.One(name);
}

int RunTurn(const Arguments &arguments) {
  const std::string mixer = Mixer(arguments);
  const std::string channel = arguments.One("CHANNEL");
  const std::string position = arguments.One("POSITION");
  Number("channel", channel, 1, 4);
  Number("position", position, 0, 255);
  std::string line = "turn " + mixer;
  for (const std::string &word : {channel, position}) line += " " + word;
  return PrintState(Ask(line),
                    "channel " + channel + " at position " + position);
}

int RunFault(const Arguments &arguments) {
  const std::string mixer = Mixer(arguments);
  const std::string fault = arguments.One("FAULT");
  std::string error;
  if (fault != "none" && !ParseFault(fault, &error)) throw UsageError(error);
  std::string line = "fault " + mixer;
  line += " " + fault;
  return PrintState(Ask(line),
                    fault == "none" ? "no faults" : "fault " + fault);
}

int RunReply(const Arguments &arguments) {
  const std::string mixer = Mixer(arguments);
  const std::string number = arguments.One("REGISTER");
  const std::string bytes = arguments.One("BYTES");
  if (!ParseRegister(number)) {
    throw UsageError("bad register " + cli::Quoted(number) +
                     "; accepted: 8001, 8002, 8004, 8006, 8007");
  }
  if (!ParseBytes(bytes)) {
    throw UsageError("bad bytes " + cli::Quoted(bytes) +
                     "; accepted: 1 to 64 pairs of hexadecimal digits");
  }
  std::string line = "reply " + mixer;
  for (const std::string &word : {number, bytes}) line += " " + word;
  return PrintState(Ask(line), "register " + number + " replies " + bytes);
}

// The commands that take nothing but a mixer.
struct Simple {
  const char *name;
  const char *summary;
  const char *done;
  const char *where = "inside run or serve";
  const char *note = "";
};
// For served mixers the kernel decides who may open them.
constexpr char kInsideRun[] = "inside run";
constexpr Simple kPlug{.name = "plug",
                       .summary = "Plug mixers in",
                       .done = "plugged in; values and faults are unchanged"};
constexpr Simple kUnplug{
    .name = "unplug",
    .summary = "Unplug mixers; they keep their values and faults",
    .done = "unplugged"};
constexpr Simple kForbid{.name = "forbid",
                         .summary = "Forbid opening mixers",
                         .done =
                             "cannot be opened until you run: "
                             "ztk-virtual-mixer allow",
                         .where = kInsideRun,
                         .note =
                             "Programs see the same as with a real mixer that "
                             "you may not open.\nztk-virtual-mixer allow ends "
                             "it."};
constexpr Simple kAllow{.name = "allow",
                        .summary = "Allow opening them again",
                        .done = "may be opened",
                        .where = kInsideRun};

template <const Simple &kSimple>
int RunSimple(const Arguments &arguments) {
  return PrintState(Ask(std::string(kSimple.name) + " " + Mixer(arguments)),
                    kSimple.done);
}

int RunShow(const Arguments &arguments) {
  const std::string state = Ask("show");
  std::cout << (arguments.Has("--json") ? state + "\n" : DescribeState(state));
  return 0;
}

Values Registers() {
  return {{.word = "8001", .meaning = "firmware"},
          {.word = "8002", .meaning = "selectors"},
          {.word = "8004", .meaning = "Serato"},
          {.word = "8006", .meaning = "port"},
          {.word = "8007", .meaning = "certification level"}};
}

Values Channels() {
  return {{.word = "1", .meaning = "CH1"},
          {.word = "2", .meaning = "CH2"},
          {.word = "3", .meaning = "CH3"},
          {.word = "4", .meaning = "CH4"}};
}

Values FaultsAndNone() {
  Values values = FaultKinds();
  values.push_back({.word = "none", .meaning = "end all faults"});
  return values;
}

Option MixerText() {
  return {.names = "-m,--mixer",
          .value = "M",
          .description = "Number of the mixer, from 1; all when left out"};
}

Command MakeTurn() {
  return {.path = "turn",
          .summary = "Turn an input selector (inside run or serve)",
          .options = {MixerText(),
                      cli::Offering({.names = "CHANNEL",
                                     .value = "",
                                     .description = "Channel, 1 to 4",
                                     .required = true},
                                    Channels),
                      {.names = "POSITION",
                       .value = "",
                       .description = "Position, 0 to 255",
                       .required = true}},
          .note = "",
          .examples = {"ztk-virtual-mixer turn --mixer 2 1 3"},
          .run = RunTurn};
}

Command MakeFault() {
  return {
      .path = "fault",
      .summary =
          "Add a fault to mixers, or end all faults (inside run or serve)",
      .options =
          {MixerText(),
           cli::Offering(
               {.names = "FAULT",
                .value = "",
                .description =
                    "Fault, in the form below; the word none ends all faults",
                .required = true},
               FaultsAndNone)},
      .note = kFaultHelp,
      .examples = {"ztk-virtual-mixer fault 'stall@8002*3'"},
      .run = RunFault};
}

Command MakeReply() {
  return {
      .path = "reply",
      .summary = "Change what a register replies (inside run or serve)",
      .options = {MixerText(),
                  cli::Offering(
                      {.names = "REGISTER",
                       .value = "",
                       .description = "8001 firmware, 8002 selectors, 8004 "
                                      "Serato, 8006 port, 8007 certification "
                                      "level",
                       .required = true},
                      Registers),
                  {.names = "BYTES",
                   .value = "",
                   .description = "1 to 64 pairs of digits",
                   .required = true}},
      .note = "",
      .examples = {"ztk-virtual-mixer reply 8004 0100"},
      .run = RunReply};
}

template <const Simple &kSimple>
Command MakeSimple() {
  const std::string name = kSimple.name;
  return {.path = name,
          .summary = std::string(kSimple.summary) + " (" + kSimple.where + ")",
          .options = {MixerText(),
                      {.names = "M",
                       .value = "",
                       .description = "The same without --mixer"}},
          .note = kSimple.note,
          .examples = {"ztk-virtual-mixer " + name + " --mixer 1"},
          .run = RunSimple<kSimple>};
}

Command MakeShow() {
  return {
      .path = "show",
      .summary =
          "Show mixers, selectors, values and faults "
          "(inside run or serve)",
      .options = {{.names = "--json", .value = "", .description = "As JSON"}},
      .note = "",
      .examples = {"ztk-virtual-mixer show --json"},
      .run = RunShow};
}

}  // namespace

std::vector<Command> InsideCommands() {
  return {MakeTurn(),
          MakeFault(),
          MakeReply(),
          MakeSimple<kPlug>(),
          MakeSimple<kUnplug>(),
          MakeSimple<kForbid>(),
          MakeSimple<kAllow>(),
          MakeShow()};
}

}  // namespace ztk::virtual_mixer
