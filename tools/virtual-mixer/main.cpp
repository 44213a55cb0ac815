// SPDX-License-Identifier: MIT
//
// ztk-virtual-mixer: programs among virtual mixers.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "build_config.h"
#include "control_commands.h"
#include "control_socket.h"
#include "fault.h"
#include "run.h"

namespace {

using ztk::virtual_mixer::AskControl;
using ztk::virtual_mixer::RunOptions;
using ztk::virtual_mixer::UsageError;

constexpr int kFailed = 1;
constexpr int kUsage = 2;

constexpr char kFaultHelp[] =
    "FAULT is KIND[@REGISTER][*TIMES]:\n"
    "  stall      refuse the request\n"
    "  silence    never answer\n"
    "  delay:MS   answer MS milliseconds late, 1 to 60000\n"
    "  short:N    cut the reply to N bytes, 0 to 63\n"
    "  bytes:HEX  reply these bytes, 1 to 64 pairs of digits\n"
    "  unplug     vanish while the request is under way\n"
    "@8002 limits it to one register, @r8002 to reads of it, @w8002 to\n"
    "writes; *3 to the next three requests. A new fault replaces one with\n"
    "the same register; of several that fit, the newest counts.\n";

// What the commands for a running sandbox are made of.
struct ControlOptions {
  std::string mixer = "all";
  std::string channel;
  std::string position;
  std::string fault;
  std::string registerNumber;
  std::string bytes;
  bool json = false;
};

std::string Ask(const std::string &line) {
  const char *const path = std::getenv(ztk::virtual_mixer::kControlVariable);
  if (path == nullptr || *path == '\0') {
    throw std::runtime_error(
        "not inside a sandbox; start one with: ztk-virtual-mixer run");
  }
  const std::string answer = AskControl(path, line);
  if (answer.compare(0, 2, "ok") != 0) {
    throw std::runtime_error(answer.substr(answer.find(' ') + 1));
  }
  return answer.size() > 3 ? answer.substr(3) : "";
}

// The sandbox checks again; here, a slip is known before it is asked.
void CheckNumber(const char *what, const std::string &text, unsigned least,
                 unsigned most) {
  if (ztk::virtual_mixer::ParseNumber(text, least, most)) return;
  throw UsageError("bad " + std::string(what) + " \"" + text +
                   "\"; accepted: " + std::to_string(least) + " to " +
                   std::to_string(most));
}

void AddMixerOption(CLI::App *command, ControlOptions *options) {
  command
      ->add_option("-m,--mixer", options->mixer,
                   "Number of the mixer, from 1 (default: all mixers)")
      ->type_name("M");
}

void CheckMixer(const ControlOptions &options) {
  if (options.mixer != "all") CheckNumber("mixer", options.mixer, 1, 32);
}

void AddRun(CLI::App *app, RunOptions *options, int *status) {
  CLI::App *const run = app->add_subcommand(
      "run", "Run a command, or your shell, among virtual mixers");
  run->add_option("-n,--mixers", options->mixers, "Mixers, 0 to 32")
      ->type_name("N")
      ->check(CLI::Range(0, 32))
      ->capture_default_str();
  run->add_option("--other-devices", options->otherDevices,
                  "Other devices, half before and half behind, 0 to 64")
      ->type_name("N")
      ->check(CLI::Range(0, 64))
      ->capture_default_str();
  run->add_option("--buses", options->buses,
                  "Buses to spread the devices over, 1 to 8")
      ->type_name("N")
      ->check(CLI::Range(1, 8))
      ->capture_default_str();
  run->add_option("--selector", options->selectors,
                  "Position of an input selector: channel 1 to 4, position 0 "
                  "to 255 (default 4)")
      ->type_name("[M:]CH=POS")
      ->allow_extra_args(false);
  run->add_option("--reply", options->replies,
                  "What a register replies, as in 8004=0100")
      ->type_name("[M:]REG=HEX")
      ->allow_extra_args(false);
  run->add_option("--fault", options->faults, "What goes wrong; see below")
      ->type_name("[M:]FAULT")
      ->allow_extra_args(false);
  run->add_option("--forbid", options->forbidden,
                  "Mixer that may not be opened (permission denied)")
      ->type_name("M")
      ->allow_extra_args(false);
  run->add_option("--log", options->logFile,
                  "Write each request to this file, as it happens")
      ->type_name("FILE");
  run->footer(
      std::string("Form: ztk-virtual-mixer run [OPTIONS] [-- COMMAND...]\n\n"
                  "With M: a value is for that mixer only. The command "
                  "follows \"--\"; the mixers\nlast until it and all that it "
                  "started have ended. The exit status is its own.\nPrograms "
                  "of another user (sudo) do not see the mixers.\n\n") +
      kFaultHelp +
      "\nExample: ztk-virtual-mixer run -n 2 --fault 2:stall -- ztk status");
  run->callback(
      [options, status] { *status = ztk::virtual_mixer::Run(*options); });
}

void AddTurn(CLI::App *app, ControlOptions *options) {
  CLI::App *const turn =
      app->add_subcommand("turn", "Turn an input selector (inside a sandbox)");
  AddMixerOption(turn, options);
  turn->add_option("channel", options->channel, "Channel, 1 to 4")
      ->type_name("CH")
      ->required();
  turn->add_option("position", options->position, "Position, 0 to 255")
      ->type_name("POS")
      ->required();
  turn->footer("Example: ztk-virtual-mixer turn --mixer 2 1 3");
  turn->callback([options] {
    CheckMixer(*options);
    CheckNumber("channel", options->channel, 1, 4);
    CheckNumber("position", options->position, 0, 255);
    Ask("turn " + options->mixer + " " + options->channel + " " +
        options->position);
  });
}

void AddFault(CLI::App *app, ControlOptions *options) {
  CLI::App *const fault = app->add_subcommand(
      "fault", "Make mixers misbehave, or stop it (inside a sandbox)");
  AddMixerOption(fault, options);
  fault->add_option("fault", options->fault, "See below; none ends all faults")
      ->type_name("FAULT|none")
      ->required();
  fault->footer(std::string(kFaultHelp) +
                "\nExample: ztk-virtual-mixer fault 'stall@8002*3'");
  fault->callback([options] {
    CheckMixer(*options);
    std::string error;
    if (options->fault != "none" &&
        !ztk::virtual_mixer::ParseFault(options->fault, &error)) {
      throw UsageError(error);
    }
    Ask("fault " + options->mixer + " " + options->fault);
  });
}

void AddReply(CLI::App *app, ControlOptions *options) {
  CLI::App *const reply = app->add_subcommand(
      "reply", "Change what a register replies (inside a sandbox)");
  AddMixerOption(reply, options);
  reply
      ->add_option("register", options->registerNumber,
                   "8001 firmware, 8002 selectors, 8004 Serato, 8006 port, "
                   "8007 certification level")
      ->type_name("REG")
      ->required();
  reply->add_option("bytes", options->bytes, "1 to 64 bytes")
      ->type_name("HEX")
      ->required();
  reply->footer("Example: ztk-virtual-mixer reply 8004 0100");
  reply->callback([options] {
    CheckMixer(*options);
    if (!ztk::virtual_mixer::ParseRegister(options->registerNumber)) {
      throw UsageError("bad register \"" + options->registerNumber +
                       "\"; accepted: 8001, 8002, 8004, 8006, 8007");
    }
    if (!ztk::virtual_mixer::ParseBytes(options->bytes)) {
      throw UsageError("bad bytes \"" + options->bytes +
                       "\"; accepted: 1 to 64 pairs of hexadecimal digits");
    }
    Ask("reply " + options->mixer + " " + options->registerNumber + " " +
        options->bytes);
  });
}

// The commands that need no more than a mixer.
void AddSimple(CLI::App *app, const std::string &name,
               const std::string &description, ControlOptions *options) {
  CLI::App *const command =
      app->add_subcommand(name, description + " (inside a sandbox)");
  AddMixerOption(command, options);
  command->footer("Example: ztk-virtual-mixer " + name + " --mixer 1");
  command->callback([options, name] {
    CheckMixer(*options);
    Ask(name + " " + options->mixer);
  });
}

void AddShow(CLI::App *app, ControlOptions *options) {
  CLI::App *const show = app->add_subcommand(
      "show", "Show mixers, selectors, values and faults (inside a sandbox)");
  show->add_flag("--json", options->json, "As JSON");
  show->footer("Example: ztk-virtual-mixer show --json");
  show->callback([options] {
    const std::string state = Ask("show");
    std::cout << (options->json ? state + "\n"
                                : ztk::virtual_mixer::DescribeState(state));
  });
}

int Complain(const std::string &what, int status) {
  std::cerr << "ztk-virtual-mixer: " << what << "\n";
  return status;
}

// What was wrong, and what is accepted instead.
std::string Explain(const CLI::App &app, const CLI::ParseError &error) {
  constexpr char kCommands[] =
      "; accepted: run, turn, fault, reply, plug, unplug, forbid, allow, show";
  const std::vector<CLI::App *> chosen = app.get_subcommands();
  const std::vector<std::string> extra = app.remaining(true);
  if (chosen.empty()) {
    return (extra.empty() ? "no command is given"
                          : "unknown command \"" + extra.front() + "\"") +
           std::string(kCommands);
  }
  const std::string name = chosen.front()->get_name();
  const bool forgotten =
      name == "run" && !extra.empty() && extra.front()[0] != '-';
  return error.what() +
         std::string(forgotten ? "; put \"--\" before the command, see "
                               : "; see ") +
         "ztk-virtual-mixer " + name + " --help";
}

// Parses everything before "--"; what follows it is the command, untouched.
int Main(int argc, char **argv) {
  CLI::App app{"Virtual VRM-D6 mixers for any program, no hardware needed.",
               "ztk-virtual-mixer"};
  RunOptions run;
  ControlOptions control;
  int status = 0;
  app.set_version_flag(
      "--version", std::string("ztk-virtual-mixer ") + ztk::build::kVersion);
  app.require_subcommand(1);
  app.footer("Example: ztk-virtual-mixer run -n 2 -- ztk status");
  AddRun(&app, &run, &status);
  AddTurn(&app, &control);
  AddFault(&app, &control);
  AddReply(&app, &control);
  AddSimple(&app, "plug", "Attach mixers", &control);
  AddSimple(&app, "unplug", "Detach mixers", &control);
  AddSimple(&app, "forbid", "Let mixers not be opened", &control);
  AddSimple(&app, "allow", "Let mixers be opened again", &control);
  AddShow(&app, &control);

  const std::vector<std::string> all(argv + 1, argv + argc);
  const auto mark = std::find(all.begin(), all.end(), "--");
  if (mark != all.end()) run.command.assign(mark + 1, all.end());
  // CLI11 wants the last argument first.
  std::vector<std::string> own(std::make_reverse_iterator(mark), all.rend());
  try {
    app.parse(own);
  } catch (const CLI::ParseError &error) {
    if (error.get_exit_code() == 0) return app.exit(error);
    return Complain(Explain(app, error), kUsage);
  }
  return status;
}

}  // namespace

int main(int argc, char **argv) {
  try {
    return Main(argc, argv);
  } catch (const UsageError &error) {
    return Complain(error.what(), kUsage);
  } catch (const std::exception &error) {
    return Complain(error.what(), kFailed);
  }
}
