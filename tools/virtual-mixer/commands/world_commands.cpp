// SPDX-License-Identifier: MIT
//
// run and serve.
#include "cli/parser.h"
#include "virtual-mixer/commands/command_parts.h"
#include "virtual-mixer/run.h"
#include "virtual-mixer/serve.h"
#include "virtual-mixer/usbip/usbip_server.h"

namespace ztk::virtual_mixer {
namespace {

using cli::Command;
using cli::Fill;
using cli::Option;
using cli::UsageError;

constexpr unsigned kMostOthers = 128;
constexpr unsigned kMostBuses = 8;

// An option that has a number.
void TakeNumber(const Arguments &arguments, const char *name, const char *what,
                unsigned least, unsigned most, int *number) {
  if (!arguments.Has(name)) return;
  *number = static_cast<int>(Number(what, arguments.One(name), least, most));
}

// The name of a file; empty without the option.
std::string FileName(const Arguments &arguments, const char *name) {
  if (arguments.Has(name) && arguments.One(name).empty()) {
    throw UsageError(std::string(name) + " needs the name of a file, not \"\"");
  }
  return arguments.One(name);
}

WorldOptions World(const Arguments &arguments) {
  WorldOptions options;
  TakeNumber(arguments, "--mixers", "number of mixers", 0, kMostMixers,
             &options.mixers);
  TakeNumber(arguments, "--other-devices", "number of other devices", 0,
             kMostOthers, &options.otherDevices);
  TakeNumber(arguments, "--buses", "number of buses", 1, kMostBuses,
             &options.buses);
  options.reportFile = FileName(arguments, "--device");
  if (arguments.Has("--device") && arguments.Has("--mixers")) {
    throw UsageError(
        "--device and --mixers cannot be used together: the report contains "
        "the number of mixers");
  }
  if (arguments.Has("--delays")) {
    if (!arguments.Has("--device")) {
      throw UsageError(
          "--delays needs --device: it replays the delays of a report");
    }
    options.delays = Delays::Replayed;
  }
  options.selectors = arguments.All("--selector");
  options.replies = arguments.All("--reply");
  options.faults = arguments.All("--fault");
  options.forbidden = arguments.All("--forbid");
  options.logFile = FileName(arguments, "--log");
  return options;
}

int RunRun(const Arguments &arguments) {
  return Run({.world = World(arguments),
              .privateSettings = arguments.Has("--private-settings"),
              .command = arguments.command});
}

int RunServe(const Arguments &arguments) {
  ServeOptions options;
  options.world = World(arguments);
  options.attach = arguments.Has("--attach");
  options.command = arguments.command;
  if (arguments.Has("--listen")) {
    if (options.attach) {
      throw UsageError(
          "--attach and --listen cannot be used together; leave one out");
    }
    options.listen = arguments.One("--listen");
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
          cli::Offering({.names = "--fault",
                         .value = "[M:]FAULT",
                         .description = "Fault, in the form below",
                         .repeats = true},
                        FaultKinds),
          {.names = "--log",
           .value = "FILE",
           .description = "Write each request to this file, as it happens",
           .fill = Fill::File}};
}

Option CommandText() {
  return {.names = "COMMAND",
          .value = "",
          .description = "Command to run, with its own arguments",
          .repeats = true,
          .fill = Fill::Command};
}

constexpr char kRunNote[] =
    "A value after M: is for that mixer only. The command follows \"--\"; the\n"
    "mixers exist until it and all processes that it started have ended. The "
    "exit\n"
    "status is that of the command. Programs of another user (sudo) do not "
    "see\n"
    "the mixers.\n\n"
    "Settings that are changed inside are your own, and stay changed.\n"
    "With --private-settings nothing is remembered at first, and all settings\n"
    "are removed at the end; the configuration of other programs is "
    "available\n"
    "as usual. Changes are announced on your message bus in both cases.\n\n";

constexpr char kServeNote[] =
    "Serves until Ctrl-C or, with a command, until the command has ended; "
    "the\n"
    "exit status is then that of the command. A value after M: is for that\n"
    "mixer only. With --attach, a mixer that was unplugged and plugged in is\n"
    "attached again at once; otherwise the client has to attach it.\n\n";

Command MakeRun() {
  Command command{
      .path = "run",
      .summary = "Run a command, or your shell, with virtual mixers",
      .options = WorldOptionTexts(),
      .note = std::string(kRunNote) + kFaultHelp,
      .examples = {"ztk-virtual-mixer run --private-settings",
                   "ztk-virtual-mixer run -n 2 --fault 2:stall -- ztk "
                   "status"},
      .run = RunRun};
  command.options.push_back(
      {.names = "--buses",
       .value = "N",
       .description =
           "Buses to spread the devices over, 1 to 8; 1 when left out"});
  command.options.push_back(
      {.names = "--forbid",
       .value = "M",
       .description =
           "Mixer that may not be opened (permission denied), until allow",
       .repeats = true});
  command.options.push_back(
      {.names = "--private-settings",
       .value = "",
       .description = "Keep settings and undo history in a folder of this run, "
                      "removed at its end; your own are changed when left "
                      "out"});
  command.options.push_back(CommandText());
  return command;
}

Command MakeServe() {
  Command command{
      .path = "serve",
      .summary = "Serve virtual mixers over USB/IP to a real kernel",
      .options = WorldOptionTexts(),
      .note = std::string(kServeNote) + kFaultHelp,
      .examples = {"ztk-virtual-mixer serve -n 2",
                   "sudo ztk-virtual-mixer serve --attach -- ztk "
                   "status"},
      .run = RunServe};
  command.options.push_back(
      {.names = "--listen",
       .value = "ADDRESS:PORT",
       .description = "Address to listen on; every client that reaches it can "
                      "attach the devices; 127.0.0.1:3240 when left out"});
  command.options.push_back(
      {.names = "--attach",
       .value = "",
       .description = "Attach to this machine's kernel instead (root; needs "
                      "the module vhci-hcd)"});
  command.options.push_back(CommandText());
  return command;
}

}  // namespace

std::vector<Command> WorldCommands() { return {MakeRun(), MakeServe()}; }

}  // namespace ztk::virtual_mixer
