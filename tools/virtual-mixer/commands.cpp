// SPDX-License-Identifier: MIT
#include "commands.h"

#include <cstdlib>
#include <iostream>

#include "control_commands.h"
#include "control_socket.h"
#include "fault.h"
#include "run.h"
#include "serve.h"
#include "usbip_server.h"

namespace ztk::virtual_mixer {

namespace {

using manual::Fill;
using manual::Option;
using manual::Typed;
using manual::Value;
using Values = std::vector<Value>;

constexpr unsigned kMostMixers = 32;
constexpr unsigned kMostOthers = 128;
constexpr unsigned kMostBuses = 8;

constexpr char kFaultHelp[] =
    "FAULT is KIND[@REGISTER][*TIMES]:\n"
    "  stall      refuse the request\n"
    "  silence    never answer\n"
    "  delay:MS   answer MS milliseconds late, 1 to 60000\n"
    "  short:N    cut the reply to N bytes, 0 to 63\n"
    "  bytes:HEX  reply these bytes, 1 to 64 pairs of digits\n"
    "  unplug     vanish while the request is under way, without *TIMES\n"
    "@8002 limits it to one register, @r8002 to reads of it, @w8002 to\n"
    "writes; *3 to the next three requests. A new fault replaces one with\n"
    "the same register; of several that fit, the newest counts.";

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

// The world checks again; here, a slip is known before it is asked.
unsigned Number(const char *what, const std::string &text, unsigned least,
                unsigned most) {
  if (const auto number = ParseNumber(text, least, most)) return *number;
  throw UsageError("bad " + std::string(what) + " \"" + text +
                   "\"; accepted: " + std::to_string(least) + " to " +
                   std::to_string(most));
}

std::string Mixer(const Words &words) {
  if (!words.Has("--mixer")) return "all";
  Number("mixer", words.One("--mixer"), 1, kMostMixers);
  return words.One("--mixer");
}

// An option that has a number.
void TakeNumber(const Words &words, const char *name, const char *what,
                unsigned least, unsigned most, int *number) {
  if (!words.Has(name)) return;
  *number = static_cast<int>(Number(what, words.One(name), least, most));
}

WorldOptions World(const Words &words) {
  WorldOptions options;
  TakeNumber(words, "--mixers", "number of mixers", 0, kMostMixers,
             &options.mixers);
  TakeNumber(words, "--other-devices", "number of other devices", 0,
             kMostOthers, &options.otherDevices);
  TakeNumber(words, "--buses", "number of buses", 1, kMostBuses,
             &options.buses);
  options.selectors = words.All("--selector");
  options.replies = words.All("--reply");
  options.faults = words.All("--fault");
  options.forbidden = words.All("--forbid");
  options.logFile = words.One("--log");
  return options;
}

int RunRun(const Words &words) {
  return Run({.world = World(words), .command = words.command});
}

int RunServe(const Words &words) {
  ServeOptions options;
  options.world = World(words);
  options.attach = words.Has("--attach");
  options.command = words.command;
  if (words.Has("--listen")) {
    if (options.attach) {
      throw UsageError("--attach excludes --listen: give one of them");
    }
    options.listen = words.One("--listen");
  }
  try {
    usbip::ParseListenAddress(options.listen);
  } catch (const std::exception &error) {
    throw UsageError(error.what());
  }
  return Serve(options);
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
};
constexpr Simple kPlug{
    .name = "plug", .summary = "Attach mixers", .done = "plugged in"};
constexpr Simple kUnplug{
    .name = "unplug", .summary = "Detach mixers", .done = "unplugged"};
constexpr Simple kForbid{.name = "forbid",
                         .summary = "Forbid opening mixers",
                         .done = "may not be opened"};
constexpr Simple kAllow{.name = "allow",
                        .summary = "Allow opening them again",
                        .done = "may be opened"};

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

// What can be offered for a word, whatever stands before it.
Option Offering(Option option, const Values &values) {
  option.fill = Fill::Values;
  option.values = [values](const Typed & /*before*/,
                           const std::string & /*begun*/) { return values; };
  return option;
}

Values FaultKinds() {
  return {{.word = "stall", .meaning = "refuse the request"},
          {.word = "silence", .meaning = "never answer"},
          {.word = "delay:", .meaning = "answer late, by milliseconds"},
          {.word = "short:", .meaning = "cut the reply, to bytes"},
          {.word = "bytes:", .meaning = "reply these bytes"},
          {.word = "unplug", .meaning = "vanish during the request"}};
}

Values Registers() {
  return {{.word = "8001", .meaning = "firmware"},
          {.word = "8002", .meaning = "selectors"},
          {.word = "8004", .meaning = "Serato"},
          {.word = "8006", .meaning = "port"},
          {.word = "8007", .meaning = "certification level"}};
}

std::vector<Option> WorldOptionTexts() {
  return {{.names = "-n,--mixers",
           .value = "N",
           .description = "Mixers, 0 to 32; 1 when left out"},
          {.names = "--other-devices",
           .value = "N",
           .description = "Other devices, half before and half after the "
                          "mixers, 0 to 128; 0 when left out"},
          {.names = "--selector",
           .value = "[M:]CH=POS",
           .description = "Position of an input selector: channel 1 to 4, "
                          "position 0 to 255; 4 when left out",
           .repeats = true},
          {.names = "--reply",
           .value = "[M:]REG=HEX",
           .description = "What a register replies, as in 8004=0100",
           .repeats = true},
          Offering({.names = "--fault",
                    .value = "[M:]FAULT",
                    .description = "What goes wrong; see below",
                    .repeats = true},
                   FaultKinds()),
          {.names = "--log",
           .value = "FILE",
           .description = "Write each request to this file, as it happens",
           .fill = Fill::File}};
}

Option CommandText() {
  return {.names = "COMMAND",
          .value = "",
          .description = "Behind \"--\": the command and its own words",
          .repeats = true,
          .fill = Fill::Command};
}

Option MixerText() {
  return {.names = "-m,--mixer",
          .value = "M",
          .description = "Number of the mixer, from 1; all when left out"};
}

Command MakeRun() {
  Command command{
      .text = {.path = "run",
               .summary = "Run a command, or your shell, among virtual mixers",
               .options = WorldOptionTexts(),
               .note = std::string(
                           "With M: a value is for that mixer only. The "
                           "command follows \"--\"; the\nmixers last until it "
                           "and all that it started have ended. The exit "
                           "status is\nits own. Programs of another user "
                           "(sudo) do not see the mixers.\n\n") +
                       kFaultHelp,
               .examples = {"ztk-virtual-mixer run -n 2 --fault 2:stall -- ztk "
                            "status"}},
      .run = RunRun};
  command.text.options.push_back(
      {.names = "--buses",
       .value = "N",
       .description =
           "Buses to spread the devices over, 1 to 8; 1 when left out"});
  command.text.options.push_back(
      {.names = "--forbid",
       .value = "M",
       .description = "Mixer that may not be opened (permission denied)",
       .repeats = true});
  command.text.options.push_back(CommandText());
  return command;
}

Command MakeServe() {
  Command command{
      .text = {.path = "serve",
               .summary = "Serve virtual mixers over USB/IP to a real kernel",
               .options = WorldOptionTexts(),
               .note = std::string(
                           "Serves until Ctrl-C or, with a command, until that "
                           "has ended; the exit\nstatus is then its own. With "
                           "M: a value is for that mixer only. A mixer\nthat "
                           "was unplugged and plugged in is attached again at "
                           "once with\n--attach; otherwise the client has to "
                           "do that.\n\n") +
                       kFaultHelp,
               .examples = {"ztk-virtual-mixer serve -n 2",
                            "sudo ztk-virtual-mixer serve --attach -- ztk "
                            "status"}},
      .run = RunServe};
  command.text.options.push_back(
      {.names = "--listen",
       .value = "ADDRESS:PORT",
       .description = "Where clients connect; everybody who reaches it may "
                      "attach the devices; 127.0.0.1:3240 when left out"});
  command.text.options.push_back(
      {.names = "--attach",
       .value = "",
       .description = "Attach to this machine's kernel instead (root; needs "
                      "the module vhci-hcd)"});
  command.text.options.push_back(CommandText());
  return command;
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
                   .summary =
                       std::string(kSimple.summary) + " (inside run or serve)",
                   .options = {MixerText()},
                   .note = "",
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

const std::vector<Command> &Commands() {
  static const std::vector<Command> commands{MakeRun(),
                                             MakeServe(),
                                             MakeTurn(),
                                             MakeFault(),
                                             MakeReply(),
                                             MakeSimple<kPlug>(),
                                             MakeSimple<kUnplug>(),
                                             MakeSimple<kForbid>(),
                                             MakeSimple<kAllow>(),
                                             MakeShow()};
  return commands;
}

}  // namespace ztk::virtual_mixer
