// SPDX-License-Identifier: MIT
//
// What is asked of a world that runs. It checks each word again; here, a slip
// is known before it is asked.
#include <cstdlib>
#include <iostream>

#include "virtual-mixer/commands/command_parts.h"
#include "virtual-mixer/control/control_commands.h"
#include "virtual-mixer/control/control_socket.h"
#include "virtual-mixer/mixer/fault.h"
#include "virtual-mixer/world_options.h"

namespace ztk::virtual_mixer {
namespace {

using cli::Option;
using cli::Value;
using Values = std::vector<Value>;

std::string Ask(const std::string &line) {
  const char *const path = std::getenv(kControlVariable);
  if (path == nullptr || *path == '\0') {
    throw std::runtime_error(
        "not inside a sandbox; start one with: ztk-virtual-mixer run; or, for "
        "mixers that are served, export ZTK_VIRTUAL_MIXER_CONTROL as \"serve\" "
        "prints it");
  }
  const std::string answer = AskControl(path, line);
  if (answer.compare(0, 2, "ok") != 0) {
    throw std::runtime_error(answer.substr(answer.find(' ') + 1));
  }
  return answer.size() > 3 ? answer.substr(3) : "";
}

// Which mixers, as the world answers, and what is true of them now.
int Tell(const std::string &mixers, const std::string &what) {
  std::cout << mixers << ": " << what << "\n";
  return 0;
}

std::string Mixer(const Words &words) {
  if (!words.Has("--mixer")) return "all";
  Number("mixer", words.One("--mixer"), 1, kMostMixers);
  return words.One("--mixer");
}

int RunTurn(const Words &words) {
  const std::string mixer = Mixer(words);
  const std::string channel = words.One("CHANNEL");
  const std::string position = words.One("POSITION");
  Number("channel", channel, 1, 4);
  Number("position", position, 0, 255);
  std::string line = "turn " + mixer;
  for (const std::string &word : {channel, position}) line += " " + word;
  return Tell(Ask(line), "channel " + channel + " at position " + position);
}

int RunFault(const Words &words) {
  const std::string mixer = Mixer(words);
  const std::string fault = words.One("FAULT");
  std::string error;
  if (fault != "none" && !ParseFault(fault, &error)) throw UsageError(error);
  std::string line = "fault " + mixer;
  line += " " + fault;
  return Tell(Ask(line), fault == "none" ? "no faults" : "fault " + fault);
}

int RunReply(const Words &words) {
  const std::string mixer = Mixer(words);
  const std::string number = words.One("REGISTER");
  const std::string bytes = words.One("BYTES");
  if (!ParseRegister(number)) {
    throw UsageError("bad register \"" + number +
                     "\"; accepted: 8001, 8002, 8004, 8006, 8007");
  }
  if (!ParseBytes(bytes)) {
    throw UsageError("bad bytes \"" + bytes +
                     "\"; accepted: 1 to 64 pairs of hexadecimal digits");
  }
  std::string line = "reply " + mixer;
  for (const std::string &word : {number, bytes}) line += " " + word;
  return Tell(Ask(line), "register " + number + " replies " + bytes);
}

// The commands that need no more than a mixer.
struct Simple {
  const char *name;
  const char *summary;
  const char *done;
  const char *where = "inside run or serve";
  const char *note = "";
};
// What a kernel lets users open is not for a served mixer to say.
constexpr char kInsideRun[] = "inside run";
constexpr Simple kPlug{
    .name = "plug", .summary = "Attach mixers", .done = "plugged in"};
constexpr Simple kUnplug{
    .name = "unplug", .summary = "Detach mixers", .done = "unplugged"};
constexpr Simple kForbid{.name = "forbid",
                         .summary = "Forbid opening mixers",
                         .done =
                             "may not be opened, until: "
                             "ztk-virtual-mixer allow",
                         .where = kInsideRun,
                         .note =
                             "For programs it is as with a real mixer: ztk "
                             "doctor tells what would help\nthere. Here, "
                             "ztk-virtual-mixer allow does."};
constexpr Simple kAllow{.name = "allow",
                        .summary = "Allow opening them again",
                        .done = "may be opened",
                        .where = kInsideRun};

template <const Simple &kSimple>
int RunSimple(const Words &words) {
  return Tell(Ask(std::string(kSimple.name) + " " + Mixer(words)),
              kSimple.done);
}

int RunShow(const Words &words) {
  const std::string state = Ask("show");
  std::cout << (words.Has("--json") ? state + "\n" : DescribeState(state));
  return 0;
}

Values Registers() {
  return {{.word = "8001", .meaning = "firmware"},
          {.word = "8002", .meaning = "selectors"},
          {.word = "8004", .meaning = "Serato"},
          {.word = "8006", .meaning = "port"},
          {.word = "8007", .meaning = "certification level"}};
}

Option MixerText() {
  return {.names = "-m,--mixer",
          .value = "M",
          .description = "Number of the mixer, from 1; all when left out"};
}

Command MakeTurn() {
  return {.text = {.path = "turn",
                   .summary = "Turn an input selector (inside run or serve)",
                   .options = {MixerText(),
                               Offering({.names = "CHANNEL",
                                         .value = "",
                                         .description = "Channel, 1 to 4",
                                         .required = true},
                                        {{.word = "1", .meaning = "CH1"},
                                         {.word = "2", .meaning = "CH2"},
                                         {.word = "3", .meaning = "CH3"},
                                         {.word = "4", .meaning = "CH4"}}),
                               {.names = "POSITION",
                                .value = "",
                                .description = "Position, 0 to 255",
                                .required = true}},
                   .note = "",
                   .examples = {"ztk-virtual-mixer turn --mixer 2 1 3"}},
          .run = RunTurn};
}

Command MakeFault() {
  Values values = FaultKinds();
  values.push_back({.word = "none", .meaning = "end all faults"});
  return {
      .text = {.path = "fault",
               .summary =
                   "Make mixers misbehave, or stop it (inside run or serve)",
               .options = {MixerText(),
                           Offering({.names = "FAULT",
                                     .value = "",
                                     .description =
                                         "FAULT as below; none ends all faults",
                                     .required = true},
                                    values)},
               .note = kFaultHelp,
               .examples = {"ztk-virtual-mixer fault 'stall@8002*3'"}},
      .run = RunFault};
}

Command MakeReply() {
  return {.text = {.path = "reply",
                   .summary =
                       "Change what a register replies (inside run or serve)",
                   .options = {MixerText(),
                               Offering(
                                   {.names = "REGISTER",
                                    .value = "",
                                    .description =
                                        "8001 firmware, 8002 selectors, 8004 "
                                        "Serato, 8006 port, 8007 certification "
                                        "level",
                                    .required = true},
                                   Registers()),
                               {.names = "BYTES",
                                .value = "",
                                .description = "1 to 64 pairs of digits",
                                .required = true}},
                   .note = "",
                   .examples = {"ztk-virtual-mixer reply 8004 0100"}},
          .run = RunReply};
}

template <const Simple &kSimple>
Command MakeSimple() {
  const std::string name = kSimple.name;
  return {.text = {.path = name,
                   .summary = std::string(kSimple.summary) + " (" +
                              kSimple.where + ")",
                   .options = {MixerText()},
                   .note = kSimple.note,
                   .examples = {"ztk-virtual-mixer " + name + " --mixer 1"}},
          .run = RunSimple<kSimple>};
}

Command MakeShow() {
  return {.text = {.path = "show",
                   .summary = "Show mixers, selectors, values and faults "
                              "(inside run or serve)",
                   .options = {{.names = "--json",
                                .value = "",
                                .description = "As JSON"}},
                   .note = "",
                   .examples = {"ztk-virtual-mixer show --json"}},
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
