// SPDX-License-Identifier: MIT
//
// run and serve.
#include "virtual-mixer/commands/command_parts.h"
#include "virtual-mixer/run.h"
#include "virtual-mixer/serve.h"
#include "virtual-mixer/usbip/usbip_server.h"

namespace ztk::virtual_mixer {
namespace {

using cli::Fill;
using cli::Option;

constexpr unsigned kMostOthers = 128;
constexpr unsigned kMostBuses = 8;

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
  options.reportFile = words.One("--device");
  if (words.Has("--device") && words.Has("--mixers")) {
    throw UsageError(
        "--device excludes --mixers: the report tells how many there are");
  }
  if (words.Has("--delays")) {
    if (!words.Has("--device")) {
      throw UsageError("--delays needs --device, whose delays are replayed");
    }
    options.delays = Delays::Replayed;
  }
  options.selectors = words.All("--selector");
  options.replies = words.All("--reply");
  options.faults = words.All("--fault");
  options.forbidden = words.All("--forbid");
  options.logFile = words.One("--log");
  return options;
}

int RunRun(const Words &words) {
  return Run({.world = World(words),
              .privateSettings = words.Has("--private-settings"),
              .command = words.command});
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

std::vector<Option> WorldOptionTexts() {
  return {{.names = "-n,--mixers",
           .value = "N",
           .description = "Mixers, 0 to 127; 1 when left out"},
          {.names = "--device",
           .value = "FILE",
           .description = "The mixers of a report that ztk doctor --report "
                          "has written, instead of -n",
           .fill = Fill::File},
          {.names = "--delays",
           .value = "",
           .description = "With --device: answer as late as in the report"},
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
                           "(sudo) do not see the mixers.\n\nSettings that "
                           "are changed inside are your own, and stay "
                           "changed.\nWith --private-settings nothing is "
                           "remembered at first, and what is\nremembered goes "
                           "with the run; the configuration of other "
                           "programs\nis there as ever. Changes are announced "
                           "on your message bus all the same.\n\n") +
                       kFaultHelp,
               .examples = {"ztk-virtual-mixer run --private-settings",
                            "ztk-virtual-mixer run -n 2 --fault 2:stall -- ztk "
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
       .description =
           "Mixer that may not be opened (permission denied), until allow",
       .repeats = true});
  command.text.options.push_back(
      {.names = "--private-settings",
       .value = "",
       .description = "Keep settings and undo history in a folder of this run, "
                      "removed at its end; your own are changed when left "
                      "out"});
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

}  // namespace

std::vector<Command> WorldCommands() { return {MakeRun(), MakeServe()}; }

}  // namespace ztk::virtual_mixer
